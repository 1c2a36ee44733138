// make-guide-pictures FOLDER light|dark 1|2: the windows of the program as the guide shows them, in
// one look and at one scale. NAME.png is light at 1, NAME-2x.png light at 2, and NAME-dark.png and
// NAME-dark-2x.png are the dark ones.

#include "tests/guide/GuideLook.h"
#include "tests/guide/GuideScenes.h"

#include <QApplication>
#include <QCursor>
#include <QIcon>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The window once it is at rest: sizes and covers come a moment after it.
QImage pictureOf(QWidget& window)
{
    QImage last;
    QImage next = window.grab().toImage();
    const bool isAtRest = QTest::qWaitFor([&] {
        QCoreApplication::processEvents();
        last = std::exchange(next, window.grab().toImage());
        return last == next;
    });
    if (!isAtRest)
        qFatal("%s never comes to rest", qPrintable(window.windowTitle()));
    return next;
}

} // namespace

int main(int argc, char* argv[])
{
    const QList<QByteArray> arguments(argv + 1, argv + argc);
    if (arguments.size() != 3) {
        std::fputs("usage: make-guide-pictures FOLDER light|dark 1|2\n", stderr);
        return 2;
    }
    const bool isDark = arguments[1] == "dark";
    qputenv("QT_SCALE_FACTOR", arguments[2]);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"tomely"_s);
    QApplication::setApplicationDisplayName(u"Tomely"_s);
    QApplication::setWindowIcon(QIcon(u":/icons/tomely.svg"_s));
    tomely::setGuideLook(isDark);
    // Nothing shines because the mouse happens to be over it.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());

    const QString folder = QString::fromLocal8Bit(arguments[0]);
    const QString copy = (isDark ? u"-dark"_s : u""_s) + (arguments[2] == "2" ? u"-2x"_s : u""_s);
    bool isWritten = true;
    tomely::showGuideScenes([&](const QString& name, QWidget& window) {
        const QString path = folder + u'/' + name + copy + ".png"_L1;
        isWritten = pictureOf(window).save(path, "PNG") && isWritten;
    });
    return isWritten ? 0 : 1;
}
