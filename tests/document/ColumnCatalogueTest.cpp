#include "document/ColumnCatalogue.h"

#include "model/BookField.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

ColumnDictionary newColumns()
{
    ColumnDictionary columns;
    initListColumns(columns, defaultCustomFieldLabels());
    return columns;
}

ColumnEntry columnOf(qint32 key, qint32 position, qint32 width)
{
    ColumnEntry column;
    column.setKey(key);
    column.setPosition(position);
    column.setWidth(width);
    return column;
}

/// What filter a field of that kind has.
FilterType filterTypeOf(FieldKind kind)
{
    switch (kind) {
    case FieldKind::Text:
        return FilterType::Text;
    case FieldKind::Month:
    case FieldKind::Year:
        return FilterType::Date;
    case FieldKind::Integer:
    case FieldKind::Real:
        return FilterType::Number;
    case FieldKind::Rating:
        return FilterType::Rating;
    case FieldKind::Flag:
        return FilterType::CheckBox;
    case FieldKind::Type:
        return FilterType::BookType;
    }
    return FilterType::NotSet;
}

} // namespace

class ColumnCatalogueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void makesTheFixedColumns_data();
    void makesTheFixedColumns();
    void makesTheCustomColumns_data();
    void makesTheCustomColumns();
    void makesNoOtherColumns();
    void showsTitleAndAuthorAlone();
    void agreesWithTheFieldTable();
    void namesDefaultLabels();
    void addsMissingColumns();
    void keepsPositionAndWidth();
    void takesNamesAndKindsFromTheCatalogue();
    void leavesOtherColumnsAlone();
    void namesCustomColumnsByTheirLabels();
    void makesNoCustomColumnWithoutALabel();
    void leavesTheKindOfOtherLabelledColumns();
    void changesNothingTheSecondTime();
};

void ColumnCatalogueTest::makesTheFixedColumns_data()
{
    QTest::addColumn<QString>("columnName");
    QTest::addColumn<QString>("selectionName");
    QTest::addColumn<qint32>("position");
    QTest::addColumn<qint32>("width");
    QTest::addColumn<qint32>("filterType");
    QTest::addColumn<bool>("centered");
    QTest::newRow("0") << u"Title"_s << u"Title"_s << 0 << 258 << 0 << false;
    QTest::newRow("2") << u"Author"_s << u"Author"_s << 1 << 100 << 0 << false;
    QTest::newRow("26") << u"Publisher"_s << u"Publisher"_s << -1 << 0 << 0 << false;
    QTest::newRow("6") << u"Rating"_s << u"Rating"_s << -1 << 0 << 5 << true;
    QTest::newRow("8") << u"Last Read"_s << u"Last Read Date"_s << -1 << 0 << 2 << false;
    QTest::newRow("10") << u"Published"_s << u"Published Date"_s << -1 << 0 << 2 << false;
    QTest::newRow("12") << u"Purchased"_s << u"Purchased Date"_s << -1 << 0 << 2 << false;
    QTest::newRow("14") << u"First Read"_s << u"First Read Date"_s << -1 << 0 << 2 << false;
    QTest::newRow("16") << u"Copyright"_s << u"Copyright Date"_s << -1 << 0 << 2 << false;
    QTest::newRow("18") << u"Own"_s << u"Own"_s << -1 << 0 << 1 << true;
    QTest::newRow("20") << u"Signed"_s << u"Signed"_s << -1 << 0 << 1 << true;
    QTest::newRow("22") << u"First Edition"_s << u"First Edition"_s << -1 << 0 << 1 << true;
    QTest::newRow("24") << u"Read"_s << u"Read / Listened To"_s << -1 << 0 << 1 << true;
    QTest::newRow("28") << u"Pages"_s << u"Pages"_s << -1 << 0 << 3 << false;
    QTest::newRow("30") << u"Price Paid"_s << u"Price Paid"_s << -1 << 0 << 3 << false;
    QTest::newRow("32") << u"Est Value"_s << u"Est Value"_s << -1 << 0 << 3 << false;
    QTest::newRow("34") << u"ISBN"_s << u"ISBN"_s << -1 << 100 << 0 << false;
    QTest::newRow("36") << u"Location"_s << u"Location"_s << -1 << 100 << 0 << false;
    QTest::newRow("38") << u"Lent To"_s << u"Lent To"_s << -1 << 100 << 0 << false;
    QTest::newRow("40") << u"Notes"_s << u"Notes"_s << -1 << 100 << 0 << false;
    QTest::newRow("78") << u"Est Value Date"_s << u"Est Value Date"_s << -1 << 100 << 2 << false;
    QTest::newRow("80") << u"Lent Date"_s << u"Lent Date"_s << -1 << 100 << 2 << false;
    QTest::newRow("82") << u"Price Paid From"_s << u"Price Paid From"_s << -1 << 100 << 0 << false;
    QTest::newRow("84") << u"Type"_s << u"Type"_s << -1 << 100 << 4 << false;
}

