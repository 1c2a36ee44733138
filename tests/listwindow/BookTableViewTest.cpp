#include "listwindow/BookTableView.h"

#include <QApplication>
#include <QClipboard>
#include <QStandardItemModel>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// A table of whole rows as the window has it.
class Table : public BookTableView {
public:
    Table() : m_model(9, 3)
    {
        setModel(&m_model);
        setSelectionBehavior(SelectRows);
        setSelectionMode(ExtendedSelection);
        setEditTriggers(NoEditTriggers);
        resize(400, 400);
        show();
    }

    QPoint placeOf(int row) const { return visualRect(m_model.index(row, 1)).center(); }

    QList<int> selectedRows() const
    {
        QList<int> rows;
        for (const QModelIndex& index : selectionModel()->selectedRows())
            rows.append(index.row());
        return rows;
    }

    QStandardItemModel& items() { return m_model; }

    void select(const QList<int>& rows)
    {
        clearSelection();
        for (const int row : rows)
            selectionModel()->select(
                m_model.index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    void press(
        QPoint place, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {})
    {
        QTest::mousePress(viewport(), button, keys, place);
    }

    /// Moves the mouse with a button down.
    void pull(QPoint place, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event(QEvent::MouseMove, place, viewport()->mapToGlobal(place), Qt::NoButton,
            button, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport(), &event);
    }

    QPoint belowTheRows() const { return viewport()->rect().bottomLeft() + QPoint(20, -5); }

private:
    QStandardItemModel m_model;
};

using Rows = std::vector<int>;

} // namespace

class BookTableViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsADoubleClickOnARow();
    void ignoresADoubleClickElsewhere();
    void meansTheRowThatIsDoubleClicked();
    void goesToTheFirstAndLastRow();
    void selectsUpToTheFirstAndLastRow();
    void keepsASelectionUntilTheMouseIsReleased();
    void dragsTheSelectedRows();
    void dragsARowThatWasNotSelected();
    void dragsARowThatIsTakenOutOfTheSelection();
    void dragsOnceForAPress();
    void dragsOnlyWhenAHandMeansIt_data();
    void dragsOnlyWhenAHandMeansIt();
    void dragsNoRowsThatHaveMoved();
    void selectsFromBelowTheRows();
    void tellsItsSelectedRowsFromTheTop();
    void copiesTheSelectedRows();
};

void BookTableViewTest::tellsADoubleClickOnARow()
{
    Table table;
    const QSignalSpy clicked(&table, &BookTableView::rowDoubleClicked);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.placeOf(2));
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, table.placeOf(2));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(table.selectedRows(), QList<int>{2});
}

void BookTableViewTest::ignoresADoubleClickElsewhere()
{
    Table table;
    const QSignalSpy clicked(&table, &BookTableView::rowDoubleClicked);
    QTest::mouseDClick(table.viewport(), Qt::RightButton, {}, table.placeOf(2));
    QTest::mouseDClick(table.viewport(), Qt::MiddleButton, {}, table.placeOf(2));
    QTest::mouseDClick(
        table.viewport(), Qt::LeftButton, {}, table.viewport()->rect().bottomRight());
    QCOMPARE(clicked.count(), 0);
}

void BookTableViewTest::meansTheRowThatIsDoubleClicked()
{
    Table table;
    const QSignalSpy clicked(&table, &BookTableView::rowDoubleClicked);
    table.selectRow(5);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier, table.placeOf(2));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier, table.placeOf(2));
    QCOMPARE(table.selectedRows(), QList<int>{5}); // taken out again
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier, table.placeOf(2));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(table.selectedRows(), QList<int>{2});
    QCOMPARE(table.currentIndex().row(), 2);
}

void BookTableViewTest::goesToTheFirstAndLastRow()
{
    Table table;
    table.selectRow(4);
    QTest::keyClick(&table, Qt::Key_End);
    QCOMPARE(table.selectedRows(), QList<int>{8});
    QTest::keyClick(&table, Qt::Key_Home);
    QCOMPARE(table.selectedRows(), QList<int>{0});
}

void BookTableViewTest::selectsUpToTheFirstAndLastRow()
{
    Table table;
    table.selectRow(6);
    QTest::keyClick(&table, Qt::Key_End, Qt::ShiftModifier);
    QCOMPARE(table.selectedRows(), QList<int>({6, 7, 8}));
}

// Dragging

void BookTableViewTest::keepsASelectionUntilTheMouseIsReleased()
{
    Table table;
    table.select({1, 3, 5});
    table.press(table.placeOf(3));
    QCOMPARE(table.selectedRows(), QList<int>({1, 3, 5}));
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, table.placeOf(3));
    QCOMPARE(table.selectedRows(), QList<int>{3});
}

