#include "app/WindowMenu.h"

#include "platform/Document.h"
#include "platform/widgets/DocumentController.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr qsizetype longestText = 80; // a menu is not to be wider than its window

/// A window's title as a menu shows it, without the place of the mark for unsaved changes.
QString itemText(const QWidget& window)
{
    QString title = window.windowTitle();
    title.remove(title.lastIndexOf("[*]"_L1), 3);
    title.replace("[*][*]"_L1, "[*]"_L1);
    if (title.size() > longestText)
        title = title.first(longestText) + u'…';
    return title.replace(u'&', "&&"_L1);
}

void fill(QMenu& menu, const QMainWindow& ownWindow, DocumentController& documents)
{
    menu.clear();
    delete menu.findChild<QActionGroup*>();
    auto* const group = new QActionGroup(&menu);
    for (const auto& document : documents.documents()) {
        for (const auto& window : document->windowControllers()) {
            const auto* const widget = qobject_cast<QWidget*>(window->windowObject());
            if (!widget || !widget->isVisible())
                continue;
            QAction* const action = group->addAction(menu.addAction(itemText(*widget)));
            action->setCheckable(true);
            action->setChecked(widget == &ownWindow);
            QObject::connect(action, &QAction::triggered, widget,
                [shown = window.get()] { shown->bringToFront(); });
        }
    }
}

} // namespace

void addWindowMenu(QMainWindow& window, DocumentController& documents)
{
    QMenu& menu = *window.menuBar()->addMenu(QCoreApplication::translate("WindowMenu", "&Window"));
    menu.setObjectName("windowMenu"_L1);
    // Filled when it is opened: windows come and go.
    QObject::connect(&menu, &QMenu::aboutToShow, &menu,
        [&menu, &window, &documents] { fill(menu, window, documents); });
}

} // namespace tomely
