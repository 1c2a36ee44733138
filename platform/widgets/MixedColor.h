// A colour between two of a palette, so that shades fit light, dark and high-contrast palettes.

#pragma once

#include <QColor>

namespace tomely {

/// The colour on the way from one to the other; share runs from 0 to 1.
inline QColor between(const QColor& from, const QColor& to, float share)
{
    const auto mixed = [share](float a, float b) {
        return a + (b - a) * share;
    };
    return QColor::fromRgbF(mixed(from.redF(), to.redF()), mixed(from.greenF(), to.greenF()),
        mixed(from.blueF(), to.blueF()));
}

} // namespace tomely
