#include "platform/FileAttributes.h"

#include <cerrno>

#include <QByteArray>
#include <QByteArrayList>

namespace tomely {

namespace {

constexpr char accessControlList[] = "system.posix_acl_access";

// Not being allowed is no failure: the file systems of memory sticks and network folders refuse
// most of this, and books must be saved there too.
bool isRefusal(int errorNumber)
{
    return errorNumber == EPERM || errorNumber == EACCES || errorNumber == ENOTSUP
        || errorNumber == ENOSYS || errorNumber == EINVAL;
}

int failure(int result)
{
    return result < 0 && !isRefusal(errno) ? errno : 0;
}

// Attributes whose value speaks of the old bytes and would be wrong for the new ones.
bool belongsToContents(const QByteArray& name)
{
    return name == "security.ima" || name == "security.evm" || name == "security.capability";
}

// Calls `read` with a buffer until the answer fits, for calls that tell the size when asked with
// none. Gives null data and sets `errorNumber` on failure.
template <typename Read>
QByteArray readWhole(Read read, int& errorNumber)
{
    errorNumber = 0;
    for (int attempt = 0; attempt < 10; ++attempt) {
        const ssize_t size = read(nullptr, 0);
        if (size < 0)
            break;
        // One byte more, so that an empty answer is not taken for the question about the size.
        QByteArray buffer(size + 1, Qt::Uninitialized);
        const ssize_t length = read(buffer.data(), static_cast<size_t>(buffer.size()));
        if (length >= 0) {
            buffer.truncate(length);
            return buffer;
        }
        if (errno != ERANGE)
            break;
    }
    errorNumber = errno;
    return {};
}

struct Kept {
    bool owner = false;
    bool group = false;
};

Kept keepOwnerAndGroup(FileSystemCalls& calls, const struct stat& old, int file)
{
    struct stat fresh { };

    if (calls.fstat(file, &fresh) == 0 && fresh.st_uid == old.st_uid && fresh.st_gid == old.st_gid)
        return {true, true};
    if (calls.fchown(file, old.st_uid, old.st_gid) == 0)
        return {true, true};
    const bool keepsGroup = calls.fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0;
    return {false, keepsGroup};
}

mode_t allowedMode(const struct stat& old, Kept kept)
{
    // "Run as the owner" must not turn into "run as somebody else".
    mode_t mode = old.st_mode & (kept.owner && kept.group ? 07777U : 0777U);
    if (!kept.group)
        mode &= ~static_cast<mode_t>(070) | ((mode & 07U) << 3U);
    return mode;
}

int copyExtendedAttributes(FileSystemCalls& calls, const char* path, int file, bool withAccessList)
{
    int errorNumber = 0;
    const QByteArray names =
        readWhole([&](char* buffer, size_t size) { return calls.listxattr(path, buffer, size); },
            errorNumber);
    if (errorNumber != 0)
        return isRefusal(errorNumber) ? 0 : errorNumber;
    const QByteArrayList list = names.split('\0');
    for (const QByteArray& name : list) {
        if (name.isEmpty() || belongsToContents(name)
            || (name == accessControlList && !withAccessList))
            continue;
        const QByteArray value = readWhole(
            [&](char* buffer, size_t size) {
                return calls.getxattr(path, name.constData(), buffer, size);
            },
            errorNumber);
        // Gone since it was listed.
        if (errorNumber == ENODATA)
            continue;
        if (errorNumber == 0) {
            errorNumber = failure(calls.fsetxattr(
                file, name.constData(), value.constData(), static_cast<size_t>(value.size())));
        }
        if (errorNumber != 0 && !isRefusal(errorNumber))
            return errorNumber;
    }
    return 0;
}

} // namespace

int carryOverAttributes(FileSystemCalls& calls, const char* path, const struct stat& old, int file)
{
    const Kept kept = keepOwnerAndGroup(calls, old, file);
    // A list that the folder gave the new file would lend its entries to the old permissions.
    calls.fremovexattr(file, accessControlList);
    if (const int errorNumber = failure(calls.fchmod(file, allowedMode(old, kept))))
        return errorNumber;
    // After the permissions: setting the list sets the permissions' group bits to the list's mask.
    return copyExtendedAttributes(calls, path, file, kept.group);
}

} // namespace tomely
