// Takes a picture of the program's first window once it is on screen: for the documentation, and to
// see the program where there is no screen to look at.

#pragma once

#include <QString>

class QWidget;

namespace tomely {

/// Writes a PNG of `window` with its frame to `path`, as it stands on the screen. False when it
/// cannot be written.
bool writePicture(QWidget& window, const QString& path);

} // namespace tomely
