#include "editor/lookup/BookPage.h"
#include "editor/lookup/LookupText.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QString isbn = u"9780143039433"_s;

BookDetails filled(const QString& page, const BookDetails& before = {})
{
    BookDetails details = before;
    fillFromBookPage(page, isbn, details);
    return details;
}

/// A field and the page that tells it, "%1" where the value stands.
struct Row {
    const char* name;
    QString BookDetails::*member;
    QString page;
};

const QList<Row>& rows()
{
    static const QList<Row> all{
        {"large image", &BookDetails::largeImageURL,
            u"<meta property=\"og:image\" content=\"%1\" />"_s},
        {"title", &BookDetails::title,
            u"<div class=\"book-heading-row\"><p></p><h1>%1</h1></div>"_s},
        {"author", &BookDetails::author,
            u"<span>Author(s)</span> <a href=\"/a\">%1</a> <a href=\"/b\">Other</a></div>"_s},
        {"pages", &BookDetails::numberOfPages,
            u"<div class=\"min_frmt\"><span class=\"book-detail\">Bound, %1 pages</span></div>"_s},
        {"published", &BookDetails::publicationDate,
            u"<span>Published</span><span class=\"book-detail\">%1</span></div>"_s},
        {"publisher", &BookDetails::publisher,
            u"<span>Publisher</span><span class=\"book-detail\">%1</span></div>"_s},
    };
    return all;
}

/// All fields that a page tells, and others of which it tells nothing.
QStringList values(const BookDetails& details)
{
    QStringList texts;
    for (const Row& row : rows())
        texts.append(details.*row.member);
    return texts << details.asin << details.smallThumbnailImageURL << details.thumbnailImageURL
                 << details.smallImageURL << details.mediumImageURL;
}

} // namespace

class BookPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsEachField_data();
    void readsEachField();
    void cleansTexts_data();
    void cleansTexts();
    void looksWithinTheOuterMarkers();
    void searchesTheInnerMarkerFromTheStart();
    void countsPages_data();
    void countsPages();
    void keepsWhatIsThere();
    void takesWhatIsEmpty();
    void setsTheIsbnInAnyCase();
    void boundsTexts();
    void takesTimeInProportion_data();
    void takesTimeInProportion();
};

void BookPageTest::readsEachField_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < rows().size(); ++index)
        QTest::newRow(rows().at(index).name) << index;
}

void BookPageTest::readsEachField()
{
    QFETCH(const int, index);
    const Row& row = rows().at(index);
    const BookDetails details = filled(u"<p>x</p>"_s + row.page.arg(u"Value"_s) + u"<p>x</p>"_s);
    QCOMPARE(details.*row.member, u"Value"_s);
    BookDetails others = details;
    others.*row.member = QString();
    QVERIFY(values(others).join(QString()).isEmpty());
    // Without the last of its markers it is not there.
    const BookDetails cut = filled(row.page.arg(u"Value"_s).chopped(6));
    QVERIFY((cut.*row.member).isNull());
}

void BookPageTest::cleansTexts_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    for (int index = 0; index < rows().size(); ++index) {
        // An address is taken as it stands.
        const QString text = index == 0 ? u" <i>Foo</i> "_s : u"Foo"_s;
        QTest::newRow(rows().at(index).name) << index << text;
    }
}

void BookPageTest::cleansTexts()
{
    QFETCH(const int, index);
    QFETCH(const QString, text);
    if (rows().at(index).member == &BookDetails::numberOfPages) {
        const QString page = u"<div class=\"min_frmt\"><span class=\"book-detail\"><b>\n"
                             "Bound, Foo pages</b> </span></div>"_s;
        QCOMPARE(filled(page).numberOfPages, text);
    } else {
        const BookDetails details = filled(rows().at(index).page.arg(u" <i>Foo</i> "_s));
        QCOMPARE(details.*rows().at(index).member, text);
    }
}

void BookPageTest::looksWithinTheOuterMarkers()
{
    QVERIFY(
        filled(u"<h1>Far</h1><div class=\"book-heading-row\"></div><h1>Far</h1>"_s).title.isNull());
    // A heading that ends behind its division is none.
    QVERIFY(filled(u"<div class=\"book-heading-row\"><h1>Far</div></h1>"_s).title.isNull());
    const QString two = u"<span>Published</span><span class=\"book-detail\">2004</span></div>"
                        "<span>Publisher</span><span class=\"book-detail\">Penguin</span></div>"_s;
    QCOMPARE(filled(two).publicationDate, u"2004"_s);
    QCOMPARE(filled(two).publisher, u"Penguin"_s);
}

