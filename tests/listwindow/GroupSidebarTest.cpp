#include "listwindow/GroupSidebar.h"

#include "listwindow/GroupTableModel.h"
#include "listwindow/GroupTableView.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/SmallCollection.h"

#include <QLineEdit>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class GroupSidebarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithTheLibrary();
    void selectsAGroup();
    void leavesTheSelectionForAnUnknownGroup();
    void tellsOfAnotherGroupOnly();
    void neverHasNothingSelected();
    void movesOffADeletedGroup_data();
    void movesOffADeletedGroup();
    void fallsBackToTheLibraryWhenTheNeighbourIsGoneToo();
    void keepsAGroupThatStays();
    void keepsARenamedGroupSelected();
    void editsANameByKeyOrDoubleClick_data();
    void editsANameByKeyOrDoubleClick();
    void neverEditsTheLibrary();
    void takesOverANameByKey_data();
    void takesOverANameByKey();
    void dropsANameByEscape();
    void keepsTheFocusAfterARename();
    void changesNothingForTheSameName();
    void takesOverANameOfOtherCase();
    void acceptsAnEmptyName();
    void takesOverAnUnfinishedName();
    void renamesTheEditedRowWhenAnotherIsClicked();
    void survivesItsEndDuringARename();
    void beginsTheNameOfTheSelectedGroup();
    void keepsTheSelectionAtTheKeysThatEndAName_data();
    void keepsTheSelectionAtTheKeysThatEndAName();
    void asksForAMenu_data();
    void asksForAMenu();
    void asksForAMenuByKey();

private:
    int rowOf(qint32 key) const { return m_model->rowOfGroupKey(key); }

    QString nameOf(qint32 key) const
    {
        return m_document->getGroups().find(keyText(key))->getGroupName();
    }

    int selectedRow() const;
    void click(int row, int column = GroupTableModel::NameColumn, Qt::KeyboardModifiers keys = {});
    QLineEdit* editor() const;
    void startRenaming(qint32 key);
    void type(const QString& name);
    void remove(const QList<qint32>& keys);

    std::unique_ptr<BookListDocument> m_document;
    FakeBookListWindow* m_window = nullptr;
    std::unique_ptr<GroupTableView> m_table;
    std::unique_ptr<GroupSidebar> m_sidebar;
    GroupTableModel* m_model = nullptr;
};

void GroupSidebarTest::init()
{
    QTest::failOnWarning(QRegularExpression(u"does not belong to this view"_s));
    m_document = std::make_unique<BookListDocument>(FakeBookListWindow::services(m_window));
    m_document->makeWindowControllers();
    samples::addGroup(*m_document, u"Poems"_s); // 3; Library, Fiction 1, Non Fiction 2, Poems 3
    m_table = std::make_unique<GroupTableView>();
    m_table->resize(240, 300);
    m_sidebar = std::make_unique<GroupSidebar>(*m_table, *m_document);
    m_model = qobject_cast<GroupTableModel*>(m_table->model());
    m_window->onCall = [this](const QString& call) {
        if (call == u"groupsChanged"_s)
            m_sidebar->groupsChanged();
    };
    m_sidebar->populateGroups();
    m_sidebar->refreshGroupList();
    m_table->show();
    QVERIFY(QTest::qWaitForWindowActive(m_table.get()));
    m_document->clearChangeCount();
}

void GroupSidebarTest::cleanup()
{
    m_window->onCall = {};
    m_sidebar.reset();
    m_table.reset();
    m_document.reset();
}

int GroupSidebarTest::selectedRow() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.first().row() : -1;
}

void GroupSidebarTest::click(int row, int column, Qt::KeyboardModifiers keys)
{
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, keys,
        m_table->visualRect(m_model->index(row, column)).center());
}

QLineEdit* GroupSidebarTest::editor() const
{
    for (auto* const edit : m_table->viewport()->findChildren<QLineEdit*>()) {
        if (edit->isVisible())
            return edit;
    }
    return nullptr;
}

void GroupSidebarTest::startRenaming(qint32 key)
{
    m_sidebar->selectGroup(key);
    m_table->setFocus();
    QTest::keyClick(m_table.get(), Qt::Key_F2);
    QVERIFY(editor());
}

void GroupSidebarTest::type(const QString& name)
{
    QVERIFY(editor());
    editor()->selectAll();
    QTest::keyClicks(editor(), name);
}

void GroupSidebarTest::remove(const QList<qint32>& keys)
{
    for (const qint32 key : keys)
        m_document->getGroups().remove(keyText(key));
}

