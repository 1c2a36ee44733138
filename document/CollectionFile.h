// The collection file: the order of its items and what each version of it carries. It turns bytes
// into contents and back; it opens no file and asks nobody.

#pragma once

#include "document/CollectionContents.h"
#include "platform/Progress.h"

#include <QByteArray>
#include <QByteArrayView>

#include <exception>

namespace tomely {

/// Thrown for a file of a version that a later program wrote.
class NewerVersionError : public std::exception {
public:
    explicit NewerVersionError(qint32 version) : m_version(version) { }

    qint32 version() const { return m_version; }

    const char* what() const noexcept override { return "a collection file of a newer version"; }

private:
    qint32 m_version;
};

/// Reads a collection of any version below 5 and brings it up to date: memberships of deleted
/// groups go from files of version 3 and below, and the column catalogue is applied. Reports
/// progress in bytes and may be left by it. Throws ArchiveError on damage and NewerVersionError.
CollectionContents readCollection(QByteArrayView bytes, const Progress& progress = {});

/// The collection as a file of the current version. The same contents give the same bytes. Reports
/// progress in books.
QByteArray writeCollection(const CollectionContents& contents, const Progress& progress = {});

} // namespace tomely
