#include "cli/ViewOptions.h"

#include "cli/Failures.h"
#include "cli/OptionValues.h"
#include "document/BookListDocument.h"
#include "listwindow/engine/BookOrder.h"
#include "listwindow/engine/FilterInput.h"
#include "listwindow/engine/ListEngine.h"

#include <QLocale>

#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr std::array options = std::to_array<Option>({
    {"--group"_L1, "KEY"_L1, "group key; 0, the default, is the whole library"_L1},
    {"--filter"_L1, "FIELD"_L1,
        "column key to filter by; -1, the default, is author and title, -2 images, -3 groups"_L1},
    {"--text"_L1, "TEXT"_L1, "what a text field must contain, in any letter case"_L1},
    {"--compare"_L1, "TEST"_L1,
        "equal (the default), not-equal, less or greater for numbers; equal, not-equal, before,"
        " after, on-or-before or on-or-after for dates"_L1},
    {"--number"_L1, "TEXT"_L1, "the number to compare with"_L1},
    {"--month"_L1, "N"_L1, "the month to compare with: 1 to 12, or 0, the default, for none"_L1},
    {"--year"_L1, "TEXT"_L1, "the year to compare with"_L1},
    {"--state"_L1, "STATE"_L1,
        "all (the default), set or unset, for check boxes, images and groups"_L1},
    {"--type"_L1, "N"_L1,
        "the book type that must match: 0, the default, hardcover, 1 paperback, 2 audio book,"
        " 3 eBook"_L1},
    {"--rating"_L1, "N"_L1, "the rating that must match; the default is 0"_L1},
    {"--sort"_L1, "FIELD"_L1,
        "column key to sort by, plus 1 for descending; the default is the file's own"_L1},
});

struct Comparison {
    QLatin1StringView word;
    std::optional<NumberTest> ofNumbers;
    std::optional<DateTest> ofDates;
};

constexpr std::array comparisons = std::to_array<Comparison>({
    {"equal"_L1, NumberTest::Equal, DateTest::Equal},
    {"not-equal"_L1, NumberTest::NotEqual, DateTest::NotEqual},
    {"less"_L1, NumberTest::Less, {}},
    {"greater"_L1, NumberTest::Greater, {}},
    {"before"_L1, {}, DateTest::Before},
    {"after"_L1, {}, DateTest::After},
    {"on-or-before"_L1, {}, DateTest::OnOrBefore},
    {"on-or-after"_L1, {}, DateTest::OnOrAfter},
});

constexpr std::array states = std::to_array<Choice<TriState>>({
    {"all"_L1, TriState::All},
    {"set"_L1, TriState::OnlySet},
    {"unset"_L1, TriState::OnlyUnset},
});

bool isFilterKey(qint32 key)
{
    return (key >= ColumnKey::Groups && key <= ColumnKey::AuthorAndTitle) || isCatalogueKey(key);
}

// A file may be sorted by the row number, which leaves the order by title.
bool isSortField(qint32 sortField)
{
    const qint32 key = SortField::of(sortField).columnKey;
    return sortField >= 0 && (key == ColumnKey::RowNumber || isCatalogueKey(key));
}

void setComparison(BookFilter& filter, const QString& word)
{
    const auto* const found = std::ranges::find(comparisons, word, &Comparison::word);
    if (found == comparisons.end())
        throw cannotTake("--compare"_L1, word);
    const ColumnKind kind = columnKind(filter.m_nSelectedFilter);
    const bool isNumber = kind == ColumnKind::Integer || kind == ColumnKind::Real;
    if ((isNumber && !found->ofNumbers) || (kind == ColumnKind::Date && !found->ofDates)) {
        throw UsageError{
            u"--compare %1 is no test for a %2"_s.arg(word, isNumber ? u"number"_s : u"date"_s)};
    }
    // For other fields the comparison has no effect, as in the window.
    filter.m_nFilterSelectionForNumeric = found->ofNumbers.value_or(NumberTest::Equal);
    filter.m_nFilterSelectionForDate = found->ofDates.value_or(DateTest::Equal);
}

qint32 monthOption(const Arguments& arguments)
{
    const qint32 month = integerOption(arguments, "--month"_L1).value_or(0);
    if (month < 0 || month > 12)
        throw cannotTake("--month"_L1, QString::number(month));
    return month;
}

} // namespace

OptionGroup ViewOptions::group()
{
    return {"VIEW: which books, in which order"_L1, options};
}

ViewOptions ViewOptions::of(const Arguments& arguments)
{
    ViewOptions view;
    BookFilter& filter = view.filter;
    filter.m_nSelectedGroupKey = integerOption(arguments, "--group"_L1).value_or(0);
    filter.m_nSelectedFilter =
        integerOption(arguments, "--filter"_L1).value_or(ColumnKey::AuthorAndTitle);
    if (!isFilterKey(filter.m_nSelectedFilter))
        throw cannotTake("--filter"_L1, QString::number(filter.m_nSelectedFilter));
    filter.m_strFilter = arguments.value("--text"_L1).value_or(QString());
    setComparison(filter, arguments.value("--compare"_L1).value_or(u"equal"_s));
    setFilterNumber(filter, arguments.value("--number"_L1).value_or(QString()), QLocale::c());
    filter.m_nFilter_DateMonth = monthOption(arguments);
    setFilterYear(filter, arguments.value("--year"_L1).value_or(QString()));
    const TriState state =
        choiceOption<TriState>(arguments, "--state"_L1, states).value_or(TriState::All);
    filter.m_nFilterSelectionForChecks = state;
    filter.m_nFilterSelectionForImages = state;
    filter.m_nFilterSelectionForGroup = state;
    filter.m_nFilterSelectionForBookType = integerOption(arguments, "--type"_L1).value_or(0);
    filter.m_nFilterSelectionForBookRating = integerOption(arguments, "--rating"_L1).value_or(0);
    view.sortField = integerOption(arguments, "--sort"_L1);
    if (view.sortField && !isSortField(*view.sortField))
        throw cannotTake("--sort"_L1, QString::number(*view.sortField));
    return view;
}

std::vector<BookEntry*> displayedBooks(BookListDocument& document, const ViewOptions& view)
{
    // Books may still point at a group that was deleted; the window has no place to show them.
    const qint32 groupKey = view.filter.m_nSelectedGroupKey;
    if (groupKey != 0 && !document.getGroups().contains(keyText(groupKey)))
        return {};
    if (view.sortField)
        document.setSortField(*view.sortField);
    ListEngine engine(document);
    engine.filter() = view.filter;
    engine.loadBookKeys();
    return engine.getDisplayedBooks();
}

} // namespace tomely
