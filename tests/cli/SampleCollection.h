// The small collection that the tests of the command line read.

#pragma once

#include "document/BookListDocument.h"

#include <memory>

namespace tomely {

/// Five books, in the order of their numbers:
///   1 Emma                  Jane Austen     published December 1815, 474 pages, 12.5 paid, group
///   1,
///                                           one picture, owned, rating 5
///   2 Walden                Henry Thoreau   published 1854, 352 pages, type 1, group 2
///   3 Persuasion            Jane Austen     published June 1817, 249 pages, 4.99 paid, groups 1,
///   2,
///                                           lent June 2001, read
///   4 吾輩は猫である        夏目漱石        no date, a title of wide characters
///   5 Tabs, "quotes" and \  (none)          notes with tab, line ends and backslash
/// Sorted by title; the columns Title and Author are shown. `sample()` is not saved anywhere.
std::unique_ptr<BookListDocument> sample();

/// Saves a document; false when that failed.
bool save(BookListDocument& document, const QString& path);

/// Saves the sample.
bool saveSample(const QString& path);

/// Makes a file of another version out of a saved one. Only versions 3 and above are laid out as
/// the current one.
bool setFileVersion(const QString& path, char version);

QByteArray fileBytes(const QString& path);

bool writeBytes(const QString& path, const QByteArray& bytes);

} // namespace tomely
