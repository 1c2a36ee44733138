// How names are typed in the group manager, and what ends the typing.

#include "document/widgets/GroupManagerController.h"

#include "tests/support/GroupManagerDesk.h"

using namespace Qt::StringLiterals;
using namespace tomely;

class GroupManagerTypingTest : public GroupManagerDesk {
    Q_OBJECT

private Q_SLOTS:

    void init() { setUp(); }

    void cleanup() { takeDown(); }

    void addsAGroupAtTheEnd();
    void usesUpAKeyEvenWhenCancelled();
    void takesANewGroupWithoutANameAway_data();
    void takesANewGroupWithoutANameAway();
    void takesAGroupWithAnEmptiedNameAway();
    void addsTwiceInARow();
    void endsTypingByKey_data();
    void endsTypingByKey();
    void endsTypingByAClickElsewhere_data();
    void endsTypingByAClickElsewhere();
    void escapeEndsTheTypingOnly();
    void movesARenamedGroupAndKeepsItSelected();
    void tellsRenamedGroupsOfOneNameApart();
    void renamesTheEditedGroupWhenAnotherIsClicked();
    void renamesInTheDocumentAtOnce();
    void showsANameThatWasChangedElsewhere();
    void deletingAnUnnamedGroupDeletesNoOther_data();
    void deletingAnUnnamedGroupDeletesNoOther();
    void okTakesOverAnUnfinishedName();
    void aNewGroupThatWasEmptiedIsNoDeletedOne();
    void cancelDropsAnUnfinishedName();
};

