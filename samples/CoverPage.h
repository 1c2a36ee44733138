// What a cover design is given to draw on: the page, the words and the colours, and a supply of
// numbers that is the same on every run and every machine.

#pragma once

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <numbers>

namespace tomely {

inline constexpr double pi = std::numbers::pi;

/// Qt's own hashes and generators may change between runs or versions, and a cover must not.
class CoverRandom {
public:
    explicit CoverRandom(const QString& seed)
    {
        const QByteArray bytes = seed.toUtf8();
        for (const char byte : bytes) {
            m_state = (m_state ^ static_cast<std::uint8_t>(byte)) * 0x100000001b3U;
        }
    }

    int below(int limit)
    {
        m_state += 0x9e3779b97f4a7c15U;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30U)) * 0xbf58476d1ce4e5b9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94d049bb133111ebU;
        mixed ^= mixed >> 31U;
        return static_cast<int>(mixed % static_cast<std::uint64_t>(limit));
    }

    double between(double low, double high) { return low + (high - low) * below(10001) / 10000.0; }

private:
    std::uint64_t m_state = 0xcbf29ce484222325U;
};

/// Paper is light and ink is dark in every palette, and main is dark enough to carry paper-coloured
/// words; second and third are for decoration.
struct CoverPalette {
    QColor paper;
    QColor ink;
    QColor main;
    QColor second;
    QColor third;
};

/// Designs draw in units of which the page is always 436 wide, whatever the size of the image.
struct CoverPage {
    static constexpr double width = 436;

    QPainter& painter;
    double height;
    CoverPalette palette;
    QString title;
    QString author;
    CoverRandom random;

    QRectF area() const { return {0, 0, width, height}; }
};

/// Shapes drawn after this are filled and have no outline.
inline void fill(QPainter& painter, const QBrush& brush)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
}

/// Shapes drawn after this are outlines.
inline void rule(QPainter& painter, const QColor& color, double thickness)
{
    painter.setPen(QPen(color, thickness));
    painter.setBrush(Qt::NoBrush);
}

/// A colour part of the way from one to another.
inline QColor mixed(const QColor& from, const QColor& to, double part)
{
    const auto between = [part](int low, int high) {
        return low + qRound((high - low) * part);
    };
    return {between(from.red(), to.red()), between(from.green(), to.green()),
        between(from.blue(), to.blue())};
}

} // namespace tomely