void BookTableViewTest::dragsTheSelectedRows()
{
    Table table;
    table.select({5, 1, 3});
    const QSignalSpy pulled(&table, &BookTableView::rowsPulled);
    table.press(table.placeOf(3));
    table.pull(table.placeOf(3) + QPoint(0, 2));
    QCOMPARE(pulled.count(), 0); // a hand is never quite still
    table.pull(table.placeOf(6));
    QCOMPARE(pulled.count(), 1);
    QCOMPARE(pulled.first().first().value<Rows>(), Rows({1, 3, 5}));
    QCOMPARE(table.selectedRows().size(), 3);
}

void BookTableViewTest::dragsARowThatWasNotSelected()
{
    Table table;
    table.select({1, 3, 5});
    const QSignalSpy pulled(&table, &BookTableView::rowsPulled);
    table.press(table.placeOf(4));
    table.pull(table.placeOf(8));
    QCOMPARE(pulled.count(), 1);
    QCOMPARE(pulled.first().first().value<Rows>(), Rows{4});
    QCOMPARE(table.selectedRows(), QList<int>{4});
}

void BookTableViewTest::dragsARowThatIsTakenOutOfTheSelection()
{
    Table table;
    table.select({1, 3, 5});
    const QSignalSpy pulled(&table, &BookTableView::rowsPulled);
    table.press(table.placeOf(3), Qt::LeftButton, Qt::ControlModifier);
    table.pull(table.placeOf(8));
    QCOMPARE(pulled.count(), 1);
    // The press alone does not take it out: it may begin a drag of all of them.
    QCOMPARE(pulled.first().first().value<Rows>(), Rows({1, 3, 5}));
}

void BookTableViewTest::dragsOnceForAPress()
{
    Table table;
    const QSignalSpy pulled(&table, &BookTableView::rowsPulled);
    table.press(table.placeOf(2));
    table.pull(table.placeOf(5));
    table.pull(table.placeOf(7));
    QCOMPARE(pulled.count(), 1);
    QCOMPARE(table.selectedRows(), QList<int>{2});
}

void BookTableViewTest::dragsOnlyWhenAHandMeansIt_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("twice");
    QTest::newRow("right") << Qt::RightButton << false;
    QTest::newRow("middle") << Qt::MiddleButton << false;
    QTest::newRow("double click") << Qt::LeftButton << true;
}

void BookTableViewTest::dragsOnlyWhenAHandMeansIt()
{
    QFETCH(const Qt::MouseButton, button);
    QFETCH(const bool, twice);
    Table table;
    const QSignalSpy pulled(&table, &BookTableView::rowsPulled);
    if (twice) {
        QTest::mouseClick(table.viewport(), button, {}, table.placeOf(2));
        QTest::mouseDClick(table.viewport(), button, {}, table.placeOf(2));
    } else {
        table.press(table.placeOf(2), button);
    }
    const QList<int> before = table.selectedRows();
    table.pull(table.placeOf(5), button);
    table.pull(table.placeOf(7), button);
    QCOMPARE(pulled.count(), 0);
    QCOMPARE(table.selectedRows(), before);
}

void BookTableViewTest::dragsNoRowsThatHaveMoved()
{
    Table table;
    const QSignalSpy pulled(&table, &BookTableView::rowsPulled);
    table.press(table.placeOf(2));
    table.items().setRowCount(0);
    table.items().setRowCount(9);
    table.pull(table.placeOf(7));
    QCOMPARE(pulled.count(), 0);
}

void BookTableViewTest::selectsFromBelowTheRows()
{
    Table table;
    table.setMinimumHeight(600);
    const QSignalSpy pulled(&table, &BookTableView::rowsPulled);
    QVERIFY(!table.indexAt(table.belowTheRows()).isValid());
    table.press(table.belowTheRows());
    table.pull(table.placeOf(7));
    QCOMPARE(pulled.count(), 0);
}

void BookTableViewTest::tellsItsSelectedRowsFromTheTop()
{
    Table table;
    QCOMPARE(table.BookTableView::selectedRows(), Rows());
    table.select({5, 0, 1, 8});
    QCOMPARE(table.BookTableView::selectedRows(), Rows({0, 1, 5, 8}));
    table.selectAll();
    QCOMPARE(table.BookTableView::selectedRows().size(), 9U);
}

// The clipboard

void BookTableViewTest::copiesTheSelectedRows()
{
    Table table;
    table.items().setItem(2, 0, new QStandardItem(u"Emma"_s));
    table.items().setItem(2, 1, new QStandardItem(u"Jane Austen"_s));
    QGuiApplication::clipboard()->setText(u"before"_s);
    table.copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
    table.selectRow(2);
    table.copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"Emma\tJane Austen\t\n"_s);
}

QTEST_MAIN(BookTableViewTest)
#include "BookTableViewTest.moc"
