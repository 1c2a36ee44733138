#include "platform/AtomicFile.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <optional>
#include <utility>

#include <fcntl.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QRandomGenerator>

#include "platform/FileAttributes.h"

namespace tomely {

namespace {

// Small enough for a progress bar that moves, large enough to cost nothing.
constexpr qsizetype chunkSize = qsizetype{4} * 1024 * 1024;
// As many as the kernel follows.
constexpr int maximumLinks = 40;

struct Failure {
    // A text for QCoreApplication::translate with places for the path and the system's reason.
    const char* text = nullptr;
    int errorNumber = 0;
};

using Problem = std::optional<Failure>;

FileResult resultOf(const Failure& failure, const QString& path, bool inPlace)
{
    const QString text = QCoreApplication::translate("AtomicFile", failure.text);
    return {text.arg(path, qt_error_string(failure.errorNumber)), failure.errorNumber, inPlace};
}

template <typename Call>
auto retryInterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

QByteArray folderOf(const QByteArray& path)
{
    return path.first(path.lastIndexOf('/') + 1);
}

struct Target {
    // Where the file really is, after all links.
    QByteArray path;
    bool exists = false;

    struct stat status { };
};

class Writer {
public:
    Writer(QByteArrayView bytes, const AtomicFile::Progress& progress, AtomicFile::Replace replace,
        FileSystemCalls& calls)
        : m_bytes(bytes)
        , m_progress(progress)
        , m_replace(replace)
        , m_calls(calls)
    {
    }

    Q_DISABLE_COPY_MOVE(Writer)

    ~Writer()
    {
        if (m_file >= 0)
            m_calls.close(m_file);
        if (!m_temporaryPath.isEmpty())
            m_calls.unlink(m_temporaryPath.constData());
        if (m_folder >= 0)
            m_calls.close(m_folder);
    }

    // Everything up to and including the step that puts the file in place.
    Problem write(const QByteArray& path)
    {
        using Step = Problem (Writer::*)();
        // The attributes come before the sync, which then covers them too.
        static constexpr Step steps[] = {&Writer::followLinks, &Writer::checkTarget,
            &Writer::openFolder, &Writer::createTemporary, &Writer::writeBytes,
            &Writer::keepAttributes, &Writer::syncFile, &Writer::readBack, &Writer::closeFile,
            &Writer::putInPlace};
        m_target.path = path;
        for (const Step step : steps) {
            if (Problem problem = (this->*step)())
                return problem;
        }
        return {};
    }

    // The step after: makes the new name last.
    Problem syncFolder()
    {
        if (m_folder < 0 || retryInterrupted([&] { return m_calls.fsync(m_folder); }) == 0)
            return {};
        // Some network file systems cannot do it, and have nothing that could be lost by it.
        if (errno == EINVAL || errno == ENOTSUP || errno == ENOSYS)
            return {};
        return failed(QT_TRANSLATE_NOOP(
            "AtomicFile", "The file “%1” was written, but the disk did not confirm it: %2."));
    }

private:
    static Problem failed(const char* text, int errorNumber) { return Failure{text, errorNumber}; }

    static Problem failed(const char* text) { return failed(text, errno); }

    Problem followLinks()
    {
        constexpr auto text =
            QT_TRANSLATE_NOOP("AtomicFile", "The file “%1” cannot be reached: %2.");
        if (m_target.path.isEmpty() || m_target.path.contains('\0'))
            return failed(text, m_target.path.isEmpty() ? ENOENT : EINVAL);
        for (int links = 0; links <= maximumLinks; ++links) {
            if (m_target.path.endsWith('/'))
                return failed(text, EISDIR);
            if (m_calls.lstat(m_target.path.constData(), &m_target.status) != 0)
                return errno == ENOENT ? Problem() : failed(text);
            if (!S_ISLNK(m_target.status.st_mode) || m_replace == AtomicFile::Replace::Never) {
                m_target.exists = true;
                return {};
            }
            QByteArray link(PATH_MAX, Qt::Uninitialized);
            const ssize_t length = m_calls.readlink(
                m_target.path.constData(), link.data(), static_cast<size_t>(link.size()));
            if (length < 0 || length == link.size())
                return failed(text, length < 0 ? errno : ENAMETOOLONG);
            link.truncate(length);
            m_target.path = link.startsWith('/') ? link : folderOf(m_target.path) + link;
        }
        return failed(text, ELOOP);
    }

    Problem checkTarget()
    {
        if (!m_target.exists)
            return {};
        constexpr auto text =
            QT_TRANSLATE_NOOP("AtomicFile", "The file “%1” cannot be replaced: %2.");
        if (m_replace == AtomicFile::Replace::Never)
            return alreadyThere();
        if (S_ISDIR(m_target.status.st_mode))
            return failed(text, EISDIR);
        // Renaming over a device or a pipe would take it away from those who use it.
        if (!S_ISREG(m_target.status.st_mode))
            return failed(text, ENOTSUP);
        // Renaming needs no right to write the file itself, but somebody took that right away to
        // protect it.
        if (m_calls.accessForWriting(m_target.path.constData()) != 0)
            return failed(text);
        return {};
    }

    // Before anything is written, so that a folder that cannot be opened is found in time.
    Problem openFolder()
    {
        const QByteArray folder = folderOf(m_target.path) + '.';
        m_folder = retryInterrupted([&] {
            return m_calls.open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
        });
        // A folder that lets its files be written, but not be listed, goes without the last sync.
        if (m_folder >= 0 || errno == EACCES)
            return {};
        return failed(QT_TRANSLATE_NOOP("AtomicFile", "The folder of “%1” cannot be opened: %2."));
    }

