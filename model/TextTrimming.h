// Trimming as the catalogue means it: of a short, fixed set of characters and no other white space,
// so that a no-break space or an ideographic space that somebody typed stays.

#pragma once

#include <QString>
#include <QStringView>

namespace tomely {

/// `text` without its leading and trailing spaces, tabs, carriage returns and line feeds. A text
/// made only of them becomes the empty string; a null text stays null.
QString trimmedText(const QString& text);

/// The part of `text` that trimmedText() keeps.
QStringView trimmedView(QStringView text);

/// Like trimmedText(), and colons go too: labels are typed as "Signed by:".
QString trimmedLabel(const QString& label);

} // namespace tomely
