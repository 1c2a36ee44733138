#include "listwindow/GroupDrop.h"

#include "listwindow/GroupTableModel.h"

namespace tomely {

bool validateDrop(const GroupDropContext& context)
{
    // Every book is in the library already.
    return context.holdsBooks && context.isFromThisWindow && context.isOnRow
        && context.row > GroupTableModel::libraryRow && !context.isBusy;
}

} // namespace tomely
