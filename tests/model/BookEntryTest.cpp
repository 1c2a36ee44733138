#include "model/BookEntry.h"

#include "tests/support/BookSamples.h"

#include <QBuffer>
#include <QImage>
#include <QLocale>
#include <QtTest>

#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArray jpegOfColor(Qt::GlobalColor color)
{
    QImage image(8, 6, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 100);
    return bytes;
}

bool isNearly(const QImage& image, Qt::GlobalColor color)
{
    const QColor wanted(color);
    const QColor found = image.pixelColor(4, 3);
    return std::abs(found.red() - wanted.red()) < 8 && std::abs(found.green() - wanted.green()) < 8
        && std::abs(found.blue() - wanted.blue()) < 8;
}

} // namespace

class BookEntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answersEmptyTextsAtFirst();
    void answersZeroesAtFirst();
    void isInTheLibraryAloneAtFirst();
    void hasNoPicturesAtFirst();
    void trimsTitleAuthorAndNotes_data();
    void trimsTitleAuthorAndNotes();
    void storesOtherTextsAsTheyAre();
    void answersAnEmptyTextForAnAbsentOne();
    void writesItsKeyInPlainDigits();
    void namesItsType_data();
    void namesItsType();
    void findsTheNumberOfATypeName_data();
    void findsTheNumberOfATypeName();
    void knowsItsGroups();
    void replacesItsGroups();
    void keepsPictureBytes();
    void refusesPictureSlotsThatDoNotExist();
    void decodesTheFirstPicture_data();
    void decodesTheFirstPicture();
    void answersNoPictureForBytesThatAreNone();
    void tellsThatItChanged();
    void tellsNoChangeWhereThereIsNone();
    void tellsThatItWasAssigned();
};

void BookEntryTest::answersEmptyTextsAtFirst()
{
    const BookEntry book;
    QVERIFY(book.getKey().isNull());
    for (const BookField& field : bookFields()) {
        if (field.kind != FieldKind::Text && field.kind != FieldKind::Year)
            continue;
        QVERIFY2(field.storedText(book).isNull(), field.name.data());
        QVERIFY2(field.text(book).isEmpty() && !field.text(book).isNull(), field.name.data());
    }
}

void BookEntryTest::answersZeroesAtFirst()
{
    const BookEntry book;
    for (const BookField& field : bookFields()) {
        const bool isZero = std::visit(
            [&book](const auto& access) {
                if constexpr (std::is_same_v<decltype(book.*access.stored), const QString&>)
                    return true;
                else
                    return (book.*access.get)() == 0;
            },
            field.access);
        QVERIFY2(isZero, field.name.data());
    }
}

void BookEntryTest::isInTheLibraryAloneAtFirst()
{
    const BookEntry book;
    QVERIFY(book.inGroup(0));
    QVERIFY(!book.inGroup(1));
    QVERIFY(!book.inGroup(-1));
    QVERIFY(!book.inAnyGroup());
}

void BookEntryTest::hasNoPicturesAtFirst()
{
    const BookEntry book;
    QVERIFY(!book.hasImages());
    QVERIFY(book.getFirstImage().isNull());
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        QVERIFY(book.getImageData(slot).isNull());
        QVERIFY(book.getImage(slot).isNull());
    }
}

void BookEntryTest::trimsTitleAuthorAndNotes_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("stored");
    QTest::newRow("all four characters") << u"  \tA Tale\r\n"_s << u"A Tale"_s;
    QTest::newRow("only blanks") << u" \n "_s << u""_s;
    QTest::newRow("inner line ends") << u"A\n B "_s << u"A\n B"_s;
    QTest::newRow("no-break space") << u"\u00A0A"_s << u"\u00A0A"_s;
}

void BookEntryTest::trimsTitleAuthorAndNotes()
{
    QFETCH(const QString, value);
    QFETCH(const QString, stored);
    BookEntry book;
    book.setTitle(value);
    book.setAuthor(value);
    book.setNotes(value);
    QCOMPARE(book.getTitle(), stored);
    QCOMPARE(book.getAuthor(), stored);
    QCOMPARE(book.getNotes(), stored);
}

void BookEntryTest::storesOtherTextsAsTheyAre()
{
    const QString value = u" \tx:\r\n "_s;
    for (const BookField& field : bookFields()) {
        if (field.kind != FieldKind::Text && field.kind != FieldKind::Year)
            continue;
        using Id = BookField::Id;
        if (field.id == Id::Title || field.id == Id::Author || field.id == Id::Notes)
            continue;
        BookEntry book;
        field.setText(book, value);
        QVERIFY2(field.text(book) == value, field.name.data());
    }
}

