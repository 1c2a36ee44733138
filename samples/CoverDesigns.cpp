#include "samples/CoverDesigns.h"

#include "samples/CoverLettering.h"
#include "samples/CoverPage.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>

namespace tomely {

namespace {

void diamond(QPainter& painter, QPointF centre, double radius)
{
    painter.drawPolygon(
        QPolygonF({{centre.x(), centre.y() - radius}, {centre.x() + radius, centre.y()},
            {centre.x(), centre.y() + radius}, {centre.x() - radius, centre.y()}}));
}

/// The pattern of a bound book's cloth: a lattice with a small diamond at every crossing, hardly
/// lighter than the ground.
void drawCloth(CoverPage& page)
{
    const CoverPalette& palette = page.palette;
    const double step = CoverPage::width / 10;
    rule(page.painter, mixed(palette.main, palette.paper, 0.14), 1);
    const int beyond = static_cast<int>(page.height / step) + 1;
    for (int line = -beyond; line <= 10 + beyond; ++line) {
        const double x = line * step;
        page.painter.drawLine(QPointF(x, 0), QPointF(x + page.height, page.height));
        page.painter.drawLine(QPointF(x, 0), QPointF(x - page.height, page.height));
    }
    fill(page.painter, mixed(palette.main, palette.second, 0.75));
    for (int row = 0; row <= 2 * beyond; ++row) {
        for (int column = 0; column <= 10; ++column) {
            const double x = (column + (row % 2 == 0 ? 0 : 0.5)) * step;
            diamond(page.painter, {x, row * step / 2}, 4.2);
        }
    }
}

/// A rosette of the kind engravers draw by machine: one closed curve, turned a little each time.
void drawRosette(QPainter& painter, QPointF centre, double radius, int petals, const QColor& color)
{
    rule(painter, color, 0.9);
    const int curves = 7;
    for (int curve = 0; curve < curves; ++curve) {
        const double turn = 2 * pi * curve / (curves * petals);
        const double depth = 0.16 + 0.03 * curve;
        QPainterPath path;
        const int steps = 360;
        for (int step = 0; step <= steps; ++step) {
            const double angle = 2 * pi * step / steps;
            const double reach = radius * (1 - depth + depth * std::cos(petals * (angle + turn)));
            const QPointF point =
                centre + QPointF(reach * std::cos(angle), reach * std::sin(angle));
            if (step == 0) {
                path.moveTo(point);
            } else {
                path.lineTo(point);
            }
        }
        painter.drawPath(path);
    }
}

void drawFrame(QPainter& painter, const QRectF& frame, const QColor& color)
{
    rule(painter, color, 2.6);
    painter.drawRect(frame);
    rule(painter, color, 0.9);
    const QRectF inner = frame.adjusted(9, 9, -9, -9);
    painter.drawRect(inner);
    for (const QPointF& corner :
        {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()}) {
        const QPointF inwards(
            corner.x() < inner.center().x() ? 1 : -1, corner.y() < inner.center().y() ? 1 : -1);
        painter.drawArc(QRectF(corner.x() - 22, corner.y() - 22, 44, 44),
            corner.y() < inner.center().y() ? (inwards.x() > 0 ? 270 : 180) * 16
                                            : (inwards.x() > 0 ? 0 : 90) * 16,
            90 * 16);
        fill(painter, color);
        diamond(painter, corner + inwards * 8.5, 3.4);
        rule(painter, color, 0.9);
    }
}

} // namespace

void drawLabelCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    painter.fillRect(page.area(), page.palette.main);
    drawCloth(page);

    const QRectF label(64, 74, CoverPage::width - 118, page.height * 0.60);
    painter.fillRect(label.adjusted(-10, -10, 10, 10), page.palette.main);
    rule(painter, page.palette.second, 2);
    painter.drawRect(label.adjusted(-9, -9, 9, 9));
    painter.fillRect(label, page.palette.paper);
    rule(painter, page.palette.main, 3);
    painter.drawRect(label.adjusted(9, 9, -9, -9));
    rule(painter, page.palette.main, 1);
    painter.drawRect(label.adjusted(14, 14, -14, -14));

