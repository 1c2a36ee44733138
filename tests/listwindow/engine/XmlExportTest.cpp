// Exporting books to an XML file: its bytes, and what becomes of a file that was there.

#include "listwindow/engine/XmlExport.h"
#include "tests/support/BookSamples.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

BookEntry everyField()
{
    BookEntry book;
    book.setTitle(u"R&D <2> \"quoted\" 'n &amp; all"_s);
    book.setAuthor(u"夏目漱石 📚"_s);
    book.setNotes(u"one\n  two\ttabbed"_s);
    book.setPricePaid(12.5);
    book.setPricePaidFrom(u"Bücher & Co."_s);
    book.setISBN(u"978-0-14-143958-7"_s);
    book.setPages(474);
    book.setEstValue(-0.00001);
    book.setLocation(u"Shelf <3"_s);
    book.setLentTo(u"Ann"_s);
    book.setMonthPublished(3);
    book.setYearEstValue(u"about 1999?"_s);
    book.setMonthLent(12);
    book.setYearLent(u"2001"_s);
    book.setMonthPurchased(-1);
    book.setYearPurchased(u"1"_s);
    book.setMonthFirstRead(1);
    book.setYearFirstRead(u"2002"_s);
    book.setMonthLastRead(2);
    book.setYearLastRead(u"2003"_s);
    book.setMonthCopyright(99);
    book.setYearCopyright(u" "_s);
    book.setType(2);
    book.setRating(5);
    book.setPublisher(u"P"_s);
    int custom = 0;
    for (const BookField& field : bookFields()) {
        if (field.kind == FieldKind::Flag)
            field.setFlag(book, true);
        else if (field.name.starts_with("customField"))
            field.setText(book, QString::number(++custom));
    }
    book.setCustomMonth1(4);
    book.setCustomYear1(u"2004"_s);
    book.setCustomMonth2(5);
    book.setCustomYear2(u"2005"_s);
    book.setCustomMonth3(6);
    book.setCustomYear3(u"2006"_s);
    return book;
}

BookEntry oddValues()
{
    BookEntry book;
    book.setType(4);
    book.setPricePaid(std::nan(""));
    book.setEstValue(-HUGE_VAL);
    book.setPages(std::numeric_limits<qint32>::min());
    book.setYearPublished(u"1901 & 1902 <s>"_s);
    book.setRead(true);
    book.setRating(-3);
    book.setCustomSwitch8(true);
    book.addToGroup(u"1"_s);
    book.setImageData(1, samples::pictureBytes('1'));
    return book;
}

} // namespace

class XmlExportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void writesTheBytesOfOldFiles();
    void writesBooksInTheirOrder();
    void writesNoBooks();
    void replacesAFile();
    void keepsTheOldFileWhenLeft_data();
    void keepsTheOldFileWhenLeft();
    void tellsWhyItFailed();

private:
    QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void XmlExportTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(u"out.xml"_s);
}

void XmlExportTest::writesTheBytesOfOldFiles()
{
    const auto title = samples::makeBook(u"Only a title"_s);
    BookEntry full = everyField();
    BookEntry odd = oddValues();
    const std::vector<BookEntry*> books{title.get(), &full, &odd};
    QVERIFY(exportXml(m_path, books).isOk());
    const QByteArray expected =
        samples::readFile(QStringLiteral(TOMELY_SOURCE_DIR "/tests/fixtures/xml/quirks.xml"));
    QVERIFY(expected.startsWith("\xFF\xFE<"_ba));
    const QByteArray written = samples::readFile(m_path);
    const auto text = [](const QByteArray& bytes) {
        return QString::fromUtf16(
            reinterpret_cast<const char16_t*>(bytes.constData()), bytes.size() / 2);
    };
    QCOMPARE(text(written).split(u'\n'), text(expected).split(u'\n'));
    QCOMPARE(written, expected);
}

void XmlExportTest::writesBooksInTheirOrder()
{
    const auto emma = samples::makeBook(u"Emma"_s);
    const auto kim = samples::makeBook(u"Kim"_s);
    const std::vector<BookEntry*> books{kim.get(), emma.get(), kim.get()};
    QVERIFY(exportXml(m_path, books).isOk());
    const QString expected = QChar(0xFEFF) + u"<BookCollection>\n<Books>\n"_s + kim->xmlEncode()
        + emma->xmlEncode() + kim->xmlEncode() + u"</Books>\n</BookCollection>"_s;
    const QByteArray bytes(reinterpret_cast<const char*>(expected.utf16()), expected.size() * 2);
    QCOMPARE(samples::readFile(m_path), bytes);
}

void XmlExportTest::writesNoBooks()
{
    QVERIFY(exportXml(m_path, {}).isOk());
    QVERIFY(samples::readFile(m_path).startsWith("\xFF\xFE<"_ba));
}

void XmlExportTest::replacesAFile()
{
    QVERIFY(samples::writeFile(m_path, QByteArray(100'000, 'x')));
    QVERIFY(exportXml(m_path, {}).isOk());
    QVERIFY(samples::readFile(m_path).size() < 1000);
    QCOMPARE(files(), QStringList{u"out.xml"_s});
}

void XmlExportTest::keepsTheOldFileWhenLeft_data()
{
    QTest::addColumn<bool>("isLate");
    QTest::newRow("while the text is made") << false;
    QTest::newRow("while it is written") << true;
}

void XmlExportTest::keepsTheOldFileWhenLeft()
{
    QFETCH(const bool, isLate);
    QVERIFY(samples::writeFile(m_path, "mine"));
    const auto emma = samples::makeBook(u"Emma"_s);
    const std::vector<BookEntry*> books(5000, emma.get());
    const Progress leave = [isLate](qint64 done, qint64 total) {
        if (!isLate || done > total / 2)
            throw OperationCancelled();
    };
    QVERIFY_THROWS_EXCEPTION(OperationCancelled, (void)exportXml(m_path, books, leave));
    QCOMPARE(samples::readFile(m_path), "mine"_ba);
    QCOMPARE(files(), QStringList{u"out.xml"_s});
}

void XmlExportTest::tellsWhyItFailed()
{
    const FileResult result = exportXml(m_folder->filePath(u"no/out.xml"_s), {});
    QVERIFY(!result.isOk());
    QVERIFY(!result.error.isEmpty());
    QCOMPARE(files(), QStringList());
}

QTEST_GUILESS_MAIN(XmlExportTest)

#include "XmlExportTest.moc"
