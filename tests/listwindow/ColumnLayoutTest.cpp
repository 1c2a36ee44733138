#include "listwindow/ColumnLayout.h"

#include "listwindow/BookTableModel.h"
#include "listwindow/TomelyTableHeaderView.h"
#include "tests/support/SmallCollection.h"

#include <QHeaderView>
#include <QImage>
#include <QProxyStyle>
#include <QTableView>
#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// Leaves a header's empty part unpainted, as some styles do.
class BareStyle : public QProxyStyle {
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override
    {
        if (element != CE_HeaderEmptyArea)
            QProxyStyle::drawControl(element, option, painter, widget);
    }
};

} // namespace

class ColumnLayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheRecordsColumnsInTheirOrder();
    void takesEveryColumnOfAPosition();
    void hidesColumnsBehindAGap();
    void showsNoColumnsWhenNoneIsFirst();
    void keepsColumnsWideEnoughToRead();
    void survivesAnyWidth();
    void centresTheTextsOfCentredColumns();
    void copiesPlacesAndWidthsBack();
    void sharesTheWidthEvenly();
    void appendsAndRemovesColumns();
    void resolvesMarksOnlyWhenItIsAsked();
    void addsAColumnAtTheRightWherePeopleLeftIt();
    void movesAShownColumnThatIsAddedAgain();
    void isEmptyAfterItsLastColumn();
    void tellsWhenTheSortColumnIsHidden();
    void marksTheSortColumn_data();
    void marksTheSortColumn();
    void keepsItsColumnsOverAReload();
    void renamesAHeading();
    void tellsWhichHeadingWasClicked();
    void tellsWhenAnEdgeIsDragged();
    void tellsWhenAnEdgeIsDoubleClicked();
    void tellsWhenAColumnIsDragged();
    void saysNothingOfWhatTheProgramDoes();
    void takesOnlyTheLeftButtonForADrag();
    void hasAnOpaqueHeader();

private:
    void setUp() { m_layout->setupInitialColumns(); }

    QHeaderView& header() const { return *m_table->horizontalHeader(); }

    QList<qint32> shownKeys() const;

    int widthOf(qint32 key) const { return header().sectionSize(m_model->columnOfKey(key)); }

    QPoint middleOf(qint32 key) const;
    QPoint edgeOf(qint32 key) const;
    void drag(QPoint from, QPoint to) const;

    std::unique_ptr<BookListDocument> m_document;
    std::vector<BookEntry*> m_books;
    std::unique_ptr<BookTableModel> m_model;
    std::unique_ptr<QTableView> m_table;
    std::unique_ptr<ColumnLayout> m_layout;
};

void ColumnLayoutTest::init()
{
    m_document = std::make_unique<BookListDocument>();
    samples::addFourBooks(*m_document);
    samples::showColumns(*m_document, {0, 2, 28});
    m_books = m_document->allValues();
    m_model = std::make_unique<BookTableModel>(m_books, m_document->getListColumns());
    m_table = std::make_unique<QTableView>();
    m_table->setModel(m_model.get());
    m_table->resize(900, 400);
    m_layout = std::make_unique<ColumnLayout>(*m_table, *m_model, *m_document);
}

void ColumnLayoutTest::cleanup()
{
    m_layout.reset();
    m_table.reset();
}

QList<qint32> ColumnLayoutTest::shownKeys() const
{
    QList<qint32> keys;
    for (int visual = 0; visual < header().count(); ++visual) {
        if (!header().isSectionHidden(header().logicalIndex(visual)))
            keys.append(m_model->keyOfColumn(header().logicalIndex(visual)));
    }
    return keys;
}

QPoint ColumnLayoutTest::middleOf(qint32 key) const
{
    const int column = m_model->columnOfKey(key);
    return {header().sectionViewportPosition(column) + header().sectionSize(column) / 2,
        header().height() / 2};
}

QPoint ColumnLayoutTest::edgeOf(qint32 key) const
{
    const int column = m_model->columnOfKey(key);
    return {header().sectionViewportPosition(column) + header().sectionSize(column) - 1,
        header().height() / 2};
}

