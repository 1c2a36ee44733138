#include "platform/DesktopRecents.h"

#include "tests/support/Files.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>
#include <QXmlStreamReader>

#include <optional>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::readFile;
using samples::writeFile;

namespace {

const DesktopRecents::Program program{u"Tomely"_s, u"tomely %f"_s, u"application/x-books"_s};

/// What a list says of one file.
struct Entry {
    QString href;
    QMap<QString, QString> values; // "added", "mime-type", "count of Tomely" ...
    QStringList words; // titles, groups and programs, in their order

    friend bool operator==(const Entry&, const Entry&) = default;
};

void readElement(const QXmlStreamReader& xml, Entry& entry)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    if (xml.name() == "mime-type"_L1) {
        entry.values[u"mime-type"_s] = attributes.value("type"_L1).toString();
    } else if (xml.name() == "application"_L1) {
        const QString name = attributes.value("name"_L1).toString();
        entry.words.append(u"program "_s + name);
        for (const auto attribute : {"exec"_L1, "modified"_L1, "count"_L1})
            entry.values[attribute + " of "_L1 + name] = attributes.value(attribute).toString();
    } else if (xml.name() == "icon"_L1) {
        entry.values[u"icon"_s] = attributes.value("href"_L1).toString();
    } else if (xml.name() == "private"_L1) {
        entry.values[u"private"_s] = u"yes"_s;
    }
}

/// Nothing when this is no well-formed list.
std::optional<QList<Entry>> entriesOf(const QString& path)
{
    QXmlStreamReader xml(readFile(path));
    QList<Entry> entries;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == "bookmark"_L1) {
            entries.append({xml.attributes().value("href"_L1).toString(), {}, {}});
            for (const auto attribute : {"added"_L1, "modified"_L1, "visited"_L1})
                entries.last().values[attribute] = xml.attributes().value(attribute).toString();
        } else if (xml.isStartElement() && !entries.isEmpty()) {
            readElement(xml, entries.last());
        } else if (xml.isCharacters() && !xml.isWhitespace()) {
            entries.last().words.append(xml.text().toString());
        }
    }
    return xml.hasError() ? std::nullopt : std::optional(entries);
}

/// Of the file with that address; empty when the list does not have it.
Entry entryOf(const QString& path, const QString& href)
{
    for (const Entry& entry : entriesOf(path).value_or(QList<Entry>())) {
        if (entry.href == href)
            return entry;
    }
    return {};
}

QStringList addresses(const QString& path)
{
    QStringList found;
    for (const Entry& entry : entriesOf(path).value_or(QList<Entry>()))
        found.append(entry.href);
    return found;
}

bool isOfNow(const QString& time)
{
    const QDateTime read = QDateTime::fromString(time, Qt::ISODateWithMs);
    constexpr int fewSeconds = 60;
    return read.isValid() && std::abs(read.secsTo(QDateTime::currentDateTimeUtc())) < fewSeconds;
}

/// As other programs write it: one file of theirs, one of theirs and of this program, one of this
/// program alone.
QByteArray listOfOthers()
{
    return readFile(QStringLiteral(TOMELY_SOURCE_DIR "/tests/fixtures/recently-used.xbel"));
}

} // namespace

class DesktopRecentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void makesAListWhereThereIsNone();
    void makesAListForItsPersonAlone();
    void takesAnEmptyFileForAnEmptyList();
    void addsAFileToWhatOthersWrote();
    void saysThatAFileWasUsedAgain();
    void keepsTheOtherProgramsOfAFile();
    void namesFilesAsOtherProgramsDo_data();
    void namesFilesAsOtherProgramsDo();
    void namesAFileByItsLink();
    void leavesAListAloneThatItCannotRead_data();
    void leavesAListAloneThatItCannotRead();
    void leavesATooLargeListAlone();
    void leavesAloneWhatIsNoFile();
    void leavesNothingBehindWhereItCannotWrite();
    void followsALinkToTheList();
    void keepsThePermissionsOfTheList();
    void takesOutItsOwnFilesAlone();
    void doesNotWriteWhenThereIsNothingToTakeOut();
    void notesFilesAfterAClear();
    void writesByItself();
    void writesAtItsEnd();
    void writesNothingUnasked();
    void livesInTheFolderForData();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    QString listPath() const { return path(u"data/recently-used.xbel"_s); }

    void put(const QByteArray& bytes) const
    {
        QDir().mkpath(path(u"data"_s));
        writeFile(listPath(), bytes);
    }

    void note(const QString& file) const
    {
        DesktopRecents recents(program, listPath());
        recents.note(file);
        recents.write();
    }

    void clear() const
    {
        DesktopRecents recents(program, listPath());
        recents.clear();
        recents.write();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void DesktopRecentsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void DesktopRecentsTest::cleanup()
{
    m_folder.reset();
}

void DesktopRecentsTest::makesAListWhereThereIsNone()
{
    note(u"/home/anna/Classics.books"_s);
    QCOMPARE(addresses(listPath()), QStringList(u"file:///home/anna/Classics.books"_s));
    const Entry entry = entryOf(listPath(), u"file:///home/anna/Classics.books"_s);
    QCOMPARE(entry.words, QStringList(u"program Tomely"_s));
    QCOMPARE(entry.values[u"mime-type"_s], u"application/x-books"_s);
    QCOMPARE(entry.values[u"exec of Tomely"_s], u"'tomely %f'"_s);
    QCOMPARE(entry.values[u"count of Tomely"_s], u"1"_s);
    for (const QString& time : {u"added"_s, u"modified"_s, u"visited"_s, u"modified of Tomely"_s})
        QVERIFY2(isOfNow(entry.values[time]), qPrintable(time + u": "_s + entry.values[time]));
}

void DesktopRecentsTest::makesAListForItsPersonAlone()
{
    const mode_t before = ::umask(0);
    note(u"/home/anna/Classics.books"_s);
    ::umask(before);
    QCOMPARE(QFile::permissions(listPath())
            & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
        QFile::Permissions());
    QCOMPARE(
        QDir(path(u"data"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList(u"recently-used.xbel"_s));
}

void DesktopRecentsTest::takesAnEmptyFileForAnEmptyList()
{
    put({});
    note(u"/home/anna/Classics.books"_s);
    QCOMPARE(addresses(listPath()), QStringList(u"file:///home/anna/Classics.books"_s));
}

void DesktopRecentsTest::addsAFileToWhatOthersWrote()
{
    put(listOfOthers());
    const QList<Entry> before = entriesOf(listPath()).value();
    QCOMPARE(before.size(), 3);
    QCOMPARE(before.first().values[u"private"_s], u"yes"_s); // the test reads everything
    note(u"/home/anna/new.books"_s);
    for (const Entry& entry : before) {
        const Entry after = entryOf(listPath(), entry.href);
        QCOMPARE(after.values.keys(), entry.values.keys());
        for (const auto& [name, value] : entry.values.asKeyValueRange()) {
            const QDateTime time = QDateTime::fromString(value, Qt::ISODateWithMs);
            if (time.isValid()) // which is written in more than one way
                QCOMPARE(QDateTime::fromString(after.values[name], Qt::ISODateWithMs), time);
            else
                QCOMPARE(after.values[name], value);
        }
        QCOMPARE(QSet<QString>(after.words.begin(), after.words.end()),
            QSet<QString>(entry.words.begin(), entry.words.end()));
    }
    QCOMPARE(addresses(listPath()).size(), before.size() + 1);
    QVERIFY(addresses(listPath()).contains(u"file:///home/anna/new.books"_s));
}

void DesktopRecentsTest::saysThatAFileWasUsedAgain()
{
    put(listOfOthers());
    note(u"/home/anna/own.books"_s);
    const Entry entry = entryOf(listPath(), u"file:///home/anna/own.books"_s);
    QCOMPARE(entry.words, QStringList(u"program Tomely"_s));
    QCOMPARE(entry.values[u"count of Tomely"_s], u"10"_s);
    QVERIFY(entry.values[u"added"_s].startsWith("2021-02-03T04:05:06"_L1));
    for (const QString& time : {u"modified"_s, u"visited"_s, u"modified of Tomely"_s})
        QVERIFY2(isOfNow(entry.values[time]), qPrintable(time + u": "_s + entry.values[time]));
    QCOMPARE(addresses(listPath()).size(), 3);
}

void DesktopRecentsTest::keepsTheOtherProgramsOfAFile()
{
    put(listOfOthers());
    note(u"/home/anna/shared.books"_s);
    const Entry entry = entryOf(listPath(), u"file:///home/anna/shared.books"_s);
    QCOMPARE(entry.values[u"count of Tomely"_s], u"5"_s);
    QCOMPARE(entry.values[u"count of Files"_s], u"3"_s);
    QCOMPARE(entry.values[u"exec of Files"_s], u"'files %u'"_s);
    QVERIFY(entry.values[u"modified of Files"_s].startsWith("2022-02-03T04:05:06"_L1));
}

void DesktopRecentsTest::namesFilesAsOtherProgramsDo_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("address");
    QTest::newRow("space") << u"/a/my books.books"_s << u"file:///a/my%20books.books"_s;
    QTest::newRow("signs of XML") << u"/a/b&<c>\"'.books"_s << u"file:///a/b&%3Cc%3E%22'.books"_s;
    QTest::newRow("signs of addresses")
        << u"/a/b#c?d%20.books"_s << u"file:///a/b%23c%3Fd%2520.books"_s;
    QTest::newRow("letters of languages")
        << u"/a/Bücher 書.books"_s << u"file:///a/B%C3%BCcher%20%E6%9B%B8.books"_s;
    QTest::newRow("line break") << u"/a/b\nc.books"_s << u"file:///a/b%0Ac.books"_s;
}

void DesktopRecentsTest::namesFilesAsOtherProgramsDo()
{
    QFETCH(const QString, file);
    QFETCH(const QString, address);
    note(file);
    note(file); // and finds them again
    QCOMPARE(addresses(listPath()), QStringList(address));
    QCOMPARE(entryOf(listPath(), address).values[u"count of Tomely"_s], u"2"_s);
}

void DesktopRecentsTest::namesAFileByItsLink()
{
    QVERIFY(writeFile(path(u"there.books"_s), "x"));
    QVERIFY(QFile::link(path(u"there.books"_s), path(u"link.books"_s)));
    note(path(u"link.books"_s));
    QCOMPARE(addresses(listPath()), QStringList(u"file://"_s + path(u"link.books"_s)));
}

void DesktopRecentsTest::leavesAListAloneThatItCannotRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no XML") << QByteArray("hello");
    QTest::newRow("another document") << QByteArray("<html></html>");
    QTest::newRow("cut off") << listOfOthers().chopped(100);
    QTest::newRow("no text") << QByteArray("<xbel version=\"1.0\">\xff\xfe</xbel>");
    QTest::newRow("NUL") << QByteArray("<xbel version=\"1.0\">\0</xbel>", 29);
    QTest::newRow("no time") << listOfOthers().replace("2022-02-03T04:05:06Z", "yesterday");
    QTest::newRow("entity bomb") << QByteArray(
        "<!DOCTYPE x [<!ENTITY a \"aaaaaaaa\"><!ENTITY b \"&a;&a;&a;\">]><xbel "
        "version=\"1.0\"><bookmark href=\"file:///a\"><title>&b;</title></bookmark></xbel>");
}

void DesktopRecentsTest::leavesAListAloneThatItCannotRead()
{
    QFETCH(const QByteArray, bytes);
    put(bytes);
    note(u"/home/anna/new.books"_s);
    QCOMPARE(readFile(listPath()), bytes);
    clear();
    QCOMPARE(readFile(listPath()), bytes);
}

void DesktopRecentsTest::leavesATooLargeListAlone()
{
    const QByteArray most = listOfOthers().leftJustified(DesktopRecents::largestList, '\n');
    put(most + '\n');
    note(u"/home/anna/new.books"_s);
    QCOMPARE(readFile(listPath()), most + '\n');
    put(most);
    note(u"/home/anna/new.books"_s);
    QVERIFY(addresses(listPath()).contains(u"file:///home/anna/new.books"_s));
}

void DesktopRecentsTest::leavesAloneWhatIsNoFile()
{
    // So people tell their desktop to remember nothing.
    QVERIFY(QDir().mkpath(listPath()));
    note(u"/home/anna/new.books"_s);
    QVERIFY(QFileInfo(listPath()).isDir());
    QVERIFY(QDir().rmdir(listPath()));
    QVERIFY(QFile::link(u"/dev/null"_s, listPath()));
    note(u"/home/anna/new.books"_s);
    QCOMPARE(QFileInfo(listPath()).symLinkTarget(), u"/dev/null"_s);
    QVERIFY(QFile::remove(listPath()));
    QVERIFY(QFile::link(path(u"gone"_s), listPath()));
    note(u"/home/anna/new.books"_s);
    QVERIFY(!QFileInfo::exists(path(u"gone"_s)));
}

void DesktopRecentsTest::leavesNothingBehindWhereItCannotWrite()
{
    QVERIFY(writeFile(path(u"data"_s), "a file where the folder should be"));
    note(u"/home/anna/new.books"_s);
    QCOMPARE(readFile(path(u"data"_s)), QByteArray("a file where the folder should be"));
}

void DesktopRecentsTest::followsALinkToTheList()
{
    QVERIFY(writeFile(path(u"elsewhere.xbel"_s), listOfOthers()));
    QVERIFY(QDir().mkpath(path(u"data"_s)));
    QVERIFY(QFile::link(path(u"elsewhere.xbel"_s), listPath()));
    note(u"/home/anna/new.books"_s);
    QVERIFY(QFileInfo(listPath()).isSymLink());
    QCOMPARE(addresses(path(u"elsewhere.xbel"_s)).size(), 4);
}

void DesktopRecentsTest::keepsThePermissionsOfTheList()
{
    put(listOfOthers());
    const QFile::Permissions wanted = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(listPath(), wanted));
    const QFile::Permissions before = QFile::permissions(listPath());
    note(u"/home/anna/new.books"_s);
    QCOMPARE(QFile::permissions(listPath()), before);
    QCOMPARE(addresses(listPath()).size(), 4);
}

