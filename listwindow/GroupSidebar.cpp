#include "listwindow/GroupSidebar.h"

#include "document/BookListDocument.h"
#include "listwindow/GroupTableModel.h"
#include "listwindow/GroupTableView.h"

#include <QItemSelectionModel>
#include <QScopedValueRollback>

#include <utility>

namespace tomely {

GroupSidebar::GroupSidebar(GroupTableView& table, BookListDocument& document)
    : m_table(table)
    , m_document(document)
    , m_model(new GroupTableModel(document.getGroups(), this))
{
    m_table.setModel(m_model);
    connect(m_table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &GroupSidebar::bookGroupSelectionDidChange);
    connect(m_model, &GroupTableModel::renameRequested, this, &GroupSidebar::noteRename);
}

void GroupSidebar::populateGroups()
{
    const QScopedValueRollback reloading(m_bReloadingGroups, true);
    m_model->populateGroups();
}

void GroupSidebar::refreshGroupList()
{
    const QScopedValueRollback reloading(m_bReloadingGroups, true);
    selectGroup(m_nSelectedGroupKey);
}

void GroupSidebar::selectGroup(qint32 groupKey)
{
    const int row = m_model->rowOfGroupKey(groupKey);
    if (row < 0)
        return;
    m_table.setCurrentIndex(m_model->index(row, GroupTableModel::NameColumn));
}

void GroupSidebar::handleDeletedGroup()
{
    if (m_nSelectedGroupKey == 0 || m_document.getGroups().contains(keyText(m_nSelectedGroupKey)))
        return;
    // The rows are still the old ones. Row 0 is the library, so row r is old group number r - 1.
    const int oldRow = m_model->rowOfGroupKey(m_nSelectedGroupKey);
    const int lastRow = m_model->rowCount() - 1;
    const int newRow = oldRow == lastRow ? oldRow - 1 : oldRow + 1;
    const qint32 neighbour = newRow >= 1 ? m_model->groupKeyOfRow(newRow) : 0;
    // Several groups may have gone at once, the neighbour among them.
    m_nSelectedGroupKey = m_document.getGroups().contains(keyText(neighbour)) ? neighbour : 0;
}

bool GroupSidebar::groupsChanged()
{
    const qint32 before = m_nSelectedGroupKey;
    handleDeletedGroup();
    populateGroups();
    refreshGroupList();
    return m_nSelectedGroupKey != before;
}

void GroupSidebar::startNaming()
{
    if (m_nSelectedGroupKey != 0)
        m_table.startEditing(m_model->rowOfGroupKey(m_nSelectedGroupKey));
}

void GroupSidebar::endGroupNameEditting()
{
    m_table.endEditing();
    takeOverNames();
}

void GroupSidebar::bookGroupSelectionDidChange()
{
    if (m_bReloadingGroups)
        return;
    const int row = m_table.selectedRow();
    if (row < 0)
        return selectGroup(m_nSelectedGroupKey); // a group is always selected
    const qint32 groupKey = m_model->groupKeyOfRow(row);
    if (groupKey == m_nSelectedGroupKey)
        return;
    m_nSelectedGroupKey = groupKey;
    Q_EMIT groupSelected(groupKey);
}

void GroupSidebar::noteRename(const QString& groupKey, const QString& name)
{
    // The rows move when the name is taken over: not before the table has closed its editor, and
    // has found the row of the click that may have ended it.
    m_renames.append({groupKey, name});
    QMetaObject::invokeMethod(this, &GroupSidebar::takeOverNames, Qt::QueuedConnection);
}

void GroupSidebar::takeOverNames()
{
    for (const Rename& rename : std::exchange(m_renames, {}))
        renameGroup(rename);
}

void GroupSidebar::renameGroup(const Rename& rename)
{
    GroupEntry* const group = m_document.getGroups().find(rename.groupKey);
    if (!group || group->getGroupName() == rename.name)
        return;
    group->setGroupName(rename.name);
    m_document.groupsChanged();
}

} // namespace tomely
