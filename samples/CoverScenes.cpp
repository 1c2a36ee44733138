#include "samples/CoverDesigns.h"

#include "samples/CoverLettering.h"
#include "samples/CoverPage.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <array>
#include <cmath>

namespace tomely {

namespace {

/// A ridge from edge to edge: two waves of different length, so that no hill repeats.
QPainterPath ridge(CoverPage& page, double level, double rise)
{
    const double phase = page.random.between(0, 2 * pi);
    const double length = page.random.between(260, 420);
    const double shortPhase = page.random.between(0, 2 * pi);
    QPainterPath path;
    path.moveTo(0, page.height);
    const int steps = 109;
    for (int step = 0; step <= steps; ++step) {
        const double x = CoverPage::width * step / steps;
        path.lineTo(x,
            level - rise * std::sin(2 * pi * x / length + phase)
                - rise * 0.35 * std::sin(2 * pi * x / (length * 0.43) + shortPhase));
    }
    path.lineTo(CoverPage::width, page.height);
    path.closeSubpath();
    return path;
}

} // namespace

void drawHillsCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    const CoverPalette& palette = page.palette;
    QLinearGradient sky(0, 0, 0, page.height * 0.75);
    sky.setColorAt(0, palette.paper);
    sky.setColorAt(1, mixed(palette.paper, palette.second, 0.62));
    painter.fillRect(page.area(), sky);

    const double horizon = page.height * 0.52;
    const double sunX = CoverPage::width * page.random.between(0.3, 0.75);
    fill(painter, mixed(palette.second, palette.paper, 0.25));
    painter.drawEllipse(QPointF(sunX, horizon - 8), 84, 84);
    fill(painter, palette.second);
    painter.drawEllipse(QPointF(sunX, horizon - 8), 64, 64);

    const int layers = 6;
    for (int layer = 0; layer < layers; ++layer) {
        const double depth = layer / (layers - 1.0);
        const double level = horizon + 16 + (page.height * 0.40) * depth;
        const QColor far = mixed(palette.main, palette.paper, 0.62);
        const QColor color = depth < 0.7
            ? mixed(far, palette.main, depth / 0.7)
            : mixed(palette.main, palette.ink, (depth - 0.7) / 0.3 * 0.85);
        fill(painter, color);
        painter.drawPath(ridge(page, level, 24 - 2.2 * layer));
    }

    CoverLettering title;
    title.bold = true;
    title.color = palette.ink;
    title.largest = 74;
    title.alignment = Qt::AlignHCenter | Qt::AlignVCenter;
    drawCoverTitle(painter, {46, 34, CoverPage::width - 78, horizon - 138}, page.title, title);
    CoverLettering author;
    author.capitals = true;
    author.spacing = 10;
    author.color = palette.paper;
    author.largest = 24;
    drawCoverText(painter, {46, page.height - 70, CoverPage::width - 78, 50}, page.author, author);
}

namespace {

/// The sea as it is stamped on cloth and paper: rows of scales, each row half hidden by the next.
void drawScales(CoverPage& page, double top)
{
    const CoverPalette& palette = page.palette;
    const int across = 4 + page.random.below(3);
    const double radius = CoverPage::width / (2 * across);
    const std::array<QColor, 4> rings = {
        palette.main, palette.paper, mixed(palette.main, palette.paper, 0.35), palette.paper};
    const int rows = static_cast<int>((page.height - top) / (radius / 2)) + 2;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column <= across; ++column) {
            const QPointF centre((2 * column + row % 2) * radius, top + radius + row * radius / 2);
            for (std::size_t ring = 0; ring < rings.size(); ++ring) {
                const double reach = radius * (1 - 0.23 * static_cast<double>(ring));
                fill(page.painter, rings.at(ring));
                page.painter.drawEllipse(centre, reach, reach);
            }
            fill(page.painter, row == 3 || row == 8 ? palette.third : palette.second);
            page.painter.drawEllipse(centre, radius * 0.14, radius * 0.14);
        }
    }
}

} // namespace

void drawWavesCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    const CoverPalette& palette = page.palette;
    painter.fillRect(page.area(), palette.paper);
    const double top = page.height * 0.50;
    drawScales(page, top);

    CoverLettering title;
    title.bold = true;
    title.color = palette.ink;
    title.largest = 76;
    const QRectF words(44, 34, CoverPage::width - 74, top - 96);
    drawCoverTitle(painter, words, page.title, title);
    CoverLettering author;
    author.italic = true;
    author.color = palette.main;
    author.largest = 28;
    drawCoverText(painter, {44, top - 58, CoverPage::width - 74, 48}, page.author, author);
}

