#include "document/widgets/GroupManagerRows.h"

#include "document/GroupDictionary.h"
#include "model/CaseFolding.h"

#include <algorithm>

namespace tomely {

GroupManagerRows::GroupManagerRows(
    GroupDictionary& groups, const GroupMembership* selectedGroups, QObject* parent)
    : QAbstractTableModel(parent)
    , m_groups(groups)
    , m_hasMembership(selectedGroups != nullptr)
{
    for (const GroupEntry* const group : groups.byName()) {
        m_aGroups.push_back(*group);
        m_knownKeys.insert(group->getKey());
    }
    if (selectedGroups)
        m_dSelectedGroups = *selectedGroups;
}

// Groups

QString GroupManagerRows::keyOfRow(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    return m_aGroups[static_cast<std::size_t>(row)].getKey();
}

QString GroupManagerRows::nameOfRow(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    return nameOf(m_aGroups[static_cast<std::size_t>(row)]);
}

QString GroupManagerRows::nameOf(const GroupEntry& row) const
{
    const GroupEntry* const group = m_groups.find(row.getKey());
    return group ? group->getGroupName() : row.getGroupName();
}

int GroupManagerRows::rowOfKey(const QString& key) const
{
    const auto place = std::ranges::find(m_aGroups, key, &GroupEntry::getKey);
    return place == m_aGroups.end() ? -1 : static_cast<int>(place - m_aGroups.begin());
}

void GroupManagerRows::append(const GroupEntry& group)
{
    beginInsertRows({}, rowCount(), rowCount());
    m_aGroups.push_back(group);
    endInsertRows();
}

void GroupManagerRows::remove(int row)
{
    beginRemoveRows({}, row, row);
    m_aGroups.erase(m_aGroups.begin() + row);
    endRemoveRows();
}

void GroupManagerRows::sortByName()
{
    const auto precedes = [this](const GroupEntry& left, const GroupEntry& right) {
        return lessIgnoringCase(nameOf(left), nameOf(right));
    };
    // A click that has begun on a row goes on only if the rows stay as they are.
    if (std::ranges::is_sorted(m_aGroups, precedes))
        return;
    beginResetModel();
    std::ranges::stable_sort(m_aGroups, precedes);
    endResetModel();
}

void GroupManagerRows::setGroupName(int row, const QString& name)
{
    GroupEntry& group = m_aGroups[static_cast<std::size_t>(row)];
    group.setGroupName(name);
    if (GroupEntry* const shared = m_groups.find(group.getKey()))
        shared->setGroupName(name);
}

void GroupManagerRows::storeGroups(const QStringList& deletedGroups)
{
    GroupDictionary stored;
    for (const GroupEntry* const group : m_groups.byName()) {
        if (!m_knownKeys.contains(group->getKey()) && !deletedGroups.contains(group->getKey()))
            stored.insert(*group);
    }
    for (GroupEntry& group : m_aGroups) {
        group.setGroupName(nameOf(group));
        stored.insert(group);
    }
    m_groups = std::move(stored);
}

// Ticks

void GroupManagerRows::checkboxChanged(int row)
{
    const QString key = keyOfRow(row);
    if (key.isNull())
        return;
    if (!m_dSelectedGroups.remove(key))
        m_dSelectedGroups.insert(key);
    const QModelIndex changed = index(row, CheckColumn);
    Q_EMIT dataChanged(changed, changed, {Qt::CheckStateRole});
    Q_EMIT ticked(row);
}

// The table

int GroupManagerRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_aGroups.size());
}

int GroupManagerRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : GroupNameTable::ColumnCount;
}

QVariant GroupManagerRows::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::AccessibleTextRole)
        return nameOfRow(index.row());
    if (index.column() == NameColumn && (role == Qt::DisplayRole || role == Qt::EditRole))
        return nameOfRow(index.row());
    if (index.column() == CheckColumn && role == Qt::CheckStateRole && m_hasMembership)
        return m_dSelectedGroups.contains(keyOfRow(index.row())) ? Qt::Checked : Qt::Unchecked;
    return {};
}

Qt::ItemFlags GroupManagerRows::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    if (index.column() == NameColumn)
        return flags | Qt::ItemIsEditable;
    return m_hasMembership ? flags | Qt::ItemIsUserCheckable : flags;
}

bool GroupManagerRows::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role == Qt::EditRole && flags(index).testFlag(Qt::ItemIsEditable)) {
        setGroupName(index.row(), value.toString());
        Q_EMIT dataChanged(index, index);
        return true;
    }
    if (role == Qt::CheckStateRole && flags(index).testFlag(Qt::ItemIsUserCheckable)) {
        checkboxChanged(index.row());
        return true;
    }
    return false;
}

} // namespace tomely
