// What the commands about groups do: add, rename and delete them, put books in and take them out,
// each with its question.

#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

namespace tomely {

class Alerts;
class BookListDocument;
class GroupSidebar;

class GroupCommands : public QObject {
    Q_OBJECT

public:
    /// `selectedKeys` answers the keys of the selected books. Everything must outlive the commands.
    GroupCommands(BookListDocument& document, Alerts& alerts, QWidget& window,
        GroupSidebar& sidebar, std::function<QStringList()> selectedKeys);

    /// Adds a group, selects it and begins the typing of its name.
    void clickedAddGroup();

    /// Begins the typing of the selected group's name.
    void clickedRenameGroup();

    /// Asks, and deletes the selected group; its books stay.
    void clickedDeleteGroup();

    /// Asks, and takes the selected books out of the selected group.
    void clickedRemoveFromGroup();

    /// Puts the selected books into a group.
    void addToGroup(const QString& groupKey);

    /// Puts books into a group. Books and groups that do not exist any more are left out.
    void addBooksToGroup(const QStringList& bookKeys, const QString& groupKey);

    /// Opens the group manager on the window.
    void clickedCustomizeGroups();

private:
    void confirmedGroupDelete(int button, const QString& groupKey);
    void confirmedRemove(int button, const QStringList& bookKeys, const QString& groupKey);
    QString nextGroupName();

    /// The key of the selected group; null for the library.
    QString selectedGroupKey() const;

    BookListDocument& m_document;
    Alerts& m_alerts;
    QWidget& m_window;
    GroupSidebar& m_sidebar;
    std::function<QStringList()> m_selectedKeys;
    int newGroupCounter = 0;
};

} // namespace tomely
