// Paints the check boxes of a table so that empty ones can be seen. Styles draw their frame for the
// colour of a dialog, and on the ground of a dark list that frame is all but invisible.

#pragma once

#include <QStyledItemDelegate>

namespace tomely {

class CheckCellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace tomely
