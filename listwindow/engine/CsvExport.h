// Writes books of a collection as a file of comma-separated values: the columns and groups are the
// collection's, the books and their order the caller's. It knows no widget and asks nothing.

#pragma once

#include "model/BookCsv.h"
#include "platform/AtomicFile.h"
#include "platform/Progress.h"

#include <QCoreApplication>

#include <span>

namespace tomely {

class BookListDocument;

class CsvExport {
    Q_DECLARE_TR_FUNCTIONS(CsvExport)

public:
    /// Takes over the document's columns and groups as they are now. The books must stay until the
    /// export is done.
    CsvExport(const BookListDocument& document, std::span<BookEntry* const> books,
        const CsvOptions& options);

    /// The header and the first `bookCount` books, or all when there are fewer, as the file will
    /// have them.
    QString preview(qsizetype bookCount) const;

    /// Replaces the file at `path`, or leaves it as it was: when that fails, and when `progress`
    /// throws OperationCancelled, which passes through. The file is UTF-16 in the byte order of the
    /// machine, with a byte-order mark.
    FileResult write(const QString& path, const Progress& progress = {}) const;

private:
    void appendLines(
        std::span<BookEntry* const> books, const Progress& progress, QString& text) const;

    std::span<BookEntry* const> m_aExportableBookList;
    BookCsv m_csv;
};

} // namespace tomely
