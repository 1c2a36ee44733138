#include "listwindow/engine/CsvExport.h"

#include "listwindow/engine/ListEngine.h"
#include "tests/support/Files.h"
#include "tests/support/SmallCollection.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>
#include <QTest>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

CsvOptions visibleColumns()
{
    CsvOptions options;
    options.columnSelection = CsvOptions::ColumnSelection::Visible;
    return options;
}

/// What the file says; empty when it is not UTF-16 with a byte-order mark.
QString textOf(const QString& path)
{
    const QByteArray bytes = samples::readFile(path);
    const QString text(reinterpret_cast<const QChar*>(bytes.constData()), bytes.size() / 2);
    return text.startsWith(QChar(QChar::ByteOrderMark)) ? text.sliced(1) : QString();
}

/// Books that need every rule of the format, in the order of their numbers.
void fillOddCollection(BookListDocument& document)
{
    const QString modern = samples::addGroup(document, u"art, modern"_s);
    document.setCustomFieldLabel(u"Signed \"by\""_s, 42);

    BookEntry& first = samples::addBook(document, u"a,b"_s, u"Ann"_s, modern);
    first.addToGroup(u"1"_s);
    first.setNotes(u"He said \"hi\""_s);
    first.setPricePaid(9.99);
    first.setPricePaidFrom(u" Corner shop\t"_s);
    first.setISBN(u"0123456789"_s);
    first.setPages(300);
    first.setEstValue(-0.5);
    first.setMonthPublished(3);
    first.setYearPublished(u"2001"_s);
    first.setRating(5);
    first.setOwn(true);
    first.setCustomField1(u"The author"_s);
    first.setMonthCopyright(11);

    BookEntry& leading = samples::addBook(document, u""_s, u"Ann"_s);
    leading.setISBN(u"978-0141439587"_s);
    leading.setType(3);

    BookEntry& lines = samples::addBook(document, u"Lines"_s, {}, u"2"_s);
    lines.setNotes(u"x\ny\r\nz"_s);
    lines.setYearLent(u"2001"_s);
    lines.setType(4);

    BookEntry& script = samples::addBook(document, u"吾輩は猫である \U0001F408"_s, u"夏目漱石"_s);
    script.setLocation(QString(QChar(0xD83D)) + u"shelf"_s);
    script.setPublisher(u"\n"_s);
    script.setCustomSwitch8(true);
}

} // namespace

class CsvExportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void writesTheFileByteForByte();
    void writesNoBooks();
    void writesTheGivenBooksInTheirOrder();
    void takesLabelsAndVisibilityOfTheDocument();
    void putsGroupCellsUnderTheirLabels();
    void readsGroupKeysAsNumbers();
    void previewsTheBeginning();

    void tellsHowFarItIs();
    void leavesTheOldFileWhenCancelled_data();
    void leavesTheOldFileWhenCancelled();
    void tellsWhatFailed();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CsvExportTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void CsvExportTest::writesTheFileByteForByte()
{
    BookListDocument document;
    fillOddCollection(document);
    CsvOptions options;
    options.groupSelection = CsvOptions::GroupSelection::Flags;
    options.isbnSelection = CsvOptions::ISBNSelection::Two;
    options.carriageReturnSelection = CsvOptions::CarriageReturnSelection::Escape;
    const std::vector<BookEntry*> books = document.allValues();
    QVERIFY(CsvExport(document, books, options).write(path(u"odd.csv"_s)).isOk());

    // Written by hand, as a machine of the usual byte order has it.
    QByteArray expected =
        samples::readFile(QStringLiteral(TOMELY_SOURCE_DIR "/tests/fixtures/odd.csv"));
    QVERIFY(!expected.isEmpty());
    qFromLittleEndian<quint16>(expected.constData(), expected.size() / 2, expected.data());
    QCOMPARE(textOf(path(u"odd.csv"_s)).split(u'\n'),
        QString(reinterpret_cast<const QChar*>(expected.constData()), expected.size() / 2)
            .sliced(1)
            .split(u'\n'));
    QCOMPARE(samples::readFile(path(u"odd.csv"_s)), expected);
}

void CsvExportTest::writesNoBooks()
{
    const BookListDocument document;
    QVERIFY(CsvExport(document, {}, visibleColumns()).write(path(u"o.csv"_s)).isOk());
    QCOMPARE(textOf(path(u"o.csv"_s)), u"Title,Author\n"_s);
}

void CsvExportTest::writesTheGivenBooksInTheirOrder()
{
    BookListDocument document;
    samples::addFourBooks(document);
    document.setSortField(1); // by title, the last first
    ListEngine engine(document);
    engine.filter().m_nSelectedGroupKey = 1;
    engine.loadBookKeys();
    QCOMPARE(CsvExport(document, engine.getDisplayedBooks(), visibleColumns()).preview(9),
        u"Title,Author\nKim,A. Kipling\nEmma,Jane Austen\n"_s);
    QCOMPARE(CsvExport(document, engine.getAllBooks(), visibleColumns()).preview(9),
        u"Title,Author\nVillette,Charlotte Brontë\nKim,A. Kipling\nIvanhoe,Walter Scott\n"
        "Emma,Jane Austen\n"_s);
}

