#include "listwindow/GroupCommands.h"

#include "document/widgets/GroupManagerController.h"
#include "listwindow/GroupSidebar.h"
#include "listwindow/GroupTableModel.h"
#include "listwindow/GroupTableView.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/SmallCollection.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QPointer>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class GroupCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void addsAGroupAndBeginsItsName();
    void numbersNewGroupsInEachWindow();
    void addsAnotherWhileTheFirstIsNamed();
    void keepsANewGroupSelectedAfterItsName_data();
    void keepsANewGroupSelectedAfterItsName();
    void beginsTheNameOfTheSelectedGroup();
    void neverNamesTheLibrary();
    void asksBeforeItDeletesAGroup();
    void deletesAGroupOnlyOnYes_data();
    void deletesAGroupOnlyOnYes();
    void deletesTheGroupThatItAskedAbout();
    void deletesAGroupOnce();
    void neverDeletesTheLibrary();
    void asksBeforeItTakesBooksOut();
    void takesBooksOutOnlyOnYes_data();
    void takesBooksOutOnlyOnYes();
    void takesOutTheBooksThatItAskedAbout();
    void takesOutOnlyWhereThereIsSomething_data();
    void takesOutOnlyWhereThereIsSomething();
    void putsBooksIntoAGroup();
    void leavesOutWhatIsGone_data();
    void leavesOutWhatIsGone();
    void opensTheGroupManagerWithoutTicks();
    void endsGroupNamingFirst_data();
    void endsGroupNamingFirst();

private:
    std::unique_ptr<GroupCommands> makeCommands();
    QLineEdit* editor() const;
    QStringList groupNames() const;
    QStringList groupsOf(const QString& bookKey) const;

    void answer(int button) { m_alerts.sheets.takeLast().answered(button); }

    FakeAlerts m_alerts;
    FakeBookListWindow* m_list = nullptr;
    std::unique_ptr<BookListDocument> m_document;
    std::unique_ptr<QMainWindow> m_window;
    GroupTableView* m_table = nullptr;
    std::unique_ptr<GroupSidebar> m_sidebar;
    std::unique_ptr<GroupCommands> m_commands;
    QStringList m_selected;
};

void GroupCommandsTest::init()
{
    QTest::failOnWarning(QRegularExpression(u"does not belong to this view|edit:"_s));
    m_document = std::make_unique<BookListDocument>(FakeBookListWindow::services(m_list));
    m_document->makeWindowControllers();
    samples::addFourBooks(*m_document); // 2 and 3 are in the group 1
    m_window = std::make_unique<QMainWindow>();
    m_table = new GroupTableView;
    m_window->setCentralWidget(m_table);
    m_sidebar = std::make_unique<GroupSidebar>(*m_table, *m_document);
    m_list->onCall = [this](const QString& call) {
        if (call == u"groupsChanged"_s)
            m_sidebar->groupsChanged();
    };
    m_sidebar->populateGroups();
    m_sidebar->refreshGroupList();
    m_selected = {u"2"_s, u"4"_s};
    m_alerts.sheets.clear();
    m_commands = makeCommands();
    m_window->resize(400, 400);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_document->clearChangeCount();
    m_list->calls.clear();
}

void GroupCommandsTest::cleanup()
{
    m_sidebar->endGroupNameEditting();
    m_list->onCall = {};
    m_commands.reset();
    m_sidebar.reset();
    m_window.reset();
    m_document.reset();
}

std::unique_ptr<GroupCommands> GroupCommandsTest::makeCommands()
{
    return std::make_unique<GroupCommands>(
        *m_document, m_alerts, *m_window, *m_sidebar, [this] { return m_selected; });
}

QLineEdit* GroupCommandsTest::editor() const
{
    for (auto* const edit : m_table->viewport()->findChildren<QLineEdit*>()) {
        if (edit->isVisible())
            return edit;
    }
    return nullptr;
}

QStringList GroupCommandsTest::groupNames() const
{
    QStringList names;
    for (const auto& [key, group] : m_document->getGroups().byKey())
        names.append(key + u' ' + group.getGroupName());
    return names;
}

