// What the list shows of a collection when a person sets the filter bar, field by field and choice
// by choice, against the filter's own word on each of the books.

#include "document/BookListDocument.h"
#include "listwindow/engine/ListEngine.h"
#include "listwindow/FilterBar.h"
#include "tests/listwindow/FilterHands.h"
#include "tests/support/SmallCollection.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

constexpr int bookCount = 120;

/// Gives a field one of few values, so that each condition holds for some books only.
void vary(BookEntry& book, const BookField& field, QRandomGenerator& random)
{
    static const QStringList words{
        {}, u"The Road"_s, u"the road to Wigan"_s, u"Straße"_s, u"Éclair"_s, u"A & B"_s};
    static const QStringList years{{}, u"1999"_s, u"2000"_s, u"2001"_s, u"2001?"_s, u"x"_s};
    static const QList<int> months{0, 0, 1, 6, 7, 12};
    static const QList<int> pages{0, 5, 12, 300};
    static const QList<double> prices{0, 4.99, 5, 12.5};
    const auto oneOf = [&random](const auto& values) {
        return values.at(random.bounded(int(values.size())));
    };
    switch (field.kind) {
    case FieldKind::Text:
        return field.setText(book, oneOf(words));
    case FieldKind::Year:
        return field.setText(book, oneOf(years));
    case FieldKind::Month:
        return field.setInteger(book, oneOf(months));
    case FieldKind::Integer:
        return field.setInteger(book, oneOf(pages));
    case FieldKind::Real:
        return field.setReal(book, oneOf(prices));
    case FieldKind::Rating:
        return field.setInteger(book, random.bounded(6));
    case FieldKind::Type:
        return field.setInteger(book, random.bounded(5));
    case FieldKind::Flag:
        return field.setFlag(book, random.bounded(2) == 1);
    }
}

/// A condition as a person sets it and as it should then stand in the filter.
struct Condition {
    std::function<void(const FilterBar& bar)> set;
    std::function<void(BookFilter& filter)> change;
};

QList<Condition> textConditions()
{
    QList<Condition> conditions;
    for (const QString& text : {QString(), u"r"_s, u"ROAD TO"_s, u"é"_s, u"&"_s, u"nowhere"_s}) {
        conditions.append(
            {[text](const FilterBar& bar) { samples::typeText(bar, u"m_idFilter_Text"_s, text); },
                [text](BookFilter& filter) {
                    filter.m_strFilter = text;
                }});
    }
    return conditions;
}

QList<Condition> popUpConditions(
    const QString& popUp, int count, const std::function<void(BookFilter&, int tag)>& change)
{
    QList<Condition> conditions;
    for (int tag = 0; tag < count; ++tag) {
        conditions.append(
            {[popUp, tag](const FilterBar& bar) { samples::chooseTag(bar, popUp, tag); },
                [change, tag](BookFilter& filter) {
                    change(filter, tag);
                }});
    }
    return conditions;
}

QList<Condition> numberConditions()
{
    static const QList<std::pair<QString, double>> numbers{
        {u"5"_s, 5}, {u"4.99"_s, 4.99}, {u"-12"_s, 12}, {u"0"_s, 0}};
    QList<Condition> conditions;
    for (int tag = 0; tag < 4; ++tag) {
        conditions.append({[tag](const FilterBar& bar) {
                               samples::typeText(bar, u"m_idFilter_NumericText"_s, {});
                               samples::chooseTag(bar, u"m_idFilter_NumericDropDown"_s, tag);
                           },
            [](BookFilter& filter) {
                filter.m_bFilter_NumericHasValue = false;
            }});
        for (const auto& [text, number] : numbers) {
            conditions.append({[tag, text = text](const FilterBar& bar) {
                                   samples::chooseTag(bar, u"m_idFilter_NumericDropDown"_s, tag);
                                   samples::typeText(bar, u"m_idFilter_NumericText"_s, text);
                               },
                [tag, number = number](BookFilter& filter) {
                    filter.m_nFilterSelectionForNumeric = static_cast<NumberTest>(tag);
                    filter.m_dblFilter_Numeric = number;
                    filter.m_bFilter_NumericHasValue = true;
                }});
        }
    }
    return conditions;
}

QList<Condition> dateConditions()
{
    QList<Condition> conditions;
    for (int tag = 0; tag < 6; ++tag) {
        for (const int month : {0, 1, 6, 12}) {
            for (const int year : {0, 2000, 2001}) {
                conditions.append({[=](const FilterBar& bar) {
                                       samples::chooseTag(bar, u"m_idFilter_DateDropDown"_s, tag);
                                       samples::chooseTag(
                                           bar, u"m_idFilter_DateMonthDropDown"_s, month);
                                       samples::typeText(bar, u"m_idFilter_DateYearText"_s,
                                           year == 0 ? QString() : QString::number(year));
                                   },
                    [=](BookFilter& filter) {
                        filter.m_nFilterSelectionForDate = static_cast<DateTest>(tag);
                        filter.m_nFilter_DateMonth = month;
                        filter.m_nFilter_DateYear = year;
                    }});
            }
        }
    }
    return conditions;
}