void CsvExportTest::takesLabelsAndVisibilityOfTheDocument()
{
    BookListDocument document;
    samples::addFourBooks(document);
    document.setCustomFieldLabel(u"Signed by"_s, 42);
    samples::showColumns(document, {42, 34});
    // In the order of the format, whatever the order in the list.
    QCOMPARE(CsvExport(document, {}, visibleColumns()).preview(0), u"ISBN,Signed by\n"_s);
    samples::column(document, 34).setPosition(ColumnEntry::notShown);
    QCOMPARE(CsvExport(document, {}, visibleColumns()).preview(0), u"Signed by\n"_s);
}

void CsvExportTest::putsGroupCellsUnderTheirLabels()
{
    // The order of names is not the order of keys.
    BookListDocument document;
    const QString art = samples::addGroup(document, u"art"_s);
    const QString zoo = samples::addGroup(document, u"Zoo"_s);
    const QString brief = samples::addGroup(document, u"Brief"_s);
    BookEntry& book = samples::addBook(document, u"t"_s, u"a"_s, art);
    book.addToGroup(zoo);
    samples::addBook(document, u"u"_s, u"b"_s, brief);
    const std::vector<BookEntry*> books = document.allValues();

    CsvOptions options = visibleColumns();
    options.groupSelection = CsvOptions::GroupSelection::Flags;
    QCOMPARE(CsvExport(document, books, options).preview(2),
        u"Title,Author,Group: art,Group: Brief,Group: Fiction,Group: Non Fiction,Group: Zoo\n"
        "t,a,Y,N,N,N,Y\n"
        "u,b,N,Y,N,N,N\n"_s);
    options.groupSelection = CsvOptions::GroupSelection::Names;
    book.addToGroup(u"1"_s);
    QCOMPARE(CsvExport(document, books, options).preview(1),
        u"Title,Author,Groups\nt,a,art;Fiction;Zoo\n"_s);
}

// A key that is no number reads as 0, the group that every book is in.
void CsvExportTest::readsGroupKeysAsNumbers()
{
    BookListDocument document;
    document.getGroups() = {};
    for (const QString& key : {u"odd"_s, u"7th"_s}) {
        GroupEntry group;
        group.setKeyText(key);
        group.setGroupName(key);
        document.getGroups().insert(group);
    }
    samples::addBook(document, u"t"_s, u"a"_s, u"7"_s);
    samples::addBook(document, u"u"_s, u"b"_s);
    const std::vector<BookEntry*> books = document.allValues();
    CsvOptions options = visibleColumns();
    options.groupSelection = CsvOptions::GroupSelection::Flags;
    QCOMPARE(CsvExport(document, books, options).preview(2),
        u"Title,Author,Group: 7th,Group: odd\nt,a,Y,Y\nu,b,N,Y\n"_s);
}

void CsvExportTest::previewsTheBeginning()
{
    BookListDocument document;
    samples::addFourBooks(document);
    const std::vector<BookEntry*> books = document.allValues();
    const CsvExport csv(document, books, visibleColumns());
    QCOMPARE(csv.preview(0), u"Title,Author\n"_s);
    QCOMPARE(csv.preview(2), u"Title,Author\nVillette,Charlotte Brontë\nEmma,Jane Austen\n"_s);
    QVERIFY(csv.write(path(u"o.csv"_s)).isOk());
    QCOMPARE(csv.preview(100), textOf(path(u"o.csv"_s)));
}

void CsvExportTest::tellsHowFarItIs()
{
    const BookListDocument document;
    BookEntry book;
    const std::vector<BookEntry*> books(2500, &book);
    QList<double> shares;
    const auto result =
        CsvExport(document, books, {})
            .write(path(u"o.csv"_s), [&shares](qint64 done, qint64 total) {
                shares.append(static_cast<double>(done) / static_cast<double>(total));
            });
    QVERIFY(result.isOk());
    QCOMPARE(shares.first(3), QList<double>({0, 0.2, 0.4}));
    QVERIFY(std::ranges::is_sorted(shares));
    QCOMPARE(shares.last(), 1.0);
}

void CsvExportTest::leavesTheOldFileWhenCancelled_data()
{
    QTest::addColumn<double>("share");
    QTest::newRow("at once") << 0.0;
    QTest::newRow("among the books") << 0.3;
    QTest::newRow("while it is written") << 0.6;
}

void CsvExportTest::leavesTheOldFileWhenCancelled()
{
    QFETCH(const double, share);
    QVERIFY(samples::writeFile(path(u"o.csv"_s), "old"));
    const BookListDocument document;
    BookEntry book;
    const std::vector<BookEntry*> books(2500, &book);
    const CsvExport csv(document, books, {});
    const Progress cancelling = [share](qint64 done, qint64 total) {
        if (static_cast<double>(done) >= share * static_cast<double>(total))
            throw OperationCancelled();
    };
    QVERIFY_THROWS_EXCEPTION(OperationCancelled, (void)csv.write(path(u"o.csv"_s), cancelling));
    QCOMPARE(samples::readFile(path(u"o.csv"_s)), "old"_ba);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), {u"o.csv"_s});
}

void CsvExportTest::tellsWhatFailed()
{
    const BookListDocument document;
    const FileResult result = CsvExport(document, {}, {}).write(path(u"no/o.csv"_s));
    QVERIFY(!result.isOk());
    QVERIFY2(result.error.contains(u"No such file or directory"), qPrintable(result.error));
}

} // namespace tomely

QTEST_GUILESS_MAIN(tomely::CsvExportTest)

#include "CsvExportTest.moc"
