#include "tests/app/ProgramOnScreen.h"

#include <QMainWindow>
#include <QMenu>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

// The menu Window, in windows of collections and of editors.
class WindowMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsEveryWindow();
    void marksItsOwnWindow();
    void bringsAWindowForward();
    void namesAWindowAsItIs();

private:
    static QMenu& opened(const QWidget& window)
    {
        auto* const menu = window.findChild<QMenu*>(u"windowMenu"_s);
        Q_EMIT menu->aboutToShow();
        return *menu;
    }

    static QStringList texts(const QWidget& window)
    {
        QStringList texts;
        for (const QAction* const action : opened(window).actions())
            texts.append(action->text());
        return texts;
    }
};

void WindowMenuTest::listsEveryWindow()
{
    ProgramOnScreen program;
    const CollectionWindow first = program.open(program.smallCollection(u"first.books"_s));
    QCOMPARE(texts(first.window()), QStringList{u"first"_s});
    const CollectionWindow second = program.open(program.smallCollection(u"second.books"_s));
    const EditorWindow editor = program.edit(first, u"Emma"_s);
    const QStringList all{u"first"_s, u"first - Emma"_s, u"second"_s};
    QCOMPARE(texts(first.window()), all);
    QCOMPARE(texts(second.window()), all);
    QCOMPARE(texts(editor.window()), all);
    editor.window().close();
    QCOMPARE(texts(first.window()), QStringList({u"first"_s, u"second"_s}));
}

void WindowMenuTest::marksItsOwnWindow()
{
    ProgramOnScreen program;
    program.open(program.smallCollection(u"first.books"_s));
    const CollectionWindow second = program.open(program.smallCollection(u"second.books"_s));
    const QList<QAction*> actions = opened(second.window()).actions();
    QVERIFY(!actions.at(0)->isChecked());
    QVERIFY(actions.at(1)->isChecked());
}

void WindowMenuTest::bringsAWindowForward()
{
    ProgramOnScreen program;
    const CollectionWindow first = program.open(program.smallCollection(u"first.books"_s));
    const CollectionWindow second = program.open(program.smallCollection(u"second.books"_s));
    first.window().setWindowState(Qt::WindowMinimized);
    opened(second.window()).actions().at(0)->trigger();
    QVERIFY(QTest::qWaitForWindowActive(&first.window()));
    QVERIFY(!first.window().isMinimized());
}

void WindowMenuTest::namesAWindowAsItIs()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"A & B [*].books"_s));
    window.document().changeDone();
    QCOMPARE(texts(window.window()), QStringList{u"A && B [*]"_s});
    window.document().clearChangeCount();
}

QTEST_MAIN(WindowMenuTest)
#include "WindowMenuTest.moc"
