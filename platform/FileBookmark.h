// A reference to a file that can be stored and found again later. Callers keep it as opaque data:
// only this file knows what it says, so that a later version can follow files that were moved.

#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace tomely {

/// Gives a reference to the file at `path` (made absolute against the current folder), whether or
/// not it exists. Gives null data when there is no way to name a file by `path`: it is empty or
/// holds a NUL character.
[[nodiscard]] QByteArray makeBookmark(const QString& path);

/// Gives the absolute path of the file that `bookmark` refers to. Gives nothing when `bookmark` was
/// not made by makeBookmark, is of a version this program does not know, or its file is gone.
[[nodiscard]] std::optional<QString> resolveBookmark(QByteArrayView bookmark);

} // namespace tomely
