// The main window's commands as actions for its menus, context menus and toolbar, all enabled and
// disabled together.

#pragma once

#include "listwindow/CommandTable.h"

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace tomely {

/// A group as the menu "Add to Group" offers it.
struct GroupChoice {
    QString key;
    QString name;
};

class CommandActions : public QObject {
    Q_OBJECT

public:
    /// The book table gets the actions whose keys mean them only there. It must outlive this.
    explicit CommandActions(QWidget& bookTable);

    QAction* action(CommandId id) const { return m_actions.at(static_cast<std::size_t>(id)); }

    /// Adds what the window brings to the menu File: import, export and printing.
    void addFileCommands(QMenu& fileMenu);

    /// Adds the menus Edit, Book, Group and View.
    void addMenus(QMenuBar& menuBar);

    /// The context menu of selected books.
    QMenu& bookMenu() const { return *m_bookMenu; }

    /// The context menu of a group, or of the library.
    QMenu& groupMenu(bool isLibrary) const { return isLibrary ? *m_libraryMenu : *m_groupMenu; }

    /// `groups` is asked for what "Add to Group" offers each time that it opens; until it is set,
    /// that is nothing.
    void setGroupChoices(std::function<std::vector<GroupChoice>()> groups);

    /// Enables what can be done now.
    void update(const CommandContext& context);

Q_SIGNALS:
    void triggered(CommandId id);

    /// The selected books shall be added to a group.
    void addToGroupChosen(const QString& groupKey);

private:
    void makeAction(const Command& command, QWidget& bookTable);
    void makeContextMenus(QWidget& parent);
    void fillAddToGroupMenu();

    std::vector<QAction*> m_actions; // children of this, in the table's order
    std::function<std::vector<GroupChoice>()> m_groupChoices = [] {
        return std::vector<GroupChoice>();
    };
    // Children of the book table, so that they open on its window.
    QMenu* m_addToGroupMenu = nullptr;
    QMenu* m_bookMenu = nullptr;
    QMenu* m_groupMenu = nullptr;
    QMenu* m_libraryMenu = nullptr;
};

} // namespace tomely
