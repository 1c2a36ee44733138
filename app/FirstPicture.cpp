#include "app/FirstPicture.h"

#include <QPixmap>
#include <QScreen>
#include <QWidget>

namespace tomely {

bool writePicture(QWidget& window, const QString& path)
{
    // From the screen, with the frame; where the platform does not allow that, the window alone.
    const QRect frame = window.frameGeometry();
    QPixmap picture =
        window.screen()->grabWindow(0, frame.x(), frame.y(), frame.width(), frame.height());
    if (picture.isNull())
        picture = window.grab();
    return picture.save(path, "PNG");
}

} // namespace tomely
