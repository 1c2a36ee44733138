#include "listwindow/BookTableModel.h"

#include "document/DisplayNames.h"
#include "listwindow/engine/CellText.h"
#include "listwindow/engine/ColumnKind.h"
#include "model/KeyText.h"

#include <algorithm>

namespace tomely {

BookTableModel::BookTableModel(
    const std::vector<BookEntry*>& displayedBooks, const ColumnDictionary& columns, QObject* parent)
    : QAbstractTableModel(parent)
    , m_displayedBooks(displayedBooks)
    , m_columns(columns)
{
    m_keys.reserve(columns.size());
    for (const auto& [key, column] : columns)
        m_keys.push_back(key);
}

int BookTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_displayedBooks.size());
}

int BookTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_keys.size());
}

QVariant BookTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return displayCellText(*m_displayedBooks.at(static_cast<std::size_t>(index.row())),
            keyOfColumn(index.column()), index.row());
    case Qt::AccessibleTextRole:
        return accessibleText(index);
    case Qt::TextAlignmentRole:
        return headerData(index.column(), Qt::Horizontal, role);
    default:
        return {};
    }
}

/// What a screen reader says: a mark in words, for anything else what is shown.
QVariant BookTableModel::accessibleText(const QModelIndex& index) const
{
    const qint32 key = keyOfColumn(index.column());
    if (columnKind(key) != ColumnKind::Flag)
        return data(index, Qt::DisplayRole);
    const BookEntry& book = *m_displayedBooks.at(static_cast<std::size_t>(index.row()));
    return fieldOfColumn(key)->flag(book) ? tr("yes") : tr("no");
}

QVariant BookTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return displayName(record(section));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(
            record(section).getCentered() ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter));
    default:
        return {};
    }
}

int BookTableModel::columnOfKey(qint32 columnKey) const
{
    const auto place = std::ranges::find(m_keys, keyText(columnKey));
    return place == m_keys.end() ? -1 : static_cast<int>(place - m_keys.begin());
}

int BookTableModel::columnOfRecord(const ColumnEntry& record) const
{
    const auto place = std::ranges::lower_bound(m_keys, record.getKey(), KeyOrder());
    return place == m_keys.end() || *place != record.getKey()
        ? -1
        : static_cast<int>(place - m_keys.begin());
}

qint32 BookTableModel::keyOfColumn(int column) const
{
    return keyNumber(m_keys.at(static_cast<std::size_t>(column))).value_or(-1);
}

const ColumnEntry& BookTableModel::record(int column) const
{
    return m_columns.find(m_keys.at(static_cast<std::size_t>(column)))->second;
}

} // namespace tomely
