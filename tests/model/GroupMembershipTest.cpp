#include "model/GroupMembership.h"

#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QStringList keysOf(const GroupMembership& groups)
{
    QStringList keys;
    for (const GroupMembership::Entry& entry : groups)
        keys.append(entry.key);
    return keys;
}

GroupMembership memberOf(const QStringList& keys)
{
    GroupMembership groups;
    for (const QString& key : keys)
        groups.insert(key);
    return groups;
}

} // namespace

class GroupMembershipTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void mapsAGroupToItsOwnKey();
    void addsAGroupOnce();
    void keepsAValueOfItsOwn();
    void enumeratesByNumber();
    void removesGroups();
    void findsGroupsByNumber();
    void takesManyEntriesAtOnce();
    void keepsSomeGroups();
    void comparesKeysAndValues();
};

void GroupMembershipTest::startsEmpty()
{
    const GroupMembership groups;
    QVERIFY(groups.isEmpty());
    QCOMPARE(groups.size(), 0);
    QVERIFY(!groups.contains(u"1"));
    QVERIFY(!groups.contains(1));
    QVERIFY(!groups.contains(0));
}

void GroupMembershipTest::mapsAGroupToItsOwnKey()
{
    const GroupMembership groups = memberOf({u"5"_s});
    QCOMPARE(groups.begin()->key, u"5"_s);
    QCOMPARE(groups.begin()->value, u"5"_s);
}

void GroupMembershipTest::addsAGroupOnce()
{
    const GroupMembership groups = memberOf({u"5"_s, u"5"_s});
    QCOMPARE(groups.size(), 1);
    QVERIFY(!groups.isEmpty());
}

void GroupMembershipTest::keepsAValueOfItsOwn()
{
    GroupMembership groups;
    groups.insert(u"5"_s, u"five"_s);
    QCOMPARE(groups.begin()->value, u"five"_s);
    groups.insert(u"5"_s, u"cinq"_s);
    QCOMPARE(groups.begin()->value, u"cinq"_s);
    QCOMPARE(groups.size(), 1);
}

void GroupMembershipTest::enumeratesByNumber()
{
    QCOMPARE(keysOf(memberOf({u"10"_s, u"x"_s, u"9"_s, u"1"_s, u"100"_s})),
        QStringList({u"1"_s, u"9"_s, u"10"_s, u"100"_s, u"x"_s}));
}

void GroupMembershipTest::removesGroups()
{
    GroupMembership groups = memberOf({u"1"_s, u"2"_s, u"10"_s});
    QVERIFY(groups.remove(u"2"));
    QCOMPARE(keysOf(groups), QStringList({u"1"_s, u"10"_s}));
    QVERIFY(!groups.remove(u"2"));
    QVERIFY(!groups.remove(u"7"));
    QCOMPARE(groups.size(), 2);
}

void GroupMembershipTest::findsGroupsByNumber()
{
    const GroupMembership groups =
        memberOf({u"1"_s, u"1000"_s, u"2147483647"_s, u"-2147483648"_s, u"01"_s});
    QVERIFY(groups.contains(1));
    QVERIFY(groups.contains(1000));
    QVERIFY(groups.contains(std::numeric_limits<qint32>::max()));
    QVERIFY(groups.contains(std::numeric_limits<qint32>::min()));
    QVERIFY(!groups.contains(10));
    QVERIFY(!groups.contains(100));
    QVERIFY(!groups.contains(0));
    QVERIFY(groups.contains(u"1000"));
    QVERIFY(!groups.contains(u"100"));
}

void GroupMembershipTest::takesManyEntriesAtOnce()
{
    const GroupMembership groups = GroupMembership::fromEntries(
        {{u"10"_s, u"a"_s}, {u"9"_s, u"b"_s}, {u"10"_s, u"c"_s}, {u"x"_s, u"d"_s}});
    QCOMPARE(keysOf(groups), QStringList({u"9"_s, u"10"_s, u"x"_s}));
    QCOMPARE((groups.begin() + 1)->value, u"c"_s);
    QVERIFY(GroupMembership::fromEntries({}).isEmpty());
}

void GroupMembershipTest::keepsSomeGroups()
{
    GroupMembership groups = memberOf({u"1"_s, u"2"_s, u"3"_s});
    groups.keepIf([](const QString& key) { return key != u"2"_s; });
    QCOMPARE(keysOf(groups), QStringList({u"1"_s, u"3"_s}));
}

void GroupMembershipTest::comparesKeysAndValues()
{
    QVERIFY(memberOf({u"1"_s, u"2"_s}) == memberOf({u"2"_s, u"1"_s}));
    QVERIFY(!(memberOf({u"1"_s}) == memberOf({u"2"_s})));
    QVERIFY(!(memberOf({u"1"_s}) == memberOf({})));
    GroupMembership other;
    other.insert(u"1"_s, u"x"_s);
    QVERIFY(!(memberOf({u"1"_s}) == other));
}

QTEST_GUILESS_MAIN(GroupMembershipTest)
#include "GroupMembershipTest.moc"
