#include "platform/widgets/EditMenu.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QIcon>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextDocument>

#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

enum class EditCommand { Undo, Redo, Cut, Copy, Paste, SelectAll };

struct Item {
    EditCommand command;
    const char* slot; // of the widget, and the item's object name
    const char* text;
    QLatin1StringView icon;
    QKeySequence::StandardKey keys;
    bool separatorAfter;
};

constexpr std::array items = std::to_array<Item>({
    {EditCommand::Undo, "undo", QT_TRANSLATE_NOOP("EditMenu", "&Undo"), "edit-undo"_L1,
        QKeySequence::Undo, false},
    {EditCommand::Redo, "redo", QT_TRANSLATE_NOOP("EditMenu", "&Redo"), "edit-redo"_L1,
        QKeySequence::Redo, true},
    {EditCommand::Cut, "cut", QT_TRANSLATE_NOOP("EditMenu", "Cu&t"), "edit-cut"_L1,
        QKeySequence::Cut, false},
    {EditCommand::Copy, "copy", QT_TRANSLATE_NOOP("EditMenu", "&Copy"), "edit-copy"_L1,
        QKeySequence::Copy, false},
    {EditCommand::Paste, "paste", QT_TRANSLATE_NOOP("EditMenu", "&Paste"), "edit-paste"_L1,
        QKeySequence::Paste, true},
    {EditCommand::SelectAll, "selectAll", QT_TRANSLATE_NOOP("EditMenu", "Select &All"),
        "edit-select-all"_L1, QKeySequence::SelectAll, false},
});

bool clipboardHasText()
{
    const QMimeData* const data = QApplication::clipboard()->mimeData();
    return data && data->hasText();
}

bool canEditLine(const QLineEdit& line, EditCommand command)
{
    switch (command) {
    case EditCommand::Undo:
        return line.isUndoAvailable() && !line.isReadOnly();
    case EditCommand::Redo:
        return line.isRedoAvailable() && !line.isReadOnly();
    case EditCommand::Cut:
        return line.hasSelectedText() && !line.isReadOnly();
    case EditCommand::Copy:
        return line.hasSelectedText();
    case EditCommand::Paste:
        return !line.isReadOnly() && clipboardHasText();
    case EditCommand::SelectAll:
        return !line.text().isEmpty();
    }
    return false;
}

bool canEditText(const QPlainTextEdit& text, EditCommand command)
{
    switch (command) {
    case EditCommand::Undo:
        return text.document()->isUndoAvailable();
    case EditCommand::Redo:
        return text.document()->isRedoAvailable();
    case EditCommand::Cut:
    case EditCommand::Copy:
        return text.textCursor().hasSelection();
    case EditCommand::Paste:
        return text.canPaste();
    case EditCommand::SelectAll:
        return !text.document()->isEmpty();
    }
    return false;
}

bool hasSlot(const QWidget& widget, const char* slot)
{
    return widget.metaObject()->indexOfMethod(QByteArray(slot) + "()") >= 0;
}

bool isPossible(const Item& item, const QWidget* target)
{
    if (!target || !hasSlot(*target, item.slot))
        return false;
    if (const auto* const line = qobject_cast<const QLineEdit*>(target))
        return canEditLine(*line, item.command);
    if (const auto* const text = qobject_cast<const QPlainTextEdit*>(target))
        return canEditText(*text, item.command);
    if (const auto* const view = qobject_cast<const QAbstractItemView*>(target);
        view && item.command == EditCommand::Copy)
        return view->selectionModel() && view->selectionModel()->hasSelection();
    return true;
}

/// Which widget of a window the menu is about: the one with the focus, also while the person walks
/// through the menus by keyboard, which takes the focus from it.
class EditTarget : public QObject {
public:
    explicit EditTarget(QMenuBar& menuBar) : QObject(&menuBar), m_menuBar(menuBar)
    {
        connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* now) {
            const bool isMenu = qobject_cast<QMenuBar*>(now) || qobject_cast<QMenu*>(now);
            if (now && !isMenu && now->window() == m_menuBar.window())
                m_focus = now;
        });
    }

    QWidget* widget() const
    {
        // A combo box has the focus in place of its line.
        const auto* const combo = qobject_cast<QComboBox*>(m_focus.data());
        return combo && combo->lineEdit() ? combo->lineEdit() : m_focus.data();
    }

private:
    QMenuBar& m_menuBar;
    QPointer<QWidget> m_focus;
};

} // namespace

QMenu& addEditMenu(QMenuBar& menuBar)
{
    QMenu& menu = *menuBar.addMenu(QCoreApplication::translate("EditMenu", "&Edit"));
    menu.setObjectName("editMenu"_L1);
    const auto* const target = new EditTarget(menuBar); // owned by the menu bar
    for (const Item& item : items) {
        QAction* const action = menu.addAction(
            QIcon::fromTheme(item.icon), QCoreApplication::translate("EditMenu", item.text));
        action->setObjectName(QString::fromLatin1(item.slot));
        action->setShortcuts(item.keys);
        QObject::connect(action, &QAction::triggered, action, [&item, target] {
            if (QWidget* const widget = target->widget(); widget && hasSlot(*widget, item.slot))
                QMetaObject::invokeMethod(widget, item.slot);
        });
        QObject::connect(&menu, &QMenu::aboutToShow, action,
            [action, &item, target] { action->setEnabled(isPossible(item, target->widget())); });
        // A key asks the widget itself, which knows better than the last look at the menu.
        QObject::connect(
            &menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); });
        if (item.separatorAfter)
            menu.addSeparator();
    }
    return menu;
}

} // namespace tomely
