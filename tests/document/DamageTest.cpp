// Whatever bytes a file holds, opening it ends in a document or in one failure, soon and in little
// memory, and a failure leaves the document as it was.

#include "document/CollectionFile.h"
#include "platform/Archiver.h"
#include "tests/support/BookSamples.h"
#include "tests/support/BytesDocument.h"
#include "tests/support/ContentsText.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

#include <fstream>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// A collection with a picture, labels, groups, and texts that stand in several places.
QByteArray smallCollection()
{
    CollectionContents contents = CollectionContents::makeNew();
    contents.labels = {{42, u"Condition"_s}, {62, u"Signed by"_s}};
    contents.columns.clear();
    ColumnEntry column;
    column.setKey(40);
    column.setColumnName(u"Notes"_s);
    column.setSelectionName(u"Notes"_s);
    contents.columns[u"40"_s] = column;
    auto book = samples::makeBook(u"The same text"_s, u"The same text"_s);
    book->setKey(1);
    book->setPublisher(u"Éditions"_s);
    book->setPricePaid(1.5);
    book->setImageData(2, samples::pictureBytes('x').first(20));
    book->addToGroup(u"1"_s);
    contents.books.emplace(u"1"_s, std::move(book));
    contents.books.emplace(u"2"_s, samples::makeBook(u"The same text"_s));
    contents.lastBookIdn = 2;
    return writeCollection(contents);
}

bool isAcceptable(const DocumentFailure& failure)
{
    static const QRegularExpression withOffset(u"^damaged: .+ at offset \\d+$"_s);
    if (failure.cancelled)
        return false;
    if (failure.standsAlone)
        return failure.reason == u"Tomely cannot open files from newer versions."_s;
    return failure.reason == u"not a collection file"_s
        || withOffset.match(failure.reason).hasMatch();
}

/// A document that is not as a new one, to see whether a failure leaves it alone.
struct Target {
    Target()
    {
        document.addBook(samples::makeBook(u"Here before"_s));
        document.setSortField(7);
        book = document.getBookEntry(u"1");
    }

    /// What is wrong with how the bytes were received; empty when nothing is.
    QString problemWith(QByteArrayView bytes)
    {
        const auto failure = document.load(bytes);
        if (!failure)
            return isSavedWell() ? QString() : u"what was opened cannot be saved and opened"_s;
        if (!isAcceptable(*failure))
            return failure->reason;
        return isAsBefore() ? QString() : u"a failure changed the document"_s;
    }

    /// Tries it for one in eight, which is dear.
    bool isSavedWell()
    {
        static int opened = 0;
        return ++opened % 8 != 0 || !BytesDocument().load(document.save());
    }

    /// A look at every part of the document, quick enough for thousands.
    bool isAsBefore() const
    {
        return !document.isLoadeFromFile() && document.getBookListSize() == 1
            && document.getBookEntry(u"1") == book && document.getSortField() == 7
            && document.lastBookNumber() == 1 && document.lastGroupKey() == 2
            && document.getGroups().size() == 2 && document.customFieldLabels().size() == 18
            && document.getListColumns().size() == 42 && document.fileVersion() == 4;
    }

    bool isAsBeforeInEveryLine() const
    {
        return samples::linesOf(document) == samples::linesOf(Target().document);
    }

    BytesDocument document;
    BookEntry* book = nullptr;
};

/// The most memory that the process ever had, in bytes.
qint64 peakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:"))
            return std::stoll(line.substr(6)) * 1024;
    }
    return -1;
}

/// Starts the measurement of the peak anew.
void resetPeakMemory()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

QByteArray hex(const char* digits)
{
    return QByteArray::fromHex(digits);
}

/// Puts a claim of 2,000,000,000 in the place of what stands behind `place`.
QByteArray withHugeClaim(QByteArray bytes, const QByteArray& place, qsizetype length)
{
    const qsizetype at = bytes.indexOf(place);
    return at < 0 ? QByteArray() : bytes.replace(at + place.size(), length, hex("82 00 94 35 77"));
}

} // namespace

class DamageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensTheUndamagedFile();
    void survivesEveryTruncation();
    void survivesFlippedBits();
    void survivesRandomBytes();
    void refusesHugeClaimsCheaply_data();
    void refusesHugeClaimsCheaply();
    void refusesManyReferencesToALargeRecord();
};

void DamageTest::opensTheUndamagedFile()
{
    BytesDocument document;
    QVERIFY(!document.load(smallCollection()));
    QCOMPARE(document.getBookListSize(), 2);
    QCOMPARE(document.getBookEntry(u"1")->getImageData(2).size(), 20);
    QCOMPARE(document.getBookEntry(u"2")->getTitle(), u"The same text"_s);
    QCOMPARE(document.getCustomFieldLabel(62), u"Signed by"_s);
}

void DamageTest::survivesEveryTruncation()
{
    const QByteArray whole = smallCollection();
    Target target;
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const QByteArray part(whole.constData(), size); // a copy, so that its end can be guarded
        const QString problem = target.problemWith(part);
        QVERIFY2(problem.isEmpty(), qPrintable(u"%1 bytes: %2"_s.arg(size).arg(problem)));
        QVERIFY2(target.isAsBefore(), qPrintable(QString::number(size)));
    }
    QVERIFY(target.isAsBeforeInEveryLine());
}

