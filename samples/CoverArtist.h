// Draws covers for the sample books. Their real covers belong to the publishers, so these are
// designs of our own: lettering and plain geometry, with colours and details that follow from the
// title.

#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

class QSize;

namespace tomely {

/// The designs a cover can be drawn in; the table names them.
class CoverArtist {
public:
    static QStringList designs();

    /// Draws a cover; deterministic for the same design, title and author. Returns a null image for
    /// an unknown design.
    static QImage draw(
        const QString& design, const QString& title, const QString& author, QSize size);
};

} // namespace tomely
