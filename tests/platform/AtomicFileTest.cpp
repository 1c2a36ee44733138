#include <algorithm>
#include <cerrno>

#include <QTest>

#include "platform/AtomicFile.h"
#include "tests/platform/AtomicFileSamples.h"
#include "tests/platform/ScriptedFileSystemCalls.h"
#include "tests/platform/SmallDisk.h"

using namespace Qt::StringLiterals;
using namespace tomely;
using namespace tomely::AtomicFileSamples;
using Calls = ScriptedFileSystemCalls;

Q_DECLARE_METATYPE(Calls::Call)

class AtomicFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesFiles_data();
    void writesFiles();
    void keepsTheOldFileWhenAnyCallFails_data();
    void keepsTheOldFileWhenAnyCallFails();
    void leavesNothingBehindWhenThereWasNoFile_data();
    void leavesNothingBehindWhenThereWasNoFile();
    void noticesWhenTheDiskGivesBackOtherBytes_data();
    void noticesWhenTheDiskGivesBackOtherBytes();
    void tellsWhenTheFolderWasNotSynced();
    void doesWithoutFolderSyncWhereThereIsNone();
    void goesOnAfterInterruptions();
    void givesUpWhenNothingIsWritten();
    void keepsTheOldFileOnAFullDisk();
    void tellsProgress();
    void neverReplaces_data();
    void neverReplaces();
    void neverReplacesAFileMadeAtTheSameMoment_data();
    void neverReplacesAFileMadeAtTheSameMoment();
    void createsWithoutTheNewerRename();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void AtomicFileTest::init()
{
    m_folder = makeFolder();
    QVERIFY(m_folder->isValid());
}

void AtomicFileTest::writesFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("plain") << u"mine.books"_s << newBytes;
    QTest::newRow("empty") << u"mine.books"_s << QByteArray();
    QTest::newRow("one byte") << u"mine.books"_s << "x"_ba;
    QTest::newRow("all byte values") << u"b"_s << "\0\x01\xff\r\n"_ba;
    QTest::newRow("one chunk") << u"b"_s << QByteArray(qsizetype{4} * 1024 * 1024, 'c');
    QTest::newRow("many chunks") << u"b"_s << QByteArray(qsizetype{9} * 1024 * 1024 + 1, 'c');
    QTest::newRow("other scripts") << u"Bücher 本 📚.books"_s << newBytes;
    QTest::newRow("hidden") << u".b"_s << newBytes;
    QTest::newRow("longest name") << QString(255, u'n') << newBytes;
    QTest::newRow("longest name in bytes") << u'n' + QString(127, u'é') << newBytes;
    QTest::newRow("place marks") << u"100%1 %2 %L1"_s << newBytes;
}

void AtomicFileTest::writesFiles()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    for (const QByteArray& contents : {bytes, oldBytes, bytes}) {
        const FileResult result = AtomicFile::write(path(name), contents);
        QVERIFY2(
            result.isOk() && result.inPlace && result.error.isEmpty(), qPrintable(result.error));
        QCOMPARE(get(path(name)), contents);
        QCOMPARE(namesIn(m_folder->path()), QStringList(name));
    }
}

void AtomicFileTest::keepsTheOldFileWhenAnyCallFails_data()
{
    QTest::addColumn<Calls::Call>("call");
    QTest::addColumn<QList<int>>("turns");
    using List = QList<int>;
    QTest::newRow("lstat") << Calls::Lstat << List{EIO};
    QTest::newRow("access") << Calls::Access << List{EROFS};
    QTest::newRow("open the folder") << Calls::Open << List{EMFILE};
    QTest::newRow("open the temporary file") << Calls::Open << List{0, ENOSPC};
    QTest::newRow("first write") << Calls::Write << List{ENOSPC};
    QTest::newRow("second write") << Calls::Write << List{0, EDQUOT};
    QTest::newRow("last write") << Calls::Write << List{0, 0, 0, 0, EIO};
    QTest::newRow("fchmod") << Calls::Fchmod << List{EIO};
    QTest::newRow("listxattr") << Calls::Listxattr << List{EIO};
    QTest::newRow("fsync") << Calls::Fsync << List{EIO};
    QTest::newRow("fsync without space") << Calls::Fsync << List{ENOSPC};
    QTest::newRow("first read back") << Calls::Pread << List{EIO};
    QTest::newRow("last read back") << Calls::Pread << List{0, 0, 0, 0, 0, EIO};
    QTest::newRow("close") << Calls::Close << List{EIO};
    QTest::newRow("close over quota") << Calls::Close << List{EDQUOT};
    QTest::newRow("rename") << Calls::Rename << List{EBUSY};
}

