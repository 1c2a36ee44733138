// Where books that are dragged may be dropped, as a decision without a window.

#pragma once

namespace tomely {

/// A drag over the group table.
struct GroupDropContext {
    bool holdsBooks = false; // its data have the type of book drags
    bool isFromThisWindow = false; // it comes from the book table of the same window
    int row = -1; // of the group table, where the mouse is; -1 for below the last one
    bool isOnRow = false; // rather than between two rows
    bool isBusy = false; // the window asks something, or the program waits for something
};

/// True when the books may be dropped there.
bool validateDrop(const GroupDropContext& context);

} // namespace tomely
