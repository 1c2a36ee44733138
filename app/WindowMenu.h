// The menu Window: every open window of the program, to bring it forward.

#pragma once

class QMainWindow;

namespace tomely {

class DocumentController;

/// Adds the menu to a window. The documents must outlive the window.
void addWindowMenu(QMainWindow& window, DocumentController& documents);

} // namespace tomely
