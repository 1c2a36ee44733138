#include "listwindow/ImageView.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tomely {

namespace {

constexpr int margin = 10;

} // namespace

QRectF fittedRect(QSize image, const QRectF& place, double largest)
{
    if (image.isEmpty() || place.isEmpty())
        return {};
    const double scale =
        std::min({place.width() / image.width(), place.height() / image.height(), largest});
    QRectF rect(QPointF(), QSizeF(image) * scale);
    rect.moveCenter(place.center());
    return rect;
}

ImageView::ImageView(QWidget* parent) : QWidget(parent)
{
    setAccessibleName(tr("Picture of the selected book"));
}

void ImageView::setImage(const QImage& image)
{
    m_image = image;
    m_scaled = {};
    update();
}

void ImageView::paintEvent(QPaintEvent*)
{
    const QRectF place = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    const QRectF target = fittedRect(m_image.size(), place, largestEnlargement);
    if (target.isEmpty())
        return;
    const qreal pixels = devicePixelRatioF();
    const QSize size = (target.size() * pixels).toSize().expandedTo({1, 1});
    if (m_scaled.size() != size) {
        m_scaled = m_image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaled.setDevicePixelRatio(pixels);
    }
    QPainter painter(this);
    // On whole device pixels, or the picture would be smeared over its neighbours.
    const QPointF corner(
        std::round(target.x() * pixels) / pixels, std::round(target.y() * pixels) / pixels);
    painter.drawImage(corner, m_scaled);
}

} // namespace tomely