void GroupManagerTypingTest::addsAGroupAtTheEnd()
{
    open();
    click(u"m_idAdd"_s);
    QCOMPARE(names(), QStringList({u"Fiction"_s, u"Non Fiction"_s, u"Poems"_s, QString()}));
    QCOMPARE(table().selectedRow(), 3);
    QVERIFY(editor());
    QVERIFY(editor()->hasFocus());
    type(u"Maps"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(names(), QStringList({u"Fiction"_s, u"Maps"_s, u"Non Fiction"_s, u"Poems"_s}));
    QCOMPARE(selected(), u"Maps"_s);
    QCOMPARE(m_document->getGroups().size(), 3); // not before OK
    click(u"m_idOK"_s);
    QCOMPARE(documentNames(),
        QStringList({u"1 Fiction"_s, u"2 Non Fiction"_s, u"3 Poems"_s, u"4 Maps"_s}));
}

void GroupManagerTypingTest::usesUpAKeyEvenWhenCancelled()
{
    open();
    click(u"m_idAdd"_s);
    m_dialog->cancel();
    QCOMPARE(m_document->getNextGroupKey(), 5);
}

void GroupManagerTypingTest::takesANewGroupWithoutANameAway_data()
{
    QTest::addColumn<QString>("how");
    for (const char* const how : {"Return", "Escape", "Escape after typing", "click on a row"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void GroupManagerTypingTest::takesANewGroupWithoutANameAway()
{
    QFETCH(const QString, how);
    open();
    click(u"m_idAdd"_s);
    if (how == u"Escape after typing"_s)
        type(u"Maps"_s);
    if (how.startsWith(u"Escape"_s))
        QTest::keyClick(editor(), Qt::Key_Escape);
    else if (how == u"Return"_s)
        QTest::keyClick(editor(), Qt::Key_Return);
    else
        clickRow(0);
    QTRY_COMPARE(names(), QStringList({u"Fiction"_s, u"Non Fiction"_s, u"Poems"_s}));
    QCOMPARE(selected(), how == u"click on a row"_s ? u"Fiction"_s : u"Poems"_s);
    QVERIFY(m_dialog->isVisible());
    click(u"m_idAdd"_s);
    type(u"Maps"_s);
    click(u"m_idOK"_s);
    QCOMPARE(documentNames().last(), u"5 Maps"_s); // 4 was used up
}

void GroupManagerTypingTest::takesAGroupWithAnEmptiedNameAway()
{
    open();
    startRenaming(0);
    type(QString());
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(names(), QStringList({u"Non Fiction"_s, u"Poems"_s}));
    QCOMPARE(selected(), u"Non Fiction"_s); // the row stays
    click(u"m_idOK"_s);
    QCOMPARE(documentNames(), QStringList({u"2 Non Fiction"_s, u"3 Poems"_s}));
    QCOMPARE(groupsOf(u"2"_s), QStringList{u"1"_s}); // it was not deleted
}

void GroupManagerTypingTest::addsTwiceInARow()
{
    open();
    click(u"m_idAdd"_s);
    type(u"Maps"_s);
    click(u"m_idAdd"_s);
    QCOMPARE(
        names(), QStringList({u"Fiction"_s, u"Maps"_s, u"Non Fiction"_s, u"Poems"_s, QString()}));
    QVERIFY(editor());
    click(u"m_idAdd"_s); // the one before got no name
    QCOMPARE(rows().rowCount(), 5);
    type(u"Zoology"_s);
    click(u"m_idOK"_s);
    QCOMPARE(documentNames().mid(3), QStringList({u"4 Maps"_s, u"6 Zoology"_s}));
}

void GroupManagerTypingTest::endsTypingByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Tab") << Qt::Key_Tab;
    QTest::newRow("Backtab") << Qt::Key_Backtab;
}

void GroupManagerTypingTest::endsTypingByKey()
{
    QFETCH(const Qt::Key, key);
    open();
    startRenaming(0);
    type(u"Stories"_s);
    QTest::keyClick(editor(), key);
    QTRY_COMPARE(names(), QStringList({u"Non Fiction"_s, u"Poems"_s, u"Stories"_s}));
    QCOMPARE(selected(), u"Stories"_s);
    QVERIFY(!editor());
    QVERIFY(m_dialog->isVisible());
    QVERIFY(table().hasFocus());
}

void GroupManagerTypingTest::endsTypingByAClickElsewhere_data()
{
    QTest::addColumn<bool>("onTheTable");
    QTest::newRow("below the rows") << true;
    QTest::newRow("on the dialog") << false;
}

void GroupManagerTypingTest::endsTypingByAClickElsewhere()
{
    QFETCH(const bool, onTheTable);
    open();
    startRenaming(0);
    type(u"Stories"_s);
    if (onTheTable)
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
            table().viewport()->rect().bottomLeft() + QPoint(20, -5));
    else
        QTest::mouseClick(m_dialog, Qt::LeftButton, {}, {3, 3});
    QTRY_COMPARE(names(), QStringList({u"Non Fiction"_s, u"Poems"_s, u"Stories"_s}));
    QVERIFY(!editor());
}

void GroupManagerTypingTest::escapeEndsTheTypingOnly()
{
    open();
    startRenaming(0);
    type(u"Stories"_s);
    QTest::keyClick(editor(), Qt::Key_Escape);
    QTRY_VERIFY(!editor());
    QCOMPARE(names(), QStringList({u"Fiction"_s, u"Non Fiction"_s, u"Poems"_s}));
    QCOMPARE(selected(), u"Fiction"_s);
    QVERIFY(m_dialog->isVisible());
}

void GroupManagerTypingTest::movesARenamedGroupAndKeepsItSelected()
{
    open();
    startRenaming(0);
    type(u"zoology"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(names(), QStringList({u"Non Fiction"_s, u"Poems"_s, u"zoology"_s}));
    QCOMPARE(table().selectedRow(), 2);
}

void GroupManagerTypingTest::tellsRenamedGroupsOfOneNameApart()
{
    open();
    startRenaming(0);
    type(u"Poems"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(names(), QStringList({u"Non Fiction"_s, u"Poems"_s, u"Poems"_s}));
    QCOMPARE(rows().keyOfRow(table().selectedRow()), u"1"_s);
    click(u"m_idDelete"_s);
    click(u"m_idOK"_s);
    QCOMPARE(documentNames(), QStringList({u"2 Non Fiction"_s, u"3 Poems"_s}));
}

void GroupManagerTypingTest::renamesTheEditedGroupWhenAnotherIsClicked()
{
    open();
    startRenaming(0);
    type(u"Stories"_s); // which will stand behind the others
    const QPoint place = placeOf(1);
    QTest::mousePress(table().viewport(), Qt::LeftButton, {}, place);
    QTRY_COMPARE(names(), QStringList({u"Non Fiction"_s, u"Poems"_s, u"Stories"_s}));
    // A hand is never quite still, and the rows have moved by now.
    QTest::mouseMove(table().viewport(), place + QPoint(1, 1));
    QTest::mouseRelease(table().viewport(), Qt::LeftButton, {}, place + QPoint(1, 1));
    QCOMPARE(selected(), u"Non Fiction"_s); // the one that was clicked
    QCOMPARE(m_document->getGroups().find(u"1"_s)->getGroupName(), u"Stories"_s);
}

void GroupManagerTypingTest::renamesInTheDocumentAtOnce()
{
    open();
    startRenaming(0);
    type(u"Stories"_s);
    QTest::keyClick(editor(), Qt::Key_Tab);
    QTRY_VERIFY(!editor());
    QCOMPARE(documentNames().first(), u"1 Stories"_s);
    m_dialog->cancel();
    QCOMPARE(documentNames().first(), u"1 Stories"_s);
    QVERIFY(!m_document->isDocumentEdited());
}

void GroupManagerTypingTest::showsANameThatWasChangedElsewhere()
{
    open();
    m_document->getGroups().find(u"1"_s)->setGroupName(u"Stories"_s);
    QCOMPARE(names().first(), u"Stories"_s);
    click(u"m_idOK"_s);
    QCOMPARE(documentNames().first(), u"1 Stories"_s);
}

void GroupManagerTypingTest::deletingAnUnnamedGroupDeletesNoOther_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("mouse") << true;
    QTest::newRow("mnemonic") << false;
}

void GroupManagerTypingTest::deletingAnUnnamedGroupDeletesNoOther()
{
    QFETCH(const bool, byMouse);
    open();
    click(u"m_idAdd"_s);
    if (byMouse)
        click(u"m_idDelete"_s);
    else
        QTest::keyClick(editor(), Qt::Key_D, Qt::AltModifier);
    QTRY_VERIFY(!editor());
    QCOMPARE(names(), QStringList({u"Fiction"_s, u"Non Fiction"_s, u"Poems"_s}));
    QVERIFY(!editor());
    // With a name it is an ordinary one.
    click(u"m_idAdd"_s);
    type(u"Maps"_s);
    click(u"m_idDelete"_s);
    QCOMPARE(names(), QStringList({u"Fiction"_s, u"Non Fiction"_s, u"Poems"_s}));
}

void GroupManagerTypingTest::okTakesOverAnUnfinishedName()
{
    open();
    startRenaming(0);
    type(u"Stories"_s);
    m_dialog->ok();
    QCOMPARE(documentNames().first(), u"1 Stories"_s);
}

void GroupManagerTypingTest::aNewGroupThatWasEmptiedIsNoDeletedOne()
{
    // A book that names the group that is to come.
    m_document->getBookEntry(u"1")->addToGroup(u"4"_s);
    open();
    click(u"m_idAdd"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(rows().rowCount(), 3);
    click(u"m_idAdd"_s); // and by Delete while its name is typed
    click(u"m_idDelete"_s);
    click(u"m_idOK"_s);
    QCOMPARE(groupsOf(u"1"_s), QStringList{u"4"_s});
}

void GroupManagerTypingTest::cancelDropsAnUnfinishedName()
{
    open();
    startRenaming(0);
    type(u"Stories"_s);
    click(u"m_idCancel"_s);
    QTRY_VERIFY(!m_dialog);
    QCOMPARE(documentNames().first(), u"1 Fiction"_s);
}

QTEST_MAIN(GroupManagerTypingTest)
#include "GroupManagerTypingTest.moc"
