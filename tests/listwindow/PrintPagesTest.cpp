#include "listwindow/PrintPages.h"

#include "listwindow/BookTableModel.h"
#include "listwindow/engine/ColumnKind.h"
#include "listwindow/engine/PrintTable.h"
#include "tests/support/SmallCollection.h"

#include <QBuffer>
#include <QHeaderView>
#include <QPainter>
#include <QPdfWriter>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

constexpr int resolution = 72; // a dot is a point

QPageLayout paper(QPageSize::PageSizeId size = QPageSize::A4)
{
    return QPageLayout(QPageSize(size), QPageLayout::Portrait, QMarginsF(54, 54, 54, 54));
}

PrintColumn column(double width, const QString& heading = u"Title"_s,
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter, qint32 key = ColumnKey::Title)
{
    return {key, heading, alignment, width};
}

/// A page as it is seen within the margins, on paper of some colour.
QImage picture(const PrintPages& pages, qsizetype page, const QPageLayout& layout = paper())
{
    QImage image(layout.paintRectPixels(resolution).size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(Qt::white); // as a dark palette would have it
    pages.paint(painter, page);
    return image;
}

/// What is painted between two heights.
QRect ink(const QImage& image, int top, int bottom)
{
    QRect found;
    for (int y = std::max(0, top); y < std::min(bottom, image.height()); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 160)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

QRect ink(const QImage& image)
{
    return ink(image, 0, image.height());
}

} // namespace

class PrintPagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void printsTheShownColumnsOfTheScreen();
    void hasAPageWithoutBooks();
    void putsWholeRowsOnAsManyPagesAsNeeded();
    void paintsHeadingAndRuleOnTheFirstPageOnly();
    void scalesAWideTableToThePaper();
    void enlargesNoNarrowTable();
    void cutsTextsAtTheirColumn();
    void centresAsTheScreenDoes();
    void paintsBlackLetters();
    void printsPagesInTheOrderAsked();
    void stopsWhenItIsCancelled();

private:
    PrintPages pages(std::vector<PrintColumn> columns) const
    {
        QFont font;
        font.setPointSizeF(10);
        return {{std::move(columns), m_books, font}, paper(), resolution};
    }

    void addBooks(int count, const QString& title = u"Emma"_s)
    {
        for (int number = 0; number < count; ++number) {
            m_owned.push_back(samples::makeBook(title));
            m_books.push_back(m_owned.back().get());
        }
    }

    std::vector<std::unique_ptr<BookEntry>> m_owned;
    std::vector<BookEntry*> m_books;
};

void PrintPagesTest::init()
{
    m_books.clear();
    m_owned.clear();
}

