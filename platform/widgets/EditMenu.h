// The menu Edit of a window: undo, the clipboard and the selection of whatever has the focus.

#pragma once

class QMenu;
class QMenuBar;

namespace tomely {

/// Its items call the slots undo, redo, cut, copy, paste and selectAll of the widget with the
/// focus, which are enabled as far as it has them and can use them now. Gives the menu, to which a
/// window may add items of its own.
QMenu& addEditMenu(QMenuBar& menuBar);

} // namespace tomely