QStringList GroupCommandsTest::groupsOf(const QString& bookKey) const
{
    QStringList keys;
    for (const auto& entry : m_document->getBookEntry(bookKey)->getSelectedGroups())
        keys.append(entry.key + u'=' + entry.value);
    return keys;
}

// Groups

void GroupCommandsTest::addsAGroupAndBeginsItsName()
{
    const QSignalSpy selected(m_sidebar.get(), &GroupSidebar::groupSelected);
    m_commands->clickedAddGroup();
    QCOMPARE(groupNames().last(), u"3 untitled group"_s);
    QCOMPARE(m_sidebar->selectedGroupKey(), 3);
    QCOMPARE(selected.count(), 1);
    QCOMPARE(m_list->calls.count(u"groupsChanged"_s), 1);
    QVERIFY(m_document->isDocumentEdited());
    QVERIFY(editor());
    QVERIFY(editor()->hasFocus());
    QCOMPARE(editor()->selectedText(), u"untitled group"_s);
}

void GroupCommandsTest::numbersNewGroupsInEachWindow()
{
    samples::addGroup(*m_document, u"untitled group 2"_s); // 3
    for (int count = 0; count < 3; ++count)
        m_commands->clickedAddGroup();
    QCOMPARE(groupNames().mid(3),
        QStringList({u"4 untitled group"_s, u"5 untitled group 2"_s, u"6 untitled group 3"_s}));
    m_document->getGroups().remove(u"4"_s);
    m_commands->clickedAddGroup();
    QCOMPARE(groupNames().last(), u"7 untitled group 4"_s);
    makeCommands()->clickedAddGroup();
    QCOMPARE(groupNames().last(), u"8 untitled group"_s);
}

void GroupCommandsTest::addsAnotherWhileTheFirstIsNamed()
{
    m_commands->clickedAddGroup();
    QTest::keyClicks(editor(), u"Maps"_s);
    m_commands->clickedAddGroup();
    QCOMPARE(groupNames().mid(2), QStringList({u"3 Maps"_s, u"4 untitled group 2"_s}));
    QCOMPARE(m_sidebar->selectedGroupKey(), 4);
    QVERIFY(editor());
    QCOMPARE(editor()->selectedText(), u"untitled group 2"_s);
    QTest::keyClicks(editor(), u"Atlases"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(groupNames().last(), u"4 Atlases"_s);
    QCOMPARE(groupNames().at(2), u"3 Maps"_s);
}

void GroupCommandsTest::keepsANewGroupSelectedAfterItsName_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Tab") << Qt::Key_Tab;
}

void GroupCommandsTest::keepsANewGroupSelectedAfterItsName()
{
    QFETCH(const Qt::Key, key);
    m_commands->clickedAddGroup();
    const QSignalSpy selected(m_sidebar.get(), &GroupSidebar::groupSelected);
    QTest::keyClicks(editor(), u"Atlases"_s); // which comes first
    QTest::keyClick(editor(), key);
    QTRY_COMPARE(groupNames().last(), u"3 Atlases"_s);
    QTRY_VERIFY(!editor());
    QCOMPARE(m_sidebar->selectedGroupKey(), 3);
    QCOMPARE(m_table->selectedRow(), 1);
    QCOMPARE(selected.count(), 0);
}

void GroupCommandsTest::beginsTheNameOfTheSelectedGroup()
{
    m_sidebar->selectGroup(2);
    m_commands->clickedRenameGroup();
    QVERIFY(editor());
    QCOMPARE(editor()->selectedText(), u"Non Fiction"_s);
    QTest::keyClicks(editor(), u"Science"_s);
    m_commands->clickedRenameGroup(); // goes on with what was typed
    QVERIFY(editor());
    QCOMPARE(editor()->selectedText(), u"Science"_s);
    QCOMPARE(groupNames().last(), u"2 Science"_s);
}

void GroupCommandsTest::neverNamesTheLibrary()
{
    m_commands->clickedRenameGroup();
    QVERIFY(!editor());
}

