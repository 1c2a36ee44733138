// What a collection file holds, as plain data: the books, groups, columns and labels, the counters
// and the saved layout. It is read and written as a whole, and swapped into a document as a whole.

#pragma once

#include "document/ColumnCatalogue.h"
#include "document/GroupDictionary.h"
#include "model/BookEntry.h"
#include "model/KeyText.h"

#include <QRectF>

#include <array>
#include <memory>

namespace tomely {

using BookDictionary = KeyDictionary<std::unique_ptr<BookEntry>>;

struct CollectionContents {
    /// The version that this program writes, and the first that it does not understand.
    static constexpr qint32 currentVersion = 4;
    static constexpr qint32 firstUnknownVersion = 5;

    /// The version of the file that the contents were read from.
    qint32 fileVersion = currentVersion;
    qint32 lastGroupKey = 0; // the highest group key handed out so far
    GroupDictionary groups;
    LabelDictionary labels;
    qint32 lastBookIdn = 0; // the highest book number handed out so far
    BookDictionary books;
    qint32 sortField = 0; // a column key, plus 1 for descending
    ColumnDictionary columns;

    // Origin, width and height in points; all zero when never saved. Windows have their origin at
    // the lower left of the primary screen with y upwards, panes at the upper left of their
    // splitter.
    QRectF windowFrame;
    QRectF customizeListFrame;
    QRectF groupManagerFrame;
    std::array<QRectF, 2> imageSplitter;
    std::array<QRectF, 2> listSplitter;

    /// A new collection: the groups Fiction and Non Fiction, the default labels and columns.
    static CollectionContents makeNew();

    /// Replaces the groups by the two default ones, and sorts by title.
    void initGroupEntries();

    /// Replaces the labels by the default ones.
    void initCustomFieldLabels() { labels = defaultCustomFieldLabels(); }

    /// Takes every membership of a group that does not exist out of the books.
    void removeNonExistentGroup();
};

} // namespace tomely
