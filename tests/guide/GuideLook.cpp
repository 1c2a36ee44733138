#include "tests/guide/GuideLook.h"

#include <QApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// The colours from which a desktop's others follow.
struct Colors {
    QRgb window;
    QRgb text;
    QRgb dimmedText;
    QRgb base;
    QRgb alternateBase;
    QRgb button;
    QRgb highlight;
    QRgb link;
    QRgb toolTip;
};

const Colors light{
    0xefefef, 0x000000, 0xa0a0a0, 0xffffff, 0xf5f5f5, 0xefefef, 0x2a78b4, 0x0057ae, 0xffffdc};
const Colors dark{
    0x2a2e32, 0xfcfcfc, 0x7d8287, 0x1b1e20, 0x232629, 0x31363b, 0x2a78b4, 0x1d99f3, 0x31363b};

QPalette paletteOf(const Colors& colors)
{
    QPalette palette{QColor(colors.button), QColor(colors.window)};
    const std::initializer_list<std::pair<QPalette::ColorRole, QRgb>> roles = {
        {QPalette::WindowText, colors.text},
        {QPalette::Text, colors.text},
        {QPalette::ButtonText, colors.text},
        {QPalette::Base, colors.base},
        {QPalette::AlternateBase, colors.alternateBase},
        {QPalette::Highlight, colors.highlight},
        {QPalette::HighlightedText, 0xffffff},
        {QPalette::BrightText, 0xffffff},
        {QPalette::Link, colors.link},
        {QPalette::ToolTipBase, colors.toolTip},
        {QPalette::ToolTipText, colors.text},
    };
    for (const auto& [role, color] : roles)
        palette.setColor(role, QColor(color));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(colors.dimmedText));
    QColor hint(colors.text);
    hint.setAlphaF(0.5F); // as the toolkit has it by itself
    palette.setColor(QPalette::PlaceholderText, hint);
    return palette;
}

} // namespace

void setGuideLook(bool isDark)
{
    QApplication::setStyle(u"Fusion"_s);
    QApplication::setPalette(paletteOf(isDark ? dark : light));
    QApplication::setCursorFlashTime(0);
}

} // namespace tomely