void GroupCommandsTest::asksBeforeItDeletesAGroup()
{
    m_sidebar->selectGroup(2);
    m_commands->clickedDeleteGroup();
    QCOMPARE(m_alerts.sheets.size(), 1);
    QCOMPARE(m_alerts.sheets.first().window, m_window.get());
    QCOMPARE(m_alerts.sheets.first().alert.informativeText,
        u"Are you sure you want to delete group 'Non Fiction'?"_s);
    QCOMPARE(m_alerts.sheets.first().alert.buttons, QStringList({u"Yes"_s, u"No"_s}));
    QCOMPARE(m_alerts.sheets.first().alert.defaultButton, 1);
}

void GroupCommandsTest::deletesAGroupOnlyOnYes_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("Yes") << 0;
    QTest::newRow("No") << 1;
}

void GroupCommandsTest::deletesAGroupOnlyOnYes()
{
    QFETCH(const int, button);
    m_sidebar->selectGroup(1);
    m_commands->clickedDeleteGroup();
    answer(button);
    const bool isYes = button == 0;
    QCOMPARE(m_document->getGroups().contains(u"1"_s), !isYes);
    QCOMPARE(groupsOf(u"2"_s), isYes ? QStringList() : QStringList{u"1=1"_s});
    QCOMPARE(m_document->getBookListSize(), 4);
    QCOMPARE(m_document->isDocumentEdited(), isYes);
    QCOMPARE(m_list->calls.count(u"groupsChanged"_s), isYes ? 1 : 0);
    QCOMPARE(m_sidebar->selectedGroupKey(), isYes ? 2 : 1);
}

void GroupCommandsTest::deletesTheGroupThatItAskedAbout()
{
    m_sidebar->selectGroup(1);
    m_commands->clickedDeleteGroup();
    m_sidebar->selectGroup(2);
    answer(0);
    QCOMPARE(groupNames(), QStringList{u"2 Non Fiction"_s});
}

void GroupCommandsTest::deletesAGroupOnce()
{
    m_sidebar->selectGroup(1);
    m_commands->clickedDeleteGroup();
    m_document->getGroups().remove(u"1"_s);
    answer(0);
    QVERIFY(!m_list->calls.contains(u"groupsChanged"_s));
    QCOMPARE(groupNames(), QStringList{u"2 Non Fiction"_s});
}

void GroupCommandsTest::neverDeletesTheLibrary()
{
    m_commands->clickedDeleteGroup();
    QVERIFY(m_alerts.sheets.isEmpty());
}

// The books of a group

void GroupCommandsTest::asksBeforeItTakesBooksOut()
{
    m_sidebar->selectGroup(1);
    m_commands->clickedRemoveFromGroup();
    QCOMPARE(m_alerts.sheets.size(), 1);
    QCOMPARE(m_alerts.sheets.first().window, m_window.get());
    QCOMPARE(
        m_alerts.sheets.first().alert.informativeText, u"Remove selected book(s) from group?"_s);
    QCOMPARE(m_alerts.sheets.first().alert.buttons, QStringList({u"Yes"_s, u"No"_s}));
}

void GroupCommandsTest::takesBooksOutOnlyOnYes_data()
{
    deletesAGroupOnlyOnYes_data();
}

void GroupCommandsTest::takesBooksOutOnlyOnYes()
{
    QFETCH(const int, button);
    m_document->getBookEntry(u"2")->addToGroup(u"2"_s);
    m_sidebar->selectGroup(1);
    m_commands->clickedRemoveFromGroup();
    answer(button);
    const bool isYes = button == 0;
    QCOMPARE(groupsOf(u"2"_s), isYes ? QStringList{u"2=2"_s} : QStringList({u"1=1"_s, u"2=2"_s}));
    QCOMPARE(groupsOf(u"3"_s), QStringList{u"1=1"_s}); // was not selected
    QCOMPARE(m_document->isDocumentEdited(), isYes);
    QStringList told = m_list->calls;
    told.removeAll(u"endGroupNameEditting"_s);
    QCOMPARE(told, isYes ? QStringList({u"setBooksChanged"_s, u"refresh"_s}) : QStringList());
}

void GroupCommandsTest::takesOutTheBooksThatItAskedAbout()
{
    m_sidebar->selectGroup(1);
    m_selected = {u"3"_s, u"2"_s};
    m_commands->clickedRemoveFromGroup();
    m_selected = {u"1"_s};
    m_sidebar->selectGroup(2);
    m_document->deleteBook(u"3"_s);
    answer(0);
    QVERIFY(groupsOf(u"2"_s).isEmpty());
}