void AtomicFileTest::keepsTheOldFileWhenAnyCallFails()
{
    QFETCH(const Calls::Call, call);
    QFETCH(const QList<int>, turns);
    put(path(u"a"_s), oldBytes);
    const struct stat before = statusOf(path(u"a"_s));
    Calls calls;
    calls.script[call] = turns;
    calls.mostAtOnce = 10'000;
    const FileResult result =
        AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Existing, calls);
    QVERIFY(calls.isExhausted());
    QVERIFY(!result.isOk());
    QVERIFY(!result.inPlace);
    QCOMPARE(result.errorNumber, turns.last());
    QVERIFY2(result.error.contains(path(u"a"_s)), qPrintable(result.error));
    QVERIFY2(result.error.contains(qt_error_string(turns.last())), qPrintable(result.error));
    QCOMPARE(get(path(u"a"_s)), oldBytes);
    QCOMPARE(statusOf(path(u"a"_s)).st_ino, before.st_ino);
    QCOMPARE(namesIn(m_folder->path()), QStringList(u"a"_s));
}

void AtomicFileTest::leavesNothingBehindWhenThereWasNoFile_data()
{
    QTest::addColumn<Calls::Call>("call");
    QTest::addColumn<QList<int>>("turns");
    QTest::addColumn<bool>("mayReplace");
    using List = QList<int>;
    for (const bool mayReplace : {true, false}) {
        const auto row = [mayReplace](const char* name, Calls::Call call, const List& turns) {
            QTest::addRow("%s%s", name, mayReplace ? "" : ", never replacing")
                << call << turns << mayReplace;
        };
        row("open", Calls::Open, List{0, ENOSPC});
        row("write", Calls::Write, List{ENOSPC});
        row("fsync", Calls::Fsync, List{EIO});
        row("read back", Calls::Pread, List{EIO});
        row("close", Calls::Close, List{EIO});
    }
    QTest::newRow("rename") << Calls::Rename << List{EIO} << true;
    QTest::newRow("rename, never replacing") << Calls::RenameNoReplace << List{EIO} << false;
}

void AtomicFileTest::leavesNothingBehindWhenThereWasNoFile()
{
    QFETCH(const Calls::Call, call);
    QFETCH(const QList<int>, turns);
    QFETCH(const bool, mayReplace);
    Calls calls;
    calls.script[call] = turns;
    const FileResult result = AtomicFile::write(path(u"a"_s), newBytes, {},
        mayReplace ? AtomicFile::Replace::Existing : AtomicFile::Replace::Never, calls);
    QVERIFY(calls.isExhausted());
    QVERIFY(!result.inPlace);
    QCOMPARE(result.errorNumber, turns.last());
    QCOMPARE(namesIn(m_folder->path()), QStringList());
}

void AtomicFileTest::noticesWhenTheDiskGivesBackOtherBytes_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("last bit changed") << 0;
    QTest::newRow("last byte missing") << 1;
    QTest::newRow("one byte more") << 2;
    QTest::newRow("nothing") << 3;
}