void GroupSidebarTest::startsWithTheLibrary()
{
    QCOMPARE(m_sidebar->selectedGroupKey(), 0);
    QCOMPARE(selectedRow(), 0);
    QCOMPARE(m_model->rowCount(), 4);
}

void GroupSidebarTest::selectsAGroup()
{
    QSignalSpy selected(m_sidebar.get(), &GroupSidebar::groupSelected);
    m_sidebar->selectGroup(3);
    QCOMPARE(selectedRow(), 3);
    QCOMPARE(m_sidebar->selectedGroupKey(), 3);
    m_sidebar->selectGroup(0);
    QCOMPARE(selectedRow(), 0);
    QCOMPARE(m_sidebar->selectedGroupKey(), 0);
    QCOMPARE(selected.size(), 2);
}

void GroupSidebarTest::leavesTheSelectionForAnUnknownGroup()
{
    m_sidebar->selectGroup(2);
    m_sidebar->selectGroup(99);
    QCOMPARE(selectedRow(), 2);
    QCOMPARE(m_sidebar->selectedGroupKey(), 2);
}

void GroupSidebarTest::tellsOfAnotherGroupOnly()
{
    QSignalSpy selected(m_sidebar.get(), &GroupSidebar::groupSelected);
    click(2);
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.first().first().toInt(), 2);
    click(2);
    click(2, GroupTableModel::IconColumn);
    QCOMPARE(selected.size(), 1);
    QTest::keyClick(m_table.get(), Qt::Key_Down);
    QCOMPARE(selected.size(), 2);
    QCOMPARE(selected.last().first().toInt(), 3);
    m_sidebar->refreshGroupList();
    m_sidebar->populateGroups();
    m_sidebar->refreshGroupList();
    QCOMPARE(selected.size(), 2);
    QCOMPARE(selectedRow(), 3);
}

void GroupSidebarTest::neverHasNothingSelected()
{
    click(2);
    click(2, GroupTableModel::NameColumn, Qt::ControlModifier);
    QCOMPARE(selectedRow(), 2);
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, QPoint(100, 290)); // below the rows
    QCOMPARE(selectedRow(), 2);
    QCOMPARE(m_sidebar->selectedGroupKey(), 2);
}

void GroupSidebarTest::movesOffADeletedGroup_data()
{
    QTest::addColumn<QList<qint32>>("missing"); // gone before
    QTest::addColumn<qint32>("deleted");
    QTest::addColumn<qint32>("selected");
    QTest::newRow("the first") << QList<qint32>() << 1 << 2;
    QTest::newRow("one between") << QList<qint32>() << 2 << 3;
    QTest::newRow("the last") << QList<qint32>() << 3 << 2;
    QTest::newRow("the only one") << QList<qint32>{1, 2} << 3 << 0;
}

void GroupSidebarTest::movesOffADeletedGroup()
{
    QFETCH(const QList<qint32>, missing);
    QFETCH(const qint32, deleted);
    QFETCH(const qint32, selected);
    remove(missing);
    QVERIFY(!m_sidebar->groupsChanged());
    m_sidebar->selectGroup(deleted);
    QSignalSpy spy(m_sidebar.get(), &GroupSidebar::groupSelected);
    remove({deleted});
    QVERIFY(m_sidebar->groupsChanged());
    QCOMPARE(m_sidebar->selectedGroupKey(), selected);
    QCOMPARE(selectedRow(), rowOf(selected));
    QVERIFY(spy.isEmpty()); // the person selected nothing
}

void GroupSidebarTest::fallsBackToTheLibraryWhenTheNeighbourIsGoneToo()
{
    m_sidebar->selectGroup(2);
    remove({2, 3});
    QVERIFY(m_sidebar->groupsChanged());
    QCOMPARE(m_sidebar->selectedGroupKey(), 0);
    QCOMPARE(selectedRow(), 0);
}

void GroupSidebarTest::keepsAGroupThatStays()
{
    m_sidebar->selectGroup(3);
    remove({1, 2});
    QVERIFY(!m_sidebar->groupsChanged());
    QCOMPARE(m_sidebar->selectedGroupKey(), 3);
    QCOMPARE(selectedRow(), 1);
}

void GroupSidebarTest::keepsARenamedGroupSelected()
{
    m_sidebar->selectGroup(1);
    m_document->getGroups().find(u"1"_s)->setGroupName(u"Zoology"_s);
    QVERIFY(!m_sidebar->groupsChanged());
    QCOMPARE(m_sidebar->selectedGroupKey(), 1);
    QCOMPARE(selectedRow(), 3);
}

