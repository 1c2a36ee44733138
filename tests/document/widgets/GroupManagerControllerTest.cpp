#include "document/widgets/GroupManagerController.h"

#include "platform/widgets/Waiting.h"
#include "tests/support/GroupManagerDesk.h"

#include <QAbstractItemModelTester>
#include <QApplication>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace tomely;

class GroupManagerControllerTest : public GroupManagerDesk {
    Q_OBJECT

private Q_SLOTS:

    void init() { setUp(); }

    void cleanup() { takeDown(); }

    void isASheetOfItsWindow();
    void rowsAreAModel();
    void listsTheGroupsByName();
    void showsTicksForABookOnly();
    void ticksByMouseAndByKey();
    void showsEmptyBoxesOnADarkGround();
    void startsWithNothingSelected();
    void escapeLeavesTheDialogOtherwise();
    void deletesAndSelects_data();
    void deletesAndSelects();
    void deletesByKey();
    void okAppliesEverything();
    void okAppliesInOrder();
    void okKeepsATickedAndDeletedGroup();
    void okWithoutAMembershipChangesNone();
    void cancelAppliesNothing_data();
    void cancelAppliesNothing();
    void survivesThatAGroupVanishes_data();
    void survivesThatAGroupVanishes();
    void keepsGroupsThatWereAddedElsewhere();
    void takesNoOKWhileTheProgramWaits();
    void goesWithItsWindow();
    void remembersItsSize_data();
    void remembersItsSize();
    void startsWithinTheScreen();
    void endsNamingInTheMainWindow();
    void hasMnemonicsAndNames();
};

void GroupManagerControllerTest::isASheetOfItsWindow()
{
    open();
    QCOMPARE(m_dialog->parentWidget(), m_window.get());
    QCOMPARE(m_dialog->windowModality(), Qt::WindowModal);
    click(u"m_idOK"_s);
    QTRY_VERIFY(!m_dialog);
}