void BookPageTest::searchesTheInnerMarkerFromTheStart()
{
    const QString names =
        u"<span>Author(s)</span><b class=\"x\">First</b> <a href=\"/2\">Second</a></div>"_s;
    QCOMPARE(
        filled(names).author, u"Second"_s); // the last run of what stands up to the first "</a>"
}

void BookPageTest::countsPages_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("count"); // null when there is none
    QTest::newRow("as usual") << u"Paperback, 320 pages"_s << u"320"_s;
    QTest::newRow("two parts") << u"320 pages"_s << QString();
    QTest::newRow("three parts") << u"x 320 pages"_s << u"320"_s;
    QTest::newRow("any case") << u"Paperback, 320 PaGeS"_s << u"320"_s;
    QTest::newRow("spaces around") << u" Paperback, 320 pages \n"_s << u"320"_s;
    QTest::newRow("another unit") << u"Paperback, 320 leaves"_s << QString();
    QTest::newRow("one page") << u"Paperback, 1 page"_s << QString();
    QTest::newRow("full stop") << u"Paperback, 320 pages."_s << QString();
    QTest::newRow("more behind") << u"Paperback, 320 pages, new"_s << QString();
    QTest::newRow("no number") << u"Paperback, some pages"_s << u"some"_s;
    QTest::newRow("two spaces") << u"Paperback, 320  pages"_s << u""_s;
    QTest::newRow("no space") << u"pages"_s << QString();
    QTest::newRow("other white space") << u"Paperback,\t320\tpages"_s << QString();
    QTest::newRow("nothing") << u""_s << QString();
}

void BookPageTest::countsPages()
{
    QFETCH(const QString, format);
    QFETCH(const QString, count);
    const BookDetails details = filled(
        u"<div class=\"min_frmt\"><span class=\"book-detail\">%1</span></div>"_s.arg(format));
    QCOMPARE(details.numberOfPages, count);
    QCOMPARE(details.numberOfPages.isNull(), count.isNull());
}

void BookPageTest::keepsWhatIsThere()
{
    for (const Row& kept : rows()) {
        BookDetails before;
        before.*kept.member = u"kept"_s;
        QString page;
        for (const Row& row : rows())
            page += row.page.arg(u"new"_s);
        const BookDetails details = filled(page, before);
        for (const Row& row : rows())
            QCOMPARE(details.*row.member, row.member == kept.member ? u"kept"_s : u"new"_s);
    }
}

void BookPageTest::takesWhatIsEmpty()
{
    for (const Row& row : rows()) {
        BookDetails before;
        before.*row.member = u""_s;
        QCOMPARE(filled(row.page.arg(u"new"_s), before).*row.member, u"new"_s);
    }
}

void BookPageTest::setsTheIsbnInAnyCase()
{
    BookDetails before;
    before.isbn = u"1"_s;
    QCOMPARE(filled(u"<html></html>"_s, before).isbn, isbn);
    QCOMPARE(filled(QString()).isbn, isbn);
    QVERIFY(values(filled(QString())).join(QString()).isEmpty());
}

void BookPageTest::boundsTexts()
{
    const QString longest(MostTextUnits, u'x');
    for (const Row& row : rows()) {
        QCOMPARE(filled(row.page.arg(longest)).*row.member, longest);
        const QString longer = filled(row.page.arg(longest + u'x')).*row.member;
        if (row.member == &BookDetails::largeImageURL)
            QVERIFY(longer.isNull());
        else
            QCOMPARE(longer, longest);
    }
}

void BookPageTest::takesTimeInProportion_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("piece");
    QTest::addColumn<QString>("end");
    const QString heading = u"<div class=\"book-heading-row\">"_s;
    const QString format = u"<div class=\"min_frmt\"><span class=\"book-detail\">"_s;
    QTest::newRow("headings") << QString() << u"<h1>"_s << QString();
    QTest::newRow("headings in place") << heading << u"<h1>"_s << u"</div>"_s;
    QTest::newRow("outer markers") << QString() << heading << QString();
    QTest::newRow("details") << QString() << u"<span class=\"book-detail\">"_s << QString();
    QTest::newRow("spaces for pages") << format << u"a "_s << u"pages</span></div>"_s;
    QTest::newRow("tags for pages") << format << u"<b>"_s << u"</span></div>"_s;
}

void BookPageTest::takesTimeInProportion()
{
    QFETCH(const QString, start);
    QFETCH(const QString, piece);
    QFETCH(const QString, end);
    // Once over it is well below a second; once for each piece would be hours.
    const QString page = start + piece.repeated(20'000'000 / piece.size()) + end;
    QElapsedTimer timer;
    timer.start();
    const BookDetails details = filled(page);
    QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
    for (const Row& row : rows())
        QVERIFY((details.*row.member).size() <= MostTextUnits);
}

QTEST_GUILESS_MAIN(BookPageTest)

#include "BookPageTest.moc"
