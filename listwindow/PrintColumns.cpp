#include "listwindow/PrintColumns.h"

#include "listwindow/BookTableModel.h"
#include "listwindow/engine/ColumnKind.h"

#include <QHeaderView>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr double numberWidth = 40; // points

} // namespace

std::vector<PrintColumn> printColumns(const QTableView& bookTable)
{
    const auto& model = static_cast<const BookTableModel&>(*bookTable.model());
    const QHeaderView& header = *bookTable.horizontalHeader();
    std::vector<PrintColumn> columns{
        {ColumnKey::RowNumber, u"#"_s, Qt::AlignLeft | Qt::AlignVCenter, numberWidth}};
    for (int visual = 0; visual < header.count(); ++visual) {
        const int column = header.logicalIndex(visual);
        if (header.isSectionHidden(column))
            continue;
        const QVariant alignment = model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        columns.push_back({model.keyOfColumn(column),
            model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
            alignment.value<Qt::Alignment>(), static_cast<double>(header.sectionSize(column))});
    }
    return columns;
}

} // namespace tomely