void DamageTest::survivesFlippedBits()
{
    const QByteArray whole = smallCollection();
    QRandomGenerator random(20240229);
    auto target = std::make_unique<Target>();
    int opened = 0;
    for (int count = 0; count < 10'000; ++count) {
        QByteArray bytes = whole;
        const qsizetype at = random.bounded(int(bytes.size()));
        const int bit = random.bounded(8);
        bytes[at] = static_cast<char>(static_cast<quint8>(bytes.at(at)) ^ (1U << bit));
        const QString problem = target->problemWith(bytes);
        QVERIFY2(problem.isEmpty(),
            qPrintable(u"bit %1 of byte %2: %3"_s.arg(bit).arg(at).arg(problem)));
        if (target->document.isLoadeFromFile()) {
            ++opened;
            target = std::make_unique<Target>();
        }
    }
    QVERIFY(target->isAsBeforeInEveryLine());
    QVERIFY(opened > 100); // a flipped bit of a text or a number opens
    QVERIFY(opened < 9'000);
}

void DamageTest::survivesRandomBytes()
{
    const QByteArray whole = smallCollection();
    QRandomGenerator random(7);
    auto target = std::make_unique<Target>();
    for (int count = 0; count < 2'000; ++count) {
        QByteArray bytes = whole;
        for (int change = random.bounded(1, 6); change > 0; --change) {
            const qsizetype at = random.bounded(16, int(bytes.size()));
            const int length = random.bounded(1, 9);
            QByteArray noise;
            for (int index = random.bounded(9); index > 0; --index)
                noise.append(static_cast<char>(
                    random.bounded(2) ? random.bounded(256) : 0x81 + random.bounded(6)));
            bytes.replace(at, length, noise);
        }
        const QString problem = target->problemWith(bytes);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        if (target->document.isLoadeFromFile())
            target = std::make_unique<Target>();
    }
}

void DamageTest::refusesHugeClaimsCheaply_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = smallCollection();
    const QByteArray blockAndDictionary = hex("92 04 00 00 00 02 93 84 93 97"); // last book, books
    QTest::newRow("books") << withHugeClaim(whole, blockAndDictionary, 1);
    QTest::newRow("groups") << withHugeClaim(whole, hex("85 84 01 69"), 1);
    QTest::newRow("length of a text") << withHugeClaim(whole, hex("01 95 92"), 1);
    QTest::newRow("length of a class name") << withHugeClaim(whole, hex("84 01 40 84 84 84"), 1);
    const qsizetype data = whole.indexOf("NSData");
    const QByteArray dataHead = whole.mid(data, QByteArray("NSData").size() + 3);
    QTest::newRow("length of data") << withHugeClaim(whole, dataHead, 1);
    QTest::newRow("type of data") << QByteArray(whole)
                                         .replace("[20c]", "[2000000000c]")
                                         .replace("\x05[2000000000c]", "\x0D[2000000000c]");
}

void DamageTest::refusesHugeClaimsCheaply()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(!bytes.isEmpty());
    QVERIFY(bytes != smallCollection());
    Target target;
    QCOMPARE(target.problemWith(smallCollection().first(200)), QString());
    resetPeakMemory();
    const qint64 before = peakMemory();
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(target.problemWith(bytes), QString());
    QVERIFY(!target.document.isLoadeFromFile());
    QVERIFY(peakMemory() - before < 16 * 1024 * 1024);
    QVERIFY(timer.elapsed() < 5'000);
}

void DamageTest::refusesManyReferencesToALargeRecord()
{
    constexpr int references = 100'000;
    BookEntry book;
    book.setTitle(u"Large"_s);
    book.setImageData(1, QByteArray(1024 * 1024, 'x'));
    Archiver archiver;
    archiver.encodeInt32Block(4);
    archiver.encodeInt32Block(2);
    archiver.encodeNil(); // groups
    archiver.encodeNil(); // labels
    archiver.encodeInt32Block(1);
    archiver.beginDictionary(1 + references); // objects 0 to 3 with its classes
    archiver.encodeString(u"1"_s); // objects 4 and 5
    archiver.beginObject("BookEntry"_L1); // object 6
    book.encodeWithCoder(archiver);
    archiver.endObject();
    const QByteArray nilToTheBook = hex("93 85 93 98");
    const QByteArray bytes = archiver.takeData() + nilToTheBook.repeated(references);
    Target target;
    resetPeakMemory();
    const qint64 before = peakMemory();
    QElapsedTimer timer;
    timer.start();
    const auto failure = target.document.load(bytes);
    QVERIFY(failure);
    QVERIFY2(isAcceptable(*failure), qPrintable(failure->reason));
    QVERIFY2(failure->reason.contains(u"too many references"), qPrintable(failure->reason));
    QVERIFY(peakMemory() - before < 64 * 1024 * 1024);
    QVERIFY(timer.elapsed() < 10'000);
}

QTEST_GUILESS_MAIN(DamageTest)
#include "DamageTest.moc"