void PrintPagesTest::printsTheShownColumnsOfTheScreen()
{
    BookListDocument document;
    samples::addFourBooks(document);
    const std::vector<BookEntry*> books = document.allValues();
    samples::column(document, ColumnKey::Author).setCentered(true);
    BookTableModel model(books, document.getListColumns());
    QTableView table;
    table.setModel(&model);
    QHeaderView& header = *table.horizontalHeader();
    const int title = model.columnOfKey(ColumnKey::Title);
    const int author = model.columnOfKey(ColumnKey::Author);
    for (int section = 0; section < header.count(); ++section)
        header.setSectionHidden(section, section != title && section != author);
    header.moveSection(header.visualIndex(author), 0);
    header.moveSection(header.visualIndex(title), header.count() - 1);
    header.resizeSection(title, 217);
    header.resizeSection(author, 93);
    const std::vector<PrintColumn> columns = printColumns(table);
    QCOMPARE(columns.size(), 3U);
    QCOMPARE(columns.at(0).key, 4);
    QCOMPARE(columns.at(0).heading, u"#"_s);
    QCOMPARE(columns.at(0).width, 40.0);
    QCOMPARE(columns.at(1).key, ColumnKey::Author);
    QCOMPARE(columns.at(1).heading, samples::column(document, ColumnKey::Author).getColumnName());
    QCOMPARE(columns.at(1).width, 93.0);
    QCOMPARE(columns.at(1).alignment, Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(columns.at(2).key, ColumnKey::Title);
    QCOMPARE(columns.at(2).width, 217.0);
    QCOMPARE(columns.at(2).alignment, Qt::AlignLeft | Qt::AlignVCenter);
}

void PrintPagesTest::hasAPageWithoutBooks()
{
    const PrintPages empty = pages({column(100)});
    QCOMPARE(empty.pageCount(), 1);
    const QRect painted = ink(picture(empty, 0));
    QVERIFY(!painted.isEmpty());
    QVERIFY(painted.bottom() < 50); // heading and rule
}

void PrintPagesTest::putsWholeRowsOnAsManyPagesAsNeeded()
{
    addBooks(500, u"Ågj"_s);
    const PrintPages many = pages({column(100)});
    const QRect full = ink(picture(many, 1));
    const QRect last = ink(picture(many, many.pageCount() - 1));
    QVERIFY(many.pageCount() > 5 && many.pageCount() < 20);
    QVERIFY(full.top() >= 0 && full.bottom() < paper().paintRectPixels(resolution).height());
    QVERIFY(!last.isEmpty());
    // One row more than fits is one page more.
    qsizetype rowsOfOne = 0;
    for (m_books.clear(); pages({column(100)}).pageCount() == 1; ++rowsOfOne)
        m_books.push_back(m_owned.front().get());
    const qsizetype rows = rowsOfOne - 1 + printHeadingRows;
    m_books.resize(static_cast<std::size_t>(rows * 3 - printHeadingRows), m_owned.front().get());
    QCOMPARE(pages({column(100)}).pageCount(), 3);
    m_books.push_back(m_owned.front().get());
    QCOMPARE(pages({column(100)}).pageCount(), 4);
}

void PrintPagesTest::paintsHeadingAndRuleOnTheFirstPageOnly()
{
    addBooks(200, u" "_s); // of which nothing is seen
    const PrintPages blank = pages({column(100)});
    QVERIFY(!ink(picture(blank, 0)).isEmpty());
    QVERIFY(ink(picture(blank, 1)).isEmpty());
}

void PrintPagesTest::scalesAWideTableToThePaper()
{
    const int width = paper().paintRectPixels(resolution).width();
    const QRect painted = ink(picture(pages({column(width * 2), column(width * 2)}), 0));
    QVERIFY2(painted.right() < width, qPrintable(QString::number(painted.right())));
    // The second of two equal columns begins in the middle.
    const double half = width * 0.75;
    const QImage image = picture(pages({column(half, u""_s), column(half, u"MMMM"_s)}), 0);
    const QRect heading = ink(image, 0, 9);
    QVERIFY2(
        std::abs(heading.left() - width / 2) <= 3, qPrintable(QString::number(heading.left())));
    // The letters shrink along.
    QVERIFY(painted.height() < ink(picture(pages({column(100)}), 0)).height() / 2);
}

void PrintPagesTest::enlargesNoNarrowTable()
{
    const QRect narrow = ink(picture(pages({column(40), column(60)}), 0));
    QVERIFY(narrow.left() <= 5);
    QVERIFY(narrow.right() < 100);
    const QRect wide = ink(picture(pages({column(40), column(300)}), 0));
    QCOMPARE(wide.height(), narrow.height());
}

void PrintPagesTest::cutsTextsAtTheirColumn()
{
    addBooks(1, u"A long title\nof two lines "_s.repeated(100000));
    const QImage image = picture(pages({column(100)}), 0);
    const QRect painted = ink(image);
    QVERIFY(painted.right() < 100);
    QVERIFY(painted.right() > 85); // and no sooner
    addBooks(1, u"second"_s);
    QVERIFY(ink(picture(pages({column(100)}), 0)).bottom() > painted.bottom()); // on one line each
    // A column that takes not even one letter.
    QVERIFY(ink(picture(pages({column(3)}), 0)).isEmpty());
}

void PrintPagesTest::centresAsTheScreenDoes()
{
    const QImage image = picture(pages({column(200, u"M"_s, Qt::AlignCenter)}), 0);
    const QRect heading = ink(image, 0, 14);
    QVERIFY2(std::abs(heading.center().x() - 100) <= 2,
        qPrintable(QString::number(heading.center().x())));
}

void PrintPagesTest::paintsBlackLetters()
{
    const QImage image = picture(pages({column(200, u"MMMMM"_s)}), 0);
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            darkest = std::min(darkest, qGray(image.pixel(x, y)));
    }
    QVERIFY(darkest < 60);
}

void PrintPagesTest::printsPagesInTheOrderAsked()
{
    addBooks(300);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setPageLayout(paper());
    const std::vector<qsizetype> wanted = {2, 0};
    QList<qint64> told;
    {
        QPainter painter(&writer);
        QVERIFY(
            pages({column(100)}).print(painter, writer, wanted, [&told](qint64 done, qint64 total) {
                told << done << total;
            }));
    }
    QCOMPARE(told, QList<qint64>({0, 2, 1, 2}));
    QCOMPARE(file.data().count("/Type /Page\n"), 2);
}

void PrintPagesTest::stopsWhenItIsCancelled()
{
    addBooks(300);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    QPainter painter(&writer);
    const std::vector<qsizetype> wanted = {0, 1, 2, 3};
    int count = 0;
    const auto cancelSecond = [&count](qint64, qint64) {
        if (++count == 2)
            throw OperationCancelled();
    };
    QVERIFY_THROWS_EXCEPTION(
        OperationCancelled, pages({column(100)}).print(painter, writer, wanted, cancelSecond));
    QCOMPARE(count, 2);
}

QTEST_MAIN(PrintPagesTest)
#include "PrintPagesTest.moc"