void GroupSidebarTest::editsANameByKeyOrDoubleClick_data()
{
    QTest::addColumn<int>("clickedColumn");
    QTest::addColumn<bool>("byKey");
    QTest::newRow("F2 on the name") << int(GroupTableModel::NameColumn) << true;
    QTest::newRow("F2 on the picture") << int(GroupTableModel::IconColumn) << true;
    QTest::newRow("double click") << int(GroupTableModel::NameColumn) << false;
}

void GroupSidebarTest::editsANameByKeyOrDoubleClick()
{
    QFETCH(const int, clickedColumn);
    QFETCH(const bool, byKey);
    click(2, clickedColumn);
    QVERIFY(!editor());
    if (byKey)
        QTest::keyClick(m_table.get(), Qt::Key_F2);
    else
        QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, {},
            m_table->visualRect(m_model->index(2, clickedColumn)).center());
    QVERIFY(editor());
    QCOMPARE(editor()->text(), u"Non Fiction"_s);
    QCOMPARE(editor()->selectedText(), u"Non Fiction"_s);
}

void GroupSidebarTest::neverEditsTheLibrary()
{
    click(0);
    QTest::keyClick(m_table.get(), Qt::Key_F2);
    QVERIFY(!editor());
    QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, {},
        m_table->visualRect(m_model->index(0, GroupTableModel::NameColumn)).center());
    QVERIFY(!editor());
}

void GroupSidebarTest::takesOverANameByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Tab") << Qt::Key_Tab;
    QTest::newRow("Backtab") << Qt::Key_Backtab;
}

void GroupSidebarTest::takesOverANameByKey()
{
    QFETCH(const Qt::Key, key);
    startRenaming(1);
    type(u"Stories"_s);
    QSignalSpy selected(m_sidebar.get(), &GroupSidebar::groupSelected);
    QTest::keyClick(editor(), key);
    QTRY_COMPARE(nameOf(1), u"Stories"_s);
    QVERIFY(m_document->isDocumentEdited());
    QVERIFY(!editor());
    QCOMPARE(m_sidebar->selectedGroupKey(), 1);
    QCOMPARE(selectedRow(), 3); // behind Non Fiction and Poems
    QCOMPARE(m_model->index(3, GroupTableModel::NameColumn).data().toString(), u"Stories"_s);
    QVERIFY(selected.isEmpty());
}

void GroupSidebarTest::dropsANameByEscape()
{
    startRenaming(1);
    type(u"Stories"_s);
    QTest::keyClick(editor(), Qt::Key_Escape);
    QVERIFY(!editor());
    QCOMPARE(nameOf(1), u"Fiction"_s);
    QVERIFY(!m_document->isDocumentEdited());
    QCOMPARE(selectedRow(), 1);
    QVERIFY(m_table->hasFocus());
}

