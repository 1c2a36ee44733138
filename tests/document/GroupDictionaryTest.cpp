#include "document/GroupDictionary.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

GroupEntry groupOf(qint32 key, const QString& name)
{
    GroupEntry group;
    group.setKey(key);
    group.setGroupName(name);
    return group;
}

QStringList names(const GroupDictionary& groups)
{
    QStringList names;
    for (const GroupEntry* const group : groups.byName())
        names.append(group->getKey() + u' ' + group->getGroupName());
    return names;
}

} // namespace

class GroupDictionaryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void findsGroups();
    void replacesAGroupOfTheSameKey();
    void removesGroups();
    void renamesAGroupInPlace();
    void listsByNameIgnoringCase();
    void listsEqualNamesByKey();
    void listsByKey();
};

void GroupDictionaryTest::startsEmpty()
{
    const GroupDictionary groups;
    QVERIFY(groups.isEmpty());
    QCOMPARE(groups.size(), 0);
    QVERIFY(!groups.find(u"1"));
    QVERIFY(groups.byName().empty());
}

void GroupDictionaryTest::findsGroups()
{
    GroupDictionary groups;
    groups.insert(groupOf(10, u"Poetry"_s));
    QVERIFY(!groups.isEmpty());
    QVERIFY(groups.contains(u"10"));
    QVERIFY(!groups.contains(u"1"));
    QCOMPARE(groups.find(u"10")->getGroupName(), u"Poetry"_s);
    QVERIFY(!groups.find(u"1"));
}

void GroupDictionaryTest::replacesAGroupOfTheSameKey()
{
    GroupDictionary groups;
    groups.insert(groupOf(1, u"Old"_s));
    groups.insert(groupOf(1, u"New"_s));
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups.find(u"1")->getGroupName(), u"New"_s);
}

void GroupDictionaryTest::removesGroups()
{
    GroupDictionary groups;
    groups.insert(groupOf(1, u"A"_s));
    groups.insert(groupOf(2, u"B"_s));
    QVERIFY(groups.remove(u"1"_s));
    QVERIFY(!groups.remove(u"1"_s));
    QCOMPARE(names(groups), QStringList{u"2 B"_s});
}

void GroupDictionaryTest::renamesAGroupInPlace()
{
    GroupDictionary groups;
    groups.insert(groupOf(1, u"A"_s));
    groups.find(u"1")->setGroupName(u"Z"_s);
    QCOMPARE(names(groups), QStringList{u"1 Z"_s});
}

void GroupDictionaryTest::listsByNameIgnoringCase()
{
    GroupDictionary groups;
    groups.insert(groupOf(1, u"science"_s));
    groups.insert(groupOf(2, u"École"_s));
    groups.insert(groupOf(3, u"Poetry"_s));
    groups.insert(groupOf(4, u"_"_s));
    groups.insert(groupOf(5, u""_s));
    groups.insert(groupOf(6, QString()));
    QCOMPARE(names(groups),
        QStringList({u"5 "_s, u"6 "_s, u"4 _"_s, u"3 Poetry"_s, u"1 science"_s, u"2 École"_s}));
}

void GroupDictionaryTest::listsEqualNamesByKey()
{
    GroupDictionary groups;
    for (const qint32 key : {10, 9, 100, 2})
        groups.insert(groupOf(key, key % 2 == 0 ? u"same"_s : u"SAME"_s));
    QCOMPARE(names(groups), QStringList({u"2 same"_s, u"9 SAME"_s, u"10 same"_s, u"100 same"_s}));
}

void GroupDictionaryTest::listsByKey()
{
    GroupDictionary groups;
    for (const qint32 key : {10, 9, 100, 2})
        groups.insert(groupOf(key, QString::number(1000 - key)));
    QStringList keys;
    for (const auto& [key, group] : groups.byKey())
        keys.append(key);
    QCOMPARE(keys, QStringList({u"2"_s, u"9"_s, u"10"_s, u"100"_s}));
}

QTEST_GUILESS_MAIN(GroupDictionaryTest)
#include "GroupDictionaryTest.moc"
