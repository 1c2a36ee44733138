#include <cerrno>

#include <sys/stat.h>

#include <QFileInfo>
#include <QTest>

#include "platform/AtomicFile.h"
#include "tests/platform/AtomicFileSamples.h"

using namespace Qt::StringLiterals;
using namespace tomely;
using namespace tomely::AtomicFileSamples;

class AtomicFileTargetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void followsLinks_data();
    void followsLinks();
    void refusesWhatIsNoFile_data();
    void refusesWhatIsNoFile();
    void refusesWriteProtectedFile();
    void refusesFolderThatCannotBeWritten();
    void writesInFolderThatCannotBeListed();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void AtomicFileTargetTest::init()
{
    m_folder = makeFolder();
    QVERIFY(m_folder->isValid());
}

void AtomicFileTargetTest::followsLinks_data()
{
    QTest::addColumn<QList<QStringList>>("links");
    QTest::addColumn<bool>("exists");
    // Each link is a pair of name and value; the file is "folder/a".
    const QList<QStringList> relative{{u"link"_s, u"folder/a"_s}};
    const QList<QStringList> chain{{u"link"_s, u"./folder/second"_s},
        {u"folder/second"_s, u"../third"_s}, {u"third"_s, u"folder/a"_s}};
    const QList<QStringList> folders{{u"inner"_s, u"folder"_s}, {u"link"_s, u"inner/a"_s}};
    for (const bool exists : {true, false}) {
        const char* const suffix = exists ? "" : ", dangling";
        QTest::addRow("relative%s", suffix) << relative << exists;
        QTest::addRow("chain%s", suffix) << chain << exists;
        QTest::addRow("through a linked folder%s", suffix) << folders << exists;
    }
}

void AtomicFileTargetTest::followsLinks()
{
    QFETCH(const QList<QStringList>, links);
    QFETCH(const bool, exists);
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    for (const QStringList& link : links)
        QVERIFY(QFile::link(link[1], path(link[0])));
    QVERIFY(QFile::link(path(u"link"_s), path(u"absolute"_s)));
    if (exists)
        put(path(u"folder/a"_s), oldBytes);
    const QStringList names = namesIn(m_folder->path());
    for (const QString& name : {u"link"_s, u"absolute"_s}) {
        const QByteArray bytes = newBytes + name.toUtf8();
        const FileResult result = AtomicFile::write(path(name), bytes);
        QVERIFY2(result.isOk(), qPrintable(result.error));
        QCOMPARE(get(path(u"folder/a"_s)), bytes);
        QVERIFY(!QFileInfo(path(u"folder/a"_s)).isSymLink());
        QVERIFY(QFileInfo(path(name)).isSymLink());
    }
    QCOMPARE(namesIn(m_folder->path()), names);
}

void AtomicFileTargetTest::refusesWhatIsNoFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("errorNumber");
    QTest::newRow("folder") << u"folder"_s << EISDIR;
    QTest::newRow("folder with slash") << u"folder/"_s << EISDIR;
    QTest::newRow("link to a folder") << u"link"_s << EISDIR;
    QTest::newRow("file with slash") << u"a/"_s << EISDIR;
    QTest::newRow("dot") << u"."_s << EISDIR;
    QTest::newRow("file as a folder") << u"a/b"_s << ENOTDIR;
    QTest::newRow("no such folder") << u"missing/a"_s << ENOENT;
    QTest::newRow("dangling link to no folder") << u"nowhere"_s << ENOENT;
    QTest::newRow("link to itself") << u"self"_s << ELOOP;
    QTest::newRow("ring of links") << u"ring"_s << ELOOP;
    QTest::newRow("pipe") << u"pipe"_s << ENOTSUP;
    QTest::newRow("name too long") << QString(256, u'n') << ENAMETOOLONG;
    QTest::newRow("NUL") << u"a"_s + QChar(u'\0') + u'b' << EINVAL;
}

void AtomicFileTargetTest::refusesWhatIsNoFile()
{
    QFETCH(const QString, name);
    QFETCH(const int, errorNumber);
    put(path(u"a"_s), oldBytes);
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    QVERIFY(QFile::link(u"folder"_s, path(u"link"_s)));
    QVERIFY(QFile::link(u"missing/a"_s, path(u"nowhere"_s)));
    QVERIFY(QFile::link(u"self"_s, path(u"self"_s)));
    QVERIFY(QFile::link(u"ring2"_s, path(u"ring"_s)));
    QVERIFY(QFile::link(u"./ring"_s, path(u"ring2"_s)));
    QCOMPARE(::mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    const QStringList names = namesIn(m_folder->path());
    const FileResult result = AtomicFile::write(path(name), newBytes);
    QCOMPARE(result.errorNumber, errorNumber);
    QVERIFY(!result.error.isEmpty());
    QCOMPARE(get(path(u"a"_s)), oldBytes);
    QCOMPARE(namesIn(m_folder->path()), names);
    QCOMPARE(AtomicFile::write(QString(), newBytes).errorNumber, ENOENT);
}

void AtomicFileTargetTest::refusesWriteProtectedFile()
{
    const Unprivileged ordinaryUser;
    put(path(u"a"_s), oldBytes);
    QVERIFY(QFile::setPermissions(path(u"a"_s), QFileDevice::ReadOwner));
    const FileResult result = AtomicFile::write(path(u"a"_s), newBytes);
    QCOMPARE(result.errorNumber, EACCES);
    QVERIFY2(result.error.contains(u"Permission denied"_s), qPrintable(result.error));
    QCOMPARE(get(path(u"a"_s)), oldBytes);
    QCOMPARE(namesIn(m_folder->path()), QStringList(u"a"_s));
}

void AtomicFileTargetTest::refusesFolderThatCannotBeWritten()
{
    const Unprivileged ordinaryUser;
    put(path(u"a"_s), oldBytes);
    const auto all = QFile::permissions(m_folder->path());
    QVERIFY(
        QFile::setPermissions(m_folder->path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    const FileResult result = AtomicFile::write(path(u"a"_s), newBytes);
    QVERIFY(QFile::setPermissions(m_folder->path(), all));
    QCOMPARE(result.errorNumber, EACCES);
    QCOMPARE(get(path(u"a"_s)), oldBytes);
}

void AtomicFileTargetTest::writesInFolderThatCannotBeListed()
{
    const Unprivileged ordinaryUser;
    const auto all = QFile::permissions(m_folder->path());
    QVERIFY(
        QFile::setPermissions(m_folder->path(), QFileDevice::WriteOwner | QFileDevice::ExeOwner));
    const FileResult result = AtomicFile::write(path(u"a"_s), newBytes);
    QVERIFY(QFile::setPermissions(m_folder->path(), all));
    QVERIFY2(result.isOk(), qPrintable(result.error));
    QCOMPARE(get(path(u"a"_s)), newBytes);
}

QTEST_GUILESS_MAIN(AtomicFileTargetTest)

#include "AtomicFileTargetTest.moc"
