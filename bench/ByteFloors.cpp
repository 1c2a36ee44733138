#include "bench/ByteFloors.h"

#include <QFile>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace tomely {

QByteArray readBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeSynced(const QString& path, const QByteArray& bytes)
{
    QFile file(path + ".new"_L1);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        || file.write(bytes) != bytes.size() || fsync(file.handle()) != 0)
        return false;
    file.close();
    return std::rename(
               QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData())
        == 0;
}

} // namespace tomely
