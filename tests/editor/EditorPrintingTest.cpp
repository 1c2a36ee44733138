#include "tests/editor/EditorDesk.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

// An editor prints nothing of its own: the list is what is printed.
class EditorPrintingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksTheListToPrint();
};

void EditorPrintingTest::asksTheListToPrint()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    auto* const print = editor.window()->findChild<QAction*>(u"print"_s);
    QVERIFY(print);
    QVERIFY(print->shortcuts().contains(QKeySequence(QKeySequence::Print)));
    desk.list->calls.clear();
    print->trigger();
    QCOMPARE(desk.list->calls, QStringList{u"printDocument"_s});
}

QTEST_MAIN(EditorPrintingTest)
#include "EditorPrintingTest.moc"
