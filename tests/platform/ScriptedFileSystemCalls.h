#pragma once

// The real system calls, of which a test makes chosen ones fail. For each call a script says, turn
// by turn, which errno it fails with; 0, and everything after the script's end, goes to the kernel.

#include <cerrno>
#include <functional>
#include <map>

#include <QList>

#include <unistd.h>

#include "platform/FileSystemCalls.h"

namespace tomely {

class ScriptedFileSystemCalls : public FileSystemCalls {
public:
    enum Call {
        Lstat,
        Readlink,
        Access,
        Open,
        Write,
        Pread,
        Fsync,
        Close,
        Fstat,
        Fchown,
        Fchmod,
        Listxattr,
        Getxattr,
        Fsetxattr,
        Rename,
        RenameNoReplace,
        Link,
    };

    ScriptedFileSystemCalls() = default;

    std::map<Call, QList<int>> script;
    // At most so many bytes are written or read by one call.
    size_t mostAtOnce = SIZE_MAX;
    // Called before a file is put in place.
    std::function<void()> beforePutInPlace;
    // May spoil what was read.
    std::function<ssize_t(char* bytes, ssize_t size, off_t offset)> afterRead;

    int lstat(const char* path, struct stat* result) override
    {
        return fails(Lstat) ? -1 : FileSystemCalls::lstat(path, result);
    }

    ssize_t readlink(const char* path, char* buffer, size_t size) override
    {
        return fails(Readlink) ? -1 : FileSystemCalls::readlink(path, buffer, size);
    }

    int accessForWriting(const char* path) override
    {
        return fails(Access) ? -1 : FileSystemCalls::accessForWriting(path);
    }

    int open(const char* path, int flags, mode_t mode) override
    {
        return fails(Open) ? -1 : FileSystemCalls::open(path, flags, mode);
    }

    ssize_t write(int file, const void* bytes, size_t size) override
    {
        return fails(Write) ? -1 : FileSystemCalls::write(file, bytes, qMin(size, mostAtOnce));
    }

    ssize_t pread(int file, void* buffer, size_t size, off_t offset) override
    {
        if (fails(Pread))
            return -1;
        const ssize_t length = FileSystemCalls::pread(file, buffer, qMin(size, mostAtOnce), offset);
        return afterRead ? afterRead(static_cast<char*>(buffer), length, offset) : length;
    }

    int fsync(int file) override { return fails(Fsync) ? -1 : FileSystemCalls::fsync(file); }

    int close(int file) override
    {
        // A close that fails closes all the same.
        const int result = FileSystemCalls::close(file);
        return fails(Close) ? -1 : result;
    }

    int fstat(int file, struct stat* result) override
    {
        return fails(Fstat) ? -1 : FileSystemCalls::fstat(file, result);
    }

    int fchown(int file, uid_t owner, gid_t group) override
    {
        return fails(Fchown) ? -1 : FileSystemCalls::fchown(file, owner, group);
    }

    int fchmod(int file, mode_t mode) override
    {
        return fails(Fchmod) ? -1 : FileSystemCalls::fchmod(file, mode);
    }

    ssize_t listxattr(const char* path, char* names, size_t size) override
    {
        return fails(Listxattr) ? -1 : FileSystemCalls::listxattr(path, names, size);
    }

    ssize_t getxattr(const char* path, const char* name, void* value, size_t size) override
    {
        return fails(Getxattr) ? -1 : FileSystemCalls::getxattr(path, name, value, size);
    }

    int fsetxattr(int file, const char* name, const void* value, size_t size) override
    {
        return fails(Fsetxattr) ? -1 : FileSystemCalls::fsetxattr(file, name, value, size);
    }

    int rename(const char* from, const char* to) override
    {
        if (beforePutInPlace)
            beforePutInPlace();
        return fails(Rename) ? -1 : FileSystemCalls::rename(from, to);
    }

    int renameNoReplace(const char* from, const char* to) override
    {
        if (beforePutInPlace)
            beforePutInPlace();
        return fails(RenameNoReplace) ? -1 : FileSystemCalls::renameNoReplace(from, to);
    }

    int link(const char* from, const char* to) override
    {
        return fails(Link) ? -1 : FileSystemCalls::link(from, to);
    }

    // Whether every scripted failure was met.
    bool isExhausted() const
    {
        for (const auto& [call, turns] : script) {
            if (!turns.isEmpty())
                return false;
        }
        return true;
    }

private:
    bool fails(Call call)
    {
        QList<int>& turns = script[call];
        const int errorNumber = turns.isEmpty() ? 0 : turns.takeFirst();
        if (errorNumber != 0)
            errno = errorNumber;
        return errorNumber != 0;
    }
};

} // namespace tomely