void ColumnCatalogueTest::makesTheFixedColumns()
{
    const QString key = QString::fromLatin1(QTest::currentDataTag());
    const ColumnDictionary columns = newColumns();
    QVERIFY(columns.contains(key));
    const ColumnEntry& column = columns.at(key);
    QCOMPARE(column.getKey(), key);
    QTEST(column.getColumnName(), "columnName");
    QTEST(column.getSelectionName(), "selectionName");
    QTEST(column.getPosition(), "position");
    QTEST(column.getWidth(), "width");
    QTEST(qint32(column.getFilterType()), "filterType");
    QTEST(column.getCentered(), "centered");
}

void ColumnCatalogueTest::makesTheCustomColumns_data()
{
    QTest::addColumn<QString>("columnName");
    QTest::addColumn<qint32>("filterType");
    for (int number = 1; number <= 7; ++number)
        QTest::newRow(QByteArray::number(40 + 2 * number)) << u"Custom Field %1"_s.arg(number) << 0;
    for (int number = 1; number <= 3; ++number)
        QTest::newRow(QByteArray::number(54 + 2 * number)) << u"Custom Date %1"_s.arg(number) << 2;
    for (int number = 1; number <= 8; ++number)
        QTest::newRow(QByteArray::number(60 + 2 * number))
            << u"Custom Switch %1"_s.arg(number) << 1;
}

void ColumnCatalogueTest::makesTheCustomColumns()
{
    QFETCH(const QString, columnName);
    QFETCH(const qint32, filterType);
    const QString key = QString::fromLatin1(QTest::currentDataTag());
    const ColumnDictionary columns = newColumns();
    QVERIFY(columns.contains(key));
    const ColumnEntry& column = columns.at(key);
    QCOMPARE(column.getKey(), key);
    QCOMPARE(column.getColumnName(), columnName);
    QCOMPARE(column.getSelectionName(), u"Custom: "_s + columnName);
    QCOMPARE(column.getPosition(), -1);
    QCOMPARE(column.getWidth(), 0);
    QCOMPARE(qint32(column.getFilterType()), filterType);
    QCOMPARE(column.getCentered(), filterType == 1);
}

void ColumnCatalogueTest::makesNoOtherColumns()
{
    const ColumnDictionary columns = newColumns();
    QCOMPARE(columns.size(), std::size_t(42));
    QVERIFY(!columns.contains(u"4"_s));
}

void ColumnCatalogueTest::showsTitleAndAuthorAlone()
{
    QStringList shown;
    for (const auto& [key, column] : newColumns()) {
        if (column.isShown())
            shown.append(key);
    }
    QCOMPARE(shown, QStringList({u"0"_s, u"2"_s}));
}

void ColumnCatalogueTest::agreesWithTheFieldTable()
{
    const ColumnDictionary columns = newColumns();
    for (const auto& [key, column] : columns) {
        const BookField* const field = fieldOfColumn(key.toInt());
        QVERIFY2(field, qPrintable(key));
        QCOMPARE(column.getFilterType(), filterTypeOf(field->kind));
    }
    for (const BookField& field : bookFields())
        QVERIFY2(columns.contains(keyText(field.columnKey)), field.name.data());
}

void ColumnCatalogueTest::namesDefaultLabels()
{
    const LabelDictionary labels = defaultCustomFieldLabels();
    QCOMPARE(labels.size(), std::size_t(18));
    QCOMPARE(labels.at(42), u"Custom Field 1"_s);
    QCOMPARE(labels.at(54), u"Custom Field 7"_s);
    QCOMPARE(labels.at(56), u"Custom Date 1"_s);
    QCOMPARE(labels.at(60), u"Custom Date 3"_s);
    QCOMPARE(labels.at(62), u"Custom Switch 1"_s);
    QCOMPARE(labels.at(76), u"Custom Switch 8"_s);
}

void ColumnCatalogueTest::addsMissingColumns()
{
    ColumnDictionary columns = newColumns();
    columns.erase(u"84"_s);
    columns.erase(u"62"_s);
    initListColumns(columns, defaultCustomFieldLabels());
    QCOMPARE(columns.at(u"84"_s).getColumnName(), u"Type"_s);
    QCOMPARE(columns.at(u"84"_s).getWidth(), 100);
    QVERIFY(!columns.at(u"84"_s).isShown());
    QCOMPARE(columns.at(u"62"_s).getPosition(), -1);
}

