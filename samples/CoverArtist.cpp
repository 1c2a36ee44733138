#include "samples/CoverArtist.h"

#include "samples/CoverDesigns.h"
#include "samples/CoverPage.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <array>

namespace tomely {

namespace {

struct Design {
    const char16_t* name;
    void (*draw)(CoverPage&);
};

constexpr std::array designTable = {
    Design{u"grid", drawGridCover},
    Design{u"hills", drawHillsCover},
    Design{u"initial", drawInitialCover},
    Design{u"label", drawLabelCover},
    Design{u"ornament", drawOrnamentCover},
    Design{u"shapes", drawShapesCover},
    Design{u"split", drawSplitCover},
    Design{u"stars", drawStarsCover},
    Design{u"stripes", drawStripesCover},
    Design{u"sunburst", drawSunburstCover},
    Design{u"waves", drawWavesCover},
};

constexpr int paletteCount = 10;

CoverPalette paletteAt(int index)
{
    static const std::array<CoverPalette, paletteCount> palettes = {{
        {0xf4ede0, 0x16263a, 0x1f4e6b, 0xd9822b, 0x8fb3b5},
        {0xf6eee3, 0x2b1a17, 0xa63d2f, 0xe3b04b, 0x3e5c5a},
        {0xf2f0e4, 0x17251c, 0x2f5d46, 0xc9a227, 0xa9bfa0},
        {0xf5ecee, 0x2a1730, 0x5b2a55, 0xe08e79, 0xc9b6d3},
        {0xfaf3e0, 0x2a2115, 0x9a5a0b, 0xe5b75a, 0x5e7f7a},
        {0xeff5f1, 0x0f2a2e, 0x0f6b6b, 0xf2a65a, 0xd1495b},
        {0xedeff5, 0x12152b, 0x27316b, 0xf0c24b, 0xe4576a},
        {0xfbefea, 0x2c1b20, 0xb23a55, 0xf3b391, 0x39545e},
        {0xf0f0ec, 0x1d2227, 0x3e4a56, 0xe4572e, 0xa8b5a2},
        {0xf4f2e1, 0x22240f, 0x5b6221, 0xd66b2d, 0xb9c08a},
    }};
    return palettes.at(static_cast<std::size_t>(index));
}

/// The table is typed with straight apostrophes; print has none. And a title of one word stays on
/// one line, hyphen or not.
QString typographic(QString text)
{
    text.replace(u'\'', QChar(0x2019));
    if (!text.contains(u' ')) {
        text.replace(u'-', QChar(0x2011));
    }
    return text;
}

/// A flat picture looks like a poster; the fold beside the spine makes it a book.
void drawFold(CoverPage& page)
{
    QLinearGradient fold(0, 0, 22, 0);
    fold.setColorAt(0, QColor(0, 0, 0, 46));
    fold.setColorAt(0.35, QColor(0, 0, 0, 8));
    fold.setColorAt(0.55, QColor(0, 0, 0, 40));
    fold.setColorAt(0.72, QColor(255, 255, 255, 40));
    fold.setColorAt(1, QColor(255, 255, 255, 0));
    page.painter.fillRect(QRectF(0, 0, 22, page.height), fold);
    page.painter.setPen(QPen(QColor(0, 0, 0, 50), 1));
    page.painter.setBrush(Qt::NoBrush);
    page.painter.drawRect(page.area().adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace

QStringList CoverArtist::designs()
{
    QStringList names;
    for (const Design& design : designTable) {
        names << QString::fromUtf16(design.name);
    }
    return names;
}

QImage CoverArtist::draw(
    const QString& design, const QString& title, const QString& author, QSize size)
{
    const auto* const found = std::find_if(designTable.begin(), designTable.end(),
        [&design](const Design& candidate) { return QStringView(candidate.name) == design; });
    if (found == designTable.end() || size.isEmpty()) {
        return {};
    }
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const double scale = size.width() / CoverPage::width;
    painter.scale(scale, scale);

    CoverRandom random(title + u'\n' + author);
    const CoverPalette palette = paletteAt(random.below(paletteCount));
    CoverPage page{
        painter, size.height() / scale, palette, typographic(title), typographic(author), random};
    painter.fillRect(page.area(), palette.paper);
    found->draw(page);
    drawFold(page);
    return image;
}

} // namespace tomely
