// What the person chose in the export sheet, as the preferences remember it from one export to the
// next.

#pragma once

#include "listwindow/engine/ExportFilter.h"
#include "model/BookCsv.h"

namespace tomely {

class UserDefaults;

struct CsvChoices {
    ExportFilter filterSelection = ExportFilter::AllBooks;
    CsvOptions options;

    bool operator==(const CsvChoices&) const = default;

    /// What was remembered last; the default for each choice that was not, or that nobody offers.
    static CsvChoices of(const UserDefaults& defaults);

    void remember(UserDefaults& defaults) const;
};

} // namespace tomely
