#include "listwindow/CommandActions.h"

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTableWidget>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

Q_DECLARE_METATYPE(tomely::CommandId)

class CommandActionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsCommandsInTheOrderOfTheirNumbers();
    void enablesAsTheTableSays_data();
    void enablesAsTheTableSays();
    void putsEveryCommandIntoTheMenu();
    void hasNoTwoCommandsWithTheSameKeysOrMnemonic();
    void givesKeysOfTheListToTheListAlone();
};

void CommandActionsTest::listsCommandsInTheOrderOfTheirNumbers()
{
    int number = 0;
    for (const Command& row : commandTable()) {
        QCOMPARE(static_cast<int>(row.id), number++);
        QCOMPARE(command(row.id).name, row.name);
    }
}

void CommandActionsTest::enablesAsTheTableSays_data()
{
    QTest::addColumn<CommandId>("id");
    QTest::addColumn<bool>("withoutBook");
    QTest::newRow("add") << CommandId::AddBook << true;
    QTest::newRow("edit") << CommandId::EditBook << false;
    QTest::newRow("delete") << CommandId::DeleteBook << false;
    QTest::newRow("scale") << CommandId::ScaleAllImages << true;
    QTest::newRow("remove") << CommandId::RemoveAllImages << true;
}

void CommandActionsTest::enablesAsTheTableSays()
{
    QFETCH(const CommandId, id);
    QFETCH(const bool, withoutBook);
    QWidget table;
    CommandActions actions(table);
    actions.update({.hasSelectedBook = false});
    QCOMPARE(actions.action(id)->isEnabled(), withoutBook);
    actions.update({.hasSelectedBook = true});
    QVERIFY(actions.action(id)->isEnabled());
}

void CommandActionsTest::putsEveryCommandIntoTheMenu()
{
    QMainWindow window;
    CommandActions actions(window);
    actions.addMenus(*window.menuBar());
    const auto* const menu = window.findChild<QMenu*>(u"bookMenu"_s);
    QVERIFY(menu);
    for (const Command& row : commandTable())
        QVERIFY(menu->actions().contains(actions.action(row.id)));
}

void CommandActionsTest::hasNoTwoCommandsWithTheSameKeysOrMnemonic()
{
    QSet<QString> taken;
    for (const Command& row : commandTable()) {
        QStringList keys{QKeySequence::mnemonic(QString::fromUtf8(row.text)).toString()};
        for (const QKeySequence& sequence : row.keys)
            keys.append(sequence.toString());
        for (const QString& key : keys) {
            QVERIFY2(!taken.contains(key), qPrintable(key));
            taken.insert(key);
        }
    }
}

void CommandActionsTest::givesKeysOfTheListToTheListAlone()
{
    QMainWindow window;
    auto* const contents = new QWidget;
    auto* const table = new QTableWidget(3, 1, contents);
    auto* const line = new QLineEdit(contents);
    window.setCentralWidget(contents);
    CommandActions actions(*table);
    actions.addMenus(*window.menuBar());
    actions.update({.hasSelectedBook = true});
    QList<CommandId> triggered;
    connect(&actions, &CommandActions::triggered, this,
        [&triggered](CommandId id) { triggered.append(id); });
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    line->setText(u"x"_s);
    line->setFocus();
    QTest::keyClick(line, Qt::Key_Return);
    QTest::keyClick(line, Qt::Key_Home);
    QTest::keyClick(line, Qt::Key_Delete);
    QCOMPARE(line->text(), QString());
    QVERIFY(triggered.isEmpty());
    QTest::keyClick(line, Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(triggered, QList<CommandId>{CommandId::AddBook});
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Return);
    QTest::keyClick(table, Qt::Key_Enter);
    QTest::keyClick(table, Qt::Key_Delete);
    QCOMPARE(triggered,
        QList<CommandId>(
            {CommandId::AddBook, CommandId::EditBook, CommandId::EditBook, CommandId::DeleteBook}));
}

QTEST_MAIN(CommandActionsTest)
#include "CommandActionsTest.moc"
