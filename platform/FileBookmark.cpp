#include "platform/FileBookmark.h"

#include <QFile>
#include <QFileInfo>

namespace tomely {

namespace {

// The header carries the version. Version 1 is followed by the absolute path in the bytes that the
// file system uses, to the end of the data.
constexpr QByteArrayView header("tomely-bookmark 1\n");

} // namespace

QByteArray makeBookmark(const QString& path)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return {};
    return header.toByteArray() + QFile::encodeName(QFileInfo(path).absoluteFilePath());
}

std::optional<QString> resolveBookmark(QByteArrayView bookmark)
{
    if (!bookmark.startsWith(header))
        return std::nullopt;
    const QByteArray encodedPath = bookmark.sliced(header.size()).toByteArray();
    if (!encodedPath.startsWith('/') || encodedPath.contains('\0'))
        return std::nullopt;
    const QString path = QFile::decodeName(encodedPath);
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    return path;
}

} // namespace tomely
