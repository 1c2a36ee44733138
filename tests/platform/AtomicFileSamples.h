#pragma once

// What the tests of AtomicFile share: an old and a new file, and a look at what is on the disk.

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

namespace tomely::AtomicFileSamples {

using namespace Qt::StringLiterals;

inline const QByteArray oldBytes = "the old file\n"_ba.repeated(1000);
inline const QByteArray newBytes = "the new, longer file\n"_ba.repeated(2000);

inline void put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

inline QByteArray get(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "(cannot be read)"_ba;
}

inline struct stat statusOf(const QString& path)
{
    struct stat status { };

    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("stat failed");
    return status;
}

inline QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

// Works without root's privileges for as long as it lives, where the test runs as root.
class Unprivileged {
public:
    static constexpr uid_t nobody = 65534;

    Unprivileged()
    {
        if (m_wasRoot && (::setegid(nobody) != 0 || ::seteuid(nobody) != 0))
            qFatal("cannot become an ordinary user");
    }

    ~Unprivileged()
    {
        if (m_wasRoot && (::seteuid(0) != 0 || ::setegid(0) != 0))
            qFatal("cannot become root again");
    }

    Q_DISABLE_COPY_MOVE(Unprivileged)

private:
    bool m_wasRoot = ::geteuid() == 0;
};

// A folder of its own for a test, not below its private home: some stories are told by an ordinary
// user.
inline std::unique_ptr<QTemporaryDir> makeFolder()
{
    auto folder = std::make_unique<QTemporaryDir>(u"/tmp/tomely-atomic-XXXXXX"_s);
    if (::geteuid() == 0
        && ::chown(QFile::encodeName(folder->path()).constData(), Unprivileged::nobody,
               Unprivileged::nobody)
            != 0)
        qFatal("chown failed");
    return folder;
}

} // namespace tomely::AtomicFileSamples
