#include "model/BookField.h"

#include "tests/support/BookSamples.h"

#include <QtTest>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

// A field as its accessors are written by hand, to hold the table's row against.
struct Expected {
    const char* name;
    int columnKey;
    FieldKind kind;
    std::function<void(BookEntry&)> set;
    std::function<QVariant(const BookEntry&)> get;
};

template <class Value, class Argument>
Expected expected(const char* name, int columnKey, FieldKind kind, Value value,
    void (BookEntry::*set)(Argument), Value (BookEntry::*get)() const)
{
    return {name, columnKey, kind, [set, value](BookEntry& book) { (book.*set)(value); },
        [get](const BookEntry& book) {
            return QVariant::fromValue((book.*get)());
        }};
}

#define TEXT(name, column, suffix)                                                                 \
    expected(name, column, FieldKind::Text, u"sample"_s, &BookEntry::set##suffix,                  \
        &BookEntry::get##suffix)
#define DATE(name, column, suffix)                                                                 \
    expected("month" name, column, FieldKind::Month, qint32(11), &BookEntry::setMonth##suffix,     \
        &BookEntry::getMonth##suffix),                                                             \
        expected("year" name, column, FieldKind::Year, u"sample"_s, &BookEntry::setYear##suffix,   \
            &BookEntry::getYear##suffix)
#define CUSTOM_DATE(number, column)                                                                \
    expected("customYear" #number, column, FieldKind::Year, u"sample"_s,                           \
        &BookEntry::setCustomYear##number, &BookEntry::getCustomYear##number),                     \
        expected("customMonth" #number, column, FieldKind::Month, qint32(11),                      \
            &BookEntry::setCustomMonth##number, &BookEntry::getCustomMonth##number)
#define SWITCH(number, column)                                                                     \
    expected("customSwitch" #number, column, FieldKind::Flag, true,                                \
        &BookEntry::setCustomSwitch##number, &BookEntry::isCustomSwitch##number)

QList<Expected> expectedFields()
{
    return {TEXT("title", 0, Title), TEXT("author", 2, Author), TEXT("notes", 40, Notes),
        expected("type", 84, FieldKind::Type, qint32(11), &BookEntry::setType, &BookEntry::getType),
        expected("rating", 6, FieldKind::Rating, qint32(11), &BookEntry::setRating,
            &BookEntry::getRating),
        expected("pricePaid", 30, FieldKind::Real, 1.5, &BookEntry::setPricePaid,
            &BookEntry::getPricePaid),
        TEXT("pricePaidFrom", 82, PricePaidFrom), TEXT("publisher", 26, Publisher),
        TEXT("isbn", 34, ISBN),
        expected("pages", 28, FieldKind::Integer, qint32(11), &BookEntry::setPages,
            &BookEntry::getPages),
        expected(
            "estValue", 32, FieldKind::Real, 1.5, &BookEntry::setEstValue, &BookEntry::getEstValue),
        TEXT("location", 36, Location), TEXT("lentTo", 38, LentTo),
        DATE("Published", 10, Published), DATE("EstValue", 78, EstValue), DATE("Lent", 80, Lent),
        DATE("Purchased", 12, Purchased), DATE("FirstRead", 14, FirstRead),
        DATE("LastRead", 8, LastRead), DATE("Copyright", 16, Copyright),
        TEXT("customField1", 42, CustomField1), TEXT("customField2", 44, CustomField2),
        TEXT("customField3", 46, CustomField3), TEXT("customField4", 48, CustomField4),
        TEXT("customField5", 50, CustomField5), TEXT("customField6", 52, CustomField6),
        TEXT("customField7", 54, CustomField7), CUSTOM_DATE(1, 56), CUSTOM_DATE(2, 58),
        CUSTOM_DATE(3, 60), SWITCH(1, 62), SWITCH(2, 64), SWITCH(3, 66), SWITCH(4, 68),
        SWITCH(5, 70), SWITCH(6, 72), SWITCH(7, 74), SWITCH(8, 76),
        expected("own", 18, FieldKind::Flag, true, &BookEntry::setOwn, &BookEntry::own),
        expected("signed", 20, FieldKind::Flag, true, &BookEntry::setSigned, &BookEntry::isSigned),
        expected("firstEdition", 22, FieldKind::Flag, true, &BookEntry::setFirstEdition,
            &BookEntry::isFirstEdition),
        expected("read", 24, FieldKind::Flag, true, &BookEntry::setRead, &BookEntry::haveRead)};
}

#undef TEXT
#undef DATE
#undef CUSTOM_DATE
#undef SWITCH

QVariant storedValue(const BookField& field, const BookEntry& book)
{
    return std::visit(
        [&book](const auto& access) { return QVariant::fromValue(book.*access.stored); },
        field.access);
}

QVariant readValue(const BookField& field, const BookEntry& book)
{
    return std::visit(
        [&book](const auto& access) { return QVariant::fromValue((book.*access.get)()); },
        field.access);
}

void copyValue(const BookField& field, const BookEntry& from, BookEntry& to)
{
    std::visit([&](const auto& access) { (to.*access.set)((from.*access.get)()); }, field.access);
}

/// Names of the fields in which two books differ.
QStringList differences(const BookEntry& left, const BookEntry& right)
{
    QStringList names;
    for (const BookField& field : bookFields()) {
        if (storedValue(field, left) != storedValue(field, right))
            names.append(QString::fromLatin1(field.name));
    }
    return names;
}

} // namespace

class BookFieldTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsEveryFieldInOrder();
    void reachesEachFieldAndNoOther_data();
    void reachesEachFieldAndNoOther();
    void readsByKind();
    void storesTextsWithoutRules();
    void findsTheFieldOfAColumn_data();
    void findsTheFieldOfAColumn();
    void knowsNoOtherColumns();
    void findsEqualContents();
    void seesEveryDifference();
    void tellsAbsentFromEmpty();
    void takesNotANumberAsItself();
};

void BookFieldTest::listsEveryFieldInOrder()
{
    const QList<Expected> rows = expectedFields();
    QCOMPARE(bookFields().size(), std::size_t(rows.size()));
    QCOMPARE(rows.size(), 52);
    int index = 0;
    for (const BookField& field : bookFields()) {
        const Expected& row = rows.at(index);
        QCOMPARE(QByteArray(field.name.data(), qsizetype(field.name.size())), QByteArray(row.name));
        QCOMPARE(field.columnKey, row.columnKey);
        QCOMPARE(field.kind, row.kind);
        QCOMPARE(int(field.id), index);
        QCOMPARE(&bookField(field.id), &field);
        ++index;
    }
}

void BookFieldTest::reachesEachFieldAndNoOther_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Expected& row : expectedFields())
        QTest::newRow(row.name) << index++;
}

void BookFieldTest::reachesEachFieldAndNoOther()
{
    QFETCH(const int, index);
    const Expected row = expectedFields().at(index);
    const BookField& field = bookFields()[std::size_t(index)];
    BookEntry byHand;
    row.set(byHand);
    QCOMPARE(differences(byHand, BookEntry()), QStringList{QString::fromLatin1(row.name)});
    QCOMPARE(readValue(field, byHand), row.get(byHand));
    QCOMPARE(storedValue(field, byHand), row.get(byHand));

    BookEntry byTable;
    copyValue(field, byHand, byTable);
    QCOMPARE(row.get(byTable), row.get(byHand));
    QCOMPARE(differences(byTable, byHand), QStringList());
}

void BookFieldTest::readsByKind()
{
    using Id = BookField::Id;
    BookEntry book;
    bookField(Id::YearLent).setText(book, u"1999"_s);
    bookField(Id::Pages).setInteger(book, 300);
    bookField(Id::EstValue).setReal(book, 2.5);
    bookField(Id::Own).setFlag(book, true);
    QCOMPARE(book.getYearLent(), u"1999"_s);
    QCOMPARE(book.getPages(), 300);
    QCOMPARE(book.getEstValue(), 2.5);
    QVERIFY(book.own());
    QCOMPARE(bookField(Id::YearLent).text(book), u"1999"_s);
    QCOMPARE(bookField(Id::Pages).integer(book), 300);
    QCOMPARE(bookField(Id::EstValue).real(book), 2.5);
    QVERIFY(bookField(Id::Own).flag(book));
}

void BookFieldTest::storesTextsWithoutRules()
{
    BookEntry book;
    const BookField& title = bookField(BookField::Id::Title);
    title.storeText(book, u" as it stands\n"_s);
    QCOMPARE(book.getTitle(), u" as it stands\n"_s);
    QCOMPARE(title.storedText(book), u" as it stands\n"_s);
    title.setText(book, u" trimmed\n"_s);
    QCOMPARE(title.storedText(book), u"trimmed"_s);
    title.storeText(book, QString());
    QVERIFY(title.storedText(book).isNull());
    QVERIFY(!title.text(book).isNull());
}

void BookFieldTest::findsTheFieldOfAColumn_data()
{
    reachesEachFieldAndNoOther_data();
}

void BookFieldTest::findsTheFieldOfAColumn()
{
    QFETCH(const int, index);
    const BookField& field = bookFields()[std::size_t(index)];
    if (field.kind == FieldKind::Month) {
        QCOMPARE(monthField(field.columnKey), &field);
        QCOMPARE(fieldOfColumn(field.columnKey)->kind, FieldKind::Year);
        return;
    }
    QCOMPARE(fieldOfColumn(field.columnKey), &field);
    QCOMPARE(monthField(field.columnKey) != nullptr, field.kind == FieldKind::Year);
}

void BookFieldTest::knowsNoOtherColumns()
{
    for (int key = 0; key <= 84; ++key)
        QCOMPARE(fieldOfColumn(key) != nullptr, key % 2 == 0 && key != 4);
    for (const int key : {-3, -2, -1, 85, 86, 87, 1000, std::numeric_limits<int>::max(),
             std::numeric_limits<int>::min()}) {
        QVERIFY(!fieldOfColumn(key));
        QVERIFY(!monthField(key));
    }
}

void BookFieldTest::findsEqualContents()
{
    BookEntry left = samples::fullBook();
    BookEntry right = samples::fullBook();
    QVERIFY(equalContents(left, right));
    left.setKey(1);
    right.setKey(2);
    QVERIFY(equalContents(left, right));
}

void BookFieldTest::seesEveryDifference()
{
    const BookEntry original = samples::fullBook();
    const BookEntry empty;
    for (const BookField& field : bookFields()) {
        BookEntry changed = original;
        copyValue(field, empty, changed);
        if (storedValue(field, changed) == storedValue(field, original))
            field.setFlag(changed, !field.flag(changed));
        QVERIFY2(!equalContents(original, changed), field.name.data());
        QVERIFY2(!equalContents(changed, original), field.name.data());
    }
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        BookEntry changed = original;
        changed.setImageData(slot, samples::pictureBytes('x'));
        QVERIFY(!equalContents(original, changed));
    }
    BookEntry changed = original;
    changed.removeFromGroup(u"2");
    QVERIFY(!equalContents(original, changed));
}

void BookFieldTest::tellsAbsentFromEmpty()
{
    BookEntry absent;
    BookEntry empty;
    empty.setISBN(u""_s);
    QVERIFY(!equalContents(absent, empty));
    absent.setISBN(u""_s);
    QVERIFY(equalContents(absent, empty));
    empty.setImageData(3, QByteArray(""));
    QVERIFY(!equalContents(absent, empty));
}

void BookFieldTest::takesNotANumberAsItself()
{
    BookEntry left;
    BookEntry right;
    left.setPricePaid(std::numeric_limits<double>::quiet_NaN());
    right.setPricePaid(std::numeric_limits<double>::quiet_NaN());
    QVERIFY(equalContents(left, right));
    left.setPricePaid(0.0);
    right.setPricePaid(-0.0);
    QVERIFY(!equalContents(left, right));
}

QTEST_GUILESS_MAIN(BookFieldTest)
#include "BookFieldTest.moc"
