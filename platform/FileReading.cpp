#include "platform/FileReading.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace tomely {

namespace {

constexpr qint64 chunkSize = 4 << 20; // a progress bar moves, and a disk is read at full speed

} // namespace

std::variant<QByteArray, QString> readWholeFile(const QString& path, const Progress& progress)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return QCoreApplication::translate("FileReading", "Not a plain file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return file.errorString();
    QByteArray bytes(file.size(), Qt::Uninitialized);
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 count =
            file.read(bytes.data() + done, std::min(chunkSize, bytes.size() - done));
        if (count < 0)
            return file.errorString();
        if (count == 0)
            break; // the file became shorter meanwhile
        done += count;
        if (progress)
            progress(done, bytes.size());
    }
    bytes.truncate(done);
    return bytes;
}

} // namespace tomely