void DesktopRecentsTest::takesOutItsOwnFilesAlone()
{
    put(listOfOthers());
    const Entry shared = entryOf(listPath(), u"file:///home/anna/shared.books"_s);
    clear();
    QStringList left = addresses(listPath());
    left.sort();
    QCOMPARE(left,
        QStringList({u"file:///home/anna/a%20%26%20b.odt"_s, u"file:///home/anna/shared.books"_s}));
    const Entry after = entryOf(listPath(), u"file:///home/anna/shared.books"_s);
    QCOMPARE(after.values[u"count of Tomely"_s], u"4"_s);
    QVERIFY(after.values[u"modified"_s].startsWith("2022-02-03T04:05:06"_L1));
}

void DesktopRecentsTest::doesNotWriteWhenThereIsNothingToTakeOut()
{
    clear();
    QVERIFY(!QFileInfo::exists(path(u"data"_s)));
    put("<xbel version=\"1.0\"></xbel>");
    clear();
    QCOMPARE(readFile(listPath()), QByteArray("<xbel version=\"1.0\"></xbel>"));
}

void DesktopRecentsTest::notesFilesAfterAClear()
{
    DesktopRecents recents(program, listPath());
    recents.note(u"/a/forgotten.books"_s);
    recents.clear();
    recents.note(u"/a/later.books"_s);
    recents.note(u"/a/latest.books"_s);
    recents.write();
    QStringList noted = addresses(listPath());
    noted.sort();
    QCOMPARE(noted, QStringList({u"file:///a/later.books"_s, u"file:///a/latest.books"_s}));
}

