#include "platform/widgets/Sheets.h"

#include <QDialog>

#include <algorithm>

namespace tomely {

bool hasOpenSheet(const QWidget& window)
{
    const auto sheets = window.findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly);
    return std::ranges::any_of(
        sheets, [](const QDialog* sheet) { return sheet->isVisible() && sheet->isModal(); });
}

} // namespace tomely
