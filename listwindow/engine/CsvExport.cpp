#include "listwindow/engine/CsvExport.h"

#include "document/BookListDocument.h"
#include "platform/LenientNumbers.h"

#include <algorithm>
#include <cerrno>
#include <new>

namespace tomely {

namespace {

constexpr std::size_t booksBetweenReports = 1000;
constexpr qsizetype usualLineUnits = 500; // a guess that spares most of the growing

CsvColumns columnsOf(const BookListDocument& document)
{
    CsvColumns columns;
    for (const auto& [key, column] : document.getListColumns()) {
        if (const auto number = keyNumber(key))
            columns[*number] = {column.getColumnName(), column.isShown()};
    }
    return columns;
}

/// By name, for labels and values alike: the cells of a line must stand under their labels.
std::vector<CsvGroup> groupsOf(const BookListDocument& document)
{
    std::vector<CsvGroup> groups;
    for (const GroupEntry* group : document.getGroups().byName())
        groups.push_back({leadingInt(group->getKey()), group->getGroupName()});
    return groups;
}

} // namespace

CsvExport::CsvExport(
    const BookListDocument& document, std::span<BookEntry* const> books, const CsvOptions& options)
    : m_aExportableBookList(books)
    , m_csv(options, columnsOf(document), groupsOf(document))
{
}

QString CsvExport::preview(qsizetype bookCount) const
{
    const auto count = std::min(m_aExportableBookList.size(), static_cast<std::size_t>(bookCount));
    QString text;
    appendLines(m_aExportableBookList.first(count), {}, text);
    return text;
}

FileResult CsvExport::write(const QString& path, const Progress& progress) const
{
    try {
        QString text;
        text.reserve(std::ssize(m_aExportableBookList) * usualLineUnits);
        text.append(QChar::ByteOrderMark);
        appendLines(m_aExportableBookList, halfOf(progress, 0), text);
        const auto bytes = std::as_bytes(std::span(text.constData(), std::size_t(text.size())));
        return AtomicFile::write(
            path, QByteArrayView(bytes.data(), qsizetype(bytes.size())), halfOf(progress, 1));
    } catch (const std::bad_alloc&) {
        return {tr("There is not enough memory"), ENOMEM, false};
    }
}

void CsvExport::appendLines(
    std::span<BookEntry* const> books, const Progress& progress, QString& text) const
{
    m_csv.appendHeader(text);
    for (std::size_t index = 0; index < books.size(); ++index) {
        if (progress && index % booksBetweenReports == 0)
            progress(static_cast<qint64>(index), static_cast<qint64>(books.size()));
        m_csv.csvEncode(*books[index], text);
    }
}

} // namespace tomely