void GroupCommandsTest::takesOutOnlyWhereThereIsSomething_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<QStringList>("books");
    QTest::newRow("the library") << 0 << QStringList{u"2"_s};
    QTest::newRow("no book") << 1 << QStringList();
}

void GroupCommandsTest::takesOutOnlyWhereThereIsSomething()
{
    QFETCH(const int, group);
    QFETCH(const QStringList, books);
    m_sidebar->selectGroup(group);
    m_selected = books;
    m_commands->clickedRemoveFromGroup();
    QVERIFY(m_alerts.sheets.isEmpty());
}

void GroupCommandsTest::putsBooksIntoAGroup()
{
    m_commands->addToGroup(u"1"_s);
    QCOMPARE(groupsOf(u"2"_s), QStringList{u"1=1"_s}); // was in it
    QCOMPARE(groupsOf(u"4"_s), QStringList{u"1=1"_s});
    QVERIFY(groupsOf(u"1"_s).isEmpty());
    m_commands->addBooksToGroup({u"1"_s, u"2"_s}, u"2"_s);
    QCOMPARE(groupsOf(u"1"_s), QStringList{u"2=2"_s});
    QCOMPARE(groupsOf(u"2"_s), QStringList({u"1=1"_s, u"2=2"_s}));
    QVERIFY(m_document->isDocumentEdited());
    QCOMPARE(m_list->calls.count(u"setBooksChanged"_s), 2);
    QVERIFY(!m_list->calls.contains(u"refresh"_s));
}

void GroupCommandsTest::leavesOutWhatIsGone_data()
{
    QTest::addColumn<QStringList>("books");
    QTest::addColumn<QString>("group");
    QTest::addColumn<bool>("changes");
    QTest::newRow("a book") << QStringList({u"99"_s, u"4"_s}) << u"1"_s << true;
    QTest::newRow("all books") << QStringList{u"99"_s} << u"1"_s << false;
    QTest::newRow("no book") << QStringList() << u"1"_s << false;
    QTest::newRow("the group") << QStringList{u"4"_s} << u"99"_s << false;
}

void GroupCommandsTest::leavesOutWhatIsGone()
{
    QFETCH(const QStringList, books);
    QFETCH(const QString, group);
    QFETCH(const bool, changes);
    m_commands->addBooksToGroup(books, group);
    QCOMPARE(groupsOf(u"4"_s), changes ? QStringList{u"1=1"_s} : QStringList());
    QCOMPARE(m_document->isDocumentEdited(), changes);
}

void GroupCommandsTest::opensTheGroupManagerWithoutTicks()
{
    m_commands->clickedCustomizeGroups();
    const QPointer dialog = m_window->findChild<GroupManagerController*>();
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QVERIFY(dialog->findChild<GroupNameTable*>()->isColumnHidden(GroupNameTable::FirstColumn));
    dialog->cancel();
    QTRY_VERIFY(!dialog);
}

void GroupCommandsTest::endsGroupNamingFirst_data()
{
    QTest::addColumn<QString>("command");
    for (const char* const command : {"delete", "remove", "add", "manage"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void GroupCommandsTest::endsGroupNamingFirst()
{
    QFETCH(const QString, command);
    m_sidebar->selectGroup(1);
    m_commands->clickedRenameGroup();
    QTest::keyClicks(editor(), u"Stories"_s);
    if (command == u"delete"_s)
        m_commands->clickedDeleteGroup();
    else if (command == u"remove"_s)
        m_commands->clickedRemoveFromGroup();
    else if (command == u"add"_s)
        m_commands->addToGroup(u"2"_s);
    else
        m_commands->clickedCustomizeGroups();
    QCOMPARE(groupNames().first(), u"1 Stories"_s);
    QVERIFY(!editor());
    if (command == u"delete"_s)
        QVERIFY(m_alerts.sheets.first().alert.informativeText.contains(u"'Stories'"_s));
}

QTEST_MAIN(GroupCommandsTest)
#include "GroupCommandsTest.moc"
