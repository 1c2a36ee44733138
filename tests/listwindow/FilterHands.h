// A person's hands at a filter bar: its menu and controls by mouse and keys.

#pragma once

#include "listwindow/FilterBar.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <functional>

namespace tomely::samples {

template <class Control>
Control& control(const FilterBar& bar, const QString& name)
{
    return *bar.findChild<Control*>(name);
}

inline QToolButton& fieldButton(const FilterBar& bar)
{
    return control<QToolButton>(bar, QStringLiteral("m_idFilterDropDown"));
}

inline QStackedWidget& pages(const FilterBar& bar)
{
    return control<QStackedWidget>(bar, QStringLiteral("m_idFilterTab"));
}

/// The fields that the menu offers, in its order.
inline QList<QAction*> fieldItems(const FilterBar& bar)
{
    QList<QAction*> items = fieldButton(bar).menu()->actions();
    items.removeIf([](const QAction* item) { return item->isSeparator(); });
    return items;
}

/// Opens the menu of fields with a click and does something with it, after which it closes.
inline void withOpenMenu(const FilterBar& bar, const std::function<void(QMenu&)>& act)
{
    QMenu& menu = *fieldButton(bar).menu();
    // The click comes back once the menu is closed.
    QTimer::singleShot(0, &menu, [&menu, &act] {
        act(menu);
        menu.close();
    });
    QTest::mouseClick(&fieldButton(bar), Qt::LeftButton);
    // Without a window manager no window is the active one after a menu.
    QApplication::setActiveWindow(bar.window());
}

/// Clicks the item at that place among the fields.
inline void clickField(const FilterBar& bar, qsizetype place)
{
    QAction* const item = fieldItems(bar).at(place);
    withOpenMenu(bar, [item](QMenu& menu) {
        const QPoint center = menu.actionGeometry(item).center();
        QTest::mouseMove(&menu, center);
        QTest::mouseClick(&menu, Qt::LeftButton, {}, center);
    });
}

inline void clickField(const FilterBar& bar, const QString& selectionName)
{
    const QList<QAction*> items = fieldItems(bar);
    for (qsizetype place = 0; place < items.size(); ++place) {
        if (items.at(place)->text() == QString(selectionName).replace(u'&', QLatin1String("&&")))
            return clickField(bar, place);
    }
    QFAIL(qPrintable(selectionName));
}

/// Chooses the item with that tag by keys.
inline void chooseTag(const FilterBar& bar, const QString& popUpName, int tag)
{
    auto& popUp = control<QComboBox>(bar, popUpName);
    popUp.setFocus();
    QTest::keyClick(&popUp, Qt::Key_Home);
    while (popUp.currentData().toInt() != tag && popUp.currentIndex() < popUp.count() - 1)
        QTest::keyClick(&popUp, Qt::Key_Down);
    QCOMPARE(popUp.currentData().toInt(), tag);
}

/// Types a text in place of what the field holds.
inline void typeText(const FilterBar& bar, const QString& lineName, const QString& text)
{
    auto& line = control<QLineEdit>(bar, lineName);
    line.setFocus();
    line.selectAll();
    QTest::keyClick(&line, Qt::Key_Delete);
    // By its text, for not every letter has a key of its own.
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &line, Qt::Key_unknown, QString(letter), {});
}

} // namespace tomely::samples
