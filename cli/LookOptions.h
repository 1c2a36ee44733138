// The options that say how `list` prints: which columns, in which format.

#pragma once

#include "cli/Arguments.h"
#include "cli/TableLayout.h"

#include <optional>
#include <vector>

namespace tomely {

class BookListDocument;

enum class ListFormat { Table, Tsv, Json };

struct LookOptions {
    enum class Columns { Visible, All, Keys };

    Columns columns = Columns::Visible;
    std::vector<qint32> columnKeys; // with Columns::Keys
    ListFormat format = ListFormat::Table;

    /// The options themselves, for parsing and for the help.
    static OptionGroup group();

    /// Throws UsageError for a value that its option cannot take.
    static LookOptions of(const Arguments& arguments);
};

/// A column as it is printed.
struct PrintedColumn {
    QString keyText;
    qint32 key = 0; // a key that no cell has when the file's own is not a number
    TableColumn table;
};

/// The columns of a collection that are to be printed, in order.
std::vector<PrintedColumn> printedColumns(
    const BookListDocument& document, const LookOptions& look);

} // namespace tomely