void ColumnLayoutTest::drag(QPoint from, QPoint to) const
{
    QWidget* const viewport = header().viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    QTest::mouseMove(viewport, (from + to) / 2);
    QTest::mouseMove(viewport, to);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
}

void ColumnLayoutTest::showsTheRecordsColumnsInTheirOrder()
{
    samples::showColumns(*m_document, {28, 84, 0, 42});
    samples::column(*m_document, 84).setWidth(77);
    setUp();
    QCOMPARE(shownKeys(), QList<qint32>({28, 84, 0, 42}));
    QCOMPARE(widthOf(28), 120);
    QCOMPARE(widthOf(84), 77);
    QCOMPARE(m_layout->firstColumnKey(), 28);
}

void ColumnLayoutTest::takesEveryColumnOfAPosition()
{
    samples::column(*m_document, 2).setPosition(0);
    samples::column(*m_document, 28).setPosition(1);
    setUp();
    QCOMPARE(shownKeys(), QList<qint32>({0, 2, 28}));
    QCOMPARE(samples::column(*m_document, 2).getPosition(), 1);
    QCOMPARE(samples::column(*m_document, 28).getPosition(), 2);
}

void ColumnLayoutTest::hidesColumnsBehindAGap()
{
    samples::column(*m_document, 28).setPosition(3);
    setUp();
    QCOMPARE(shownKeys(), QList<qint32>({0, 2}));
    QCOMPARE(samples::column(*m_document, 28).getPosition(), ColumnEntry::hidden);
    QCOMPARE(samples::column(*m_document, 28).getWidth(), 0);
}

void ColumnLayoutTest::showsNoColumnsWhenNoneIsFirst()
{
    samples::column(*m_document, 0).setPosition(ColumnEntry::hidden);
    setUp();
    QCOMPARE(shownKeys(), QList<qint32>());
    QCOMPARE(m_layout->firstColumnKey(), -1);
    m_layout->shareWidthEvenly(900); // nothing to share
    m_layout->updateSortStatus();
}

void ColumnLayoutTest::keepsColumnsWideEnoughToRead()
{
    samples::column(*m_document, 0).setWidth(7);
    samples::column(*m_document, 2).setWidth(0);
    samples::column(*m_document, 28).setWidth(-100);
    setUp();
    QCOMPARE(widthOf(0), ColumnLayout::minimumWidth);
    QCOMPARE(widthOf(2), ColumnLayout::defaultWidth);
    QCOMPARE(widthOf(28), ColumnLayout::defaultWidth);
    header().resizeSection(m_model->columnOfKey(0), 3);
    QCOMPARE(widthOf(0), ColumnLayout::minimumWidth);
}

void ColumnLayoutTest::survivesAnyWidth()
{
    samples::column(*m_document, 0).setWidth(std::numeric_limits<qint32>::max());
    samples::column(*m_document, 2).setWidth(std::numeric_limits<qint32>::min());
    setUp();
    QCOMPARE(shownKeys(), QList<qint32>({0, 2, 28}));
    QVERIFY(widthOf(0) >= ColumnLayout::minimumWidth);
    QCOMPARE(widthOf(2), ColumnLayout::defaultWidth);
    QCOMPARE(samples::column(*m_document, 0).getWidth(), widthOf(0));
}

void ColumnLayoutTest::centresTheTextsOfCentredColumns()
{
    samples::showColumns(*m_document, {0, 6});
    setUp();
    for (const auto& [key, isCentred] : {std::pair(0, false), std::pair(6, true)}) {
        const int column = m_model->columnOfKey(key);
        const QModelIndex cell = m_model->index(0, column);
        QCOMPARE(cell.data(Qt::TextAlignmentRole).toInt() == Qt::AlignCenter, isCentred);
        const QVariant heading = m_model->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        QCOMPARE(heading.toInt() == Qt::AlignCenter, isCentred);
        QVERIFY(!(cell.flags() & Qt::ItemIsEditable));
    }
}

