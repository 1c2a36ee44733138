#include "document/widgets/CheckCellDelegate.h"

namespace tomely {

void CheckCellDelegate::initStyleOption(
    QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QColor text = option->palette.color(QPalette::Text);
    const QColor ground = option->palette.color(QPalette::Base);
    // The frame is a shade of this role; nothing else in a cell is.
    option->palette.setColor(QPalette::Window,
        QColor((text.red() + ground.red()) / 2, (text.green() + ground.green()) / 2,
            (text.blue() + ground.blue()) / 2));
}

} // namespace tomely