void GroupManagerControllerTest::rowsAreAModel()
{
    open();
    const QAbstractItemModelTester tester(
        &rows(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    click(u"m_idAdd"_s);
    type(u"Atlases"_s);
    click(u"m_idAdd"_s);
    clickRow(0);
    QTRY_COMPARE(rows().rowCount(), 4);
    click(u"m_idDelete"_s);
    QCOMPARE(rows().rowCount(), 3);
    QVERIFY(rows().nameOfRow(3).isEmpty());
    QVERIFY(rows().nameOfRow(-1).isEmpty());
    QVERIFY(rows().keyOfRow(3).isNull());
}

void GroupManagerControllerTest::listsTheGroupsByName()
{
    samples::addGroup(*m_document, u"atlases"_s);
    open();
    QCOMPARE(names(), QStringList({u"atlases"_s, u"Fiction"_s, u"Non Fiction"_s, u"Poems"_s}));
}

void GroupManagerControllerTest::showsTicksForABookOnly()
{
    open();
    const auto tick = [this](int row) {
        return rows().index(row, GroupManagerRows::CheckColumn).data(Qt::CheckStateRole);
    };
    QVERIFY(!table().isColumnHidden(GroupManagerRows::CheckColumn));
    QCOMPARE(tick(0), QVariant(Qt::Unchecked));
    QCOMPARE(tick(1), QVariant(Qt::Checked));
    m_dialog->cancel();

    open(false);
    QVERIFY(table().isColumnHidden(GroupManagerRows::CheckColumn));
    QCOMPARE(table().columnWidth(GroupManagerRows::NameColumn), table().viewport()->width());
    QVERIFY(!tick(1).isValid());
    clickRow(1);
    QTest::keyClick(&table(), Qt::Key_Space);
    QVERIFY(rows().selectedGroups().isEmpty());
}

void GroupManagerControllerTest::ticksByMouseAndByKey()
{
    open();
    const auto ticked = [this] {
        QStringList keys;
        for (const auto& entry : rows().selectedGroups())
            keys.append(entry.key);
        return keys;
    };
    clickRow(2);
    QCOMPARE(ticked(), QStringList{u"2"_s});
    QTest::keyClick(&table(), Qt::Key_Space);
    QCOMPARE(ticked(), QStringList({u"2"_s, u"3"_s}));
    QTest::keyClick(&table(), Qt::Key_Up);
    QTest::keyClick(&table(), Qt::Key_Space);
    QCOMPARE(ticked(), QStringList{u"3"_s});
    QTest::mouseClick(
        table().viewport(), Qt::LeftButton, {}, placeOf(0, GroupManagerRows::CheckColumn));
    QCOMPARE(ticked(), QStringList({u"1"_s, u"3"_s}));
    QCOMPARE(table().selectedRow(), 0);
    QTest::keyClick(&table(), Qt::Key_F2); // from the column of the boxes
    QVERIFY(editor());
    QCOMPARE(membership(), QStringList{u"2=2"_s}); // the book's own, until OK
}

void GroupManagerControllerTest::showsEmptyBoxesOnADarkGround()
{
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(45, 45, 48), QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    QApplication::setPalette(dark);
    QApplication::setStyle(u"Fusion"_s);
    open();
    const QImage cell =
        table()
            .viewport()
            ->grab(table().visualRect(rows().index(0, GroupManagerRows::CheckColumn)))
            .toImage();
    int brightest = 0;
    for (int y = 0; y < cell.height(); ++y) {
        for (int x = 0; x < cell.width(); ++x)
            brightest = std::max(brightest, qGray(cell.pixel(x, y)));
    }
    QApplication::setPalette(before);
    QVERIFY2(brightest > 80, qPrintable(QString::number(brightest)));
}

void GroupManagerControllerTest::startsWithNothingSelected()
{
    open();
    QCOMPARE(table().selectedRow(), -1);
    QVERIFY(!button(u"m_idDelete"_s).isEnabled());
    clickRow(1);
    QVERIFY(button(u"m_idDelete"_s).isEnabled());
}

void GroupManagerControllerTest::escapeLeavesTheDialogOtherwise()
{
    open();
    const QSignalSpy rejected(m_dialog, &QDialog::rejected);
    QTest::keyClick(&table(), Qt::Key_Escape);
    QCOMPARE(rejected.count(), 1);
    QTRY_VERIFY(!m_dialog);
}

void GroupManagerControllerTest::deletesAndSelects_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QString>("selected");
    QTest::newRow("the first") << QList<int>{0} << u"Non Fiction"_s;
    QTest::newRow("the last") << QList<int>{2} << u"Non Fiction"_s;
    QTest::newRow("two") << QList<int>{1, 1} << u"Fiction"_s;
    QTest::newRow("all") << QList<int>{0, 0, 0} << QString();
}

void GroupManagerControllerTest::deletesAndSelects()
{
    QFETCH(const QList<int>, rows);
    QFETCH(const QString, selected);
    open();
    for (const int row : rows) {
        clickRow(row);
        click(u"m_idDelete"_s);
    }
    QCOMPARE(this->selected(), selected);
    QCOMPARE(button(u"m_idDelete"_s).isEnabled(), !selected.isEmpty());
    QCOMPARE(m_document->getGroups().size(), 3); // not before OK
    click(u"m_idOK"_s);
    QCOMPARE(m_document->getGroups().size(), 3 - rows.size());
}

void GroupManagerControllerTest::deletesByKey()
{
    open();
    QTest::keyClick(&table(), Qt::Key_Delete); // nothing is selected
    QCOMPARE(rows().rowCount(), 3);
    clickRow(1);
    QTest::keyClick(&table(), Qt::Key_Delete);
    QCOMPARE(names(), QStringList({u"Fiction"_s, u"Poems"_s}));
    startRenaming(0);
    QTest::keyClick(editor(), Qt::Key_Delete); // of letters
    QCOMPARE(rows().rowCount(), 2);
    QVERIFY(editor());
}

void GroupManagerControllerTest::okAppliesEverything()
{
    open();
    const QSignalSpy accepted(m_dialog, &QDialog::accepted);
    clickRow(0);
    click(u"m_idDelete"_s); // Fiction, which two books are in
    QCOMPARE(groupsOf(u"2"_s), QStringList{u"1"_s});
    click(u"m_idAdd"_s);
    type(u"Maps"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(selected(), u"Maps"_s);
    QTest::keyClick(&table(), Qt::Key_Space);
    QTest::keyClick(m_dialog, Qt::Key_Return);
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(documentNames(), QStringList({u"2 Non Fiction"_s, u"3 Poems"_s, u"4 Maps"_s}));
    QVERIFY(groupsOf(u"2"_s).isEmpty());
    QVERIFY(groupsOf(u"3"_s).isEmpty());
    QCOMPARE(membership(), QStringList({u"2=2"_s, u"4=4"_s}));
    QVERIFY(m_document->isDocumentEdited());
}

void GroupManagerControllerTest::okAppliesInOrder()
{
    open();
    clickRow(0);
    click(u"m_idDelete"_s);
    clickRow(1);
    QTest::keyClick(&table(), Qt::Key_Space);
    bool isTold = false;
    m_list->onCall = [&](const QString& call) {
        if (call != u"groupsChanged"_s)
            return;
        isTold = true;
        QVERIFY(m_document->getGroupListControllerWindowPosition().width() > 0);
        QCOMPARE(m_document->getGroups().size(), 2);
        QVERIFY(groupsOf(u"2"_s).isEmpty());
        QCOMPARE(membership(), QStringList{u"2=2"_s});
    };
    connect(m_dialog, &QDialog::accepted, this, [this] {
        QCOMPARE(membership(), QStringList({u"2=2"_s, u"3=3"_s}));
    });
    click(u"m_idOK"_s);
    m_list->onCall = {};
    QVERIFY(isTold);
    QCOMPARE(m_list->calls.count(u"groupsChanged"_s), 1);
}

void GroupManagerControllerTest::okKeepsATickedAndDeletedGroup()
{
    open();
    clickRow(0);
    QTest::keyClick(&table(), Qt::Key_Space);
    click(u"m_idDelete"_s);
    click(u"m_idOK"_s);
    QVERIFY(!m_document->getGroups().contains(u"1"_s));
    QCOMPARE(membership(), QStringList({u"1=1"_s, u"2=2"_s}));
}

void GroupManagerControllerTest::okWithoutAMembershipChangesNone()
{
    open(false);
    clickRow(1);
    click(u"m_idDelete"_s);
    click(u"m_idOK"_s);
    QCOMPARE(groupsOf(u"2"_s), QStringList{u"1"_s});
    QCOMPARE(membership(), QStringList{u"2=2"_s});
    QVERIFY(m_document->isDocumentEdited());
}

void GroupManagerControllerTest::cancelAppliesNothing_data()
{
    QTest::addColumn<QString>("how");
    for (const char* const how : {"button", "Escape", "title bar"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void GroupManagerControllerTest::cancelAppliesNothing()
{
    QFETCH(const QString, how);
    open();
    const QSignalSpy accepted(m_dialog, &QDialog::accepted);
    clickRow(0);
    QTest::keyClick(&table(), Qt::Key_Space);
    click(u"m_idDelete"_s);
    click(u"m_idAdd"_s);
    type(u"Maps"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(selected(), u"Maps"_s);
    if (how == u"button"_s)
        click(u"m_idCancel"_s);
    else if (how == u"Escape"_s)
        QTest::keyClick(&table(), Qt::Key_Escape);
    else
        m_dialog->close();
    QTRY_VERIFY(!m_dialog);
    QCOMPARE(accepted.count(), 0);
    QCOMPARE(documentNames(), QStringList({u"1 Fiction"_s, u"2 Non Fiction"_s, u"3 Poems"_s}));
    QCOMPARE(groupsOf(u"2"_s), QStringList{u"1"_s});
    QCOMPARE(membership(), QStringList{u"2=2"_s});
    QVERIFY(!m_document->isDocumentEdited());
    QVERIFY(m_document->getGroupListControllerWindowPosition().width() > 0);
}

void GroupManagerControllerTest::survivesThatAGroupVanishes_data()
{
    QTest::addColumn<QString>("then");
    for (const char* const then : {"rename", "delete", "ok"})
        QTest::newRow(then) << QString::fromLatin1(then);
}

void GroupManagerControllerTest::keepsGroupsThatWereAddedElsewhere()
{
    open();
    click(u"m_idAdd"_s);
    type(u"Maps"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(!editor());
    samples::addGroup(*m_document, u"Plays"_s); // in the main window, while the sheet is open
    click(u"m_idOK"_s);
    QCOMPARE(documentNames(),
        (QStringList{u"1 Fiction"_s, u"2 Non Fiction"_s, u"3 Poems"_s, u"4 Maps"_s, u"5 Plays"_s}));
}

void GroupManagerControllerTest::takesNoOKWhileTheProgramWaits()
{
    open();
    clickRow(0);
    click(u"m_idDelete"_s);
    {
        const Waiting waiting;
        m_dialog->ok();
        QVERIFY(m_dialog->isVisible());
        QVERIFY(m_document->getGroups().find(u"1"_s));
    }
    m_dialog->ok();
    QVERIFY(!m_document->getGroups().find(u"1"_s));
}

void GroupManagerControllerTest::survivesThatAGroupVanishes()
{
    QFETCH(const QString, then);
    open();
    if (then == u"rename"_s) {
        startRenaming(0);
        type(u"Stories"_s);
    } else {
        clickRow(0);
    }
    m_document->getGroups().remove(u"1"_s);
    if (then == u"rename"_s)
        QTest::keyClick(editor(), Qt::Key_Tab);
    else if (then == u"delete"_s)
        click(u"m_idDelete"_s);
    else
        QCOMPARE(names().first(), u"Fiction"_s);
    click(u"m_idOK"_s);
    // The dialog holds the groups that it shows, as long as it is open.
    const QStringList others = {u"2 Non Fiction"_s, u"3 Poems"_s};
    if (then == u"rename"_s)
        QCOMPARE(documentNames(), QStringList{u"1 Stories"_s} + others);
    else if (then == u"delete"_s)
        QCOMPARE(documentNames(), others);
    else
        QCOMPARE(documentNames(), QStringList{u"1 Fiction"_s} + others);
}

void GroupManagerControllerTest::goesWithItsWindow()
{
    auto membership = std::make_unique<GroupMembership>();
    m_dialog = new GroupManagerController(*m_window, *m_document, membership.get());
    QVERIFY(QTest::qWaitForWindowActive(m_dialog));
    startRenaming(0);
    type(u"Stories"_s);
    // As an editor ends: first what it owns, then its window.
    membership.reset();
    m_window.reset();
    QVERIFY(!m_dialog);
    QCoreApplication::processEvents();
    QCOMPARE(m_document->getGroups().size(), 3);
}

void GroupManagerControllerTest::remembersItsSize_data()
{
    QTest::addColumn<bool>("byOk");
    QTest::newRow("OK") << true;
    QTest::newRow("Cancel") << false;
}

void GroupManagerControllerTest::remembersItsSize()
{
    QFETCH(const bool, byOk);
    open();
    QVERIFY(m_dialog->size() != QSize(512, 433));
    m_dialog->resize(512, 433);
    byOk ? m_dialog->ok() : m_dialog->cancel();
    const QRectF stored = m_document->getGroupListControllerWindowPosition();
    QCOMPARE(stored.size(), QSizeF(512, 433));
    QTRY_VERIFY(!m_dialog);
    open();
    QCOMPARE(m_dialog->size(), QSize(512, 433));
}

void GroupManagerControllerTest::startsWithinTheScreen()
{
    m_document->setGroupListControllerWindowPosition(QRectF(-9000, 1e300, 1e9, -5));
    open();
    QVERIFY(m_dialog->width() <= m_dialog->screen()->availableSize().width());
    QVERIFY(m_dialog->height() >= m_dialog->minimumSizeHint().height());
}

void GroupManagerControllerTest::endsNamingInTheMainWindow()
{
    open();
    QVERIFY(m_list->calls.contains(u"endGroupNameEditting"_s));
}

void GroupManagerControllerTest::hasMnemonicsAndNames()
{
    open();
    QSet<QChar> mnemonics;
    for (const auto* const each : m_dialog->findChildren<QPushButton*>()) {
        const qsizetype mark = each->text().indexOf(u'&');
        if (mark < 0)
            continue;
        const QChar letter = each->text().at(mark + 1).toLower();
        QVERIFY(!mnemonics.contains(letter));
        mnemonics.insert(letter);
    }
    QCOMPARE(mnemonics.size(), 2);
    QVERIFY(!table().accessibleName().isEmpty());
    QCOMPARE(rows().index(0, GroupManagerRows::CheckColumn).data(Qt::AccessibleTextRole),
        QVariant(u"Fiction"_s));
}

QTEST_MAIN(GroupManagerControllerTest)
#include "GroupManagerControllerTest.moc"
