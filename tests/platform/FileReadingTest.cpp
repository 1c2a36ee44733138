#include "platform/FileReading.h"

#include "tests/support/Files.h"

#include <QTemporaryDir>
#include <QtTest>

#include <vector>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::writeFile;

namespace {

constexpr qsizetype megabyte = 1 << 20;

QByteArray longText(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype index = 0; index < size; ++index)
        bytes[index] = static_cast<char>((index * 7 + index / megabyte) % 251);
    return bytes;
}

QByteArray bytesOf(const std::variant<QByteArray, QString>& result)
{
    const auto* const bytes = std::get_if<QByteArray>(&result);
    return bytes ? *bytes : QByteArray("no bytes");
}

QString errorOf(const std::variant<QByteArray, QString>& result)
{
    const auto* const error = std::get_if<QString>(&result);
    return error ? *error : u"no error"_s;
}

} // namespace

class FileReadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void givesEveryByte_data();
    void givesEveryByte();
    void followsLinks();
    void saysWhyThereAreNone();
    void refusesWhatIsNoPlainFile();
    void tellsHowFarItIs();
    void isLeftByItsProgress();
    void givesWhatIsLeftOfAFileThatShrinks();

private:
    QTemporaryDir m_folder;
};

void FileReadingTest::givesEveryByte_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("with NUL") << QByteArray("a\0b\r\n", 5);
    QTest::newRow("several pieces") << longText(9 * megabyte + 3);
    QTest::newRow("whole pieces") << longText(8 * megabyte);
}

void FileReadingTest::givesEveryByte()
{
    QFETCH(const QByteArray, bytes);
    const QString path = m_folder.filePath(u"bytes"_s);
    QVERIFY(writeFile(path, bytes));
    QVERIFY(bytesOf(readWholeFile(path)) == bytes);
}

void FileReadingTest::followsLinks()
{
    const QString path = m_folder.filePath(u"target"_s);
    QVERIFY(writeFile(path, "text"));
    const QString link = m_folder.filePath(u"link"_s);
    QVERIFY(QFile::link(path, link));
    QCOMPARE(bytesOf(readWholeFile(link)), QByteArray("text"));
}

void FileReadingTest::saysWhyThereAreNone()
{
    QCOMPARE(
        errorOf(readWholeFile(m_folder.filePath(u"missing"_s))), u"No such file or directory"_s);
    const QString link = m_folder.filePath(u"dangling"_s);
    QVERIFY(QFile::link(m_folder.filePath(u"missing"_s), link));
    QCOMPARE(errorOf(readWholeFile(link)), u"No such file or directory"_s);
}

void FileReadingTest::refusesWhatIsNoPlainFile()
{
    QCOMPARE(errorOf(readWholeFile(m_folder.path())), u"Not a plain file"_s);
    QCOMPARE(errorOf(readWholeFile(u"/dev/zero"_s)), u"Not a plain file"_s);
    const QString pipe = m_folder.filePath(u"pipe"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(errorOf(readWholeFile(pipe)), u"Not a plain file"_s);
}

void FileReadingTest::tellsHowFarItIs()
{
    const QString path = m_folder.filePath(u"long"_s);
    const qsizetype size = 9 * megabyte + 3;
    QVERIFY(writeFile(path, longText(size)));
    std::vector<qint64> steps{0};
    readWholeFile(path, [&](qint64 done, qint64 total) {
        QCOMPARE(total, size);
        QVERIFY(done > steps.back());
        steps.push_back(done);
    });
    QVERIFY(steps.size() > 3);
    QCOMPARE(steps.back(), size);
}

void FileReadingTest::isLeftByItsProgress()
{
    const QString path = m_folder.filePath(u"left"_s);
    QVERIFY(writeFile(path, longText(9 * megabyte)));
    int calls = 0;
    QVERIFY_THROWS_EXCEPTION(OperationCancelled, readWholeFile(path, [&calls](qint64, qint64) {
        ++calls;
        throw OperationCancelled();
    }));
    QCOMPARE(calls, 1);
}

void FileReadingTest::givesWhatIsLeftOfAFileThatShrinks()
{
    const QString path = m_folder.filePath(u"shrinking"_s);
    const QByteArray bytes = longText(9 * megabyte);
    QVERIFY(writeFile(path, bytes));
    qint64 left = 0;
    const auto result = readWholeFile(path, [&](qint64 done, qint64) {
        if (left == 0) {
            left = done + 5;
            QVERIFY(QFile::resize(path, left));
        }
    });
    QVERIFY(bytesOf(result) == bytes.first(left));
}

QTEST_GUILESS_MAIN(FileReadingTest)
#include "FileReadingTest.moc"