void ColumnCatalogueTest::keepsPositionAndWidth()
{
    ColumnDictionary columns;
    columns[u"0"_s] = columnOf(0, -2, 0);
    columns[u"40"_s] = columnOf(40, 5, 180);
    columns[u"42"_s] = columnOf(42, 0, 77);
    initListColumns(columns, defaultCustomFieldLabels());
    QCOMPARE(columns.at(u"0"_s).getPosition(), -2);
    QCOMPARE(columns.at(u"0"_s).getWidth(), 0);
    QCOMPARE(columns.at(u"40"_s).getPosition(), 5);
    QCOMPARE(columns.at(u"40"_s).getWidth(), 180);
    QCOMPARE(columns.at(u"42"_s).getPosition(), 0);
    QCOMPARE(columns.at(u"42"_s).getWidth(), 77);
}

void ColumnCatalogueTest::takesNamesAndKindsFromTheCatalogue()
{
    ColumnDictionary columns;
    ColumnEntry old = columnOf(6, 0, 10);
    old.setColumnName(u"Stars"_s);
    old.setSelectionName(u"Old Stars"_s);
    columns[u"6"_s] = old;
    columns[u"18"_s] = columnOf(18, 1, 10);
    initListColumns(columns, {});
    QCOMPARE(columns.at(u"6"_s).getColumnName(), u"Rating"_s);
    QCOMPARE(columns.at(u"6"_s).getSelectionName(), u"Rating"_s);
    QCOMPARE(columns.at(u"6"_s).getFilterType(), FilterType::Rating);
    QVERIFY(columns.at(u"6"_s).getCentered());
    QVERIFY(columns.at(u"18"_s).getCentered());
}

void ColumnCatalogueTest::leavesOtherColumnsAlone()
{
    ColumnDictionary columns;
    ColumnEntry other = columnOf(200, 3, 50);
    other.setColumnName(u"Elsewhere"_s);
    columns[u"200"_s] = other;
    initListColumns(columns, {});
    QCOMPARE(columns.at(u"200"_s).getColumnName(), u"Elsewhere"_s);
    QCOMPARE(columns.at(u"200"_s).getPosition(), 3);
    QCOMPARE(columns.at(u"200"_s).getWidth(), 50);
    QCOMPARE(columns.at(u"200"_s).getFilterType(), FilterType::NotSet);
}

void ColumnCatalogueTest::namesCustomColumnsByTheirLabels()
{
    ColumnDictionary columns = newColumns();
    initListColumns_CustomFields(columns, {{42, u"Condition"_s}, {62, u""_s}});
    QCOMPARE(columns.at(u"42"_s).getColumnName(), u"Condition"_s);
    QCOMPARE(columns.at(u"42"_s).getSelectionName(), u"Custom: Condition"_s);
    QCOMPARE(columns.at(u"62"_s).getColumnName(), u""_s);
    QCOMPARE(columns.at(u"62"_s).getSelectionName(), u"Custom: "_s);
    QCOMPARE(columns.at(u"44"_s).getColumnName(), u"Custom Field 2"_s);
}

void ColumnCatalogueTest::makesNoCustomColumnWithoutALabel()
{
    ColumnDictionary columns;
    initListColumns(columns, {{56, u"Bound"_s}});
    QCOMPARE(columns.size(), std::size_t(25));
    QVERIFY(columns.contains(u"56"_s));
    QVERIFY(!columns.contains(u"42"_s));
}

void ColumnCatalogueTest::leavesTheKindOfOtherLabelledColumns()
{
    ColumnDictionary columns;
    initListColumns(columns, {{6, u"Stars"_s}, {100, u"Other"_s}});
    QCOMPARE(columns.at(u"6"_s).getColumnName(), u"Stars"_s);
    QCOMPARE(columns.at(u"6"_s).getFilterType(), FilterType::Rating);
    QCOMPARE(columns.at(u"100"_s).getSelectionName(), u"Custom: Other"_s);
    QCOMPARE(columns.at(u"100"_s).getFilterType(), FilterType::NotSet);
    QCOMPARE(columns.at(u"100"_s).getPosition(), -1);
}

void ColumnCatalogueTest::changesNothingTheSecondTime()
{
    ColumnDictionary columns = newColumns();
    columns.at(u"0"_s).setPosition(4);
    initListColumns(columns, defaultCustomFieldLabels());
    QCOMPARE(columns.size(), std::size_t(42));
    QCOMPARE(columns.at(u"0"_s).getPosition(), 4);
    QCOMPARE(columns.at(u"0"_s).getColumnName(), u"Title"_s);
}

QTEST_GUILESS_MAIN(ColumnCatalogueTest)
#include "ColumnCatalogueTest.moc"
