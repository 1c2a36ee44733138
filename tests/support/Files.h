// Reading and writing small files in one line.

#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace tomely::samples {

/// False when not every byte could be written.
inline bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Null when there is no such file.
inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace tomely::samples