QList<Condition> conditionsOf(FilterType type)
{
    switch (type) {
    case FilterType::Text:
        return textConditions();
    case FilterType::CheckBox:
        return popUpConditions(
            u"m_idFilter_CheckedStatusDropDown"_s, 3, [](BookFilter& filter, int tag) {
                filter.m_nFilterSelectionForChecks = static_cast<TriState>(tag);
            });
    case FilterType::Images:
        return popUpConditions(
            u"m_idFilter_ImageStatusDropDown"_s, 3, [](BookFilter& filter, int tag) {
                filter.m_nFilterSelectionForImages = static_cast<TriState>(tag);
            });
    case FilterType::Groups:
        return popUpConditions(
            u"m_idFilter_GroupStatusDropDown"_s, 3, [](BookFilter& filter, int tag) {
                filter.m_nFilterSelectionForGroup = static_cast<TriState>(tag);
            });
    case FilterType::BookType:
        return popUpConditions(u"m_idFilter_BookTypeDropDown"_s, 4,
            [](BookFilter& filter, int tag) { filter.m_nFilterSelectionForBookType = tag; });
    case FilterType::Rating:
        return popUpConditions(u"m_idFilter_BookRatingDropDown"_s, 6,
            [](BookFilter& filter, int tag) { filter.m_nFilterSelectionForBookRating = tag; });
    case FilterType::Number:
        return numberConditions();
    case FilterType::Date:
        return dateConditions();
    case FilterType::NotSet:
        break;
    }
    return {};
}

QStringList keysOf(const std::vector<BookEntry*>& books)
{
    QStringList keys;
    for (const BookEntry* const book : books)
        keys.append(book->getKey());
    return keys;
}

} // namespace

Q_DECLARE_METATYPE(tomely::FilterType)

class FilterBarEngineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void showsTheBooksThatPass_data();
    void showsTheBooksThatPass();

private:
    BookListDocument m_document;
};

void FilterBarEngineTest::initTestCase()
{
    QRandomGenerator random(20240607);
    for (int number = 0; number < bookCount; ++number) {
        auto book = std::make_unique<BookEntry>();
        for (const BookField& field : bookFields())
            vary(*book, field, random);
        if (random.bounded(2) == 1)
            book->setImageData(1 + random.bounded(5), samples::pictureBytes('p'));
        if (random.bounded(2) == 1)
            book->addToGroup(u"1"_s);
        if (random.bounded(3) == 1)
            book->addToGroup(u"2"_s);
        m_document.addBook(std::move(book));
    }
}

void FilterBarEngineTest::showsTheBooksThatPass_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qint32>("key");
    QTest::addColumn<FilterType>("type");
    QTest::newRow("Author & Title") << u"Author & Title"_s << -1 << FilterType::Text;
    QTest::newRow("Images") << u"Images"_s << -2 << FilterType::Images;
    QTest::newRow("Groups") << u"Groups"_s << -3 << FilterType::Groups;
    for (const auto& [key, column] : m_document.getListColumns())
        QTest::newRow(qPrintable(column.getSelectionName()))
            << column.getSelectionName() << key.toInt() << column.getFilterType();
}

void FilterBarEngineTest::showsTheBooksThatPass()
{
    QFETCH(const QString, name);
    QFETCH(const qint32, key);
    QFETCH(const FilterType, type);
    ListEngine engine(m_document);
    FilterBar bar(engine.filter(), m_document.getListColumns(), QLocale::c());
    connect(&bar, &FilterBar::filterChanged, &bar, [&engine] { engine.loadBookKeys(); });
    bar.initFilterDropDown();
    bar.show();
    samples::clickField(bar, name);
    BookFilter expected;
    expected.m_nSelectedFilter = key;
    const QList<Condition> conditions = conditionsOf(type);
    QVERIFY(!conditions.isEmpty());
    bool hasHidden = false;
    bool hasShown = false;
    for (const qint32 group : {0, 1}) {
        engine.filter().m_nSelectedGroupKey = group;
        expected.m_nSelectedGroupKey = group;
        for (const Condition& condition : conditions) {
            condition.set(bar);
            condition.change(expected);
            std::vector<BookEntry*> passing;
            bool filterHides = false;
            for (BookEntry* const book : engine.getAllBooks()) {
                if (expected.passes(*book))
                    passing.push_back(book);
                filterHides = filterHides || !expected.passesFilter(*book);
            }
            QCOMPARE(keysOf(engine.getDisplayedBooks()), keysOf(passing));
            QVERIFY(bar.isFiltering() || !filterHides);
            hasShown = hasShown || !passing.empty();
            hasHidden = hasHidden || filterHides;
        }
    }
    QVERIFY(hasHidden);
    QCOMPARE(hasShown, key != ColumnKey::EstValueDate);
}

QTEST_MAIN(FilterBarEngineTest)
#include "FilterBarEngineTest.moc"