void ColumnLayoutTest::copiesPlacesAndWidthsBack()
{
    setUp();
    header().moveSection(2, 0);
    header().resizeSection(m_model->columnOfKey(2), 222);
    QCOMPARE(samples::column(*m_document, 28).getPosition(), 2); // not before it is asked for
    m_layout->updateCurrentColumnInfo();
    QCOMPARE(samples::column(*m_document, 28).getPosition(), 0);
    QCOMPARE(samples::column(*m_document, 0).getPosition(), 1);
    QCOMPARE(samples::column(*m_document, 2).getPosition(), 2);
    QCOMPARE(samples::column(*m_document, 2).getWidth(), 222);
    for (const auto& [key, record] : m_document->getListColumns()) {
        if (record.isShown())
            continue;
        QCOMPARE(record.getPosition(), ColumnEntry::hidden);
        QCOMPARE(record.getWidth(), 0);
    }
}

void ColumnLayoutTest::sharesTheWidthEvenly()
{
    setUp();
    constexpr int available = 1000;
    m_layout->shareWidthEvenly(available);
    QCOMPARE(widthOf(0), available / 3);
    QCOMPARE(widthOf(2), available / 3);
    QCOMPARE(widthOf(0) + widthOf(2) + widthOf(28), available);
    QCOMPARE(samples::column(*m_document, 28).getWidth(), widthOf(28));
    header().resizeSection(m_model->columnOfKey(28), 300); // it is the person's again
    QCOMPARE(widthOf(28), 300);
}

void ColumnLayoutTest::appendsAndRemovesColumns()
{
    setUp();
    samples::column(*m_document, 84).setPosition(ColumnLayout::positionToAdd);
    samples::column(*m_document, 84).setWidth(333); // not the one it had
    samples::column(*m_document, 26).setPosition(ColumnLayout::positionToAdd);
    samples::column(*m_document, 2).setPosition(ColumnLayout::positionToRemove);
    QVERIFY(!m_layout->columnsSelectionChanged());
    const QList<qint32> shown = shownKeys();
    QCOMPARE(shown.first(2), QList<qint32>({0, 28}));
    QCOMPARE(QSet<qint32>(shown.begin(), shown.end()), QSet<qint32>({0, 28, 84, 26}));
    QCOMPARE(widthOf(84), ColumnLayout::defaultWidth);
    QCOMPARE(samples::column(*m_document, 2).getPosition(), ColumnEntry::hidden);
    m_layout->updateCurrentColumnInfo();
    QCOMPARE(samples::column(*m_document, shown.last()).getPosition(), 3);
}

void ColumnLayoutTest::resolvesMarksOnlyWhenItIsAsked()
{
    setUp();
    samples::column(*m_document, 84).setPosition(ColumnLayout::positionToAdd);
    samples::column(*m_document, 2).setPosition(ColumnLayout::positionToRemove);
    m_layout->updateSortStatus();
    QCOMPARE(shownKeys(), QList<qint32>({0, 2, 28}));
    QCOMPARE(samples::column(*m_document, 84).getPosition(), ColumnLayout::positionToAdd);
    m_layout->columnsSelectionChanged();
    m_layout->columnsSelectionChanged(); // nothing is left to do
    QCOMPARE(shownKeys(), QList<qint32>({0, 28, 84}));
    QCOMPARE(samples::column(*m_document, 84).getPosition(), 2);
}

void ColumnLayoutTest::addsAColumnAtTheRightWherePeopleLeftIt()
{
    setUp();
    header().moveSection(header().visualIndex(m_model->columnOfKey(0)), 2);
    const QList<qint32> moved = shownKeys();
    QCOMPARE(moved, QList<qint32>({2, 28, 0}));
    samples::column(*m_document, 26).setPosition(ColumnLayout::positionToAdd);
    m_layout->columnsSelectionChanged();
    QCOMPARE(shownKeys(), moved + QList<qint32>{26});
    // Gone and back again it is at the right, too, and no longer as wide as it was.
    header().resizeSection(m_model->columnOfKey(2), 250);
    samples::column(*m_document, 2).setPosition(ColumnLayout::positionToRemove);
    m_layout->columnsSelectionChanged();
    samples::column(*m_document, 2).setPosition(ColumnLayout::positionToAdd);
    m_layout->columnsSelectionChanged();
    QCOMPARE(shownKeys(), QList<qint32>({28, 0, 26, 2}));
    QCOMPARE(widthOf(2), ColumnLayout::defaultWidth);
}

