// The main window's commands as actions for its menus, all enabled and disabled together.

#pragma once

#include "listwindow/CommandTable.h"

#include <QObject>

#include <vector>

class QAction;
class QMenuBar;
class QWidget;

namespace tomely {

class CommandActions : public QObject {
    Q_OBJECT

public:
    /// The book table gets the actions whose keys mean them only there. It must outlive this.
    explicit CommandActions(QWidget& bookTable);

    QAction* action(CommandId id) const { return m_actions.at(static_cast<std::size_t>(id)); }

    /// Adds the menu Book.
    void addMenus(QMenuBar& menuBar);

    /// Enables what can be done now.
    void update(const CommandContext& context);

Q_SIGNALS:
    void triggered(CommandId id);

private:
    std::vector<QAction*> m_actions; // children of this, in the table's order
};

} // namespace tomely