void GroupSidebarTest::keepsTheFocusAfterARename()
{
    startRenaming(1);
    type(u"Stories"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(nameOf(1), u"Stories"_s);
    QVERIFY(m_table->hasFocus());
    QTest::keyClick(m_table.get(), Qt::Key_Up);
    QCOMPARE(m_sidebar->selectedGroupKey(), 3);
}

void GroupSidebarTest::changesNothingForTheSameName()
{
    startRenaming(1);
    type(u"Fiction"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(!editor());
    QCoreApplication::processEvents();
    QVERIFY(!m_document->isDocumentEdited());
    QVERIFY(!m_window->calls.contains(u"groupsChanged"_s));
}

void GroupSidebarTest::takesOverANameOfOtherCase()
{
    startRenaming(1);
    type(u"FICTION"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(nameOf(1), u"FICTION"_s);
    QVERIFY(m_document->isDocumentEdited());
}

void GroupSidebarTest::acceptsAnEmptyName()
{
    startRenaming(2);
    QTest::keyClick(editor(), Qt::Key_Delete);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(nameOf(2), QString());
    QVERIFY(m_document->isDocumentEdited());
    QCOMPARE(m_sidebar->selectedGroupKey(), 2);
    QCOMPARE(selectedRow(), 1);
}

void GroupSidebarTest::takesOverAnUnfinishedName()
{
    m_sidebar->endGroupNameEditting(); // none is being typed
    QVERIFY(!m_document->isDocumentEdited());
    startRenaming(1);
    type(u"Stories"_s);
    m_sidebar->endGroupNameEditting();
    QCOMPARE(nameOf(1), u"Stories"_s);
    QVERIFY(!editor());
    QVERIFY(m_document->isDocumentEdited());
    m_sidebar->endGroupNameEditting();
    QCOMPARE(nameOf(1), u"Stories"_s);
}

void GroupSidebarTest::renamesTheEditedRowWhenAnotherIsClicked()
{
    startRenaming(1);
    type(u"Stories"_s); // which will stand behind the others
    const QPoint place =
        m_table->visualRect(m_model->index(rowOf(2), GroupTableModel::NameColumn)).center();
    QTest::mousePress(m_table->viewport(), Qt::LeftButton, {}, place);
    QTRY_COMPARE(nameOf(1), u"Stories"_s);
    // A hand is never quite still, and the rows have moved by now.
    QTest::mouseMove(m_table->viewport(), place + QPoint(1, 1));
    QTest::mouseRelease(m_table->viewport(), Qt::LeftButton, {}, place + QPoint(1, 1));
    QCOMPARE(nameOf(2), u"Non Fiction"_s);
    QCOMPARE(nameOf(3), u"Poems"_s);
    QVERIFY(!editor());
    QCOMPARE(m_sidebar->selectedGroupKey(), 2); // the one that was clicked, though the rows moved
    QCOMPARE(selectedRow(), rowOf(2));
}

void GroupSidebarTest::survivesItsEndDuringARename()
{
    startRenaming(1);
    type(u"Stories"_s);
    m_window->onCall = {};
    m_sidebar.reset();
    m_table.reset();
    QCOMPARE(nameOf(1), u"Fiction"_s);
}

void GroupSidebarTest::beginsTheNameOfTheSelectedGroup()
{
    m_sidebar->startNaming();
    QVERIFY(!editor()); // the library has its name
    m_sidebar->selectGroup(2);
    m_sidebar->startNaming();
    QVERIFY(editor());
    QCOMPARE(editor()->selectedText(), u"Non Fiction"_s);
}

void GroupSidebarTest::keepsTheSelectionAtTheKeysThatEndAName_data()
{
    takesOverANameByKey_data();
}

void GroupSidebarTest::keepsTheSelectionAtTheKeysThatEndAName()
{
    QFETCH(const Qt::Key, key);
    m_sidebar->selectGroup(2);
    m_table->setFocus();
    QSignalSpy selected(m_sidebar.get(), &GroupSidebar::groupSelected);
    QTest::keyClick(m_table.get(), key);
    QCOMPARE(m_sidebar->selectedGroupKey(), 2);
    QCOMPARE(selectedRow(), 2);
    QVERIFY(selected.isEmpty());
}

void GroupSidebarTest::asksForAMenu_data()
{
    QTest::addColumn<int>("row"); // -1 for below the rows
    QTest::addColumn<bool>("isOnGroup");
    QTest::addColumn<int>("selected");
    QTest::newRow("on a group") << 2 << true << 2;
    QTest::newRow("on the library") << 0 << false << 0;
    QTest::newRow("below the rows") << -1 << false << 3;
}

void GroupSidebarTest::asksForAMenu()
{
    QFETCH(const int, row);
    QFETCH(const bool, isOnGroup);
    QFETCH(const int, selected);
    m_sidebar->selectGroup(3);
    const QSignalSpy asked(m_table.get(), &GroupTableView::contextMenuRequested);
    const QPoint place = row < 0
        ? QPoint(100, 290)
        : m_table->visualRect(m_model->index(row, GroupTableModel::IconColumn)).center();
    const QPoint global = m_table->viewport()->mapToGlobal(place);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, global);
    QCoreApplication::sendEvent(m_table->viewport(), &event);
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first().at(0).toPoint(), global);
    QCOMPARE(asked.first().at(1).toBool(), isOnGroup);
    QCOMPARE(selectedRow(), selected);
    QCOMPARE(m_sidebar->selectedGroupKey(), selected);
}

void GroupSidebarTest::asksForAMenuByKey()
{
    m_sidebar->selectGroup(2);
    const QSignalSpy asked(m_table.get(), &GroupTableView::contextMenuRequested);
    // Wherever the mouse is, the menu is about the selected row and comes up there.
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {100, 290}, {700, 700});
    QCoreApplication::sendEvent(m_table->viewport(), &event);
    QCOMPARE(asked.size(), 1);
    const QPoint place = m_table->viewport()->mapFromGlobal(asked.first().at(0).toPoint());
    QCOMPARE(m_table->indexAt(place).row(), 2);
    QCOMPARE(asked.first().at(1).toBool(), true);
    QCOMPARE(selectedRow(), 2);
}

QTEST_MAIN(GroupSidebarTest)
#include "GroupSidebarTest.moc"