void ColumnLayoutTest::movesAShownColumnThatIsAddedAgain()
{
    setUp();
    samples::column(*m_document, 0).setPosition(ColumnLayout::positionToAdd);
    m_layout->columnsSelectionChanged();
    QCOMPARE(shownKeys(), QList<qint32>({2, 28, 0}));
    QCOMPARE(samples::column(*m_document, 0).getPosition(), 2);
}

void ColumnLayoutTest::isEmptyAfterItsLastColumn()
{
    m_document->setSortField(3);
    setUp();
    m_table->show();
    const int height = header().height();
    for (const qint32 key : {0, 2, 28})
        samples::column(*m_document, key).setPosition(ColumnLayout::positionToRemove);
    QVERIFY(m_layout->columnsSelectionChanged());
    m_layout->updateSortStatus();
    QCOMPARE(shownKeys(), QList<qint32>());
    QCOMPARE(m_layout->firstColumnKey(), -1);
    QCOMPARE(m_document->getSortField(), 3);
    // The header does not jump.
    QCoreApplication::processEvents();
    QCOMPARE(header().height(), height);
    m_layout->updateCurrentColumnInfo();
    samples::column(*m_document, 28).setPosition(ColumnLayout::positionToAdd);
    m_layout->columnsSelectionChanged();
    QCOMPARE(shownKeys(), QList<qint32>{28});
    QCOMPARE(samples::column(*m_document, 28).getPosition(), 0);
}

void ColumnLayoutTest::tellsWhenTheSortColumnIsHidden()
{
    m_document->setSortField(29); // pages, descending
    setUp();
    samples::column(*m_document, 28).setPosition(ColumnLayout::positionToRemove);
    QVERIFY(m_layout->columnsSelectionChanged());
    samples::column(*m_document, 2).setPosition(ColumnLayout::positionToRemove);
    QVERIFY(!m_layout->columnsSelectionChanged());
    QCOMPARE(shownKeys(), QList<qint32>{0});
    samples::column(*m_document, 0).setPosition(ColumnLayout::positionToRemove);
    QVERIFY(!m_layout->columnsSelectionChanged());
    QCOMPARE(m_layout->firstColumnKey(), -1);
}

void ColumnLayoutTest::marksTheSortColumn_data()
{
    QTest::addColumn<qint32>("sortField");
    QTest::addColumn<qint32>("columnKey"); // -1: no mark
    QTest::addColumn<bool>("descending");
    QTest::newRow("ascending") << 2 << 2 << false;
    QTest::newRow("descending") << 29 << 28 << true;
    QTest::newRow("the first column") << 0 << 0 << false;
    QTest::newRow("a hidden column") << 84 << -1 << false;
    QTest::newRow("no column") << 4 << -1 << false;
}

