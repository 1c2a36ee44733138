#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <sys/xattr.h>

#include <QTest>

#include "platform/AtomicFile.h"
#include "tests/platform/AtomicFileSamples.h"
#include "tests/platform/ScriptedFileSystemCalls.h"

using namespace Qt::StringLiterals;
using namespace tomely;
using namespace tomely::AtomicFileSamples;
using Calls = ScriptedFileSystemCalls;

namespace {

// One entry of an access control list as the kernel takes it.
struct AccessEntry {
    quint16 tag;
    quint16 permissions;
    quint32 id;
};

// Owner and group as given, user 1234 may read and write, others nothing.
QByteArray accessList(quint16 owner, quint16 group, quint16 mask)
{
    constexpr quint32 nobodyInParticular = 0xFFFFFFFF;
    const quint32 version = 2;
    const AccessEntry entries[] = {{0x01, owner, nobodyInParticular}, {0x02, 6, 1234},
        {0x04, group, nobodyInParticular}, {0x10, mask, nobodyInParticular},
        {0x20, 0, nobodyInParticular}};
    QByteArray list(sizeof version + sizeof entries, '\0');
    std::memcpy(list.data(), &version, sizeof version);
    std::memcpy(list.data() + sizeof version, entries, sizeof entries);
    return list;
}

bool setAttribute(const QString& path, const char* name, const QByteArray& value)
{
    return ::setxattr(QFile::encodeName(path).constData(), name, value.constData(),
               static_cast<size_t>(value.size()), 0)
        == 0;
}

QByteArray attribute(const QString& path, const char* name)
{
    QByteArray value(1000, '\0');
    const ssize_t size = ::getxattr(
        QFile::encodeName(path).constData(), name, value.data(), static_cast<size_t>(value.size()));
    return size < 0 ? QByteArray() : value.first(size);
}

} // namespace

class FileAttributesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void goesOnWhereAttributesAreRefused();
    void keepsOwnerGroupAndPermissions();
    void givesTheGroupNoMoreThanOthersWhenItChanges();
    void givesNewFilesWhatTheUmaskSays();
    void keepsExtendedAttributes();
    void keepsAccessLists();
    void takesNoAccessListFromTheFolder();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void FileAttributesTest::init()
{
    m_folder = makeFolder();
    QVERIFY(m_folder->isValid());
}

void FileAttributesTest::goesOnWhereAttributesAreRefused()
{
    put(path(u"a"_s), oldBytes);
    Calls calls;
    calls.script[Calls::Fstat] = {EIO};
    calls.script[Calls::Fchown] = {EPERM, EPERM};
    calls.script[Calls::Fchmod] = {EPERM};
    calls.script[Calls::Listxattr] = {ENOTSUP};
    const FileResult result =
        AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Existing, calls);
    QVERIFY2(result.isOk(), qPrintable(result.error));
    QVERIFY(calls.isExhausted());
    QCOMPARE(get(path(u"a"_s)), newBytes);
    // With no right to say who may read it, nobody else may.
    QCOMPARE(statusOf(path(u"a"_s)).st_mode & 07777U, 0600U);
}

void FileAttributesTest::keepsOwnerGroupAndPermissions()
{
    put(path(u"a"_s), oldBytes);
    const QByteArray name = QFile::encodeName(path(u"a"_s));
    if (::geteuid() == 0)
        QCOMPARE(::chown(name.constData(), 1234, 2345), 0);
    for (const mode_t mode : {0600U, 0644U, 0664U, 0640U, 0777U, 02660U}) {
        QCOMPARE(::chmod(name.constData(), mode), 0);
        const struct stat before = statusOf(path(u"a"_s));
        QVERIFY(AtomicFile::write(path(u"a"_s), newBytes).isOk());
        const struct stat after = statusOf(path(u"a"_s));
        QCOMPARE(after.st_mode, before.st_mode);
        QCOMPARE(after.st_uid, before.st_uid);
        QCOMPARE(after.st_gid, before.st_gid);
        QVERIFY(after.st_ino != before.st_ino);
    }
}

void FileAttributesTest::givesTheGroupNoMoreThanOthersWhenItChanges()
{
    if (::geteuid() != 0)
        QSKIP("Only root can make a file of another group.");
    put(path(u"a"_s), oldBytes);
    QCOMPARE(::chmod(QFile::encodeName(path(u"a"_s)).constData(), 02662), 0);
    const Unprivileged ordinaryUser;
    const FileResult result = AtomicFile::write(path(u"a"_s), newBytes);
    QVERIFY2(result.isOk(), qPrintable(result.error));
    QCOMPARE(statusOf(path(u"a"_s)).st_uid, Unprivileged::nobody);
    QCOMPARE(statusOf(path(u"a"_s)).st_mode & 07777U, 0622U);
}

