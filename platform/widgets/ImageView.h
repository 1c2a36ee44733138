// Shows one picture as large as its place allows: in proportion, sharp at any screen scale, and
// never enlarged so far that it only shows its pixels.

#pragma once

#include <QImage>
#include <QWidget>

namespace tomely {

class ImageView : public QWidget {
    Q_OBJECT

public:
    /// A picture is shown at most this many times its size, in points.
    static constexpr double largestEnlargement = 2;

    explicit ImageView(QWidget* parent = nullptr);

    /// A null image shows nothing.
    void setImage(const QImage& image);

    const QImage& image() const { return m_image; }

    /// The room between the widget's edge and the largest picture, in points.
    int pictureMargin() const { return m_margin; }

    void setPictureMargin(int margin);

    /// Where the picture is painted; empty when there is none.
    QRectF pictureRect() const;

    QSize sizeHint() const override { return {218, 240}; }

    QSize minimumSizeHint() const override { return {60, 60}; }

protected:
    void paintEvent(QPaintEvent* event) override;

    /// For a derived class that paints more than the picture.
    void paintPicture(QPainter& painter);

private:
    int m_margin = 10;
    QImage m_image;
    QImage m_scaled; // m_image at the size on screen, made when it is painted
};

/// Where a picture of `image` pixels is shown within `place`: centred, in proportion, enlarged by
/// no more than `largest` and not by a few percent only.
QRectF fittedRect(QSize image, const QRectF& place, double largest);

} // namespace tomely
