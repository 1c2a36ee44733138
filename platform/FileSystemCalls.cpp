#include "platform/FileSystemCalls.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tomely {

FileSystemCalls& FileSystemCalls::real()
{
    static FileSystemCalls calls;
    return calls;
}

int FileSystemCalls::lstat(const char* path, struct stat* result)
{
    return ::lstat(path, result);
}

ssize_t FileSystemCalls::readlink(const char* path, char* buffer, size_t size)
{
    return ::readlink(path, buffer, size);
}

int FileSystemCalls::accessForWriting(const char* path)
{
    return ::faccessat(AT_FDCWD, path, W_OK, AT_EACCESS);
}

int FileSystemCalls::open(const char* path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

ssize_t FileSystemCalls::write(int file, const void* bytes, size_t size)
{
    return ::write(file, bytes, size);
}

ssize_t FileSystemCalls::pread(int file, void* buffer, size_t size, off_t offset)
{
    return ::pread(file, buffer, size, offset);
}

int FileSystemCalls::fsync(int file)
{
    return ::fsync(file);
}

int FileSystemCalls::dropCache(int file)
{
    return ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
}

int FileSystemCalls::close(int file)
{
    return ::close(file);
}

int FileSystemCalls::fstat(int file, struct stat* result)
{
    return ::fstat(file, result);
}

int FileSystemCalls::fchown(int file, uid_t owner, gid_t group)
{
    return ::fchown(file, owner, group);
}

int FileSystemCalls::fchmod(int file, mode_t mode)
{
    return ::fchmod(file, mode);
}

ssize_t FileSystemCalls::listxattr(const char* path, char* names, size_t size)
{
    return ::listxattr(path, names, size);
}

ssize_t FileSystemCalls::getxattr(const char* path, const char* name, void* value, size_t size)
{
    return ::getxattr(path, name, value, size);
}

int FileSystemCalls::fsetxattr(int file, const char* name, const void* value, size_t size)
{
    return ::fsetxattr(file, name, value, size, 0);
}

int FileSystemCalls::fremovexattr(int file, const char* name)
{
    return ::fremovexattr(file, name);
}

int FileSystemCalls::rename(const char* from, const char* to)
{
    return ::rename(from, to);
}

int FileSystemCalls::renameNoReplace(const char* from, const char* to)
{
    return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
}

int FileSystemCalls::link(const char* from, const char* to)
{
    return ::link(from, to);
}

int FileSystemCalls::unlink(const char* path)
{
    return ::unlink(path);
}

} // namespace tomely