void FileAttributesTest::givesNewFilesWhatTheUmaskSays()
{
    const mode_t before = ::umask(0027);
    const FileResult careful = AtomicFile::write(path(u"a"_s), newBytes);
    ::umask(0);
    const FileResult open =
        AtomicFile::write(path(u"b"_s), newBytes, {}, AtomicFile::Replace::Never);
    ::umask(before);
    QVERIFY(careful.isOk() && open.isOk());
    QCOMPARE(statusOf(path(u"a"_s)).st_mode & 07777U, 0640U);
    QCOMPARE(statusOf(path(u"b"_s)).st_mode & 07777U, 0666U);
}

void FileAttributesTest::keepsExtendedAttributes()
{
    put(path(u"a"_s), oldBytes);
    if (!setAttribute(path(u"a"_s), "user.comment", "from grandmother"_ba))
        QSKIP("The file system has no extended attributes.");
    QVERIFY(setAttribute(path(u"a"_s), "user.empty", QByteArray()));
    QVERIFY(setAttribute(path(u"a"_s), "user.bytes", "\0\xff"_ba));
    QVERIFY(AtomicFile::write(path(u"a"_s), newBytes).isOk());
    QCOMPARE(attribute(path(u"a"_s), "user.comment"), "from grandmother"_ba);
    QCOMPARE(attribute(path(u"a"_s), "user.bytes"), "\0\xff"_ba);
    QVERIFY(!attribute(path(u"a"_s), "user.empty").isNull());

    // Not being allowed is no failure; having no room is.
    Calls refusing;
    refusing.script[Calls::Fsetxattr] = {EPERM, ENOTSUP, EACCES};
    QVERIFY(AtomicFile::write(path(u"a"_s), oldBytes, {}, AtomicFile::Replace::Existing, refusing)
                .isOk());
    QVERIFY(refusing.isExhausted());
    QVERIFY(setAttribute(path(u"a"_s), "user.comment", "again"_ba));
    Calls full;
    full.script[Calls::Fsetxattr] = {ENOSPC};
    QCOMPARE(AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Existing, full)
                 .errorNumber,
        ENOSPC);
    QCOMPARE(get(path(u"a"_s)), oldBytes);
}

void FileAttributesTest::keepsAccessLists()
{
    put(path(u"a"_s), oldBytes);
    const QByteArray list = accessList(6, 4, 6);
    if (!setAttribute(path(u"a"_s), "system.posix_acl_access", list))
        QSKIP("The file system has no access control lists.");
    const mode_t mode = statusOf(path(u"a"_s)).st_mode;
    QVERIFY(AtomicFile::write(path(u"a"_s), newBytes).isOk());
    QCOMPARE(attribute(path(u"a"_s), "system.posix_acl_access"), list);
    QCOMPARE(statusOf(path(u"a"_s)).st_mode, mode);
}

void FileAttributesTest::takesNoAccessListFromTheFolder()
{
    put(path(u"a"_s), oldBytes);
    QCOMPARE(::chmod(QFile::encodeName(path(u"a"_s)).constData(), 0660), 0);
    if (!setAttribute(m_folder->path(), "system.posix_acl_default", accessList(6, 6, 6)))
        QSKIP("The file system has no access control lists.");
    QVERIFY(AtomicFile::write(path(u"a"_s), newBytes).isOk());
    QVERIFY(attribute(path(u"a"_s), "system.posix_acl_access").isNull());
    QCOMPARE(statusOf(path(u"a"_s)).st_mode & 07777U, 0660U);

    // A new file gets what the folder prescribes, as if it had been made without us.
    put(path(u"theirs"_s), oldBytes);
    QVERIFY(AtomicFile::write(path(u"ours"_s), newBytes).isOk());
    QCOMPARE(attribute(path(u"ours"_s), "system.posix_acl_access"),
        attribute(path(u"theirs"_s), "system.posix_acl_access"));
    QCOMPARE(statusOf(path(u"ours"_s)).st_mode, statusOf(path(u"theirs"_s)).st_mode);
}

QTEST_GUILESS_MAIN(FileAttributesTest)

#include "FileAttributesTest.moc"
