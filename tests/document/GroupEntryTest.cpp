#include "document/GroupEntry.h"

#include "platform/Archiver.h"
#include "platform/Unarchiver.h"

#include <QLocale>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArray archived(const GroupEntry& group)
{
    Archiver archiver;
    group.encodeWithCoder(archiver);
    return archiver.takeData();
}

GroupEntry unarchived(const QByteArray& bytes)
{
    Unarchiver unarchiver(bytes);
    return GroupEntry::initWithCoder(unarchiver);
}

} // namespace

class GroupEntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsAbsent();
    void writesItsKeyInPlainDigits();
    void writesKeyAndName();
    void keepsAnAbsentName();
    void dropsGroupingMarksFromItsKey();
};

void GroupEntryTest::startsAbsent()
{
    const GroupEntry group;
    QVERIFY(group.getKey().isNull());
    QVERIFY(group.getGroupName().isNull());
}

void GroupEntryTest::writesItsKeyInPlainDigits()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    GroupEntry small;
    small.setKey(5);
    GroupEntry large;
    large.setKey(12345);
    QLocale::setDefault(before);
    QCOMPARE(small.getKey(), u"5"_s);
    QCOMPARE(large.getKey(), u"12345"_s);
}

void GroupEntryTest::writesKeyAndName()
{
    GroupEntry group;
    group.setKey(5);
    group.setGroupName(u"Poésie"_s);
    Archiver expected;
    expected.encodeString(u"5"_s);
    expected.encodeString(u"Poésie"_s);
    QCOMPARE(archived(group).toHex(), expected.takeData().toHex());
    const GroupEntry read = unarchived(archived(group));
    QCOMPARE(read.getKey(), u"5"_s);
    QCOMPARE(read.getGroupName(), u"Poésie"_s);
}

void GroupEntryTest::keepsAnAbsentName()
{
    GroupEntry group;
    group.setKey(5);
    QVERIFY(unarchived(archived(group)).getGroupName().isNull());
    group.setGroupName(u""_s);
    QVERIFY(!unarchived(archived(group)).getGroupName().isNull());
}

void GroupEntryTest::dropsGroupingMarksFromItsKey()
{
    GroupEntry group;
    group.setKeyText(u"1.000"_s);
    QCOMPARE(unarchived(archived(group)).getKey(), u"1000"_s);
}

QTEST_GUILESS_MAIN(GroupEntryTest)
#include "GroupEntryTest.moc"
