// Draws a cell as one line: a note with line breaks shows its beginning instead of the middle of a
// stack of lines, and a very long one costs no more than what can be seen of it.

#pragma once

#include <QStyledItemDelegate>

namespace tomely {

class SingleLineDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override;
};

} // namespace tomely
