// The kind of file that the program's panels are about.

#pragma once

#include "platform/widgets/FilePanels.h"

namespace tomely {

/// Files with the extension "books".
FileType collectionFileType();

} // namespace tomely
