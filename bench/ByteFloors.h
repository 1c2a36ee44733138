// What the bytes of a file alone cost, for the floors of opening, saving and exporting.

#pragma once

#include <QByteArray>
#include <QString>

namespace tomely {

/// All bytes of a file; empty when it cannot be read.
QByteArray readBytes(const QString& path);

/// Writes and syncs the bytes beside the target and renames them onto it.
bool writeSynced(const QString& path, const QByteArray& bytes);

} // namespace tomely
