#include "listwindow/BookClipboard.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// Rows of which each knows its number.
class NumberModel : public QAbstractTableModel {
public:
    explicit NumberModel(int rows) : m_rows(rows) { }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : m_rows;
    }

    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : 2;
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(index.row()) : QVariant();
    }

private:
    int m_rows;
};

} // namespace

// Five rows of three columns: "a0", "b0", "c0" and so on.
class BookClipboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void isEmptyWithoutASelection();
    void givesALineForARow();
    void goesThroughRowsFromTheTop();
    void goesThroughColumnsAsTheyAreSeen();
    void leavesOutHiddenColumns();
    void givesEachRowOnceWhenCellsAreSelected();
    void keepsEmptyCells();
    void makesOneLineOfEachText_data();
    void makesOneLineOfEachText();
    void takesTimeInProportionToTheSelection();

private:
    void select(int row)
    {
        m_table->selectionModel()->select(
            m_model->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    std::unique_ptr<QStandardItemModel> m_model;
    std::unique_ptr<QTableView> m_table;
};

void BookClipboardTest::init()
{
    m_model = std::make_unique<QStandardItemModel>(5, 3);
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 3; ++column) {
            const QChar letter(u"abc"[column]);
            m_model->setItem(row, column, new QStandardItem(letter + QString::number(row)));
        }
    }
    m_table = std::make_unique<QTableView>();
    m_table->setModel(m_model.get());
}

void BookClipboardTest::cleanup()
{
    m_table.reset();
    m_model.reset();
}

void BookClipboardTest::isEmptyWithoutASelection()
{
    QCOMPARE(tabSeparatedLines(*m_table), QString());
}

void BookClipboardTest::givesALineForARow()
{
    select(1);
    QCOMPARE(tabSeparatedLines(*m_table), u"a1\tb1\tc1\n"_s);
}

void BookClipboardTest::goesThroughRowsFromTheTop()
{
    for (const int row : {4, 0, 2})
        select(row);
    QCOMPARE(tabSeparatedLines(*m_table), u"a0\tb0\tc0\na2\tb2\tc2\na4\tb4\tc4\n"_s);
}

void BookClipboardTest::goesThroughColumnsAsTheyAreSeen()
{
    m_table->horizontalHeader()->moveSection(2, 0);
    select(3);
    QCOMPARE(tabSeparatedLines(*m_table), u"c3\ta3\tb3\n"_s);
}

void BookClipboardTest::leavesOutHiddenColumns()
{
    m_table->hideColumn(0);
    select(3);
    QCOMPARE(tabSeparatedLines(*m_table), u"b3\tc3\n"_s);
}

void BookClipboardTest::givesEachRowOnceWhenCellsAreSelected()
{
    QItemSelection cells;
    cells.select(m_model->index(1, 2), m_model->index(2, 2));
    cells.select(m_model->index(0, 0), m_model->index(3, 0));
    cells.select(m_model->index(1, 1), m_model->index(1, 1));
    m_table->selectionModel()->select(cells, QItemSelectionModel::Select);
    m_table->hideColumn(1);
    m_table->hideColumn(2);
    QCOMPARE(tabSeparatedLines(*m_table), u"a0\na1\na2\na3\n"_s);
}

void BookClipboardTest::keepsEmptyCells()
{
    m_model->item(0, 0)->setText({});
    m_model->item(0, 2)->setText({});
    select(0);
    QCOMPARE(tabSeparatedLines(*m_table), u"\tb0\t\n"_s);
}

void BookClipboardTest::makesOneLineOfEachText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("tab") << u"x\ty"_s;
    QTest::newRow("line feed") << u"x\ny"_s;
    QTest::newRow("carriage return") << u"x\ry"_s;
    QTest::newRow("both") << u"x\r\ny"_s;
    QTest::newRow("line separator") << u"x\u2028y"_s;
    QTest::newRow("paragraph separator") << u"x\u2029y"_s;
}

void BookClipboardTest::makesOneLineOfEachText()
{
    QFETCH(const QString, text);
    m_model->item(0, 1)->setText(text);
    select(0);
    QCOMPARE(tabSeparatedLines(*m_table), u"a0\tx y\tc0\n"_s);
}

void BookClipboardTest::takesTimeInProportionToTheSelection()
{
    constexpr int rows = 100'000;
    NumberModel model(rows);
    QTableView table;
    table.setModel(&model);
    // Every second row, so that each is a range of its own.
    QItemSelection selection;
    selection.reserve(rows / 2);
    for (int row = 0; row < rows; row += 2)
        selection.append(QItemSelectionRange(model.index(row, 0), model.index(row, 1)));
    table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    QElapsedTimer timer;
    timer.start();
    const QString lines = tabSeparatedLines(table);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(lines.count(u'\n'), rows / 2);
    QVERIFY(lines.startsWith("0\t0\n2\t2\n"_L1));
    QVERIFY(lines.endsWith("\n99998\t99998\n"_L1));
}

QTEST_MAIN(BookClipboardTest)
#include "BookClipboardTest.moc"
