#include "listwindow/BookDrag.h"

#include "listwindow/BookTableView.h"
#include "tests/support/BookSamples.h"

#include <QDrag>
#include <QElapsedTimer>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// A library of numbered books in a table.
class Library {
public:
    explicit Library(int count) : model(count, 1)
    {
        for (int number = 1; number <= count; ++number) {
            m_books.push_back(samples::makeBook(u"Book %1"_s.arg(number)));
            m_books.back()->setKey(number);
            shown.push_back(m_books.back().get());
        }
        table.setModel(&model);
        table.show();
    }

    QStandardItemModel model;
    BookTableView table;
    std::vector<BookEntry*> shown;

private:
    std::vector<std::unique_ptr<BookEntry>> m_books;
};

int pixelsOf(const QPixmap& picture, const QColor& color)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color.rgba() ? 1 : 0;
    }
    return count;
}

} // namespace

class BookDragTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void holdsTheBooksWhileTheyAreDragged();
    void isReadyAtOnceForALargeLibrary();
    void survivesTheEndOfItsWindow();
    void showsTheTitles_data();
    void showsTheTitles();
    void saysHowManyBooks();
    void staysSmallForALongTitle();
    void takesTheColoursOfTheTable();

private:
    QWidget m_look;
};

void BookDragTest::holdsTheBooksWhileTheyAreDragged()
{
    Library library(5);
    BookDrag drag(library.table, library.shown);
    QVERIFY(drag.draggedBooks().isEmpty());
    QStringList dragged;
    QTimer::singleShot(0, &drag, [&] {
        dragged = drag.draggedBooks();
        QDrag::cancel();
    });
    Q_EMIT library.table.rowsPulled({0, 2, 4});
    QCOMPARE(dragged, QStringList({u"1"_s, u"3"_s, u"5"_s}));
    QVERIFY(drag.draggedBooks().isEmpty());
}

void BookDragTest::isReadyAtOnceForALargeLibrary()
{
    Library library(100000);
    library.table.selectAll();
    BookDrag drag(library.table, library.shown);
    QElapsedTimer clock;
    qint64 milliseconds = -1;
    QTimer::singleShot(0, &drag, [&] {
        milliseconds = clock.elapsed();
        QDrag::cancel();
    });
    clock.start();
    Q_EMIT library.table.rowsPulled(library.table.selectedRows());
    QVERIFY2(milliseconds >= 0 && milliseconds < 500, qPrintable(QString::number(milliseconds)));
}

void BookDragTest::survivesTheEndOfItsWindow()
{
    auto library = std::make_unique<Library>(3);
    auto drag = std::make_unique<BookDrag>(library->table, library->shown);
    QTimer::singleShot(0, this, [&] {
        drag.reset();
        library.reset();
        QTimer::singleShot(0, this, [] { QDrag::cancel(); });
    });
    Q_EMIT library->table.rowsPulled({0, 1});
    QVERIFY(!library);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void BookDragTest::showsTheTitles_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("lines");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("three") << 3 << 3;
    QTest::newRow("four") << 4 << 4; // the last one says that there are more
    QTest::newRow("many") << 100000 << 4;
}

void BookDragTest::showsTheTitles()
{
    QFETCH(const int, count);
    QFETCH(const int, lines);
    const auto heightOf = [this](int number) {
        const QStringList titles(std::min(number, 3), u"Emma"_s);
        return bookDragPicture(titles, number, m_look).deviceIndependentSize().height();
    };
    const qreal expected = heightOf(1) + (lines - 1) * QFontMetricsF(m_look.font()).lineSpacing();
    QVERIFY(qAbs(heightOf(count) - expected) <= 1);
}

void BookDragTest::saysHowManyBooks()
{
    const auto picture = [this](const QStringList& titles, int count) {
        return bookDragPicture(titles, count, m_look).toImage();
    };
    const QStringList titles(3, u"Emma"_s);
    QVERIFY(picture(titles, 3) != picture(titles, 4));
    QVERIFY(picture(titles, 4) != picture(titles, 5));
    QVERIFY(picture(titles, 100000).width() > picture(titles, 5).width());
}

void BookDragTest::staysSmallForALongTitle()
{
    const QString longTitle(5000, u'W');
    const QSizeF size = bookDragPicture({longTitle}, 1, m_look).deviceIndependentSize();
    QVERIFY(size.width() < m_look.fontMetrics().averageCharWidth() * 40);
    const QSizeF ofLines =
        bookDragPicture({u"one\ntwo\tthree"_s}, 1, m_look).deviceIndependentSize();
    QCOMPARE(ofLines.height(), size.height());
}

void BookDragTest::takesTheColoursOfTheTable()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(10, 20, 30));
    palette.setColor(QPalette::Highlight, QColor(200, 10, 90));
    QWidget dark;
    dark.setPalette(palette);
    const QPixmap one = bookDragPicture({u"Emma"_s}, 1, dark);
    const QPixmap two = bookDragPicture({u"Emma"_s, u"Kim"_s}, 2, dark);
    QVERIFY(pixelsOf(one, QColor(10, 20, 30)) > 500);
    QVERIFY(pixelsOf(two, QColor(200, 10, 90)) > pixelsOf(one, QColor(200, 10, 90)) + 50);
}

QTEST_MAIN(BookDragTest)
#include "BookDragTest.moc"