    CoverLettering title;
    title.bold = true;
    title.color = page.palette.ink;
    title.largest = 66;
    const QRectF inside = label.adjusted(28, 28, -28, -28);
    drawCoverTitle(painter, inside.adjusted(0, 0, 0, -96), page.title, title);

    const QPointF middle(inside.center().x(), inside.bottom() - 80);
    rule(painter, page.palette.main, 1.4);
    painter.drawLine(middle - QPointF(78, 0), middle - QPointF(14, 0));
    painter.drawLine(middle + QPointF(14, 0), middle + QPointF(78, 0));
    fill(painter, page.palette.main);
    diamond(painter, middle, 6);

    CoverLettering author;
    author.italic = true;
    author.color = page.palette.ink;
    author.largest = 28;
    drawCoverText(
        painter, {inside.left(), inside.bottom() - 66, inside.width(), 66}, page.author, author);
}

void drawInitialCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    painter.fillRect(page.area(), page.palette.main);
    const CoverFace face = page.random.below(2) == 0 ? CoverFace::Serif : CoverFace::Sans;

    const QRectF box(52, 96, CoverPage::width - 90, page.height * 0.50);
    const QPainterPath letter = coverInitial(box, page.title, face, true);
    fill(painter, page.palette.second);
    painter.drawPath(letter);
    painter.save();
    painter.setClipPath(letter);
    rule(painter, mixed(page.palette.main, page.palette.ink, 0.25), 3);
    const double slope = page.random.below(2) == 0 ? 0.0 : 0.6;
    const int lines = static_cast<int>((page.height + CoverPage::width) / 9);
    for (int line = 0; line <= lines; ++line) {
        const double y = line * 9 - CoverPage::width;
        painter.drawLine(QPointF(0, y), QPointF(CoverPage::width, y + slope * CoverPage::width));
    }
    painter.restore();

    rule(painter, page.palette.paper, 1.4);
    painter.drawLine(QPointF(44, 78), QPointF(CoverPage::width - 30, 78));
    const double foot = box.bottom() + 22;
    painter.drawLine(QPointF(44, foot), QPointF(CoverPage::width - 30, foot));

    CoverLettering author;
    author.face = face;
    author.capitals = true;
    author.spacing = 12;
    author.color = page.palette.paper;
    author.largest = 23;
    author.alignment = Qt::AlignLeft | Qt::AlignBottom;
    drawCoverText(painter, {44, 26, CoverPage::width - 74, 42}, page.author, author);

    CoverLettering title;
    title.face = face;
    title.bold = true;
    title.color = page.palette.paper;
    title.largest = 64;
    title.alignment = Qt::AlignLeft | Qt::AlignTop;
    drawCoverTitle(painter, {44, foot + 12, CoverPage::width - 74, page.height - foot - 38},
        page.title, title);
}

void drawOrnamentCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    const bool dark = page.random.below(2) == 0;
    const QColor ground = dark ? page.palette.main : page.palette.paper;
    const QColor words = dark ? page.palette.paper : page.palette.ink;
    const QColor lines =
        dark ? mixed(page.palette.second, page.palette.paper, 0.25) : page.palette.main;
    painter.fillRect(page.area(), ground);
    const QRectF frame(36, 24, CoverPage::width - 60, page.height - 48);
    drawFrame(painter, frame, lines);

    const double centre = frame.center().x();
    CoverLettering title;
    title.capitals = page.title.size() < 26;
    title.spacing = title.capitals ? 6 : 0;
    title.color = words;
    title.largest = 56;
    drawCoverTitle(painter,
        {frame.left() + 36, frame.top() + 40, frame.width() - 72, page.height * 0.33}, page.title,
        title);

    const int petals = 6 + 2 * page.random.below(5);
    const QPointF middle(centre, page.height * 0.62);
    const double radius = 98;
    drawRosette(painter, middle, radius, petals, lines);
    drawRosette(painter, middle, radius * 0.56, petals, mixed(lines, words, 0.35));
    fill(painter, ground);
    painter.drawEllipse(middle, 17, 17);
    fill(painter, lines);
    painter.drawEllipse(middle, 6, 6);

    CoverLettering author;
    author.italic = true;
    author.color = words;
    author.largest = 28;
    drawCoverText(painter, {frame.left() + 40, frame.bottom() - 92, frame.width() - 80, 60},
        page.author, author);
}

