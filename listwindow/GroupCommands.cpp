#include "listwindow/GroupCommands.h"

#include "document/BookListDocument.h"
#include "document/widgets/GroupManagerController.h"
#include "listwindow/GroupSidebar.h"
#include "platform/Alerts.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace tomely {

GroupCommands::GroupCommands(BookListDocument& document, Alerts& alerts, QWidget& window,
    GroupSidebar& sidebar, std::function<QStringList()> selectedKeys)
    : m_document(document)
    , m_alerts(alerts)
    , m_window(window)
    , m_sidebar(sidebar)
    , m_selectedKeys(std::move(selectedKeys))
{
}

QString GroupCommands::selectedGroupKey() const
{
    const qint32 key = m_sidebar.selectedGroupKey();
    return key == 0 ? QString() : keyText(key);
}

// Groups

QString GroupCommands::nextGroupName()
{
    // Stored with the collection, and so the same in every language.
    if (newGroupCounter == 0) {
        newGroupCounter = 2;
        return u"untitled group"_s;
    }
    return u"untitled group %1"_s.arg(newGroupCounter++);
}

void GroupCommands::clickedAddGroup()
{
    m_sidebar.endGroupNameEditting();
    const qint32 key = m_document.getNextGroupKey();
    GroupEntry group;
    group.setKey(key);
    group.setGroupName(nextGroupName());
    m_document.getGroups().insert(group);
    m_document.groupsChanged();
    m_sidebar.selectGroup(key);
    m_sidebar.startNaming();
}

void GroupCommands::clickedRenameGroup()
{
    m_sidebar.endGroupNameEditting();
    m_sidebar.startNaming();
}

void GroupCommands::clickedDeleteGroup()
{
    m_sidebar.endGroupNameEditting();
    const QString key = selectedGroupKey();
    const GroupEntry* const group = m_document.getGroups().find(key);
    if (!group)
        return;
    m_alerts.beginSheet(&m_window,
        confirmationAlert(
            tr("Are you sure you want to delete group '%1'?").arg(group->getGroupName())),
        [this, key](int button) { confirmedGroupDelete(button, key); });
}

void GroupCommands::confirmedGroupDelete(int button, const QString& groupKey)
{
    if (button != 0 || !m_document.getGroups().remove(groupKey))
        return;
    m_document.removeBookGroupReferences({groupKey});
    m_document.groupsChanged();
}

void GroupCommands::clickedCustomizeGroups()
{
    m_sidebar.endGroupNameEditting();
    new GroupManagerController(m_window, m_document, nullptr); // owned by the window
}

// The books of a group

void GroupCommands::clickedRemoveFromGroup()
{
    m_sidebar.endGroupNameEditting();
    const QString groupKey = selectedGroupKey();
    const QStringList bookKeys = m_selectedKeys();
    if (groupKey.isNull() || bookKeys.isEmpty())
        return;
    m_alerts.beginSheet(&m_window, confirmationAlert(tr("Remove selected book(s) from group?")),
        [this, bookKeys, groupKey](int button) { confirmedRemove(button, bookKeys, groupKey); });
}

void GroupCommands::confirmedRemove(
    int button, const QStringList& bookKeys, const QString& groupKey)
{
    if (button != 0)
        return;
    for (const QString& key : bookKeys) {
        if (BookEntry* const book = m_document.getBookEntry(key))
            book->removeFromGroup(groupKey);
    }
    m_document.setBooksChanged();
    m_document.refresh();
}

void GroupCommands::addToGroup(const QString& groupKey)
{
    m_sidebar.endGroupNameEditting();
    addBooksToGroup(m_selectedKeys(), groupKey);
}

void GroupCommands::addBooksToGroup(const QStringList& bookKeys, const QString& groupKey)
{
    if (!m_document.getGroups().contains(groupKey))
        return;
    bool isAdded = false;
    for (const QString& key : bookKeys) {
        if (BookEntry* const book = m_document.getBookEntry(key)) {
            book->addToGroup(groupKey);
            isAdded = true;
        }
    }
    if (isAdded)
        m_document.setBooksChanged();
}

} // namespace tomely
