#include "platform/widgets/SymbolicIcon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// The colours of the pixels that are drawn solidly.
QSet<QRgb> solidColors(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() == 255)
                colors.insert(image.pixel(x, y));
        }
    }
    return colors;
}

QSet<QRgb> colorsOf(QIcon::Mode mode)
{
    return solidColors(symbolicIcon(u"group"_s).pixmap(QSize(32, 32), mode).toImage());
}

QSet<QRgb> only(const QColor& color)
{
    return {color.rgba()};
}

} // namespace

class SymbolicIconTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void cleanup() { QGuiApplication::setPalette(m_palette); }

    void isDrawnInThePalettesColor();
    void followsThePalette();
    void isReadableOnASelectedRow();
    void fadesWhenDisabled();
    void isTransparentAroundItsShape();
    void isSharpAtAnyScale();
    void paintsWhereItIsTold();
    void showsNothingForAnUnknownName();

private:
    QPalette m_palette = QGuiApplication::palette();
};

void SymbolicIconTest::isDrawnInThePalettesColor()
{
    QCOMPARE(colorsOf(QIcon::Normal), only(m_palette.color(QPalette::WindowText)));
}

void SymbolicIconTest::followsThePalette()
{
    const QIcon icon = symbolicIcon(u"group"_s);
    QPalette dark = m_palette;
    dark.setColor(QPalette::WindowText, QColor(240, 241, 242));
    QGuiApplication::setPalette(dark);
    QCOMPARE(solidColors(icon.pixmap(32, 32).toImage()), only(QColor(240, 241, 242)));
}

void SymbolicIconTest::isReadableOnASelectedRow()
{
    QPalette palette = m_palette;
    palette.setColor(QPalette::HighlightedText, QColor(1, 200, 3));
    QGuiApplication::setPalette(palette);
    QCOMPARE(colorsOf(QIcon::Selected), only(QColor(1, 200, 3)));
}

void SymbolicIconTest::fadesWhenDisabled()
{
    QPalette palette = m_palette;
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(150, 151, 152));
    QGuiApplication::setPalette(palette);
    QCOMPARE(colorsOf(QIcon::Disabled), only(QColor(150, 151, 152)));
}

void SymbolicIconTest::isTransparentAroundItsShape()
{
    const QImage image = symbolicIcon(u"library"_s).pixmap(32, 32).toImage();
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(31, 31).alpha(), 0);
}

void SymbolicIconTest::isSharpAtAnyScale()
{
    const QPixmap picture = symbolicIcon(u"group"_s).pixmap(QSize(24, 24), 2.0);
    QCOMPARE(picture.size(), QSize(48, 48));
    // Drawn at that size, not enlarged: what is enlarged holds every pixel twice in each direction.
    const QImage image = picture.toImage();
    const QImage coarse = image.scaled(24, 24).scaled(48, 48);
    QVERIFY(image.convertToFormat(QImage::Format_ARGB32)
        != coarse.convertToFormat(QImage::Format_ARGB32));
}

void SymbolicIconTest::paintsWhereItIsTold()
{
    QImage canvas(64, 64, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    symbolicIcon(u"group"_s).paint(&painter, QRect(32, 32, 32, 32));
    painter.end();
    QVERIFY(solidColors(canvas.copy(0, 0, 32, 64)).isEmpty());
    QCOMPARE(solidColors(canvas.copy(32, 32, 32, 32)), only(m_palette.color(QPalette::WindowText)));
}

void SymbolicIconTest::showsNothingForAnUnknownName()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot open file"_s));
    QVERIFY(solidColors(symbolicIcon(u"nothing"_s).pixmap(32, 32).toImage()).isEmpty());
}

QTEST_MAIN(SymbolicIconTest)
#include "SymbolicIconTest.moc"
