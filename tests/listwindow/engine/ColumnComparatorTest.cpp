// The order of columns where a person chooses one.

#include "listwindow/engine/ColumnComparator.h"
#include "tests/support/SmallCollection.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

ColumnEntry makeColumn(qint32 key, const QString& selectionName)
{
    ColumnEntry column;
    column.setKey(key);
    column.setSelectionName(selectionName);
    return column;
}

QStringList sortedNames(const BookListDocument& document)
{
    QStringList names;
    for (const ColumnEntry* const column : sortedColumns(document.getListColumns()))
        names.append(column->getSelectionName());
    return names;
}

} // namespace

class ColumnComparatorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void putsOneColumnBeforeAnother_data()
    {
        QTest::addColumn<qint32>("firstKey");
        QTest::addColumn<QString>("firstName");
        QTest::addColumn<qint32>("secondKey");
        QTest::addColumn<QString>("secondName");
        const QString defaultField = u"Custom: Custom Field 3"_s;
        QTest::newRow("built-in ones by name") << 2 << u"Author"_s << 0 << u"Title"_s;
        QTest::newRow("whatever their case") << 0 << u"author"_s << 2 << u"Title"_s;
        QTest::newRow("and the other way round") << 0 << u"Author"_s << 2 << u"title"_s;
        QTest::newRow("one name begins the other") << 0 << u"Read"_s << 2 << u"Reader"_s;
        QTest::newRow("built-in before named") << 84 << u"Type"_s << 42 << u"Custom: Age"_s;
        QTest::newRow("built-in before default") << 84 << u"Type"_s << 46 << defaultField;
        QTest::newRow("named before default") << 48 << u"Custom: Shelf"_s << 46 << defaultField;
        QTest::newRow("named ones by name") << 76 << u"Custom: age"_s << 42 << u"Custom: Shelf"_s;
        QTest::newRow("default ones by name")
            << 56 << u"Custom: Custom Date 1"_s << 46 << defaultField;
        QTest::newRow("the last built-in key below") << 41 << u"Z"_s << 42 << u"A"_s;
        QTest::newRow("the first built-in key above") << 78 << u"Z"_s << 77 << u"A"_s;
        QTest::newRow("keys that only filters have") << -3 << u"Groups"_s << 42 << u"A"_s;
        QTest::newRow("a built-in one named like a custom one")
            << 0 << u"Custom: Custom Switch 1"_s << 42 << u"A"_s;
        QTest::newRow("another field's default name is one")
            << 42 << u"Custom: Shelf"_s << 44 << u"Custom: Custom Date 1"_s;
        QTest::newRow("a default switch")
            << 42 << u"Custom: Z"_s << 62 << u"Custom: Custom Switch 1"_s;
        QTest::newRow("a default name with more behind it")
            << 42 << u"Custom: Z"_s << 44 << u"Custom: Custom Field of mine"_s;
        QTest::newRow("a default name in other case is a person's")
            << 42 << u"Custom: custom field 9"_s << 44 << u"Custom: Custom Field 1"_s;
        QTest::newRow("a default name without its space is a person's")
            << 42 << u"Custom: Custom Field"_s << 44 << u"Custom: Custom Field 1"_s;
    }

    void putsOneColumnBeforeAnother()
    {
        QFETCH(const qint32, firstKey);
        QFETCH(const QString, firstName);
        QFETCH(const qint32, secondKey);
        QFETCH(const QString, secondName);
        const ColumnEntry first = makeColumn(firstKey, firstName);
        const ColumnEntry second = makeColumn(secondKey, secondName);
        QVERIFY(precedes(first, second));
        QVERIFY(!precedes(second, first));
        QVERIFY(!precedes(first, first));
    }

    void leavesEqualNamesTogether()
    {
        const ColumnEntry first = makeColumn(42, u"Custom: Shelf"_s);
        const ColumnEntry second = makeColumn(44, u"Custom: shelf"_s);
        QVERIFY(!precedes(first, second));
        QVERIFY(!precedes(second, first));
        BookListDocument document;
        document.setCustomFieldLabel(u"Shelf"_s, 54);
        document.setCustomFieldLabel(u"shelf"_s, 42);
        const QStringList names = sortedNames(document);
        QCOMPARE(names.indexOf(u"Custom: shelf"_s) + 1, names.indexOf(u"Custom: Shelf"_s));
    }

    void takesAKeyThatIsNoNumberForBuiltIn()
    {
        ColumnEntry odd;
        odd.setKeyText(u"fifty"_s);
        odd.setSelectionName(u"Z"_s);
        QVERIFY(precedes(odd, makeColumn(42, u"A"_s)));
    }

    void ordersEveryColumnOfACollection()
    {
        BookListDocument document;
        document.setCustomFieldLabel(u"Shelf"_s, 46);
        const QStringList names = sortedNames(document);
        QCOMPARE(names.size(), 42);
        QCOMPARE(names.first(5),
            QStringList({u"Author"_s, u"Copyright Date"_s, u"Est Value"_s, u"Est Value Date"_s,
                u"First Edition"_s}));
        QCOMPARE(names.mid(22, 4),
            QStringList({u"Title"_s, u"Type"_s, u"Custom: Shelf"_s, u"Custom: Custom Date 1"_s}));
        QCOMPARE(names.mid(28, 2),
            QStringList({u"Custom: Custom Field 1"_s, u"Custom: Custom Field 2"_s}));
        QCOMPARE(names.last(), u"Custom: Custom Switch 8"_s);
    }

    void ordersStrictlyAndWeakly()
    {
        std::vector<ColumnEntry> columns;
        for (const qint32 key : {-1, 0, 41, 42, 77, 78}) {
            for (const QString& name : {u""_s, u"A"_s, u"a"_s, u"Custom: Custom Field 1"_s,
                     u"custom: custom field 1"_s, u"Custom: Custom Date "_s})
                columns.push_back(makeColumn(key, name));
        }
        const auto together = [](const ColumnEntry& left, const ColumnEntry& right) {
            return !precedes(left, right) && !precedes(right, left);
        };
        for (const ColumnEntry& one : columns) {
            for (const ColumnEntry& two : columns) {
                QVERIFY(!(precedes(one, two) && precedes(two, one)));
                for (const ColumnEntry& three : columns) {
                    QVERIFY(!(precedes(one, two) && precedes(two, three)) || precedes(one, three));
                    QVERIFY(!(together(one, two) && together(two, three)) || together(one, three));
                }
            }
        }
    }
};

} // namespace tomely

QTEST_GUILESS_MAIN(tomely::ColumnComparatorTest)

#include "ColumnComparatorTest.moc"
