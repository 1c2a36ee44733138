#include "listwindow/CommandActions.h"

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTableWidget>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace tomely;

Q_DECLARE_METATYPE(tomely::CommandId)

namespace {

/// What a person reads in a menu, a line of dashes for a separator.
QStringList textsOf(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* const action : menu.actions())
        texts.append(action->isSeparator() ? u"--"_s : action->text().remove(u'&'));
    return texts;
}

/// The mnemonics of actions; two that are alike are there twice.
QStringList mnemonicsOf(const QList<QAction*>& actions)
{
    QStringList mnemonics;
    for (const QAction* const action : actions) {
        if (!action->isSeparator())
            mnemonics.append(QKeySequence::mnemonic(action->text()).toString());
    }
    return mnemonics;
}

bool areUnique(QStringList mnemonics)
{
    const bool allThere = !mnemonics.contains(QString());
    return mnemonics.removeDuplicates() == 0 && allThere;
}

} // namespace

// A window with the book table and a line.
class CommandActionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void enablesEveryCommandAsTheTableSays_data();
    void enablesEveryCommandAsTheTableSays();
    void tellsWhichCommandWasGiven();
    void addsTheMenusInTheirOrder();
    void fillsTheMenus_data();
    void fillsTheMenus();
    void hasNoTwoEqualMnemonicsInAMenu();
    void hasContextMenus();
    void offersTheGroupsOfTheMomentForAdding();
    void tellsWhichGroupWasChosen();
    void showsNamesOfGroupsAsTheyAre_data();
    void showsNamesOfGroupsAsTheyAre();
    void saysSoWhenThereAreNoGroups();
    void addsToGroupsOnlyWithASelectedBook();
    void givesKeysOfTheListToTheListAlone();
    void givesOtherKeysToTheWholeWindow();
    void namesTheKeyInTheToolTip();

private:
    QMenu& menu(const QString& name) const { return *m_window->findChild<QMenu*>(name); }

    std::unique_ptr<QMainWindow> m_window;
    QTableWidget* m_table = nullptr;
    QLineEdit* m_line = nullptr;
    std::unique_ptr<CommandActions> m_actions;
    QList<CommandId> m_triggered;
};

void CommandActionsTest::init()
{
    m_window = std::make_unique<QMainWindow>();
    auto* const contents = new QWidget;
    m_table = new QTableWidget(3, 1, contents);
    m_line = new QLineEdit(contents);
    m_window->setCentralWidget(contents);
    m_actions = std::make_unique<CommandActions>(*m_table);
    m_actions->addMenus(*m_window->menuBar());
    m_actions->update({.hasSelectedBook = true, .hasSelectedGroup = true});
    m_triggered.clear();
    connect(m_actions.get(), &CommandActions::triggered, this,
        [this](CommandId id) { m_triggered.append(id); });
}

void CommandActionsTest::cleanup()
{
    m_actions.reset();
    m_window.reset();
}

void CommandActionsTest::enablesEveryCommandAsTheTableSays_data()
{
    QTest::addColumn<bool>("hasBook");
    QTest::addColumn<bool>("hasGroup");
    QTest::newRow("nothing") << false << false;
    QTest::newRow("book") << true << false;
    QTest::newRow("group") << false << true;
    QTest::newRow("both") << true << true;
}

void CommandActionsTest::enablesEveryCommandAsTheTableSays()
{
    QFETCH(const bool, hasBook);
    QFETCH(const bool, hasGroup);
    const CommandContext context{.hasSelectedBook = hasBook, .hasSelectedGroup = hasGroup};
    m_actions->update(context);
    for (const Command& row : commandTable())
        QCOMPARE(m_actions->action(row.id)->isEnabled(), enableOption(row, context));
}

void CommandActionsTest::tellsWhichCommandWasGiven()
{
    QList<CommandId> all;
    for (const Command& row : commandTable()) {
        m_actions->action(row.id)->trigger();
        all.append(row.id);
    }
    QCOMPARE(m_triggered, all);
}

