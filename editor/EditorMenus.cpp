#include "editor/EditorMenus.h"

#include "platform/widgets/EditMenu.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// The texts of this file for translators.
struct EditorMenus {
    Q_DECLARE_TR_FUNCTIONS(EditorMenus)
};

QAction* addItem(QMenu& menu, QLatin1StringView name, QLatin1StringView icon, const QString& text,
    const QList<QKeySequence>& keys, const std::function<void()>& triggered)
{
    QAction* const action = menu.addAction(QIcon::fromTheme(icon), text);
    action->setObjectName(name);
    action->setShortcuts(keys);
    QObject::connect(action, &QAction::triggered, &menu, triggered);
    return action;
}

} // namespace

void addEditorMenus(QMenuBar& menuBar, const EditorCommands& commands)
{
    QMenu& menu = *menuBar.addMenu(EditorMenus::tr("&Book"));
    menu.setObjectName("bookMenu"_L1);
    QAction* const save = addItem(menu, "saveBook"_L1, "document-save"_L1, EditorMenus::tr("&Save"),
        {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter),
            QKeySequence(QKeySequence::Save)},
        commands.save);
    QAction* const addMore =
        addItem(menu, "saveAndAddMore"_L1, "list-add"_L1, EditorMenus::tr("Save and &Add More"),
            {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return),
                QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Enter)},
            commands.saveAndAddMore);
    menu.addSeparator();
    addItem(menu, "lookUpBook"_L1, "edit-find"_L1, EditorMenus::tr("&Look Up…"),
        {QKeySequence(Qt::CTRL | Qt::Key_L)}, commands.lookUp);
    addItem(menu, "manageGroups"_L1, "view-list-details"_L1, EditorMenus::tr("&Groups…"),
        {QKeySequence(Qt::CTRL | Qt::Key_G)}, commands.manageGroups);
    menu.addSeparator();
    addItem(menu, "print"_L1, "document-print"_L1, EditorMenus::tr("&Print…"),
        {QKeySequence(QKeySequence::Print)}, commands.print);
    addItem(menu, "closeEditor"_L1, "window-close"_L1, EditorMenus::tr("&Close"),
        {QKeySequence(Qt::CTRL | Qt::Key_W)}, commands.close);
    QObject::connect(&menu, &QMenu::aboutToShow, save, [save, addMore, canSave = commands.canSave] {
        save->setEnabled(canSave());
        addMore->setEnabled(canSave());
    });
    // A key is answered by the state at that moment, not by that of the last look at the menu.
    QObject::connect(&menu, &QMenu::aboutToHide, save, [save, addMore] {
        save->setEnabled(true);
        addMore->setEnabled(true);
    });
    addEditMenu(menuBar);
}

} // namespace tomely
