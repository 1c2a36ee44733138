// Tells which of the lists of a window has the focus: the selection of the others is pale.

#pragma once

class QStyleOptionViewItem;
class QWidget;

namespace tomely {

/// For a view that draws its items with this option: without the focus, what is selected is drawn
/// between the colours of the ground and of a selection, whatever these are, and stays as easy to
/// read as what is not selected.
void paleWithoutFocus(QStyleOptionViewItem& option, const QWidget& view);

} // namespace tomely
