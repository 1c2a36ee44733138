// Sets the words of a cover: finds the largest size at which a title of any length and in any
// script fits its box, and breaks it into lines of even width, since nobody looks a cover over
// afterwards.

#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;
class QPainterPath;

namespace tomely {

enum class CoverFace { Serif, Sans };

struct CoverLettering {
    CoverFace face = CoverFace::Serif;
    bool bold = false;
    bool italic = false;
    /// Only scripts that have capitals, and look right in them, are set in them.
    bool capitals = false;
    /// Extra space between the letters, in percent; left out where it would tear a script apart.
    double spacing = 0;
    QColor color;
    double largest = 60;
    double smallest = 12;
    Qt::Alignment alignment = Qt::AlignCenter;
};

/// What comes after a colon is set smaller, on lines of its own. Returns what the words cover.
QRectF drawCoverTitle(
    QPainter& painter, const QRectF& box, const QString& title, const CoverLettering& lettering);

QRectF drawCoverText(
    QPainter& painter, const QRectF& box, const QString& text, const CoverLettering& lettering);

/// The outline of the letter a title is known by, which is not the one of its article, scaled to
/// fill the box as far as its shape lets it.
QPainterPath coverInitial(const QRectF& box, const QString& title, CoverFace face, bool bold);

} // namespace tomely
