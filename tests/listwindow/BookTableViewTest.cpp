#include "listwindow/BookTableView.h"

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

private:
    QStandardItemModel m_model;
};

} // namespace

class BookTableViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsADoubleClickOnARow();
    void ignoresADoubleClickElsewhere();
    void meansTheRowThatIsDoubleClicked();
    void goesToTheFirstAndLastRow();
    void selectsUpToTheFirstAndLastRow();
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

QTEST_MAIN(BookTableViewTest)
#include "BookTableViewTest.moc"
