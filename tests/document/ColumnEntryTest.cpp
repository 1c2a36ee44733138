#include "document/ColumnEntry.h"

#include "platform/Archiver.h"
#include "platform/Unarchiver.h"

#include <QLocale>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArray archived(const ColumnEntry& column)
{
    Archiver archiver;
    column.encodeWithCoder(archiver);
    return archiver.takeData();
}

ColumnEntry unarchived(const QByteArray& bytes)
{
    Unarchiver unarchiver(bytes);
    return ColumnEntry::initWithCoder(unarchiver);
}

ColumnEntry notesColumn()
{
    ColumnEntry column;
    column.setKey(40);
    column.setColumnName(u"Notes"_s);
    column.setSelectionName(u"Custom: Notes"_s);
    column.setPosition(3);
    column.setWidth(180);
    return column;
}

} // namespace

class ColumnEntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsAbsentAndZero();
    void keepsWhatIsSet();
    void writesItsKeyInPlainDigits();
    void isShownFromPositionZeroOn_data();
    void isShownFromPositionZeroOn();
    void centersACheckBox();
    void centersNothingElse_data();
    void centersNothingElse();
    void writesTheItemsInOrder();
    void isReadAsWritten();
    void forgetsFilterTypeAndCentring();
    void keepsAbsentNames();
};

void ColumnEntryTest::startsAbsentAndZero()
{
    const ColumnEntry column;
    QVERIFY(column.getKey().isNull());
    QVERIFY(column.getColumnName().isNull());
    QVERIFY(column.getSelectionName().isNull());
    QCOMPARE(column.getPosition(), 0);
    QCOMPARE(column.getWidth(), 0);
    QCOMPARE(column.getFilterType(), FilterType::NotSet);
    QVERIFY(!column.getCentered());
}

void ColumnEntryTest::keepsWhatIsSet()
{
    ColumnEntry column = notesColumn();
    column.setCentered(true);
    QCOMPARE(column.getKey(), u"40"_s);
    QCOMPARE(column.getColumnName(), u"Notes"_s);
    QCOMPARE(column.getSelectionName(), u"Custom: Notes"_s);
    QCOMPARE(column.getPosition(), 3);
    QCOMPARE(column.getWidth(), 180);
    QVERIFY(column.getCentered());
    column.setCentered(false);
    QVERIFY(!column.getCentered());
}

void ColumnEntryTest::writesItsKeyInPlainDigits()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    ColumnEntry column;
    column.setKey(1000);
    QLocale::setDefault(before);
    QCOMPARE(column.getKey(), u"1000"_s);
}

void ColumnEntryTest::isShownFromPositionZeroOn_data()
{
    QTest::addColumn<qint32>("position");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("leftmost") << 0 << true;
    QTest::newRow("further right") << 41 << true;
    QTest::newRow("to be added") << 9999 << true;
    QTest::newRow("not shown") << ColumnEntry::notShown << false;
    QTest::newRow("hidden") << ColumnEntry::hidden << false;
}

void ColumnEntryTest::isShownFromPositionZeroOn()
{
    QFETCH(const qint32, position);
    ColumnEntry column;
    column.setPosition(position);
    QTEST(column.isShown(), "isShown");
    QCOMPARE(ColumnEntry::notShown, -1);
    QCOMPARE(ColumnEntry::hidden, -2);
}

void ColumnEntryTest::centersACheckBox()
{
    ColumnEntry column;
    column.setFilterType(FilterType::CheckBox);
    QVERIFY(column.getCentered());
    QCOMPARE(column.getFilterType(), FilterType::CheckBox);
    column.setFilterType(FilterType::Text);
    QVERIFY(column.getCentered());
    QCOMPARE(column.getFilterType(), FilterType::Text);
}

void ColumnEntryTest::centersNothingElse_data()
{
    QTest::addColumn<qint32>("type");
    for (const qint32 type : {-1, 0, 2, 3, 4, 5})
        QTest::newRow(QByteArray::number(type)) << type;
}

void ColumnEntryTest::centersNothingElse()
{
    QFETCH(const qint32, type);
    ColumnEntry column;
    column.setFilterType(FilterType(type));
    QVERIFY(!column.getCentered());
    QCOMPARE(qint32(column.getFilterType()), type);
}

void ColumnEntryTest::writesTheItemsInOrder()
{
    Archiver expected;
    expected.encodeString(u"40"_s);
    expected.encodeString(u"Notes"_s);
    expected.encodeString(u"Custom: Notes"_s);
    expected.encodeInt32Block(3);
    expected.encodeInt32Block(180);
    const QByteArray bytes = archived(notesColumn());
    QCOMPARE(bytes.toHex(), expected.takeData().toHex());
    QVERIFY(bytes.endsWith(QByteArray::fromHex("04 00 00 00 03 95 04 00 00 00 B4")));
}

void ColumnEntryTest::isReadAsWritten()
{
    const ColumnEntry column = unarchived(archived(notesColumn()));
    QCOMPARE(column.getKey(), u"40"_s);
    QCOMPARE(column.getColumnName(), u"Notes"_s);
    QCOMPARE(column.getSelectionName(), u"Custom: Notes"_s);
    QCOMPARE(column.getPosition(), 3);
    QCOMPARE(column.getWidth(), 180);
}

void ColumnEntryTest::forgetsFilterTypeAndCentring()
{
    ColumnEntry column = notesColumn();
    column.setFilterType(FilterType::CheckBox);
    const ColumnEntry read = unarchived(archived(column));
    QCOMPARE(read.getFilterType(), FilterType::NotSet);
    QCOMPARE(qint32(read.getFilterType()), -1);
    QVERIFY(!read.getCentered());
}

void ColumnEntryTest::keepsAbsentNames()
{
    const ColumnEntry read = unarchived(archived(ColumnEntry()));
    QVERIFY(read.getKey().isNull());
    QVERIFY(read.getColumnName().isNull());
    QVERIFY(read.getSelectionName().isNull());
}

QTEST_GUILESS_MAIN(ColumnEntryTest)
#include "ColumnEntryTest.moc"
