// The sample library: the table can be read, its ISBNs are valid, and the collection that is kept
// beside it holds the same books.

#include "document/BookListDocument.h"
#include "samples/ClassicsTable.h"
#include "samples/CoverArtist.h"

#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

const QString tablePath = u"" TOMELY_SOURCE_DIR "/samples/classics.tsv"_s;
const QString collectionPath = u"" TOMELY_SOURCE_DIR "/samples/Classics.books"_s;

bool isValidIsbn13(const QString& isbn)
{
    int sum = 0;
    for (int place = 0; place < 13; ++place) {
        if (!isbn.at(place).isDigit())
            return false;
        sum += isbn.at(place).digitValue() * (place % 2 == 0 ? 1 : 3);
    }
    return sum % 10 == 0;
}

bool isValidIsbn10(const QString& isbn)
{
    int sum = 0;
    for (int place = 0; place < 10; ++place) {
        const bool isTen = place == 9 && isbn.at(place) == u'X';
        if (!isTen && !isbn.at(place).isDigit())
            return false;
        sum += (10 - place) * (isTen ? 10 : isbn.at(place).digitValue());
    }
    return sum % 11 == 0;
}

bool isValidIsbn(const QString& isbn)
{
    return (isbn.size() == 13 && isValidIsbn13(isbn)) || (isbn.size() == 10 && isValidIsbn10(isbn));
}

} // namespace

class SampleLibraryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void initTestCase()
    {
        m_table = ClassicsTable::read(tablePath);
        QCOMPARE(m_table.error, QString());
        QVERIFY(!m_collection.readFromFile(collectionPath));
    }

    void isLargeEnoughToShowTheProgram()
    {
        QVERIFY(m_collection.getBookListSize() >= 250);
        QVERIFY(m_collection.getGroups().size() >= 5);
        int covers = 0;
        int outsideLatin = 0;
        for (const auto& [key, book] : m_collection.books()) {
            covers += book->hasImages() ? 1 : 0;
            const QString title = book->getTitle();
            outsideLatin += title.front().script() > QChar::Script_Latin ? 1 : 0;
        }
        QVERIFY(covers >= 80);
        QVERIFY(outsideLatin >= 10);
    }

    void everyIsbnIsValid()
    {
        for (const ClassicsRow& row : m_table.rows)
            QVERIFY2(row.isbn.isEmpty() || isValidIsbn(row.isbn), qPrintable(row.title));
    }

    void collectionHoldsTheTable()
    {
        QCOMPARE(m_collection.getBookListSize(), static_cast<qsizetype>(m_table.rows.size()));
        auto book = m_collection.books().begin();
        for (const ClassicsRow& row : m_table.rows) {
            QCOMPARE(book->second->getTitle(), row.title);
            QCOMPARE(book->second->getAuthor(), row.author);
            QCOMPARE(book->second->getISBN(), row.isbn);
            QCOMPARE(book->second->getPages(), row.pages);
            QCOMPARE(book->second->getNotes(), row.notes);
            QCOMPARE(book->second->getSelectedGroups().size(), row.groups.size());
            QCOMPARE(book->second->hasImages(), !row.coverDesign.isEmpty());
            ++book;
        }
    }

    void coversAreJpegPicturesOfOneSize()
    {
        for (const auto& [key, book] : m_collection.books()) {
            if (!book->hasImages())
                continue;
            QVERIFY(book->getImageData(1).startsWith("\xFF\xD8"));
            QCOMPARE(book->getFirstImage().size(), QSize(436, 626));
        }
    }

    void everyDesignDraws()
    {
        for (const QString& design : CoverArtist::designs()) {
            const QImage cover = CoverArtist::draw(design, u"Emma"_s, u"Jane Austen"_s, {109, 156});
            QCOMPARE(cover.size(), QSize(109, 156));
        }
        QVERIFY(CoverArtist::draw(u"no such design"_s, {}, {}, {109, 156}).isNull());
    }

private:
    ClassicsTable m_table;
    BookListDocument m_collection;
};

} // namespace tomely

QTEST_MAIN(tomely::SampleLibraryTest)

#include "SampleLibraryTest.moc"
