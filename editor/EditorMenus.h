// The menus of an editor: Book, with what its buttons do, and Edit.

#pragma once

#include <functional>

class QMenuBar;

namespace tomely {

/// What the items of the menu Book do.
struct EditorCommands {
    std::function<void()> save;
    std::function<void()> saveAndAddMore;
    std::function<void()> lookUp;
    std::function<void()> manageGroups;
    std::function<void()> print;
    std::function<void()> close;
    std::function<bool()> canSave; // asked when the menu opens
};

void addEditorMenus(QMenuBar& menuBar, const EditorCommands& commands);

} // namespace tomely