namespace {

/// The figure on the dividing line: a disc, a target, a lozenge or a pair of discs.
QPainterPath splitFigure(CoverPage& page, QPointF centre, double radius)
{
    QPainterPath figure;
    switch (page.random.below(4)) {
    case 0:
        figure.addEllipse(centre, radius, radius);
        break;
    case 1:
        for (int ring = 0; ring < 4; ++ring) {
            const double reach = radius * (1.05 - 0.27 * ring);
            figure.addEllipse(centre, reach, reach);
        }
        break;
    case 2:
        figure.addPolygon(
            QPolygonF({centre - QPointF(0, radius * 1.15), centre + QPointF(radius * 1.15, 0),
                centre + QPointF(0, radius * 1.15), centre - QPointF(radius * 1.15, 0)}));
        figure.closeSubpath();
        break;
    default:
        figure.addEllipse(centre - QPointF(radius * 0.5, 0), radius * 0.85, radius * 0.85);
        figure.addEllipse(centre + QPointF(radius * 0.5, 0), radius * 0.85, radius * 0.85);
        break;
    }
    return figure;
}

} // namespace

void drawSplitCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    const CoverPalette& palette = page.palette;
    const double edge = page.height * 0.56;
    const double slant = (page.random.below(2) == 0 ? 1 : -1) * page.random.between(30, 62);
    QPainterPath lower;
    lower.moveTo(0, edge + slant);
    lower.lineTo(CoverPage::width, edge - slant);
    lower.lineTo(CoverPage::width, page.height);
    lower.lineTo(0, page.height);
    lower.closeSubpath();
    const QColor below = page.random.below(3) == 0 ? palette.ink : palette.main;
    fill(painter, below);
    painter.drawPath(lower);

    const double radius = page.random.between(94, 108);
    const double across = CoverPage::width * (slant > 0 ? 0.62 : 0.42) + 8;
    const QPainterPath figure = splitFigure(page, {across, edge + 22}, radius);
    fill(painter, palette.second);
    painter.drawPath(figure.subtracted(lower));
    fill(painter, mixed(palette.second, below, 0.55));
    painter.drawPath(figure.intersected(lower));

    CoverLettering title;
    title.face = CoverFace::Sans;
    title.bold = true;
    title.color = palette.ink;
    title.largest = 76;
    title.alignment = Qt::AlignLeft | Qt::AlignTop;
    drawCoverTitle(painter, {44, 32, CoverPage::width - 76, edge - radius - 46}, page.title, title);

    CoverLettering author;
    author.face = CoverFace::Sans;
    author.color = palette.paper;
    author.largest = 30;
    author.alignment = Qt::AlignLeft | Qt::AlignBottom;
    drawCoverText(painter, {44, page.height - 110, CoverPage::width - 76, 80}, page.author, author);
}

void drawGridCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    const bool dark = page.random.below(3) != 0;
    painter.fillRect(page.area(), dark ? page.palette.main : page.palette.paper);
    const QColor words = dark ? page.palette.paper : page.palette.ink;
    const QColor dots = dark ? page.palette.second : page.palette.main;

    const int columns = 12;
    const double left = 44;
    const double step = (CoverPage::width - left - 30) / columns;
    const double top = page.height * 0.47;
    const int rows = static_cast<int>((page.height - 34 - top) / step);
    const double heavyX = page.random.between(0.1, 0.9) * columns;
    const double heavyY = page.random.between(0.2, 0.8) * rows;
    const bool round = page.random.below(2) == 0;
    fill(painter, dots);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const double distance = std::hypot(column + 0.5 - heavyX, row + 0.5 - heavyY);
            const double side = step * (0.14 + 0.78 * std::exp(-distance * distance / 16));
            const QPointF centre(left + (column + 0.5) * step, top + (row + 0.5) * step);
            const QRectF dot(centre.x() - side / 2, centre.y() - side / 2, side, side);
            if (round) {
                painter.drawEllipse(dot);
            } else {
                painter.drawRect(dot);
            }
        }
    }

    rule(painter, words, 5);
    painter.drawLine(QPointF(left, 40), QPointF(CoverPage::width - 30, 40));
    CoverLettering author;
    author.face = CoverFace::Sans;
    author.color = words;
    author.largest = 24;
    author.alignment = Qt::AlignLeft | Qt::AlignTop;
    const QRectF line =
        drawCoverText(painter, {left, 52, CoverPage::width - left - 30, 50}, page.author, author);

    CoverLettering title = author;
    title.bold = true;
    title.largest = 84;
    title.spacing = -2;
    const double titleTop = line.bottom() + 8;
    drawCoverTitle(painter, {left, titleTop, CoverPage::width - left - 30, top - 16 - titleTop},
        page.title, title);
}

namespace {

/// One square of a modernist composition: a quarter or half disc, a triangle, a ring or bars.
void drawTile(QPainter& painter, const QRectF& tile, int kind, int turns)
{
    const double side = tile.width();
    painter.save();
    painter.setClipRect(tile);
    painter.translate(tile.center());
    painter.rotate(90.0 * turns);
    const QRectF square(-side / 2, -side / 2, side, side);
    switch (kind) {
    case 0:
        painter.drawEllipse(square.topLeft(), side, side);
        break;
    case 1:
        painter.drawEllipse(QPointF(0, side / 2), side / 2, side / 2);
        break;
    case 2:
        painter.drawPolygon(QPolygonF({square.topLeft(), square.topRight(), square.bottomLeft()}));
        break;
    case 3:
        painter.drawEllipse(QPointF(0, 0), side * 0.36, side * 0.36);
        break;
    case 4:
        for (int bar = 0; bar < 4; ++bar) {
            painter.drawRect(QRectF(-side / 2, -side / 2 + bar * side / 4, side, side / 8));
        }
        break;
    default:
        painter.drawRect(QRectF(-side / 2, -side / 2, side / 2, side));
        break;
    }
    painter.restore();
}

} // namespace

void drawShapesCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    const int across = 4;
    const int down = 4;
    const double side = CoverPage::width / across;
    const std::array<QColor, 5> colors = {page.palette.main, page.palette.second,
        page.palette.third, page.palette.ink, page.palette.paper};
    int before = -1;
    for (int row = 0; row < down; ++row) {
        for (int column = 0; column < across; ++column) {
            const QRectF tile(column * side, row * side, side, side);
            const int ground = page.random.below(5);
            const int figure = (ground + 1 + page.random.below(4)) % 5;
            int kind = page.random.below(6);
            kind = kind == before ? (kind + 1) % 6 : kind;
            before = kind;
            painter.fillRect(tile, colors.at(static_cast<std::size_t>(ground)));
            fill(painter, colors.at(static_cast<std::size_t>(figure)));
            drawTile(painter, tile, kind, page.random.below(4));
        }
    }
    const double foot = down * side;
    painter.fillRect(QRectF(0, foot, CoverPage::width, page.height - foot), page.palette.paper);

    CoverLettering title;
    title.face = CoverFace::Sans;
    title.bold = true;
    title.color = page.palette.ink;
    title.largest = 60;
    title.alignment = Qt::AlignLeft | Qt::AlignTop;
    const double room = page.height - foot;
    drawCoverTitle(painter, {40, foot + 16, CoverPage::width - 66, room - 72}, page.title, title);
    CoverLettering author;
    author.face = CoverFace::Sans;
    author.color = page.palette.main;
    author.bold = true;
    author.largest = 24;
    author.alignment = Qt::AlignLeft | Qt::AlignBottom;
    drawCoverText(painter, {40, page.height - 56, CoverPage::width - 66, 36}, page.author, author);
}

} // namespace tomely
