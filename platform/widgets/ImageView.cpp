#include "platform/widgets/ImageView.h"

#include "platform/widgets/Accessibility.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tomely {

namespace {

/// A picture that nearly fills its place stays as it is: a few percent more would only blur it.
constexpr double smallestEnlargement = 1.1;

} // namespace

QRectF fittedRect(QSize image, const QRectF& place, double largest)
{
    if (image.isEmpty() || place.isEmpty())
        return {};
    double scale =
        std::min({place.width() / image.width(), place.height() / image.height(), largest});
    if (scale > 1 && scale < smallestEnlargement)
        scale = 1;
    QRectF rect(QPointF(), QSizeF(image) * scale);
    rect.moveCenter(place.center());
    return rect;
}

ImageView::ImageView(QWidget* parent) : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Graphic);
}

void ImageView::setImage(const QImage& image)
{
    m_image = image;
    m_scaled = {};
    update();
}

void ImageView::setPictureMargin(int margin)
{
    m_margin = margin;
    update();
}

QRectF ImageView::pictureRect() const
{
    const QRectF place = QRectF(rect()).adjusted(m_margin, m_margin, -m_margin, -m_margin);
    return fittedRect(m_image.size(), place, largestEnlargement);
}

void ImageView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintPicture(painter);
}

void ImageView::paintPicture(QPainter& painter)
{
    const QRectF target = pictureRect();
    if (target.isEmpty())
        return;
    const qreal pixels = devicePixelRatioF();
    const QSize size = (target.size() * pixels).toSize().expandedTo({1, 1});
    if (m_scaled.size() != size) {
        m_scaled = m_image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaled.setDevicePixelRatio(pixels);
    }
    // On whole device pixels, or the picture would be smeared over its neighbours.
    const QPointF corner(
        std::round(target.x() * pixels) / pixels, std::round(target.y() * pixels) / pixels);
    painter.drawImage(corner, m_scaled);
}

} // namespace tomely