void CommandActionsTest::addsTheMenusInTheirOrder()
{
    QStringList names;
    for (const QAction* const action : m_window->menuBar()->actions())
        names.append(action->menu()->objectName());
    QCOMPARE(names, QStringList({u"editMenu"_s, u"bookMenu"_s, u"groupMenu"_s, u"viewMenu"_s}));
}

void CommandActionsTest::fillsTheMenus_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("editMenu") << QStringList({u"Undo"_s, u"Redo"_s, u"--"_s, u"Cut"_s, u"Copy"_s,
        u"Paste"_s, u"--"_s, u"Select All"_s, u"--"_s, u"Find"_s});
    QTest::newRow("bookMenu") << QStringList(
        {u"Add Book…"_s, u"Edit Book…"_s, u"Delete Book…"_s, u"--"_s, u"Add to Group"_s,
            u"Remove from Group…"_s, u"--"_s, u"Scale All Pictures…"_s, u"Remove All Pictures…"_s});
    QTest::newRow("groupMenu") << QStringList(
        {u"New Group"_s, u"Rename Group"_s, u"Delete Group…"_s, u"--"_s, u"Manage Groups…"_s});
    QTest::newRow("viewMenu") << QStringList(
        {u"Clear Filter"_s, u"--"_s, u"Columns…"_s, u"Customise Toolbar…"_s});
}

void CommandActionsTest::fillsTheMenus()
{
    QFETCH(const QStringList, texts);
    QCOMPARE(textsOf(menu(QString::fromLatin1(QTest::currentDataTag()))), texts);
}

void CommandActionsTest::hasNoTwoEqualMnemonicsInAMenu()
{
    QMenuBar& bar = *m_window->menuBar();
    for (const QAction* const action : bar.actions())
        QVERIFY2(areUnique(mnemonicsOf(action->menu()->actions())), qPrintable(action->text()));
    for (const QMenu* const context :
        {&m_actions->bookMenu(), &m_actions->groupMenu(false), &m_actions->groupMenu(true)})
        QVERIFY2(areUnique(mnemonicsOf(context->actions())), qPrintable(context->objectName()));
    // With the menus that the program puts around these.
    for (const QString& title : {u"&File"_s, u"&Window"_s, u"&Help"_s})
        bar.addMenu(title);
    QVERIFY(areUnique(mnemonicsOf(bar.actions())));
}

void CommandActionsTest::hasContextMenus()
{
    QCOMPARE(textsOf(m_actions->bookMenu()),
        QStringList({u"Edit Book…"_s, u"Delete Book…"_s, u"--"_s, u"Add to Group"_s,
            u"Remove from Group…"_s}));
    QCOMPARE(textsOf(m_actions->groupMenu(false)),
        QStringList({u"Rename Group"_s, u"Delete Group…"_s, u"--"_s, u"New Group"_s}));
    QCOMPARE(textsOf(m_actions->groupMenu(true)), QStringList(u"New Group"_s));
    QVERIFY(m_actions->bookMenu().actions().contains(m_actions->action(CommandId::EditBook)));
    QVERIFY(
        m_actions->groupMenu(false).actions().contains(m_actions->action(CommandId::RenameGroup)));
}

void CommandActionsTest::offersTheGroupsOfTheMomentForAdding()
{
    std::vector<GroupChoice> groups{{u"1"_s, u"Fiction"_s}, {u"2"_s, u"Non Fiction"_s}};
    m_actions->setGroupChoices([&groups] { return groups; });
    QMenu& add = menu(u"addToGroupMenu"_s);
    Q_EMIT add.aboutToShow();
    QCOMPARE(textsOf(add), QStringList({u"Fiction"_s, u"Non Fiction"_s}));
    groups = {{u"7"_s, u"Poetry"_s}};
    Q_EMIT add.aboutToShow();
    QCOMPARE(textsOf(add), QStringList(u"Poetry"_s));
}

