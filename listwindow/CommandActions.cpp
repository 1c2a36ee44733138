#include "listwindow/CommandActions.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace tomely {

CommandActions::CommandActions(QWidget& bookTable)
{
    for (const Command& command : commandTable()) {
        auto* const action =
            new QAction(QCoreApplication::translate("Commands", command.text), this);
        action->setObjectName(command.name);
        if (!command.icon.isEmpty())
            action->setIcon(QIcon::fromTheme(command.icon));
        action->setShortcuts(command.keys);
        if (command.keyScope == KeyScope::BookTable) {
            action->setShortcutContext(Qt::WidgetShortcut);
            bookTable.addAction(action);
        }
        connect(
            action, &QAction::triggered, this, [this, id = command.id] { Q_EMIT triggered(id); });
        m_actions.push_back(action);
    }
}

void CommandActions::addMenus(QMenuBar& menuBar)
{
    QMenu& book = *menuBar.addMenu(tr("&Book"));
    book.setObjectName("bookMenu"_L1);
    book.addActions(
        {action(CommandId::AddBook), action(CommandId::EditBook), action(CommandId::DeleteBook)});
    book.addSeparator();
    book.addActions({action(CommandId::ScaleAllImages), action(CommandId::RemoveAllImages)});
}

void CommandActions::update(const CommandContext& context)
{
    for (const Command& command : commandTable())
        action(command.id)->setEnabled(enableOption(command, context));
}

} // namespace tomely
