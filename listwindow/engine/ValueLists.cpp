#include "listwindow/engine/ValueLists.h"

#include "document/BookListDocument.h"

namespace tomely {

namespace {

struct ValueField {
    QString (BookEntry::*get)() const;
    void (BookListDocument::*set)(QStringList values);
};

constexpr std::array valueFields = std::to_array<ValueField>({
    {&BookEntry::getAuthor, &BookListDocument::setAuthors},
    {&BookEntry::getLocation, &BookListDocument::setLocations},
    {&BookEntry::getPublisher, &BookListDocument::setPublishers},
    {&BookEntry::getPricePaidFrom, &BookListDocument::setPricePaidLocations},
});

} // namespace

void ValueLists::update(
    BookListDocument& document, const BookIndex& index, const BookIndex::Changes& changes)
{
    if (m_isStale || changes.everything) {
        recount(index);
    } else {
        for (const Row row : changes.rows)
            countRow(index, row);
    }
    m_isStale = false;
    for (std::size_t number = 0; number < listCount; ++number) {
        List& list = m_lists[number];
        if (list.changed)
            (document.*valueFields[number].set)(list.counts.keys());
        list.changed = false;
    }
}

void ValueLists::recount(const BookIndex& index)
{
    for (List& list : m_lists) {
        list.counts.clear();
        list.ofRow.clear();
        list.changed = true;
    }
    for (Row row = 0; row < index.rowCount(); ++row)
        countRow(index, row);
}

void ValueLists::countRow(const BookIndex& index, Row row)
{
    for (std::size_t number = 0; number < listCount; ++number) {
        List& list = m_lists[number];
        if (row >= list.ofRow.size())
            list.ofRow.resize(index.rowCount());
        QString& counted = list.ofRow[row];
        const QString value = (index.books()[row]->*valueFields[number].get)();
        if (counted == value)
            continue;
        if (!counted.isEmpty() && --list.counts[counted] == 0) {
            list.counts.remove(counted);
            list.changed = true;
        }
        if (!value.isEmpty() && ++list.counts[value] == 1)
            list.changed = true;
        counted = value;
    }
}

} // namespace tomely