void ColumnLayoutTest::marksTheSortColumn()
{
    QFETCH(const qint32, sortField);
    QFETCH(const qint32, columnKey);
    QFETCH(const bool, descending);
    setUp();
    m_document->setSortField(sortField);
    m_layout->updateSortStatus();
    QVERIFY(header().isSortIndicatorShown());
    const int section = header().sortIndicatorSection();
    if (columnKey < 0) {
        QVERIFY(section < 0 || section >= header().count());
        return;
    }
    QCOMPARE(m_model->keyOfColumn(section), columnKey);
    QCOMPARE(header().sortIndicatorOrder(), descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ColumnLayoutTest::keepsItsColumnsOverAReload()
{
    setUp();
    header().moveSection(2, 0);
    header().resizeSection(m_model->columnOfKey(2), 222);
    const QList<qint32> before = shownKeys();
    m_model->beginReload();
    m_books.clear();
    m_model->endReload();
    QCOMPARE(shownKeys(), before);
    QCOMPARE(widthOf(2), 222);
}

void ColumnLayoutTest::renamesAHeading()
{
    setUp();
    QSignalSpy renamed(m_model.get(), &QAbstractItemModel::headerDataChanged);
    m_layout->updateColumnName(samples::column(*m_document, 42));
    QCOMPARE(renamed.size(), 1);
    QCOMPARE(m_model->keyOfColumn(renamed.first().at(1).toInt()), 42);
}

void ColumnLayoutTest::tellsWhichHeadingWasClicked()
{
    setUp();
    m_table->show();
    QSignalSpy clicked(m_layout.get(), &ColumnLayout::headingClicked);
    QSignalSpy changed(m_layout.get(), &ColumnLayout::changedByUser);
    QTest::mouseClick(header().viewport(), Qt::LeftButton, {}, middleOf(28));
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.first().first().toInt(), 28);
    QVERIFY(changed.isEmpty());
}

void ColumnLayoutTest::tellsWhenAnEdgeIsDragged()
{
    setUp();
    m_table->show();
    QSignalSpy clicked(m_layout.get(), &ColumnLayout::headingClicked);
    QSignalSpy changed(m_layout.get(), &ColumnLayout::changedByUser);
    const QPoint edge = edgeOf(0);
    drag(edge, edge + QPoint(40, 0));
    QCOMPARE(widthOf(0), 160);
    QCOMPARE(changed.size(), 1);
    QVERIFY(clicked.isEmpty());
    drag(edgeOf(0), edgeOf(0)); // nowhere
    QCOMPARE(changed.size(), 1);
}

void ColumnLayoutTest::tellsWhenAnEdgeIsDoubleClicked()
{
    setUp();
    m_table->show();
    QSignalSpy changed(m_layout.get(), &ColumnLayout::changedByUser);
    const QPoint edge = edgeOf(28);
    QTest::mouseClick(header().viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseDClick(header().viewport(), Qt::LeftButton, {}, edge);
    QVERIFY(widthOf(28) < 120);
    QCOMPARE(changed.size(), 1);
}

void ColumnLayoutTest::tellsWhenAColumnIsDragged()
{
    setUp();
    m_table->show();
    QSignalSpy changed(m_layout.get(), &ColumnLayout::changedByUser);
    drag(middleOf(28), middleOf(0) - QPoint(30, 0));
    QCOMPARE(shownKeys(), QList<qint32>({28, 0, 2}));
    QCOMPARE(changed.size(), 1);
    drag(middleOf(0), middleOf(28) - QPoint(30, 0)); // the first column can be moved, too
    QCOMPARE(shownKeys(), QList<qint32>({0, 28, 2}));
    QCOMPARE(changed.size(), 2);
}

void ColumnLayoutTest::saysNothingOfWhatTheProgramDoes()
{
    QSignalSpy changed(m_layout.get(), &ColumnLayout::changedByUser);
    setUp();
    m_table->show();
    header().resizeSection(m_model->columnOfKey(0), 300);
    header().moveSection(2, 0);
    m_table->resize(500, 300);
    m_layout->shareWidthEvenly(900);
    samples::column(*m_document, 84).setPosition(ColumnLayout::positionToAdd);
    m_layout->columnsSelectionChanged();
    QCoreApplication::processEvents();
    QVERIFY(changed.isEmpty());
}

void ColumnLayoutTest::takesOnlyTheLeftButtonForADrag()
{
    setUp();
    m_table->show();
    QSignalSpy changed(m_layout.get(), &ColumnLayout::changedByUser);
    QTest::mousePress(header().viewport(), Qt::RightButton, {}, middleOf(2));
    header().resizeSection(m_model->columnOfKey(0), 300); // the program, meanwhile
    QTest::mouseRelease(header().viewport(), Qt::RightButton, {}, middleOf(2));
    QVERIFY(changed.isEmpty());
}

void ColumnLayoutTest::hasAnOpaqueHeader()
{
    QCOMPARE(header().metaObject(), &TomelyTableHeaderView::staticMetaObject);
    setUp();
    BareStyle style;
    header().setStyle(&style);
    QPalette palette = header().palette();
    palette.setColor(QPalette::Window, Qt::green);
    header().setPalette(palette);
    m_table->show();
    QWidget& viewport = *header().viewport();
    QImage image(viewport.size(), QImage::Format_RGB32);
    image.fill(Qt::red);
    viewport.render(&image, {}, {}, QWidget::DrawChildren); // no background of the toolkit's
    QCOMPARE(image.pixelColor(image.width() - 5, image.height() / 2), QColor(Qt::green));
    m_table.reset();
}

QTEST_MAIN(ColumnLayoutTest)
#include "ColumnLayoutTest.moc"
