// The commands export-xml and import-xml.

#include "tests/cli/Program.h"
#include "tests/cli/SampleCollection.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArray utf16(const QString& text)
{
    return {reinterpret_cast<const char*>(text.utf16()), text.size() * 2};
}

QString textOf(const QByteArray& bytes)
{
    return QString::fromUtf16(
        reinterpret_cast<const char16_t*>(bytes.constData()), bytes.size() / 2);
}

/// The titles in an exported file, in order.
QStringList titles(const QString& path)
{
    QStringList found;
    for (const QString& line : textOf(fileBytes(path)).split(u'\n')) {
        if (line.startsWith("\t\t<Title>"_L1))
            found.append(line.sliced(9).chopped(8));
    }
    return found;
}

} // namespace

class XmlCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void exportsAllBooks();
    void exportsTheDisplayedBooks_data();
    void exportsTheDisplayedBooks();
    void exportsOverTheCollection();
    void refusesAViewBeforeItWorks();
    void leavesOutAloneWhenExportingFails();

    void importsBooks();
    void importsWhatItExported();
    void savesWithoutBooks();
    void refusesToImport_data();
    void refusesToImport();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    void succeeds(const QStringList& arguments)
    {
        const ProgramResult result = runProgram(arguments);
        QCOMPARE(result.errors, QByteArray());
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(result.status, 0);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    QString m_xml;
};

void XmlCommandsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = path(u"s.books"_s);
    m_xml = path(u"s.xml"_s);
    QVERIFY(saveSample(m_file));
}

void XmlCommandsTest::exportsAllBooks()
{
    const auto document = sample();
    document->setSortField(1); // by title, from the end
    QVERIFY(save(*document, m_file));
    QVERIFY(writeBytes(m_xml, "old"_ba));
    succeeds({u"export-xml"_s, m_file, m_xml});
    QCOMPARE(titles(m_xml),
        (QStringList{u"吾輩は猫である"_s, u"Walden"_s, u"Tabs, \"quotes\" and \\"_s,
            u"Persuasion"_s, u"Emma"_s}));
    QVERIFY(fileBytes(m_xml).startsWith(
        utf16(QChar(0xFEFF) + u"<BookCollection>\n<Books>\n\t<Book>\n"_s)));
    QVERIFY(fileBytes(m_xml).endsWith(utf16(u"\t</Book>\n</Books>\n</BookCollection>"_s)));
}

void XmlCommandsTest::exportsTheDisplayedBooks_data()
{
    QTest::addColumn<QStringList>("view");
    QTest::addColumn<QStringList>("books");
    const QStringList austen{u"Emma"_s, u"Persuasion"_s};
    QTest::newRow("text") << QStringList{u"--text"_s, u"austen"_s} << austen;
    QTest::newRow("group") << QStringList{u"--group"_s, u"2"_s}
                           << QStringList{u"Persuasion"_s, u"Walden"_s};
    QTest::newRow("order") << QStringList{u"--text=austen"_s, u"--sort"_s, u"1"_s}
                           << QStringList{u"Persuasion"_s, u"Emma"_s};
    QTest::newRow("no such group") << QStringList{u"--group=7"_s} << QStringList();
}

void XmlCommandsTest::exportsTheDisplayedBooks()
{
    QFETCH(const QStringList, view);
    QFETCH(const QStringList, books);
    const QByteArray before = fileBytes(m_file);
    succeeds(QStringList{u"export-xml"_s, m_file, m_xml} + view);
    QCOMPARE(titles(m_xml), books);
    QCOMPARE(fileBytes(m_file), before);
}

void XmlCommandsTest::exportsOverTheCollection()
{
    succeeds({u"export-xml"_s, m_file, m_xml});
    succeeds({u"export-xml"_s, m_file, m_file});
    QCOMPARE(fileBytes(m_file), fileBytes(m_xml));
}

