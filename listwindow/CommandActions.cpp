#include "listwindow/CommandActions.h"

#include "platform/widgets/EditMenu.h"
#include "platform/widgets/SymbolicIcon.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr qsizetype longestGroupName = 80; // a menu is not to be wider than its window

/// What the command does and the key for it, for a button that shows only a picture.
QString toolTip(const QAction& action)
{
    QString text = action.text().remove(u'&');
    if (text.endsWith(u'…'))
        text.chop(1);
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    return key.isEmpty() ? text : u"%1 (%2)"_s.arg(text, key);
}

/// A name in which a menu finds neither a mnemonic nor a column of keys.
QString menuText(const QString& groupName)
{
    QString text = groupName.simplified();
    if (text.size() > longestGroupName)
        text = text.first(longestGroupName) + u'…';
    return text.replace(u'&', "&&"_L1);
}

QMenu* addMenu(QMenuBar& menuBar, const QString& title, QLatin1StringView name)
{
    QMenu* const menu = menuBar.addMenu(title);
    menu->setObjectName(name);
    return menu;
}

} // namespace

CommandActions::CommandActions(QWidget& bookTable)
{
    for (const Command& command : commandTable())
        makeAction(command, bookTable);
    makeContextMenus(bookTable);
}

void CommandActions::makeAction(const Command& command, QWidget& bookTable)
{
    auto* const action = new QAction(QCoreApplication::translate("Commands", command.text), this);
    action->setObjectName(command.name);
    if (!command.icon.isEmpty())
        action->setIcon(symbolicIcon(command.icon));
    action->setShortcuts(command.keys);
    action->setToolTip(toolTip(*action));
    if (command.keyScope == KeyScope::BookTable) {
        action->setShortcutContext(Qt::WidgetShortcut);
        bookTable.addAction(action);
    }
    connect(action, &QAction::triggered, this, [this, id = command.id] { Q_EMIT triggered(id); });
    m_actions.push_back(action);
}

void CommandActions::makeContextMenus(QWidget& parent)
{
    m_addToGroupMenu = new QMenu(tr("Add to &Group"), &parent);
    m_addToGroupMenu->setObjectName("addToGroupMenu"_L1);
    connect(m_addToGroupMenu, &QMenu::aboutToShow, this, &CommandActions::fillAddToGroupMenu);

    m_bookMenu = new QMenu(&parent);
    m_bookMenu->setObjectName("bookContextMenu"_L1);
    m_bookMenu->addActions({action(CommandId::EditBook), action(CommandId::DeleteBook)});
    m_bookMenu->addSeparator();
    m_bookMenu->addMenu(m_addToGroupMenu);
    m_bookMenu->addAction(action(CommandId::RemoveFromGroup));

    m_groupMenu = new QMenu(&parent);
    m_groupMenu->setObjectName("groupContextMenu"_L1);
    m_groupMenu->addActions({action(CommandId::RenameGroup), action(CommandId::DeleteGroup)});
    m_groupMenu->addSeparator();
    m_groupMenu->addAction(action(CommandId::AddGroup));

    m_libraryMenu = new QMenu(&parent);
    m_libraryMenu->setObjectName("libraryContextMenu"_L1);
    m_libraryMenu->addAction(action(CommandId::AddGroup));
}

void CommandActions::addFileCommands(QMenu& fileMenu)
{
    fileMenu.addActions(
        {action(CommandId::ImportXML), action(CommandId::ExportXML), action(CommandId::ExportCSV)});
    fileMenu.addSeparator();
    fileMenu.addActions({action(CommandId::PrintPreview), action(CommandId::Print)});
}

void CommandActions::addMenus(QMenuBar& menuBar)
{
    QMenu& edit = addEditMenu(menuBar);
    edit.addSeparator();
    edit.addAction(action(CommandId::Find));

    QMenu& book = *addMenu(menuBar, tr("&Book"), "bookMenu"_L1);
    book.addActions(
        {action(CommandId::AddBook), action(CommandId::EditBook), action(CommandId::DeleteBook)});
    book.addSeparator();
    book.addMenu(m_addToGroupMenu);
    book.addAction(action(CommandId::RemoveFromGroup));
    book.addSeparator();
    book.addActions({action(CommandId::ScaleAllImages), action(CommandId::RemoveAllImages)});

    QMenu& group = *addMenu(menuBar, tr("&Group"), "groupMenu"_L1);
    group.addActions({action(CommandId::AddGroup), action(CommandId::RenameGroup),
        action(CommandId::DeleteGroup)});
    group.addSeparator();
    group.addAction(action(CommandId::CustomizeGroups));

    QMenu& view = *addMenu(menuBar, tr("&View"), "viewMenu"_L1);
    view.addAction(action(CommandId::ClearFilter));
    view.addSeparator();
    view.addActions({action(CommandId::CustomizeList), action(CommandId::CustomizeToolbar)});
}

void CommandActions::setGroupChoices(std::function<std::vector<GroupChoice>()> groups)
{
    m_groupChoices = std::move(groups);
}

void CommandActions::fillAddToGroupMenu()
{
    m_addToGroupMenu->clear();
    for (const GroupChoice& group : m_groupChoices()) {
        const QAction* const choice = m_addToGroupMenu->addAction(menuText(group.name));
        connect(choice, &QAction::triggered, this,
            [this, key = group.key] { Q_EMIT addToGroupChosen(key); });
    }
    if (m_addToGroupMenu->isEmpty())
        m_addToGroupMenu->addAction(tr("No Groups"))->setEnabled(false);
}

void CommandActions::update(const CommandContext& context)
{
    for (const Command& command : commandTable())
        action(command.id)->setEnabled(enableOption(command, context));
    m_addToGroupMenu->menuAction()->setEnabled(context.hasSelectedBook);
}

} // namespace tomely
