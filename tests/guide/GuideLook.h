// How a desktop looks in the guide: the same in every picture, whatever the machine that makes
// them.

#pragma once

namespace tomely {

/// Gives the program one style and the colours of a light or a dark desktop, and keeps blinking
/// cursors still. Before its first window.
void setGuideLook(bool isDark);

} // namespace tomely
