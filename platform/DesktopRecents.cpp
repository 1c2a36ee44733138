#include "platform/DesktopRecents.h"

#include "platform/AtomicFile.h"
#include "platform/FileReading.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <glib.h>

#include <memory>
#include <optional>
#include <utility>
#include <variant>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// A window that was opened is on screen by then, and several files are written at once.
constexpr int writeAfterMilliseconds = 500;

template <auto release>
struct Release {
    template <class Owned>
    void operator()(Owned* owned) const
    {
        release(owned);
    }
};

using BookmarkFile = std::unique_ptr<GBookmarkFile, Release<g_bookmark_file_free>>;
using DateTime = std::unique_ptr<GDateTime, Release<g_date_time_unref>>;
using Text = std::unique_ptr<char, Release<g_free>>;
using Texts = std::unique_ptr<char*, Release<g_strfreev>>;

/// The bytes of the list, none when there is no list yet; null when it is best left alone.
std::optional<QByteArray> readList(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return QByteArray();
    if (info.size() > DesktopRecents::largestList)
        return std::nullopt;
    auto read = readWholeFile(path);
    QByteArray* const bytes = std::get_if<QByteArray>(&read);
    return bytes ? std::optional(std::move(*bytes)) : std::nullopt;
}

/// Null when the bytes are no list.
BookmarkFile parseList(const QByteArray& bytes)
{
    BookmarkFile list(g_bookmark_file_new());
    if (!bytes.isEmpty()
        && !g_bookmark_file_load_from_data(
            list.get(), bytes.constData(), static_cast<gsize>(bytes.size()), nullptr))
        return nullptr;
    return list;
}

void addFile(GBookmarkFile& list, const QString& path, const DesktopRecents::Program& program)
{
    const QByteArray file = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    const Text uri(g_filename_to_uri(file.constData(), nullptr, nullptr));
    if (!uri)
        return;
    const DateTime now(g_date_time_new_now_utc());
    g_bookmark_file_set_mime_type(&list, uri.get(), program.mimeType.toUtf8().constData());
    g_bookmark_file_add_application(
        &list, uri.get(), program.name.toUtf8().constData(), program.command.toUtf8().constData());
    g_bookmark_file_set_visited_date_time(&list, uri.get(), now.get());
    g_bookmark_file_set_modified_date_time(&list, uri.get(), now.get());
}

bool isOfProgramAlone(GBookmarkFile& list, const char* uri, const QByteArray& program)
{
    gsize count = 0;
    const Texts programs(g_bookmark_file_get_applications(&list, uri, &count, nullptr));
    return count == 1 && program == *programs;
}

/// Files that others have used too stay as they are: taking one name off would bring them to the
/// top as if they had been used just now.
bool removeFilesOf(GBookmarkFile& list, const QByteArray& program)
{
    bool isChanged = false;
    gsize count = 0;
    const Texts uris(g_bookmark_file_get_uris(&list, &count));
    for (gsize place = 0; place < count; ++place) {
        const char* const uri = uris.get()[place];
        if (isOfProgramAlone(list, uri, program))
            isChanged |= g_bookmark_file_remove_item(&list, uri, nullptr) != FALSE;
    }
    return isChanged;
}

/// The list tells what a person works on, so a new one is theirs alone from the start.
bool makePrivateFile(const QString& path)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath())
        && file.open(QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
}

void writeList(GBookmarkFile& list, const QString& path)
{
    gsize size = 0;
    const Text bytes(g_bookmark_file_to_data(&list, &size, nullptr));
    const bool isNew = bytes && makePrivateFile(path);
    const bool isWritten = bytes
        && AtomicFile::write(path, QByteArrayView(bytes.get(), static_cast<qsizetype>(size)))
               .inPlace;
    if (isNew && !isWritten)
        QFile::remove(path);
}

} // namespace

DesktopRecents::DesktopRecents(Program program, const QString& listPath)
    : m_program(std::move(program))
    , m_listPath(listPath)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(writeAfterMilliseconds);
    m_timer.callOnTimeout(&m_timer, [this] { write(); });
}

DesktopRecents::~DesktopRecents()
{
    write();
}

QString DesktopRecents::defaultListPath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .filePath(u"recently-used.xbel"_s);
}

void DesktopRecents::note(const QString& path)
{
    m_noted.removeAll(path);
    m_noted.append(path);
    m_timer.start();
}

void DesktopRecents::clear()
{
    m_noted.clear();
    m_isCleared = true;
    m_timer.start();
}

void DesktopRecents::write()
{
    m_timer.stop();
    const QStringList noted = std::exchange(m_noted, {});
    const bool isCleared = std::exchange(m_isCleared, false);
    if (noted.isEmpty() && !isCleared)
        return;
    const std::optional<QByteArray> bytes = readList(m_listPath);
    const BookmarkFile list = bytes ? parseList(*bytes) : nullptr;
    if (!list)
        return;
    bool isChanged = isCleared && removeFilesOf(*list, m_program.name.toUtf8());
    for (const QString& path : noted) {
        addFile(*list, path, m_program);
        isChanged = true;
    }
    if (isChanged)
        writeList(*list, m_listPath);
}

} // namespace tomely
