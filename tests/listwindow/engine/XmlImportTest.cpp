// Importing an XML file into a collection: all its books or none, and what the window is told.

#include "listwindow/engine/XmlImport.h"
#include "document/CollectionFile.h"
#include "listwindow/engine/ListEngine.h"
#include "listwindow/engine/XmlExport.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/Files.h"
#include "tests/support/SmallCollection.h"

#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QByteArray twoBooks = "<r><Books><Book><Title>Emma</Title><Own>1</Own></Book>"
                            "<Book><Title>Kim</Title></Book></Books></r>";

/// What an XML file carries of a field.
QVariant carried(const BookEntry& book, const BookField& field)
{
    switch (field.kind) {
    case FieldKind::Text:
    case FieldKind::Year:
        return field.text(book);
    case FieldKind::Real:
        return QString::number(field.real(book), 'f', 4);
    case FieldKind::Flag:
        return field.flag(book);
    default:
        return field.integer(book);
    }
}

} // namespace

class XmlImportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void addsEveryBook();
    void addsTheSameFileTwice();
    void importsNothing_data();
    void importsNothing();
    void tellsTheWindow_data();
    void tellsTheWindow();
    void importsNothingWhenLeft();
    void addsAllOrNoneToAFullCollection();
    void carriesTheClassics();

private:
    std::optional<QString> import(const QByteArray& bytes, const Progress& progress = {})
    {
        samples::writeFile(m_path, bytes);
        return importXml(*m_document, m_path, progress);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    FakeBookListWindow* m_window = nullptr;
    std::unique_ptr<BookListDocument> m_document;
};

void XmlImportTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(u"in.xml"_s);
    m_document = std::make_unique<BookListDocument>(FakeBookListWindow::services(m_window));
    m_document->makeWindowControllers();
    samples::addFourBooks(*m_document);
}

void XmlImportTest::addsEveryBook()
{
    QVERIFY(!import(twoBooks));
    QCOMPARE(m_document->allKeys(), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}));
    const BookEntry& emma = *m_document->getBookEntry(u"5");
    QCOMPARE(emma.getTitle(), u"Emma"_s);
    QCOMPARE(emma.getKey(), u"5"_s);
    QVERIFY(emma.own());
    QVERIFY(!emma.inAnyGroup());
    QCOMPARE(emma.getType(), 4);
    QCOMPARE(m_document->getBookEntry(u"6")->getTitle(), u"Kim"_s);
}

void XmlImportTest::addsTheSameFileTwice()
{
    QVERIFY(!import(twoBooks));
    QVERIFY(!import(twoBooks));
    QCOMPARE(m_document->getBookListSize(), qsizetype(8));
    QCOMPARE(m_document->getBookEntry(u"8")->getTitle(), u"Kim"_s);
}

void XmlImportTest::importsNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isFailure");
    QTest::newRow("not XML") << "Emma"_ba << true;
    QTest::newRow("damage behind the books") << twoBooks.chopped(1) << true;
    QTest::newRow("document type") << "<!DOCTYPE r>" + twoBooks << true;
    QTest::newRow("year with markup")
        << QByteArray(twoBooks).replace("</r>", "<Year>1 & 2</Year></r>") << true;
    QTest::newRow("no list") << "<r/>"_ba << false;
    QTest::newRow("no books") << "<r><Books/></r>"_ba << false;
    QTest::newRow("two lists") << QByteArray(twoBooks).replace("</r>", "<Books/></r>") << false;
}

void XmlImportTest::importsNothing()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, isFailure);
    const auto reason = import(bytes);
    QCOMPARE(reason.has_value(), isFailure);
    QVERIFY(!reason || reason->startsWith("not an XML file that can be read: "_L1));
    QCOMPARE(m_document->getBookListSize(), qsizetype(4));
    QCOMPARE(m_document->lastBookNumber(), 4);
}

void XmlImportTest::tellsTheWindow_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("books") << twoBooks;
    QTest::newRow("no books") << "<r/>"_ba;
    QTest::newRow("not XML") << "Emma"_ba;
    QTest::newRow("no file") << QByteArray();
}

void XmlImportTest::tellsTheWindow()
{
    QFETCH(const QByteArray, bytes);
    m_window->calls.clear();
    QVERIFY(!m_document->isDocumentEdited());
    if (bytes.isNull())
        QCOMPARE(importXml(*m_document, m_path), u"No such file or directory"_s);
    else
        import(bytes);
    QCOMPARE(m_window->calls, (QStringList{u"setBooksChanged"_s, u"refresh"_s}));
    QVERIFY(m_document->isDocumentEdited());
}

void XmlImportTest::importsNothingWhenLeft()
{
    for (const bool isLate : {false, true}) {
        const Progress leave = [isLate](qint64 done, qint64 total) {
            QVERIFY(done <= total);
            if (!isLate || done == total)
                throw OperationCancelled();
        };
        QVERIFY_THROWS_EXCEPTION(OperationCancelled, (void)import(twoBooks, leave));
        QCOMPARE(m_document->getBookListSize(), qsizetype(4));
        QCOMPARE(m_document->lastBookNumber(), 4);
        QVERIFY(!m_document->isDocumentEdited());
        QVERIFY(m_window->calls.isEmpty());
    }
}

void XmlImportTest::addsAllOrNoneToAFullCollection()
{
    CollectionContents contents = CollectionContents::makeNew();
    contents.lastBookIdn = std::numeric_limits<qint32>::max() - 1;
    const QString path = m_folder->filePath(u"full.books"_s);
    QVERIFY(samples::writeFile(path, writeCollection(contents)));
    QVERIFY(!m_document->readFromFile(path));
    QCOMPARE(import(twoBooks), u"The collection takes no more books"_s);
    QCOMPARE(m_document->getBookListSize(), qsizetype(0));
    QCOMPARE(m_document->lastBookNumber(), contents.lastBookIdn);
    QVERIFY(!import("<r><Books><Book/></Books></r>"));
    QCOMPARE(m_document->getBookListSize(), qsizetype(1));
}

void XmlImportTest::carriesTheClassics()
{
    BookListDocument classics;
    QVERIFY(!classics.readFromFile(QStringLiteral(TOMELY_SOURCE_DIR "/samples/Classics.books")));
    ListEngine engine(classics);
    engine.loadBookKeys();
    const std::vector<BookEntry*>& books = engine.getAllBooks();
    QVERIFY(books.size() > 10);
    QVERIFY(exportXml(m_path, books).isOk());

    BookListDocument copy;
    QVERIFY(!importXml(copy, m_path));
    QCOMPARE(copy.getBookListSize(), std::ssize(books));
    for (std::size_t index = 0; index < books.size(); ++index) {
        const BookEntry* const book = copy.getBookEntry(keyText(qint32(index) + 1));
        for (const BookField& field : bookFields())
            QCOMPARE(carried(*book, field), carried(*books[index], field));
        QVERIFY(!book->hasImages());
        QVERIFY(!book->inAnyGroup());
    }
}

QTEST_GUILESS_MAIN(XmlImportTest)

#include "XmlImportTest.moc"
