// Which books the list shows: those of one group that pass one filter. A plain value with the tests
// that each book has to pass; the filter bar sets it, the list engine and the command line apply
// it.

#pragma once

#include "listwindow/engine/ColumnKind.h"
#include "model/BookEntry.h"

#include <QString>

namespace tomely {

enum class TriState : qint32 { All = 0, OnlySet = 1, OnlyUnset = 2 };
enum class NumberTest : qint32 { Equal = 0, NotEqual = 1, Less = 2, Greater = 3 };
enum class DateTest : qint32 {
    Equal = 0,
    NotEqual = 1,
    Before = 2,
    After = 3,
    OnOrBefore = 4,
    OnOrAfter = 5,
};

struct BookFilter {
    qint32 m_nSelectedGroupKey = 0; // 0 is the whole library
    qint32 m_nSelectedFilter = ColumnKey::Title; // the column key that is filtered by
    QString m_strFilter; // empty: no condition on texts
    TriState m_nFilterSelectionForChecks = TriState::All;
    TriState m_nFilterSelectionForImages = TriState::All;
    TriState m_nFilterSelectionForGroup = TriState::All;
    qint32 m_nFilterSelectionForBookRating = 0;
    qint32 m_nFilterSelectionForBookType = 0;
    NumberTest m_nFilterSelectionForNumeric = NumberTest::Equal;
    double m_dblFilter_Numeric = 0;
    bool m_bFilter_NumericHasValue = false;
    DateTest m_nFilterSelectionForDate = DateTest::Equal;
    qint32 m_nFilter_DateMonth = 0; // 0 none, 1 to 12
    qint32 m_nFilter_DateYear = 0; // 0 none

    /// True when the list shows the book.
    bool passes(const BookEntry& book) const
    {
        return book.inGroup(m_nSelectedGroupKey) && passesFilter(book);
    }

    /// The same without the test for the group. A key that no filter has (78 among them) hides
    /// every book.
    bool passesFilter(const BookEntry& book) const;

    /// True when the filter looks at texts, and m_strFilter is what it looks for.
    bool isTextFilter() const;

    /// A value of 0 stands for one that was never entered, and is never less than anything.
    bool checkNumeric(double value) const;

    /// How a date with missing parts compares: a book without the part that is asked for passes
    /// only "not equal"; one with a year but no month stands at the end of its year that makes the
    /// test hold for the year as a whole.
    bool checkDateWithYear(qint32 year, qint32 month) const;

    static bool checkTriState(TriState selection, bool isSet);
};

} // namespace tomely
