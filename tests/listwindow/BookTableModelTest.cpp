#include "listwindow/BookTableModel.h"

#include "listwindow/engine/CellText.h"
#include "tests/support/SmallCollection.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class BookTableModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isAModel();
    void hasARowForEachDisplayedBook();
    void followsAReload();
    void showsTheTextOfEachCell();
    void saysMarksInWords();
    void isHeadedByTheColumnsNames();
    void centersWhatTheCatalogueCenters();
    void findsColumnsByTheirKeys();
    void keepsColumnsThatItDoesNotKnow();
    void tellsOfARenamedColumn();

private:
    std::unique_ptr<BookListDocument> m_document;
    std::vector<BookEntry*> m_displayed;
    std::unique_ptr<BookTableModel> m_model;
};

void BookTableModelTest::init()
{
    m_model.reset();
    m_document = std::make_unique<BookListDocument>();
    samples::addFourBooks(*m_document);
    m_displayed = m_document->allValues();
    m_model = std::make_unique<BookTableModel>(m_displayed, m_document->getListColumns());
}

void BookTableModelTest::isAModel()
{
    const QAbstractItemModelTester tester(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_model->beginReload();
    m_displayed.pop_back();
    m_model->endReload();
    m_model->beginReload();
    m_displayed.clear();
    m_model->endReload();
    m_model->columnRenamed(0);
}

void BookTableModelTest::hasARowForEachDisplayedBook()
{
    QCOMPARE(m_model->rowCount(), 4);
    QCOMPARE(m_model->columnCount(), static_cast<int>(m_document->getListColumns().size()));
    const QModelIndex cell = m_model->index(0, 0);
    QCOMPARE(m_model->rowCount(cell), 0);
    QCOMPARE(m_model->columnCount(cell), 0);
}

void BookTableModelTest::followsAReload()
{
    QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
    m_model->beginReload();
    m_displayed = {m_displayed.at(2), m_displayed.at(0)};
    m_model->endReload();
    QCOMPARE(reset.size(), 1);
    QCOMPARE(m_model->rowCount(), 2);
    const int title = m_model->columnOfKey(0);
    QCOMPARE(m_model->index(0, title).data().toString(), u"Kim"_s);
    QCOMPARE(m_model->index(1, title).data().toString(), u"Villette"_s);
}

void BookTableModelTest::showsTheTextOfEachCell()
{
    const BookEntry full = samples::fullBook();
    BookEntry copy = full;
    m_model->beginReload();
    m_displayed = {m_displayed.front(), &copy};
    m_model->endReload();
    for (int column = 0; column < m_model->columnCount(); ++column) {
        QCOMPARE(m_model->index(1, column).data().toString(),
            cellText(full, m_model->keyOfColumn(column), 1));
    }
    QCOMPARE(m_model->index(1, m_model->columnOfKey(28)).data().toString(),
        QString::number(full.getPages()));
    QVERIFY(!m_model->index(0, 0).data(Qt::EditRole).isValid());
    QVERIFY(!m_model->data({}, Qt::DisplayRole).isValid());
    QVERIFY(!(m_model->index(0, 0).flags() & Qt::ItemIsEditable));
}

void BookTableModelTest::saysMarksInWords()
{
    m_displayed.front()->setSigned(true);
    const auto said = [this](int row, qint32 key) {
        return m_model->index(row, m_model->columnOfKey(key)).data(Qt::AccessibleTextRole);
    };
    QCOMPARE(said(0, 20).toString(), u"yes"_s);
    QCOMPARE(said(1, 20).toString(), u"no"_s);
    QCOMPARE(said(1, 0).toString(), m_displayed.at(1)->getTitle());
}

void BookTableModelTest::isHeadedByTheColumnsNames()
{
    const int title = m_model->columnOfKey(0);
    QCOMPARE(m_model->headerData(title, Qt::Horizontal, Qt::DisplayRole).toString(), u"Title"_s);
    const int lastRead = m_model->columnOfKey(8);
    QCOMPARE(
        m_model->headerData(lastRead, Qt::Horizontal, Qt::DisplayRole).toString(), u"Last Read"_s);
    QVERIFY(!m_model->headerData(title, Qt::Vertical, Qt::DisplayRole).isValid());
    for (const int section : {-1, m_model->columnCount(), 9999})
        QVERIFY(!m_model->headerData(section, Qt::Horizontal, Qt::DisplayRole).isValid());
}

void BookTableModelTest::centersWhatTheCatalogueCenters()
{
    const auto alignment = [this](qint32 key) {
        const QVariant header =
            m_model->headerData(m_model->columnOfKey(key), Qt::Horizontal, Qt::TextAlignmentRole);
        const QVariant cell =
            m_model->index(0, m_model->columnOfKey(key)).data(Qt::TextAlignmentRole);
        return header == cell ? Qt::Alignment(header.toInt()) : Qt::Alignment();
    };
    QCOMPARE(alignment(0), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(alignment(28), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(alignment(6), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(alignment(62), Qt::Alignment(Qt::AlignCenter));
}

void BookTableModelTest::findsColumnsByTheirKeys()
{
    for (const auto& [key, record] : m_document->getListColumns()) {
        const int column = m_model->columnOfKey(*keyNumber(key));
        QCOMPARE(m_model->record(column).getKey(), key);
        QCOMPARE(m_model->keyOfColumn(column), *keyNumber(key));
    }
    QCOMPARE(m_model->columnOfKey(4), -1);
    QCOMPARE(m_model->columnOfKey(-1), -1);
    QCOMPARE(m_model->columnOfKey(1), -1);
}

void BookTableModelTest::keepsColumnsThatItDoesNotKnow()
{
    ColumnEntry strange;
    strange.setKeyText(u"strange"_s);
    strange.setColumnName(u"Strange"_s);
    m_document->getListColumns().insert_or_assign(strange.getKey(), strange);
    BookTableModel model(m_displayed, m_document->getListColumns());
    const QAbstractItemModelTester tester(
        &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const int column = model.columnCount() - 1;
    QCOMPARE(model.record(column).getKey(), u"strange"_s);
    QCOMPARE(model.index(0, column).data().toString(), QString());
    QCOMPARE(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), u"Strange"_s);
}

void BookTableModelTest::tellsOfARenamedColumn()
{
    QSignalSpy renamed(m_model.get(), &QAbstractItemModel::headerDataChanged);
    const int column = m_model->columnOfKey(42);
    samples::column(*m_document, 42).setColumnName(u"Shelf"_s);
    m_model->columnRenamed(column);
    QCOMPARE(renamed.size(), 1);
    QCOMPARE(renamed.first().at(1).toInt(), column);
    QCOMPARE(m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), u"Shelf"_s);
}

QTEST_GUILESS_MAIN(BookTableModelTest)
#include "BookTableModelTest.moc"