void XmlCommandsTest::refusesAViewBeforeItWorks()
{
    const ProgramResult result =
        runProgram({u"export-xml"_s, m_file, m_xml, u"--month"_s, u"13"_s});
    QCOMPARE(result.status, 2);
    QVERIFY(result.errors.contains("usage: tomely-cli export-xml FILE OUT [VIEW]\n"));
    QVERIFY(!QFile::exists(m_xml));
    QCOMPARE(runProgram({u"export-xml"_s, m_file}).status, 2);
}

void XmlCommandsTest::leavesOutAloneWhenExportingFails()
{
    QVERIFY(writeBytes(m_xml, "mine"_ba));
    const QString damaged = path(u"damaged.books"_s);
    QVERIFY(writeBytes(damaged, "no collection"_ba));
    const ProgramResult unread = runProgram({u"export-xml"_s, damaged, m_xml});
    QCOMPARE(unread.errors, "tomely-cli: " + damaged.toUtf8() + ": not a collection file\n");
    QCOMPARE(unread.status, 1);
    QCOMPARE(fileBytes(m_xml), "mine"_ba);
    const QString nowhere = path(u"no/s.xml"_s);
    const ProgramResult unwritten = runProgram({u"export-xml"_s, m_file, nowhere});
    QVERIFY(unwritten.errors.startsWith("tomely-cli: " + nowhere.toUtf8() + ": "));
    QCOMPARE(unwritten.errors.count('\n'), 1);
    QCOMPARE(unwritten.status, 1);
}

void XmlCommandsTest::importsBooks()
{
    QVERIFY(writeBytes(m_xml,
        "<r><Books><Book><Title>Kim</Title></Book><Book><Title>Dune</Title></Book></Books></r>"));
    succeeds({u"import-xml"_s, m_file, m_xml});
    BookListDocument document;
    QVERIFY(!document.readFromFile(m_file));
    QCOMPARE(document.getBookListSize(), qsizetype(7));
    QCOMPARE(document.getBookEntry(u"6")->getTitle(), u"Kim"_s);
    QCOMPARE(document.getBookEntry(u"7")->getTitle(), u"Dune"_s);
    QVERIFY(document.getBookEntry(u"1")->hasImages());
}

void XmlCommandsTest::importsWhatItExported()
{
    succeeds({u"export-xml"_s, m_file, m_xml});
    const QString copy = path(u"copy.books"_s);
    succeeds({u"new"_s, copy});
    succeeds({u"import-xml"_s, copy, m_xml});
    const QString again = path(u"again.xml"_s);
    succeeds({u"export-xml"_s, copy, again});
    // A carriage return is a line end to every reader of XML.
    QCOMPARE(textOf(fileBytes(again)), textOf(fileBytes(m_xml)).replace(u'\r', u'\n'));
}

void XmlCommandsTest::savesWithoutBooks()
{
    const QByteArray before = fileBytes(m_file);
    QVERIFY(setFileVersion(m_file, 3));
    QVERIFY(writeBytes(m_xml, "<r/>"_ba));
    succeeds({u"import-xml"_s, m_file, m_xml});
    QCOMPARE(fileBytes(m_file), before);
}

void XmlCommandsTest::refusesToImport_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("not XML") << "<r>\n</s>"_ba
                             << "not an XML file that can be read: line 2: mismatched tag"_ba;
    QTest::newRow("missing") << QByteArray() << "No such file or directory"_ba;
}

void XmlCommandsTest::refusesToImport()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QByteArray, reason);
    QVERIFY(bytes.isNull() || writeBytes(m_xml, bytes));
    QVERIFY(setFileVersion(m_file, 3)); // saving would make it 4
    const QByteArray before = fileBytes(m_file);
    const ProgramResult result = runProgram({u"import-xml"_s, m_file, m_xml});
    QCOMPARE(result.errors, "tomely-cli: " + m_xml.toUtf8() + ": " + reason + '\n');
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.status, 1);
    QCOMPARE(fileBytes(m_file), before);
    const ProgramResult nameless = runProgram({u"import-xml"_s, m_file, QString()});
    QCOMPARE(nameless.errors, "tomely-cli: : No such file or directory\n"_ba);
}

QTEST_GUILESS_MAIN(XmlCommandsTest)

#include "XmlCommandsTest.moc"
