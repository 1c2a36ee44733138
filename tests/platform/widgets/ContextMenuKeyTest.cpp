#include "platform/widgets/ContextMenuKey.h"

#include <QTableWidget>
#include <QtTest>

using namespace tomely;

class ContextMenuKeyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksForTheMenuOfWhatHasTheFocus();
    void leavesOtherKeysAlone();
};

namespace {

/// A table in a window, with the focus and a current cell.
struct Desk {
    Desk()
    {
        qApp->installEventFilter(&key);
        table.setContextMenuPolicy(Qt::CustomContextMenu);
        table.setCurrentCell(1, 0);
        table.show();
        table.activateWindow();
        table.setFocus();
    }

    ContextMenuKey key;
    QTableWidget table{3, 1};
};

} // namespace

void ContextMenuKeyTest::asksForTheMenuOfWhatHasTheFocus()
{
    Desk desk;
    QTRY_VERIFY(desk.table.hasFocus());
    QSignalSpy asked(&desk.table, &QWidget::customContextMenuRequested);
    QTest::keyClick(&desk.table, Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(asked.size(), 1);
    // At the current cell, as the key Menu does.
    const QRect cell = desk.table.visualRect(desk.table.model()->index(1, 0));
    QVERIFY(cell.contains(asked.first().first().toPoint()));
}

void ContextMenuKeyTest::leavesOtherKeysAlone()
{
    Desk desk;
    QTRY_VERIFY(desk.table.hasFocus());
    QSignalSpy asked(&desk.table, &QWidget::customContextMenuRequested);
    for (const auto modifiers : {Qt::NoModifier, Qt::ControlModifier, Qt::AltModifier})
        QTest::keyClick(&desk.table, Qt::Key_F10, modifiers);
    QTest::keyClick(&desk.table, Qt::Key_F9, Qt::ShiftModifier);
    QCOMPARE(asked.size(), 0);
}

QTEST_MAIN(ContextMenuKeyTest)
#include "ContextMenuKeyTest.moc"
