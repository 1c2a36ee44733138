#include "platform/widgets/SymbolicIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

class SymbolicIconEngine : public QIconEngine {
public:
    explicit SymbolicIconEngine(const QString& path) : m_path(path) { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device()->devicePixelRatio();
        QPixmap picture = pixmap((QSizeF(rect.size()) * scale).toSize(), mode, state);
        picture.setDevicePixelRatio(scale);
        painter->drawPixmap(rect.topLeft(), picture);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QSvgRenderer renderer(m_path);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        renderer.render(&painter);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), colorFor(mode));
        painter.end();
        return QPixmap::fromImage(image);
    }

    QIconEngine* clone() const override { return new SymbolicIconEngine(*this); }

private:
    static QColor colorFor(QIcon::Mode mode)
    {
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::WindowText);
        case QIcon::Selected:
            return palette.color(QPalette::HighlightedText);
        default:
            return palette.color(QPalette::WindowText);
        }
    }

    QString m_path;
};

} // namespace

QIcon symbolicIcon(const QString& name)
{
    return QIcon(new SymbolicIconEngine(":/icons/"_L1 + name + ".svg"_L1));
}

} // namespace tomely
