// render-icon SVG SIZE PNG: draws an icon into a square picture. Runs while the project is built,
// so that the pictures never differ from the drawing they come from.

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

int main(int argc, char* argv[])
{
    if (argc != 4) {
        std::fputs("usage: render-icon SVG SIZE PNG\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(QFile::decodeName(argv[1]));
    const int size = std::atoi(argv[2]);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    if (!renderer.isValid() || image.isNull())
        return 1;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return image.save(QFile::decodeName(argv[3])) ? 0 : 1;
}