void AtomicFileTest::noticesWhenTheDiskGivesBackOtherBytes()
{
    QFETCH(const int, kind);
    put(path(u"a"_s), oldBytes);
    Calls calls;
    calls.afterRead = [kind](char* bytes, ssize_t size, off_t offset) -> ssize_t {
        if (offset != 0)
            return 0;
        if (kind == 0)
            bytes[size - 1] = static_cast<char>(bytes[size - 1] ^ 1);
        if (kind == 2)
            bytes[size] = 'x';
        const ssize_t sizes[] = {size, size - 1, size + 1, 0};
        return sizes[kind];
    };
    const FileResult result =
        AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Existing, calls);
    QCOMPARE(result.errorNumber, EIO);
    QVERIFY2(result.error.contains(u"other data"_s), qPrintable(result.error));
    QCOMPARE(get(path(u"a"_s)), oldBytes);
    QCOMPARE(namesIn(m_folder->path()), QStringList(u"a"_s));
}

void AtomicFileTest::tellsWhenTheFolderWasNotSynced()
{
    put(path(u"a"_s), oldBytes);
    Calls calls;
    calls.script[Calls::Fsync] = {0, EIO};
    const FileResult result =
        AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Existing, calls);
    QVERIFY(!result.isOk());
    QVERIFY(result.inPlace);
    QCOMPARE(result.errorNumber, EIO);
    QCOMPARE(get(path(u"a"_s)), newBytes);
    QCOMPARE(namesIn(m_folder->path()), QStringList(u"a"_s));
}

void AtomicFileTest::doesWithoutFolderSyncWhereThereIsNone()
{
    for (const int errorNumber : {EINVAL, ENOTSUP}) {
        Calls calls;
        calls.script[Calls::Fsync] = {0, errorNumber};
        QVERIFY(AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Existing, calls)
                    .isOk());
    }
}

void AtomicFileTest::goesOnAfterInterruptions()
{
    put(path(u"a"_s), oldBytes);
    Calls calls;
    calls.mostAtOnce = 777;
    calls.script[Calls::Open] = {EINTR, 0, EINTR};
    calls.script[Calls::Write] = {EINTR, 0, EINTR, EINTR};
    calls.script[Calls::Pread] = {0, EINTR, 0, EINTR};
    calls.script[Calls::Fsync] = {EINTR, 0, EINTR};
    calls.script[Calls::Close] = {EINTR};
    const FileResult result =
        AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Existing, calls);
    QVERIFY2(result.isOk(), qPrintable(result.error));
    QVERIFY(calls.isExhausted());
    QCOMPARE(get(path(u"a"_s)), newBytes);
}

void AtomicFileTest::givesUpWhenNothingIsWritten()
{
    put(path(u"a"_s), oldBytes);
    Calls calls;
    calls.mostAtOnce = 0;
    const FileResult result =
        AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Existing, calls);
    QCOMPARE(result.errorNumber, EIO);
    QCOMPARE(get(path(u"a"_s)), oldBytes);
    QCOMPARE(namesIn(m_folder->path()), QStringList(u"a"_s));
}

