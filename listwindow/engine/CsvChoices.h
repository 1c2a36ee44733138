// What the person chose in the export sheet, as the preferences remember it from one export to the
// next.

#pragma once

#include "model/BookCsv.h"

namespace tomely {

class UserDefaults;

struct CsvChoices {
    enum class FilterSelection : qint32 { AllBooks = 0, DisplayedBooks = 1 };

    FilterSelection filterSelection = FilterSelection::AllBooks;
    CsvOptions options;

    bool operator==(const CsvChoices&) const = default;

    /// What was remembered last; the default for each choice that was not, or that nobody offers.
    static CsvChoices of(const UserDefaults& defaults);

    void remember(UserDefaults& defaults) const;
};

} // namespace tomely
