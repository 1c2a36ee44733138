#pragma once

// A disk of 64 KiB for stories about full disks, where the machine lets a test mount one.

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTest>

namespace tomely::SmallDisk {

// What runOn gives where nothing can be mounted.
constexpr int notMounted = 77;

inline bool mount(const QString& folder)
{
    const QByteArray user = QByteArray::number(::geteuid());
    const QByteArray group = QByteArray::number(::getegid());
    const bool isRoot = ::geteuid() == 0;
    if (::unshare(isRoot ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0)
        return false;
    if (!isRoot) {
        const auto put = [](const QString& path, const QByteArray& line) {
            QFile file(path);
            return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
                && file.write(line) == line.size();
        };
        using namespace Qt::StringLiterals;
        if (!put(u"/proc/self/uid_map"_s, user + ' ' + user + " 1")
            || !put(u"/proc/self/setgroups"_s, "deny")
            || !put(u"/proc/self/gid_map"_s, group + ' ' + group + " 1"))
            return false;
    }
    // Nothing of it must be seen outside, also where mounts are shared with the whole machine.
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && ::mount("none", QFile::encodeName(folder).constData(), "tmpfs", 0, "size=64k") == 0;
}

// Runs `story` in a child process that sees the small disk at `folder`, and gives what the story
// gives: 0 when all went as it should, else which of its steps went wrong.
template <typename Story>
int runOn(const QString& folder, Story story)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(mount(folder) ? story() : notMounted);
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}

} // namespace tomely::SmallDisk