namespace {

// Gives 0 when all went as it should.
int writeOnSmallDisk(const QString& directory)
{
    const QString path = directory + u"/a"_s;
    if (!AtomicFile::write(path, oldBytes).isOk())
        return 1;
    // More than the disk has in all, more than is left beside the old file, and less than a page
    // more than is left.
    const QByteArray filler(qsizetype{36} * 1024, 'f');
    for (const qsizetype size : {200'000, 60'000, 49'153}) {
        const FileResult result = AtomicFile::write(path, QByteArray(size, 'n'));
        if (result.errorNumber != ENOSPC || !result.error.contains(u"No space left on device"_s))
            return 2;
        if (get(path) != oldBytes || namesIn(directory) != QStringList(u"a"_s))
            return 3;
    }
    if (!AtomicFile::write(path, filler).isOk() || get(path) != filler)
        return 4;
    return 0;
}

} // namespace

void AtomicFileTest::keepsTheOldFileOnAFullDisk()
{
    const QString folder = m_folder->path();
    const int result = SmallDisk::runOn(folder, [&folder] { return writeOnSmallDisk(folder); });
    if (result == SmallDisk::notMounted) {
        qInfo("No small disk can be mounted here: a full disk is only tested by injected failures "
              "(keepsTheOldFileWhenAnyCallFails).");
        return;
    }
    qInfo("The full disk was a tmpfs of 64 KiB.");
    QCOMPARE(result, 0);
}

void AtomicFileTest::tellsProgress()
{
    const QByteArray bytes(qsizetype{9} * 1024 * 1024, 'p');
    QList<qint64> steps;
    const auto progress = [&](qint64 done, qint64 total) {
        QCOMPARE(total, 2 * bytes.size());
        steps.append(done);
    };
    QVERIFY(AtomicFile::write(path(u"a"_s), bytes, progress).isOk());
    QVERIFY(steps.size() >= 6);
    QVERIFY(std::is_sorted(steps.cbegin(), steps.cend()));
    QCOMPARE(steps.last(), 2 * bytes.size());
}

void AtomicFileTest::neverReplaces_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("file") << u"a"_s;
    QTest::newRow("folder") << u"folder"_s;
    QTest::newRow("link to a file") << u"link"_s;
    QTest::newRow("dangling link") << u"dangling"_s;
}

void AtomicFileTest::neverReplaces()
{
    QFETCH(const QString, name);
    put(path(u"a"_s), oldBytes);
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    QVERIFY(QFile::link(u"a"_s, path(u"link"_s)));
    QVERIFY(QFile::link(u"b"_s, path(u"dangling"_s)));
    const QStringList names = namesIn(m_folder->path());
    const FileResult result =
        AtomicFile::write(path(name), newBytes, {}, AtomicFile::Replace::Never);
    QCOMPARE(result.errorNumber, EEXIST);
    QVERIFY2(result.error.contains(u"File exists"_s), qPrintable(result.error));
    QVERIFY(!result.inPlace);
    QCOMPARE(get(path(u"a"_s)), oldBytes);
    QCOMPARE(namesIn(m_folder->path()), names);
}

void AtomicFileTest::neverReplacesAFileMadeAtTheSameMoment_data()
{
    QTest::addColumn<QList<int>>("renameTurns");
    QTest::newRow("by the newer rename") << QList<int>{};
    QTest::newRow("by a second name") << QList<int>{EINVAL};
}

void AtomicFileTest::neverReplacesAFileMadeAtTheSameMoment()
{
    QFETCH(const QList<int>, renameTurns);
    Calls calls;
    calls.script[Calls::RenameNoReplace] = renameTurns;
    calls.beforePutInPlace = [this] {
        put(path(u"a"_s), oldBytes);
    };
    const FileResult result =
        AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Never, calls);
    QCOMPARE(result.errorNumber, EEXIST);
    QCOMPARE(get(path(u"a"_s)), oldBytes);
    QCOMPARE(namesIn(m_folder->path()), QStringList(u"a"_s));
}

void AtomicFileTest::createsWithoutTheNewerRename()
{
    Calls calls;
    calls.script[Calls::RenameNoReplace] = {ENOSYS, EINVAL};
    calls.script[Calls::Link] = {0, EPERM};
    QVERIFY(
        AtomicFile::write(path(u"a"_s), newBytes, {}, AtomicFile::Replace::Never, calls).isOk());
    QCOMPARE(get(path(u"a"_s)), newBytes);
    QCOMPARE(statusOf(path(u"a"_s)).st_nlink, nlink_t{1});
    // With neither there is no safe way.
    QCOMPARE(AtomicFile::write(path(u"b"_s), newBytes, {}, AtomicFile::Replace::Never, calls)
                 .errorNumber,
        EPERM);
    QCOMPARE(namesIn(m_folder->path()), QStringList(u"a"_s));
}

QTEST_GUILESS_MAIN(AtomicFileTest)

#include "AtomicFileTest.moc"
