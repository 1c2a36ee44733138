// The command export-csv: its options, its file and its failures.

#include "tests/cli/Program.h"
#include "tests/cli/SampleCollection.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class CsvCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void writesAllBooks();
    void writesUtf16();
    void keepsTheFilesOrder();
    void appliesTheView_data();
    void appliesTheView();
    void appliesTheChoices_data();
    void appliesTheChoices();

    void replacesTheFile();
    void replacesTheCollection();
    void refuses_data();
    void refuses();
    void tellsFailures();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    /// The lines of the exported sample, without the last one's end.
    QStringList exported(const QStringList& options);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CsvCommandTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(saveSample(path(u"s.books"_s)));
}

QStringList CsvCommandTest::exported(const QStringList& options)
{
    const QString out = path(u"o.csv"_s);
    const ProgramResult result =
        runProgram(QStringList{u"export-csv"_s, path(u"s.books"_s), out} + options);
    if (result.status != 0 || !result.output.isEmpty() || !result.errors.isEmpty())
        return {QString::fromUtf8(result.output + result.errors)};
    const QByteArray bytes = fileBytes(out);
    const QString text(reinterpret_cast<const QChar*>(bytes.constData()), bytes.size() / 2);
    return text.chopped(1).split(u'\n');
}

void CsvCommandTest::writesAllBooks()
{
    const QStringList lines = exported({});
    QCOMPARE(lines.size(), 7); // one book has a line break in its notes
    QVERIFY2(
        lines[0].startsWith(u"\uFEFFTitle,Author,Notes,Price Paid,Price Paid From,ISBN,Pages,"),
        qPrintable(lines[0]));
    QVERIFY2(lines[0].endsWith(u",Custom Switch 7,Custom Switch 8"), qPrintable(lines[0]));
    QCOMPARE(lines[1],
        u"Emma,Jane Austen,,12.5000,,,474,,,,12,1815,,,,,,,,,,,,,1,0,0,0,Hardcover,5,,,,,,,,,,,,,,,"
        "0,0,0,0,0,0,0,0"_s);
    QCOMPARE(lines[2].section(u',', 0, 1), u"Persuasion,Jane Austen"_s);
    QVERIFY(lines[3].startsWith(u"\"Tabs, \"\"quotes\"\" and \\\",,\"one\ttwo"));
    QVERIFY(lines[4].startsWith(u"three\rfour\\five\","));
    QCOMPARE(lines[5].section(u',', 0, 0), u"Walden"_s);
    QCOMPARE(lines[6].section(u',', 0, 1), u"吾輩は猫である,夏目漱石"_s);
}

void CsvCommandTest::writesUtf16()
{
    exported({u"--columns=visible"_s, u"--text=emma"_s});
    const auto text = u"\uFEFFTitle,Author\nEmma,Jane Austen\n"_s;
    QCOMPARE(fileBytes(path(u"o.csv"_s)),
        QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
}

void CsvCommandTest::keepsTheFilesOrder()
{
    const auto document = sample();
    document->setSortField(1); // by title, the last first
    QVERIFY(save(*document, path(u"s.books"_s)));
    const QStringList lines = exported({u"--columns=visible"_s});
    QCOMPARE(lines[1], u"吾輩は猫である,夏目漱石"_s);
    QCOMPARE(lines[5], u"Emma,Jane Austen"_s);
}

void CsvCommandTest::appliesTheView_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("titles");
    QTest::newRow("group") << QStringList{u"--group=1"_s}
                           << QStringList{u"Emma"_s, u"Persuasion"_s};
    QTest::newRow("text") << QStringList{u"--text"_s, u"WALD"_s} << QStringList{u"Walden"_s};
    QTest::newRow("order") << QStringList{u"--group=1"_s, u"--sort=1"_s}
                           << QStringList{u"Persuasion"_s, u"Emma"_s};
    QTest::newRow("nothing") << QStringList{u"--group=9"_s} << QStringList();
}

void CsvCommandTest::appliesTheView()
{
    QFETCH(const QStringList, options);
    QFETCH(const QStringList, titles);
    QStringList found;
    for (const QString& line : exported(options + QStringList{u"--columns=visible"_s}))
        found.append(line.section(u',', 0, 0));
    QCOMPARE(found, QStringList{u"\uFEFFTitle"_s} + titles);
}

