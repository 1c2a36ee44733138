// Icons drawn in one colour, taken from the palette at the moment of painting, so that one set of
// pictures works in light and dark and on a selected row.

#pragma once

#include <QIcon>

namespace tomely {

/// The icon of the SVG resource `:/icons/NAME.svg`, whose shapes are what is drawn and whose own
/// colours do not matter.
QIcon symbolicIcon(const QString& name);

} // namespace tomely