    Problem createTemporary()
    {
        // Nobody may read over our shoulder what the old file would not show. A file without an old
        // one leaves it to the kernel to apply the umask or what the folder prescribes.
        const mode_t mode = m_target.exists ? 0600 : 0666;
        constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        for (int attempt = 0; attempt < 100; ++attempt) {
            // Of its own length: the target's name may be as long as names can be.
            const QByteArray path = folderOf(m_target.path) + ".tomely-"
                + QByteArray::number(QRandomGenerator::system()->generate64(), 36) + ".tmp";
            m_file = retryInterrupted([&] { return m_calls.open(path.constData(), flags, mode); });
            if (m_file >= 0) {
                m_temporaryPath = path;
                return {};
            }
            if (errno != EEXIST)
                break;
        }
        return failed(
            QT_TRANSLATE_NOOP("AtomicFile", "No new file can be made in the folder of “%1”: %2."));
    }

    Problem writeBytes()
    {
        qsizetype done = 0;
        while (done < m_bytes.size()) {
            const auto size = static_cast<size_t>(qMin(chunkSize, m_bytes.size() - done));
            const ssize_t written = retryInterrupted(
                [&] { return m_calls.write(m_file, m_bytes.data() + done, size); });
            if (written <= 0) {
                return failed(
                    QT_TRANSLATE_NOOP("AtomicFile", "The file “%1” could not be written: %2."),
                    written < 0 ? errno : EIO);
            }
            done += written;
            report(done);
        }
        return {};
    }

    Problem keepAttributes()
    {
        if (!m_target.exists)
            return {};
        const int errorNumber =
            carryOverAttributes(m_calls, m_target.path.constData(), m_target.status, m_file);
        if (errorNumber == 0)
            return {};
        return failed(
            QT_TRANSLATE_NOOP("AtomicFile", "The permissions of “%1” could not be kept: %2."),
            errorNumber);
    }

    Problem syncFile()
    {
        if (retryInterrupted([&] { return m_calls.fsync(m_file); }) == 0)
            return {};
        return failed(
            QT_TRANSLATE_NOOP("AtomicFile", "The file “%1” could not be brought to the disk: %2."));
    }

    Problem readBack()
    {
        constexpr auto text =
            QT_TRANSLATE_NOOP("AtomicFile", "The file “%1” could not be checked: %2.");
        // Only a hint: where it is not taken, the check covers the kernel's copy.
        m_calls.dropCache(m_file);
        // One byte more than there should be, to find what does not belong there.
        QByteArray buffer(qMin(chunkSize, m_bytes.size() + 1), Qt::Uninitialized);
        for (qsizetype done = 0;;) {
            const ssize_t length = retryInterrupted([&] {
                return m_calls.pread(
                    m_file, buffer.data(), static_cast<size_t>(buffer.size()), done);
            });
            if (length < 0)
                return failed(text);
            if (length == 0 && done == m_bytes.size())
                return {};
            if (length == 0 || length > m_bytes.size() - done
                || std::memcmp(
                       buffer.constData(), m_bytes.data() + done, static_cast<size_t>(length))
                    != 0) {
                return failed(QT_TRANSLATE_NOOP("AtomicFile",
                                  "The disk gave back other data for “%1” than was written: %2."),
                    EIO);
            }
            done += length;
            report(m_bytes.size() + done);
        }
    }

    Problem closeFile()
    {
        // The file is closed whatever the answer, and a second close could hit another one.
        const int file = std::exchange(m_file, -1);
        if (m_calls.close(file) == 0 || errno == EINTR)
            return {};
        return failed(
            QT_TRANSLATE_NOOP("AtomicFile", "The file “%1” could not be written to its end: %2."));
    }

    Problem putInPlace()
    {
        const char* const from = m_temporaryPath.constData();
        const char* const to = m_target.path.constData();
        if (m_replace == AtomicFile::Replace::Existing) {
            if (m_calls.rename(from, to) != 0)
                return notInPlace();
            m_temporaryPath.clear();
            return {};
        }
        if (m_calls.renameNoReplace(from, to) == 0) {
            m_temporaryPath.clear();
            return {};
        }
        // Where the file system does not know this rename, a second name never replaces a first
        // one either; the temporary name then goes as after a failure.
        const bool isUnknown = errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
        if (isUnknown && m_calls.link(from, to) == 0)
            return {};
        return errno == EEXIST ? alreadyThere() : notInPlace();
    }

    static Problem notInPlace()
    {
        return failed(
            QT_TRANSLATE_NOOP("AtomicFile", "The file “%1” could not be put in its place: %2."));
    }

    static Problem alreadyThere()
    {
        return failed(
            QT_TRANSLATE_NOOP("AtomicFile", "The file “%1” is not replaced: %2."), EEXIST);
    }

    void report(qint64 done) const
    {
        if (m_progress)
            m_progress(done, 2 * qint64{m_bytes.size()});
    }

    QByteArrayView m_bytes;
    const AtomicFile::Progress& m_progress;
    AtomicFile::Replace m_replace;
    FileSystemCalls& m_calls;
    Target m_target;
    // -1 when not open.
    int m_folder = -1;
    int m_file = -1;
    // Empty when there is none to remove.
    QByteArray m_temporaryPath;
};

} // namespace

FileResult AtomicFile::write(const QString& path, QByteArrayView bytes, const Progress& progress,
    Replace replace, FileSystemCalls& calls)
{
    Writer writer(bytes, progress, replace, calls);
    if (const Problem problem = writer.write(QFile::encodeName(path)))
        return resultOf(*problem, path, false);
    if (const Problem problem = writer.syncFolder())
        return resultOf(*problem, path, true);
    return {{}, 0, true};
}

} // namespace tomely
