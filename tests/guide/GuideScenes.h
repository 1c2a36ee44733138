// What the pictures of the guide show: the program with the sample library, and in it a window that
// a person has come to by its command.

#pragma once

#include <functional>

class QString;
class QWidget;

namespace tomely {

/// Takes a picture of a window, under the name that it has in the pages of the guide.
using TakePicture = std::function<void(const QString& name, QWidget& window)>;

/// Goes through all windows and has a picture taken of each.
void showGuideScenes(const TakePicture& take);

} // namespace tomely