void BookEntryTest::answersAnEmptyTextForAnAbsentOne()
{
    BookEntry book;
    book.setISBN(u"x"_s);
    book.setISBN(QString());
    QVERIFY(bookField(BookField::Id::ISBN).storedText(book).isNull());
    QVERIFY(!book.getISBN().isNull());
    book.setISBN(u""_s);
    QVERIFY(!bookField(BookField::Id::ISBN).storedText(book).isNull());
}

void BookEntryTest::writesItsKeyInPlainDigits()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    BookEntry book;
    book.setKey(1234);
    book.addToGroup(u"1000"_s);
    const bool isMember = book.inGroup(1000);
    QLocale::setDefault(before);
    QCOMPARE(book.getKey(), u"1234"_s);
    QVERIFY(isMember);
    book.setKeyText(u"7"_s);
    QCOMPARE(book.getKey(), u"7"_s);
}

void BookEntryTest::namesItsType_data()
{
    QTest::addColumn<qint32>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << u"Hardcover"_s;
    QTest::newRow("1") << 1 << u"Paperback"_s;
    QTest::newRow("2") << 2 << u"Audio Book"_s;
    QTest::newRow("3") << 3 << u"eBook"_s;
    QTest::newRow("4") << 4 << u""_s;
    QTest::newRow("-1") << -1 << u""_s;
    QTest::newRow("largest") << std::numeric_limits<qint32>::max() << u""_s;
    QTest::newRow("smallest") << std::numeric_limits<qint32>::min() << u""_s;
}

void BookEntryTest::namesItsType()
{
    QFETCH(const qint32, type);
    QFETCH(const QString, text);
    BookEntry book;
    book.setType(type);
    QCOMPARE(book.getTypeText(), text);
    QVERIFY(!book.getTypeText().isNull());
    QCOMPARE(BookEntry::typeText(type), text);
}

void BookEntryTest::findsTheNumberOfATypeName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint32>("type");
    QTest::newRow("Hardcover") << u"Hardcover"_s << 0;
    QTest::newRow("hardcover") << u"hardcover"_s << 0;
    QTest::newRow("HARDCOVER") << u"HARDCOVER"_s << 0;
    QTest::newRow("paperback") << u"paperBack"_s << 1;
    QTest::newRow("audio book") << u"audio book"_s << 2;
    QTest::newRow("ebook") << u"EBOOK"_s << 3;
    QTest::newRow("empty") << u""_s << 4;
    QTest::newRow("null") << QString() << 4;
    QTest::newRow("Large Print") << u"Large Print"_s << 1;
    QTest::newRow("blank") << u" "_s << 1;
    QTest::newRow("no trimming") << u"eBook "_s << 1;
    QTest::newRow("beginning of a name") << u"Hard"_s << 1;
    QTest::newRow("a number") << u"0"_s << 1;
}

void BookEntryTest::findsTheNumberOfATypeName()
{
    QFETCH(const QString, text);
    QTEST(BookEntry::getTypeNum(text), "type");
}

void BookEntryTest::knowsItsGroups()
{
    BookEntry book;
    book.addToGroup(u"3"_s);
    book.addToGroup(u"3"_s);
    QVERIFY(book.inGroup(3));
    QVERIFY(book.inGroup(0));
    QVERIFY(!book.inGroup(30));
    QVERIFY(book.inAnyGroup());
    QCOMPARE(book.getSelectedGroups().size(), 1);
    QCOMPARE(book.getSelectedGroups().begin()->value, u"3"_s);
    QVERIFY(book.removeFromGroup(u"3"));
    QVERIFY(!book.removeFromGroup(u"3"));
    QVERIFY(!book.inAnyGroup());
}

void BookEntryTest::replacesItsGroups()
{
    BookEntry book;
    book.addToGroup(u"3"_s);
    GroupMembership groups;
    groups.insert(u"4"_s);
    book.setSelectedGroups(groups);
    QVERIFY(!book.inGroup(3));
    QVERIFY(book.inGroup(4));
    QVERIFY(book.getSelectedGroups() == groups);
}

