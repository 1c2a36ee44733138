#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/FileBookmark.h"

using namespace Qt::StringLiterals;
using namespace tomely;

class FileBookmarkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsTheFileAgain_data();
    void findsTheFileAgain();
    void makesRelativePathsAbsolute();
    void refusesWhatNamesNoFile();
    void findsNothingWhenTheFileIsGone();
    void findsNoFolder();
    void findsNothingInForeignData_data();
    void findsNothingInForeignData();
    void findsNothingInAnyTruncation();

private:
    static void makeFile(const QString& path)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void FileBookmarkTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void FileBookmarkTest::findsTheFileAgain_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << u"mine.books"_s;
    QTest::newRow("blanks") << u" my  books "_s;
    QTest::newRow("other scripts") << u"Bücher 本 📚.books"_s;
    QTest::newRow("line feed") << u"a\nb"_s;
    QTest::newRow("longest") << QString(255, u'x');
}

void FileBookmarkTest::findsTheFileAgain()
{
    QFETCH(const QString, name);
    const QString path = m_folder->filePath(name);
    makeFile(path);
    QCOMPARE(resolveBookmark(makeBookmark(path)), path);
}

void FileBookmarkTest::makesRelativePathsAbsolute()
{
    makeFile(m_folder->filePath(u"a"_s));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    const QByteArray bookmark = makeBookmark(u"a"_s);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(resolveBookmark(bookmark), m_folder->filePath(u"a"_s));
}

void FileBookmarkTest::refusesWhatNamesNoFile()
{
    QVERIFY(makeBookmark(QString()).isNull());
    QVERIFY(makeBookmark(u"/a"_s + QChar(u'\0') + u'b').isNull());
}

void FileBookmarkTest::findsNothingWhenTheFileIsGone()
{
    const QString path = m_folder->filePath(u"a"_s);
    const QByteArray bookmark = makeBookmark(path);
    QVERIFY(!bookmark.isEmpty());
    QCOMPARE(resolveBookmark(bookmark), std::nullopt);
    makeFile(path);
    QCOMPARE(resolveBookmark(bookmark), path);
    QVERIFY(QFile::remove(path));
    QCOMPARE(resolveBookmark(bookmark), std::nullopt);
}

void FileBookmarkTest::findsNoFolder()
{
    QCOMPARE(resolveBookmark(makeBookmark(m_folder->path())), std::nullopt);
}

void FileBookmarkTest::findsNothingInForeignData_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("null") << QByteArray();
    QTest::newRow("empty") << ""_ba;
    QTest::newRow("a path") << "/etc/passwd"_ba;
    QTest::newRow("another maker") << "book\0\0\0\0mark/etc/passwd"_ba;
    QTest::newRow("unknown version") << "tomely-bookmark 2\n/etc/passwd"_ba;
    QTest::newRow("longer version") << "tomely-bookmark 11\n/etc/passwd"_ba;
    QTest::newRow("no path") << "tomely-bookmark 1\n"_ba;
    QTest::newRow("relative path") << "tomely-bookmark 1\netc/passwd"_ba;
    QTest::newRow("NUL") << "tomely-bookmark 1\n/etc/passwd\0x"_ba;
}

void FileBookmarkTest::findsNothingInForeignData()
{
    QFETCH(const QByteArray, data);
    QCOMPARE(resolveBookmark(data), std::nullopt);
}

void FileBookmarkTest::findsNothingInAnyTruncation()
{
    const QString path = m_folder->filePath(u"a"_s);
    makeFile(path);
    const QByteArray bookmark = makeBookmark(path);
    for (qsizetype length = 0; length < bookmark.size(); ++length)
        QCOMPARE(resolveBookmark(bookmark.first(length)), std::nullopt);
}

QTEST_GUILESS_MAIN(FileBookmarkTest)

#include "FileBookmarkTest.moc"