void CsvCommandTest::appliesTheChoices_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char* name, const QStringList& options, const QString& header,
                         const QString& book) {
        QTest::newRow(name) << options << QStringList{u'\uFEFF' + header, book};
    };
    const auto visible = u"--columns=visible"_s;
    row("visible", {visible}, u"Title,Author,Notes,ISBN,Published (Month),Published (Year),Own"_s,
        u"Emma,,\"a\nb\",0123456789,12,1815,1"_s);
    row("spelt out",
        {visible, u"--dates=split"_s, u"--groups=none"_s, u"--switches=10"_s, u"--isbn=one"_s,
            u"--line-breaks=keep"_s},
        u"Title,Author,Notes,ISBN,Published (Month),Published (Year),Own"_s,
        u"Emma,,\"a\nb\",0123456789,12,1815,1"_s);
    row("first of all",
        {visible, u"--dates=year"_s, u"--groups=flags"_s, u"--switches=truefalse"_s,
            u"--isbn=two"_s, u"--line-breaks=space"_s},
        u"Title,Author,Notes,ISBN10,ISBN13,Published,Own,Group: Fiction,Group: Non Fiction"_s,
        u"Emma,,\"a b\",0123456789,,1815,TRUE,Y,Y"_s);
    row("second of all",
        {visible, u"--dates=month"_s, u"--groups=names"_s, u"--switches=yn"_s, u"--isbn=none"_s,
            u"--line-breaks=escape"_s},
        u"Title,Author,Notes,Published,Own,Groups"_s,
        u"Emma,,\"a\\nb\",1815-12,Y,Fiction;Non Fiction"_s);
    row("day and delimiter",
        {visible, u"--dates=day"_s, u"--groups=names"_s, u"--group-delimiter"_s, u" & "_s,
            u"--isbn=none"_s, u"--line-breaks=space"_s},
        u"Title,Author,Notes,Published,Own,Groups"_s,
        u"Emma,,\"a b\",1815-12-01,1,Fiction & Non Fiction"_s);
    row("empty delimiter",
        {visible, u"--dates=year"_s, u"--groups=names"_s, u"--group-delimiter="_s, u"--isbn=none"_s,
            u"--line-breaks=space"_s},
        u"Title,Author,Notes,Published,Own,Groups"_s, u"Emma,,\"a b\",1815,1,FictionNon Fiction"_s);
}

void CsvCommandTest::appliesTheChoices()
{
    BookListDocument document;
    auto book = std::make_unique<BookEntry>();
    book->setTitle(u"Emma"_s);
    book->setNotes(u"a\nb"_s);
    book->setISBN(u"0123456789"_s);
    book->setMonthPublished(12);
    book->setYearPublished(u"1815"_s);
    book->setOwn(true);
    book->addToGroup(u"1"_s);
    book->addToGroup(u"2"_s);
    document.addBook(std::move(book));
    qint32 position = 2;
    for (const QString& key : {u"40"_s, u"34"_s, u"10"_s, u"18"_s})
        document.getListColumns().find(key)->second.setPosition(position++);
    QVERIFY(save(document, path(u"s.books"_s)));

    QFETCH(const QStringList, options);
    QFETCH(const QStringList, lines);
    QCOMPARE(exported(options).join(u'\n'), lines.join(u'\n'));
}

void CsvCommandTest::replacesTheFile()
{
    QVERIFY(writeBytes(path(u"o.csv"_s), QByteArray(100'000, 'x')));
    QCOMPARE(exported({u"--columns=visible"_s, u"--group=9"_s}), {u"\uFEFFTitle,Author"_s});
}

void CsvCommandTest::replacesTheCollection()
{
    exported({});
    const QString file = path(u"s.books"_s);
    QCOMPARE(runProgram({u"export-csv"_s, file, file}).status, 0);
    QCOMPARE(fileBytes(file), fileBytes(path(u"o.csv"_s)));
}

void CsvCommandTest::refuses_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("reason");
    for (const QString& option : {u"--columns"_s, u"--dates"_s, u"--groups"_s, u"--switches"_s,
             u"--isbn"_s, u"--line-breaks"_s}) {
        QTest::newRow(qPrintable(option))
            << QStringList{option, u"maybe"_s} << option + u" cannot be \"maybe\""_s;
    }
    QTest::newRow("view") << QStringList{u"--month=13"_s} << u"--month cannot be \"13\""_s;
    QTest::newRow("unknown") << QStringList{u"--format=tsv"_s} << u"unknown option --format"_s;
}

void CsvCommandTest::refuses()
{
    QFETCH(const QStringList, options);
    QFETCH(const QString, reason);
    QVERIFY(writeBytes(path(u"o.csv"_s), "old"_ba));
    const ProgramResult result =
        runProgram(QStringList{u"export-csv"_s, path(u"s.books"_s), path(u"o.csv"_s)} + options);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(QString::fromUtf8(result.errors),
        u"tomely-cli: "_s + reason + u"\nusage: tomely-cli export-csv FILE OUT [VIEW] [CSV]\n"_s);
    QCOMPARE(fileBytes(path(u"o.csv"_s)), "old"_ba);
}

void CsvCommandTest::tellsFailures()
{
    const ProgramResult unread =
        runProgram({u"export-csv"_s, path(u"none.books"_s), path(u"o.csv"_s)});
    QCOMPARE(unread.status, 1);
    QVERIFY(unread.errors.startsWith("tomely-cli: " + path(u"none.books"_s).toUtf8() + ": "));
    QVERIFY(fileBytes(path(u"o.csv"_s)).isNull());

    const ProgramResult unwritten =
        runProgram({u"export-csv"_s, path(u"s.books"_s), path(u"no/o.csv"_s)});
    QCOMPARE(unwritten.status, 1);
    QCOMPARE(unwritten.output, QByteArray());
    QCOMPARE(unwritten.errors.count('\n'), 1);
    QVERIFY(unwritten.errors.startsWith("tomely-cli: " + path(u"no/o.csv"_s).toUtf8() + ": "));
    QVERIFY(unwritten.errors.contains("No such file or directory"));
}

QTEST_GUILESS_MAIN(CsvCommandTest)

#include "CsvCommandTest.moc"