void BookEntryTest::keepsPictureBytes()
{
    BookEntry book;
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        const QByteArray bytes = samples::pictureBytes(static_cast<char>(slot));
        book.setImageData(slot, bytes);
        QCOMPARE(book.getImageData(slot), bytes);
        QVERIFY(book.hasImages());
        book.setImageData(slot, {});
        QVERIFY(!book.hasImages());
    }
}

void BookEntryTest::refusesPictureSlotsThatDoNotExist()
{
    BookEntry book;
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, book.getImageData(0));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, book.setImageData(6, {}));
}

void BookEntryTest::decodesTheFirstPicture_data()
{
    QTest::addColumn<QList<int>>("slots");
    QTest::addColumn<int>("first");
    QTest::newRow("only 4") << QList<int>{4} << 4;
    QTest::newRow("5 and 2") << QList<int>{5, 2} << 2;
    QTest::newRow("all") << QList<int>{1, 2, 3, 4, 5} << 1;
    QTest::newRow("3 and 5") << QList<int>{3, 5} << 3;
    QTest::newRow("only 5") << QList<int>{5} << 5;
}

void BookEntryTest::decodesTheFirstPicture()
{
    QFETCH(const QList<int>, slots);
    QFETCH(const int, first);
    constexpr std::array colors{Qt::red, Qt::green, Qt::blue, Qt::yellow, Qt::black};
    BookEntry book;
    for (const int slot : slots)
        book.setImageData(slot, jpegOfColor(colors.at(std::size_t(slot - 1))));
    QCOMPARE(book.getFirstImage().size(), QSize(8, 6));
    QVERIFY(isNearly(book.getFirstImage(), colors.at(std::size_t(first - 1))));
    const std::array byHand{
        book.getImage1(), book.getImage2(), book.getImage3(), book.getImage4(), book.getImage5()};
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        const QImage& image = byHand.at(std::size_t(slot - 1));
        QCOMPARE(!image.isNull(), slots.contains(slot));
        QVERIFY(image.isNull() || isNearly(image, colors.at(std::size_t(slot - 1))));
    }
}

void BookEntryTest::answersNoPictureForBytesThatAreNone()
{
    BookEntry book;
    book.setImageData(1, QByteArray("not a picture"));
    QVERIFY(book.hasImages());
    QVERIFY(book.getImage1().isNull());
    QVERIFY(book.getFirstImage().isNull());
}

void BookEntryTest::tellsThatItChanged()
{
    using Change = std::function<void(BookEntry&)>;
    QList<Change> changes{[](BookEntry& book) { book.setKey(1); },
        [](BookEntry& book) { book.setKeyText(u"2"_s); },
        [](BookEntry& book) { book.addToGroup(u"1"_s); },
        [](BookEntry& book) { book.removeFromGroup(u"1"); },
        [](BookEntry& book) { book.setSelectedGroups({}); },
        [](BookEntry& book) { book.keepGroupsIf([](const QString&) { return false; }); },
        [](BookEntry& book) {
            book.setImageData(5, "x");
        }};
    for (const BookField& field : bookFields()) {
        changes.append([&field](BookEntry& book) {
            std::visit([&book](const auto& access) { (book.*access.set)({}); }, field.access);
        });
    }
    BookEntry book;
    BookEntry other;
    for (const Change& change : changes) {
        const quint64 before = BookEntry::lastChange();
        change(book);
        QVERIFY(book.changeStamp() > before);
        QCOMPARE(BookEntry::lastChange(), book.changeStamp());
    }
    QVERIFY(other.changeStamp() < book.changeStamp());
    const quint64 before = BookEntry::lastChange();
    BookEntry::noteChange();
    QVERIFY(BookEntry::lastChange() > before);
}

void BookEntryTest::tellsNoChangeWhereThereIsNone()
{
    BookEntry book;
    book.addToGroup(u"1"_s);
    const quint64 before = BookEntry::lastChange();
    book.addToGroup(u"1"_s);
    book.removeFromGroup(u"2");
    QCOMPARE(book.changeStamp(), before);
    QCOMPARE(BookEntry::lastChange(), before);
}

void BookEntryTest::tellsThatItWasAssigned()
{
    BookEntry book;
    const BookEntry earlier = book;
    book.setTitle(u"Edited"_s);
    const quint64 before = BookEntry::lastChange();
    book = earlier;
    QVERIFY(book.changeStamp() > before);
    QVERIFY(BookEntry::lastChange() >= book.changeStamp());
}

QTEST_GUILESS_MAIN(BookEntryTest)
#include "BookEntryTest.moc"