void DesktopRecentsTest::writesByItself()
{
    DesktopRecents recents(program, listPath());
    recents.note(u"/a/b.books"_s);
    QVERIFY(!QFileInfo::exists(listPath())); // a window that comes up goes first
    QTRY_COMPARE(addresses(listPath()), QStringList(u"file:///a/b.books"_s));
}

void DesktopRecentsTest::writesAtItsEnd()
{
    {
        DesktopRecents recents(program, listPath());
        recents.note(u"/a/b.books"_s);
    }
    QCOMPARE(addresses(listPath()), QStringList(u"file:///a/b.books"_s));
}

void DesktopRecentsTest::writesNothingUnasked()
{
    put("<xbel version=\"1.0\"></xbel>");
    {
        DesktopRecents recents(program, listPath());
        recents.write();
    }
    QCOMPARE(readFile(listPath()), QByteArray("<xbel version=\"1.0\"></xbel>"));
}

void DesktopRecentsTest::livesInTheFolderForData()
{
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QFile::encodeName(path(u"mine"_s)));
    const QString list = DesktopRecents::defaultListPath();
    qputenv("XDG_DATA_HOME", before);
    QCOMPARE(list, path(u"mine/recently-used.xbel"_s));
}

QTEST_GUILESS_MAIN(DesktopRecentsTest)
#include "DesktopRecentsTest.moc"
