#include "listwindow/GroupTableModel.h"

#include "document/GroupDictionary.h"
#include "platform/widgets/SymbolicIcon.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

GroupTableModel::GroupTableModel(const GroupDictionary& groups, QObject* parent)
    : QAbstractTableModel(parent)
    , m_groups(groups)
    , m_rows{{QString(), tr("Library")}}
    , m_libraryIcon(symbolicIcon(u"library"_s))
    , m_groupIcon(symbolicIcon(u"group"_s))
{
}

void GroupTableModel::populateGroups()
{
    beginResetModel();
    m_rows.resize(1);
    for (const GroupEntry* const group : m_groups.byName())
        m_rows.push_back({group->getKey(), group->getGroupName()});
    endResetModel();
}

qint32 GroupTableModel::groupKeyOfRow(int row) const
{
    return keyNumber(groupKeyTextOfRow(row)).value_or(0);
}

QString GroupTableModel::groupKeyTextOfRow(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    return m_rows[static_cast<std::size_t>(row)].key;
}

int GroupTableModel::rowOfGroupKey(qint32 groupKey) const
{
    if (groupKey == 0)
        return libraryRow;
    const auto place = std::ranges::find(m_rows, keyText(groupKey), &Row::key);
    return place == m_rows.end() ? -1 : static_cast<int>(place - m_rows.begin());
}

int GroupTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int GroupTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : GroupNameTable::ColumnCount;
}

QVariant GroupTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Row& row = m_rows.at(static_cast<std::size_t>(index.row()));
    if (role == Qt::AccessibleTextRole)
        return nameOf(row);
    if (role == KeyRole)
        return row.key;
    if (index.column() == IconColumn)
        return role == Qt::DecorationRole
            ? QVariant(index.row() == libraryRow ? m_libraryIcon : m_groupIcon)
            : QVariant();
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return nameOf(row);
    return {};
}

/// A group may have got another name that nobody told: the group manager's stay when it is left.
QString GroupTableModel::nameOf(const Row& row) const
{
    const GroupEntry* const group = row.key.isNull() ? nullptr : m_groups.find(row.key);
    return group ? group->getGroupName() : row.name;
}

Qt::ItemFlags GroupTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isName = index.column() == NameColumn && index.row() != libraryRow;
    return isName ? flags | Qt::ItemIsEditable : flags;
}

bool GroupTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    // By the row that was edited: the selection may have moved on before the name arrives.
    Q_EMIT renameRequested(groupKeyTextOfRow(index.row()), value.toString());
    return true;
}

} // namespace tomely