void CommandActionsTest::tellsWhichGroupWasChosen()
{
    m_actions->setGroupChoices([] {
        return std::vector<GroupChoice>{{u"1"_s, u"Fiction"_s}, {u"12"_s, u"Fiction"_s}};
    });
    const QSignalSpy chosen(m_actions.get(), &CommandActions::addToGroupChosen);
    QMenu& add = menu(u"addToGroupMenu"_s);
    Q_EMIT add.aboutToShow();
    add.actions().at(1)->trigger();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(0).toString(), u"12"_s);
}

void CommandActionsTest::showsNamesOfGroupsAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("ampersand") << u"Crime & Thrillers"_s << u"Crime && Thrillers"_s;
    QTest::newRow("a tab would make a column of keys") << u"A\tB\nC"_s << u"A B C"_s;
    QTest::newRow("long") << QString(200, u'x') << QString(80, u'x') + u'…';
}

void CommandActionsTest::showsNamesOfGroupsAsTheyAre()
{
    QFETCH(const QString, name);
    QFETCH(const QString, text);
    m_actions->setGroupChoices([name] { return std::vector<GroupChoice>{{u"1"_s, name}}; });
    QMenu& add = menu(u"addToGroupMenu"_s);
    Q_EMIT add.aboutToShow();
    QCOMPARE(add.actions().at(0)->text(), text);
}

void CommandActionsTest::saysSoWhenThereAreNoGroups()
{
    QMenu& add = menu(u"addToGroupMenu"_s);
    Q_EMIT add.aboutToShow();
    QCOMPARE(textsOf(add), QStringList(u"No Groups"_s));
    QVERIFY(!add.actions().at(0)->isEnabled());
}

void CommandActionsTest::addsToGroupsOnlyWithASelectedBook()
{
    const QAction& add = *menu(u"addToGroupMenu"_s).menuAction();
    m_actions->update({.hasSelectedBook = false, .hasSelectedGroup = true});
    QVERIFY(!add.isEnabled());
    m_actions->update({.hasSelectedBook = true, .hasSelectedGroup = false});
    QVERIFY(add.isEnabled());
}

void CommandActionsTest::givesKeysOfTheListToTheListAlone()
{
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_line->setText(u"x"_s);
    m_line->setFocus();
    QTest::keyClick(m_line, Qt::Key_Return);
    QTest::keyClick(m_line, Qt::Key_Home);
    QTest::keyClick(m_line, Qt::Key_Delete);
    QCOMPARE(m_line->text(), QString());
    QVERIFY(m_triggered.isEmpty());
    m_table->setFocus();
    QTest::keyClick(m_table, Qt::Key_Return);
    QTest::keyClick(m_table, Qt::Key_Enter);
    QTest::keyClick(m_table, Qt::Key_Delete);
    QCOMPARE(m_triggered,
        QList<CommandId>({CommandId::EditBook, CommandId::EditBook, CommandId::DeleteBook}));
}

void CommandActionsTest::givesOtherKeysToTheWholeWindow()
{
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    for (QWidget* const widget : std::initializer_list<QWidget*>{m_line, m_table}) {
        m_triggered.clear();
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_B, Qt::ControlModifier);
        QTest::keyClick(widget, Qt::Key_G, Qt::ControlModifier);
        QTest::keyClick(widget, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClick(widget, Qt::Key_F2);
        QCOMPARE(m_triggered,
            QList<CommandId>({CommandId::AddBook, CommandId::AddGroup, CommandId::Find,
                CommandId::RenameGroup}));
    }
}

void CommandActionsTest::namesTheKeyInTheToolTip()
{
    QCOMPARE(m_actions->action(CommandId::AddBook)->toolTip(), u"Add Book (Ctrl+B)"_s);
    QCOMPARE(m_actions->action(CommandId::RemoveFromGroup)->toolTip(), u"Remove from Group"_s);
}

QTEST_MAIN(CommandActionsTest)
#include "CommandActionsTest.moc"
