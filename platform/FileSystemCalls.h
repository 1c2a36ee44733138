// The system calls that AtomicFile makes, as a table that a test can replace to make any one of
// them fail. Each function is the call of the same name: same arguments, same result, errno on
// failure.

#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <QtGlobal>

namespace tomely {

class FileSystemCalls {
public:
    virtual ~FileSystemCalls() = default;

    /// The table that goes to the kernel.
    static FileSystemCalls& real();

    virtual int lstat(const char* path, struct stat* result);
    virtual ssize_t readlink(const char* path, char* buffer, size_t size);
    /// Whether the effective user may write the file.
    virtual int accessForWriting(const char* path);

    virtual int open(const char* path, int flags, mode_t mode);
    virtual ssize_t write(int file, const void* bytes, size_t size);
    virtual ssize_t pread(int file, void* buffer, size_t size, off_t offset);
    virtual int fsync(int file);
    /// Asks the kernel to forget its copy of the file, so that the next read comes from the disk.
    virtual int dropCache(int file);
    virtual int close(int file);

    virtual int fstat(int file, struct stat* result);
    virtual int fchown(int file, uid_t owner, gid_t group);
    virtual int fchmod(int file, mode_t mode);
    virtual ssize_t listxattr(const char* path, char* names, size_t size);
    virtual ssize_t getxattr(const char* path, const char* name, void* value, size_t size);
    virtual int fsetxattr(int file, const char* name, const void* value, size_t size);
    virtual int fremovexattr(int file, const char* name);

    virtual int rename(const char* from, const char* to);
    /// rename that fails with EEXIST where there is something at `to`.
    virtual int renameNoReplace(const char* from, const char* to);
    virtual int link(const char* from, const char* to);
    virtual int unlink(const char* path);

protected:
    FileSystemCalls() = default;
    Q_DISABLE_COPY_MOVE(FileSystemCalls)
};

} // namespace tomely
