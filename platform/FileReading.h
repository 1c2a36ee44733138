// Reading a whole file into memory, with its failures in words.

#pragma once

#include "platform/Progress.h"

#include <QByteArray>
#include <QString>

#include <variant>

namespace tomely {

/// The bytes of the plain file at `path`, or why there are none ("No such file or directory", "Not
/// a plain file"). Pipes, devices and folders are refused, since their end may never come. Reports
/// progress in bytes and may be left by it.
std::variant<QByteArray, QString> readWholeFile(const QString& path, const Progress& progress = {});

} // namespace tomely