namespace {

/// Where words will stand there are only faint stars: a bright one beside a letter looks like a
/// slip of the printer.
bool isBehindWords(const CoverPage& page, QPointF place)
{
    return place.y() < page.height * 0.41 || place.y() > page.height - 84;
}

void drawStarField(CoverPage& page, const QColor& light)
{
    for (int star = 0; star < 260; ++star) {
        const QPointF place(
            page.random.between(0, CoverPage::width), page.random.between(0, page.height));
        const bool faint = isBehindWords(page, place);
        const double brightness = page.random.between(0, faint ? 0.55 : 1);
        const double radius = 0.5 + 1.5 * brightness * brightness * brightness;
        QColor color = light;
        color.setAlphaF(static_cast<float>(0.3 + 0.7 * brightness));
        fill(page.painter, color);
        page.painter.drawEllipse(place, radius, radius);
        if (!faint && star % 12 == 0) {
            rule(page.painter, color, 0.8);
            page.painter.drawLine(place - QPointF(7, 0), place + QPointF(7, 0));
            page.painter.drawLine(place - QPointF(0, 7), place + QPointF(0, 7));
        }
    }
}

void drawOrbits(CoverPage& page, QPointF centre)
{
    QColor orbit = page.palette.paper;
    orbit.setAlpha(70);
    for (int ring = 0; ring < 4; ++ring) {
        const double reach = 150 + 62 * ring;
        rule(page.painter, orbit, 1);
        page.painter.drawEllipse(centre, reach, reach);
        fill(page.painter, ring % 2 == 0 ? page.palette.second : page.palette.paper);
        for (int attempt = 0; attempt < 20; ++attempt) {
            const double angle = page.random.between(0, 2 * pi);
            const QPointF place = centre + reach * QPointF(std::cos(angle), std::sin(angle));
            if (page.area().adjusted(30, 0, -16, 0).contains(place)
                && !isBehindWords(page, place)) {
                page.painter.drawEllipse(place, 7.5 - ring, 7.5 - ring);
                break;
            }
        }
    }
}

/// The rings go round a planet: the far half is drawn before it and the near half after.
void drawRings(CoverPage& page, QPointF centre, double radius, bool near, double tilt)
{
    QPainter& painter = page.painter;
    painter.save();
    painter.translate(centre);
    painter.rotate(tilt);
    for (int ring = 0; ring < 3; ++ring) {
        const double reach = radius * (1.38 + 0.16 * ring);
        rule(
            painter, mixed(page.palette.second, page.palette.paper, 0.3 * ring), ring == 1 ? 6 : 2);
        painter.drawArc(
            QRectF(-reach, -reach * 0.26, 2 * reach, reach * 0.52), near ? 180 * 16 : 0, 180 * 16);
    }
    painter.restore();
}

void drawPlanet(CoverPage& page, QPointF centre, double radius)
{
    const double tilt = page.random.between(-24, 24);
    const bool ringed = page.random.below(3) != 0;
    if (ringed) {
        drawRings(page, centre, radius, false, tilt);
    }
    QPainter& painter = page.painter;
    QPainterPath disc;
    disc.addEllipse(centre, radius, radius);
    QLinearGradient light(
        centre - QPointF(radius * 0.8, radius * 0.8), centre + QPointF(radius * 0.8, radius * 0.8));
    light.setColorAt(0, mixed(page.palette.second, page.palette.paper, 0.35));
    light.setColorAt(0.45, page.palette.second);
    light.setColorAt(1, mixed(page.palette.second, page.palette.ink, 0.8));
    fill(painter, light);
    painter.drawPath(disc);
    painter.save();
    painter.setClipPath(disc);
    painter.translate(centre);
    painter.rotate(tilt);
    for (int belt = -3; belt <= 3; ++belt) {
        QColor shade = page.palette.ink;
        shade.setAlpha(belt % 2 == 0 ? 34 : 14);
        fill(painter, shade);
        const double thickness = page.random.between(0.07, 0.2) * radius;
        painter.drawEllipse(QPointF(0, belt * radius * 0.27), radius * 1.3, thickness);
    }
    painter.restore();
    if (ringed) {
        drawRings(page, centre, radius, true, tilt);
    }
}

} // namespace

void drawStarsCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    const CoverPalette& palette = page.palette;
    const QColor midnight(0x1a2450);
    const QColor night = mixed(palette.ink, Qt::black, 0.45);
    QLinearGradient sky(0, 0, 0, page.height);
    sky.setColorAt(0, night);
    sky.setColorAt(0.6, mixed(mixed(palette.ink, palette.main, 0.35), midnight, 0.4));
    sky.setColorAt(1, mixed(palette.main, palette.second, 0.18));
    painter.fillRect(page.area(), sky);
    drawStarField(page, palette.paper);

    const QPointF centre(CoverPage::width * page.random.between(0.40, 0.64), page.height * 0.63);
    drawOrbits(page, centre);
    drawPlanet(page, centre, page.random.between(74, 92));

    CoverLettering title;
    title.face = CoverFace::Sans;
    title.capitals = page.title.size() < 34;
    title.bold = true;
    title.spacing = title.capitals ? 5 : 0;
    title.color = palette.paper;
    title.largest = 74;
    drawCoverTitle(painter, {42, 36, CoverPage::width - 70, page.height * 0.33}, page.title, title);
    CoverLettering author;
    author.face = CoverFace::Sans;
    author.capitals = true;
    author.spacing = 14;
    author.color = palette.paper;
    author.largest = 23;
    drawCoverText(painter, {42, page.height - 70, CoverPage::width - 70, 48}, page.author, author);
}

void drawSunburstCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    const CoverPalette& palette = page.palette;
    painter.fillRect(page.area(), palette.main);
    const double foot = 104;
    const QPointF centre(CoverPage::width / 2 + 5, (page.height - foot) * 0.5);
    const int rays = 18 + 2 * page.random.below(5);
    const double reach = page.height;
    fill(painter, palette.second);
    for (int ray = 0; ray < rays; ++ray) {
        const double from = 2 * pi * ray / rays;
        const double to = from + pi / rays;
        painter.drawPolygon(
            QPolygonF({centre, centre + reach * QPointF(std::cos(from), std::sin(from)),
                centre + reach * QPointF(std::cos(to), std::sin(to))}));
    }
    const double radius = 164;
    fill(painter, palette.main);
    painter.drawEllipse(centre, radius + 16, radius + 16);
    fill(painter, palette.paper);
    painter.drawEllipse(centre, radius, radius);
    rule(painter, palette.main, 1.4);
    painter.drawEllipse(centre, radius - 9, radius - 9);

    painter.fillRect(QRectF(0, page.height - foot, CoverPage::width, foot), palette.ink);
    painter.fillRect(QRectF(0, page.height - foot - 7, CoverPage::width, 7), palette.paper);

    CoverLettering title;
    title.bold = true;
    title.color = palette.ink;
    title.largest = 64;
    const double half = radius * 0.70;
    drawCoverTitle(painter,
        {centre.x() - half * 1.12, centre.y() - half * 0.88, half * 2.24, half * 1.76}, page.title,
        title);
    CoverLettering author;
    author.capitals = true;
    author.spacing = 8;
    author.color = palette.paper;
    author.largest = 26;
    drawCoverText(painter, {44, page.height - foot + 18, CoverPage::width - 74, foot - 36},
        page.author, author);
}

void drawStripesCover(CoverPage& page)
{
    QPainter& painter = page.painter;
    const CoverPalette& palette = page.palette;
    painter.fillRect(page.area(), palette.paper);
    const std::array<QColor, 5> colors = {palette.ink, palette.main,
        mixed(palette.main, palette.second, 0.5), palette.second, palette.third};
    const double band = 25;
    const bool mirrored = page.random.below(2) == 0;
    painter.save();
    if (mirrored) {
        painter.translate(CoverPage::width, 0);
        painter.scale(-1, 1);
    }
    // The stripes come down from the top edge and turn off sideways, all around one corner.
    const double edge = page.random.between(150, 200);
    const double turn = page.height * page.random.between(0.20, 0.26);
    const QPointF corner(edge + 150, turn);
    for (std::size_t stripe = 0; stripe < colors.size(); ++stripe) {
        const double reach = 150 + band * (2 - static_cast<double>(stripe)) + 20;
        QPainterPath path;
        path.moveTo(corner.x() - reach, -band);
        path.lineTo(corner.x() - reach, corner.y());
        path.arcTo(QRectF(corner.x() - reach, corner.y() - reach, 2 * reach, 2 * reach), 180, 90);
        path.lineTo(CoverPage::width + band, corner.y() + reach);
        painter.setPen(QPen(colors.at(stripe), band + 0.6, Qt::SolidLine, Qt::FlatCap));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(path);
    }
    painter.restore();

    CoverLettering title;
    title.face = CoverFace::Sans;
    title.bold = true;
    title.color = palette.ink;
    title.largest = 68;
    title.alignment = (mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignBottom;
    const double top = turn + 150 + 20 + band * 2.5 + 14;
    drawCoverTitle(
        painter, {42, top, CoverPage::width - 70, page.height - top - 84}, page.title, title);
    CoverLettering author = title;
    author.bold = false;
    author.largest = 27;
    author.color = palette.main;
    drawCoverText(painter, {42, page.height - 74, CoverPage::width - 70, 46}, page.author, author);
}

} // namespace tomely
