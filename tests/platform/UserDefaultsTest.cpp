#include <limits>
#include <memory>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "tests/platform/SmallDisk.h"

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

constexpr QLatin1StringView key("Key");

void put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray get(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class UserDefaultsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsAbsentKeys();
    void readsTextsWrittenByHand_data();
    void readsTextsWrittenByHand();
    void keepsWhatIsSet_data();
    void keepsWhatIsSet();
    void removesKeys();
    void readsAtOnceWhatWasSet();
    void writesWhenTheEventLoopIsIdle();
    void writesAtDestruction();
    void mergesWithAnotherProgram();
    void takesInWhatOthersChanged();
    void makesItsFolder();
    void tellsWhenTheFileCannotBeWritten();
    void leavesAnUnreadableFileAlone();
    void keepsTheFileOnAFullDisk();
    void keepsTheFileWithoutRoomForTemporaryFiles();
    void followsALink();
    void livesInTheConfigurationFolder();
    void writesWhatQtReads();

private:
    QString path() const { return m_folder->filePath(u"Tomely.ini"_s); }

    QByteArray contents() const { return get(path()); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void UserDefaultsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void UserDefaultsTest::readsAbsentKeys()
{
    UserDefaults defaults(path());
    QVERIFY(!defaults.contains(key));
    QVERIFY(!defaults.boolForKey(key));
    QCOMPARE(defaults.integerForKey(key), 0);
    QVERIFY(defaults.stringForKey(key).isEmpty());
    QVERIFY(defaults.stringListForKey(key).isEmpty());
    QVERIFY(defaults.dataForKey(key).isNull());
    QVERIFY(defaults.synchronize());
    // Reading leaves no trace.
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void UserDefaultsTest::readsTextsWrittenByHand_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("asBool");
    QTest::addColumn<qint64>("asInteger");
    QTest::addColumn<QString>("asString");
    QTest::addColumn<QStringList>("asList");
    const auto row = [](const QByteArray& line, bool asBool, qint64 asInteger,
                         const QString& asString, const QStringList& asList) {
        QTest::newRow(line.constData()) << line << asBool << asInteger << asString << asList;
    };
    const auto single = [&row](const char* text, bool asBool, qint64 asInteger) {
        row(text, asBool, asInteger, QString::fromUtf8(text), {QString::fromUtf8(text)});
    };
    single("true", true, 0);
    single("True", true, 0);
    single("TRUE", true, 0);
    single("yes", true, 0);
    single("YES", true, 0);
    single("on", true, 0);
    single("1", true, 1);
    single("2", true, 2);
    single("-1", true, -1);
    single("0.5", true, 0);
    row("1 ; always", true, 1, u"1"_s, {u"1"_s});
    single("false", false, 0);
    single("no", false, 0);
    single("off", false, 0);
    single("0", false, 0);
    single("00", false, 0);
    single("0x1", false, 0);
    single("truely", false, 0);
    single("12abc", true, 12);
    single("9223372036854775808", true, 9223372036854775807);
    single("nan", false, 0);
    row("", false, 0, QString(), {});
    row("\"\"", false, 0, QString(), {});
    row("  true  ", true, 0, u"true"_s, {u"true"_s});
    row("\" true \"", true, 0, u" true "_s, {u" true "_s});
    row("\" 12\"", true, 12, u" 12"_s, {u" 12"_s});
    row("Bücher", false, 0, u"Bücher"_s, {u"Bücher"_s});
    row("12, 13", true, 12, u"12, 13"_s, {u"12"_s, u"13"_s});
    row("Dear, dear", false, 0, u"Dear, dear"_s, {u"Dear"_s, u"dear"_s});
}

void UserDefaultsTest::readsTextsWrittenByHand()
{
    QFETCH(const QByteArray, line);
    QFETCH(const QString, asString);
    put(path(), "[General]\nKey=" + line + "\n");
    const UserDefaults defaults(path());
    QVERIFY(defaults.contains(key));
    QTEST(defaults.boolForKey(key), "asBool");
    QTEST(defaults.integerForKey(key), "asInteger");
    QTEST(defaults.stringForKey(key), "asString");
    QTEST(defaults.stringListForKey(key), "asList");
    QCOMPARE(defaults.dataForKey(key), asString.toUtf8());
    QVERIFY(!defaults.dataForKey(key).isNull());
}

void UserDefaultsTest::keepsWhatIsSet_data()
{
    QTest::addColumn<bool>("reopen");
    QTest::newRow("in the same program") << false;
    QTest::newRow("in the next program") << true;
}

void UserDefaultsTest::keepsWhatIsSet()
{
    QFETCH(const bool, reopen);
    const QString difficult = u" a=b;c,d\"e\\f\n\t@ByteArray(x) %20 é 本 📚 "_s;
    const QByteArray everyByte = [] {
        QByteArray bytes;
        for (int byte = 0; byte < 256; ++byte)
            bytes.append(static_cast<char>(byte));
        return bytes;
    }();
    auto defaults = std::make_unique<UserDefaults>(path());
    defaults->setBool(u"yes"_s, true);
    defaults->setBool(u"no"_s, false);
    defaults->setInteger(u"large"_s, std::numeric_limits<qint64>::max());
    defaults->setInteger(u"small"_s, std::numeric_limits<qint64>::min());
    defaults->setString(u"text"_s, difficult);
    defaults->setString(u"at"_s, u"@Invalid()"_s);
    defaults->setString(u"empty"_s, QString());
    defaults->setStringList(u"none"_s, {});
    defaults->setStringList(u"one"_s, {difficult});
    defaults->setStringList(u"several"_s, {u"a"_s, QString(), difficult, u"@x"_s, u"b, c"_s});
    defaults->setData(u"data"_s, everyByte);
    defaults->setData(u"no bytes"_s, "");
    defaults->setBool(u"a group/a key"_s, true);
    if (reopen) {
        QVERIFY(defaults->synchronize());
        defaults = std::make_unique<UserDefaults>(path());
    }
    QVERIFY(defaults->boolForKey(u"yes"_s));
    QVERIFY(defaults->contains(u"no"_s));
    QVERIFY(!defaults->boolForKey(u"no"_s));
    QCOMPARE(defaults->integerForKey(u"large"_s), std::numeric_limits<qint64>::max());
    QCOMPARE(defaults->integerForKey(u"small"_s), std::numeric_limits<qint64>::min());
    QCOMPARE(defaults->stringForKey(u"text"_s), difficult);
    QCOMPARE(defaults->stringForKey(u"at"_s), u"@Invalid()"_s);
    QVERIFY(defaults->contains(u"empty"_s));
    QVERIFY(defaults->stringForKey(u"empty"_s).isEmpty());
    QVERIFY(defaults->contains(u"none"_s));
    QVERIFY(defaults->stringListForKey(u"none"_s).isEmpty());
    QCOMPARE(defaults->stringListForKey(u"one"_s), QStringList(difficult));
    QCOMPARE(defaults->stringListForKey(u"several"_s),
        QStringList({u"a"_s, QString(), difficult, u"@x"_s, u"b, c"_s}));
    QCOMPARE(defaults->dataForKey(u"data"_s), everyByte);
    QVERIFY(!defaults->dataForKey(u"no bytes"_s).isNull());
    QVERIFY(defaults->dataForKey(u"no bytes"_s).isEmpty());
    QVERIFY(defaults->boolForKey(u"a group/a key"_s));
}

void UserDefaultsTest::removesKeys()
{
    UserDefaults defaults(path());
    defaults.setData(PreferenceKeys::BookmarkData, "x");
    defaults.setString(PreferenceKeys::DefaultFile, u"x"_s);
    QVERIFY(defaults.synchronize());
    defaults.setData(PreferenceKeys::BookmarkData, QByteArray());
    defaults.remove(PreferenceKeys::DefaultFile);
    QVERIFY(!defaults.contains(PreferenceKeys::BookmarkData));
    QVERIFY(!defaults.contains(PreferenceKeys::DefaultFile));
    QVERIFY(defaults.synchronize());
    const UserDefaults next(path());
    QVERIFY(!next.contains(PreferenceKeys::BookmarkData));
    QVERIFY(!next.contains(PreferenceKeys::DefaultFile));
}

void UserDefaultsTest::readsAtOnceWhatWasSet()
{
    UserDefaults defaults(path());
    defaults.setInteger(PreferenceKeys::PreferencesVersion, 3);
    QCOMPARE(defaults.integerForKey(PreferenceKeys::PreferencesVersion), 3);
    defaults.setInteger(PreferenceKeys::PreferencesVersion, 4);
    QCOMPARE(defaults.integerForKey(PreferenceKeys::PreferencesVersion), 4);
    QVERIFY(!QFileInfo::exists(path()));
}

void UserDefaultsTest::writesWhenTheEventLoopIsIdle()
{
    UserDefaults defaults(path());
    defaults.setInteger(key, 3);
    QTRY_COMPARE(contents(), "[General]\nKey=3\n"_ba);
    defaults.setInteger(key, 4);
    QTRY_COMPARE(contents(), "[General]\nKey=4\n"_ba);
}

void UserDefaultsTest::writesAtDestruction()
{
    {
        UserDefaults defaults(path());
        defaults.setInteger(key, 3);
    }
    QCOMPARE(contents(), "[General]\nKey=3\n"_ba);
}

void UserDefaultsTest::mergesWithAnotherProgram()
{
    UserDefaults one(path());
    UserDefaults other(path());
    one.setString(u"first"_s, u"one"_s);
    one.setString(u"both"_s, u"one"_s);
    other.setString(u"second"_s, u"other"_s);
    other.setString(u"both"_s, u"other"_s);
    QVERIFY(one.synchronize());
    QVERIFY(other.synchronize());
    QCOMPARE(other.stringForKey(u"first"_s), u"one"_s);
    QCOMPARE(other.stringForKey(u"second"_s), u"other"_s);
    QCOMPARE(other.stringForKey(u"both"_s), u"other"_s);
    QVERIFY(one.synchronize());
    QCOMPARE(one.stringForKey(u"second"_s), u"other"_s);
    QCOMPARE(one.stringForKey(u"both"_s), u"other"_s);
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList(u"Tomely.ini"_s));
}

void UserDefaultsTest::takesInWhatOthersChanged()
{
    UserDefaults defaults(path());
    // Same size, same moment: nothing but the bytes tells these files apart.
    for (int digit = 0; digit < 10; ++digit) {
        put(path(), "[General]\nKey=" + QByteArray::number(digit) + "\n");
        QVERIFY(defaults.synchronize());
        QCOMPARE(defaults.integerForKey(key), digit);
        QCOMPARE(UserDefaults(path()).integerForKey(key), digit);
    }
    QVERIFY(QFile::remove(path()));
    QVERIFY(defaults.synchronize());
    QVERIFY(!defaults.contains(key));
}

void UserDefaultsTest::makesItsFolder()
{
    const QString deep = m_folder->filePath(u"a/b/Tomely.ini"_s);
    UserDefaults defaults(deep);
    defaults.setBool(key, true);
    QVERIFY(defaults.synchronize());
    QVERIFY(UserDefaults(deep).boolForKey(key));
}

void UserDefaultsTest::tellsWhenTheFileCannotBeWritten()
{
    // A file stands where the folder should be.
    const QString blocked = m_folder->filePath(u"file/Tomely.ini"_s);
    put(m_folder->filePath(u"file"_s), "x");
    UserDefaults defaults(blocked);
    defaults.setBool(key, true);
    QVERIFY(!defaults.synchronize());
    QVERIFY(defaults.boolForKey(key));
    // The change is kept until it can be written.
    QVERIFY(QFile::remove(m_folder->filePath(u"file"_s)));
    QVERIFY(defaults.synchronize());
    QVERIFY(UserDefaults(blocked).boolForKey(key));
}

void UserDefaultsTest::leavesAnUnreadableFileAlone()
{
    // A folder is the one thing that root cannot read as a file either.
    QVERIFY(QDir().mkdir(path()));
    UserDefaults defaults(path());
    QVERIFY(!defaults.contains(key));
    defaults.setBool(key, true);
    QVERIFY(!defaults.synchronize());
    QVERIFY(QFileInfo(path()).isDir());
    defaults.remove(key);
}

namespace {

// Gives 0 when all went as it should.
int synchronizeOnFullDisk(const QString& folder)
{
    const QString path = folder + u"/Tomely.ini"_s;
    UserDefaults defaults(path);
    defaults.setString(u"first"_s, u"kept"_s);
    if (!defaults.synchronize())
        return 1;
    const QByteArray before = get(path);
    QFile filler(folder + u"/filler"_s);
    // One page stays free: enough for the lock, not for the preferences.
    if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        || filler.write(QByteArray(qsizetype{56} * 1024, 'f')) != qint64{56} * 1024)
        return 2;
    defaults.setString(u"second"_s, QString(5000, u'x'));
    if (defaults.synchronize() || get(path) != before)
        return 3;
    filler.remove();
    if (!defaults.synchronize() || UserDefaults(path).stringForKey(u"second"_s).size() != 5000)
        return 4;
    return 0;
}

// The same where only the folder for temporary files is full.
int synchronizeWithoutTemporaryFiles(const QString& path, const QString& temporaryFolder)
{
    qputenv("TMPDIR", QFile::encodeName(temporaryFolder));
    QFile filler(temporaryFolder + u"/filler"_s);
    if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return 1;
    filler.write(QByteArray(qsizetype{64} * 1024, 'f'));
    UserDefaults defaults(path);
    if (defaults.stringForKey(u"first"_s) != u"kept"_s)
        return 2;
    const QByteArray before = get(path);
    defaults.setString(u"second"_s, u"new"_s);
    if (defaults.synchronize() || get(path) != before)
        return 3;
    filler.remove();
    if (!defaults.synchronize() || UserDefaults(path).stringForKey(u"second"_s) != u"new"_s)
        return 4;
    return 0;
}

} // namespace

void UserDefaultsTest::keepsTheFileOnAFullDisk()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"disk"_s));
    const QString disk = m_folder->filePath(u"disk"_s);
    const int result = SmallDisk::runOn(disk, [&disk] { return synchronizeOnFullDisk(disk); });
    if (result == SmallDisk::notMounted)
        QSKIP("No small disk can be mounted here.");
    QCOMPARE(result, 0);
}

void UserDefaultsTest::keepsTheFileWithoutRoomForTemporaryFiles()
{
    put(path(), "[General]\nfirst=kept\n");
    QVERIFY(QDir(m_folder->path()).mkdir(u"disk"_s));
    const QString disk = m_folder->filePath(u"disk"_s);
    const int result = SmallDisk::runOn(
        disk, [this, &disk] { return synchronizeWithoutTemporaryFiles(path(), disk); });
    if (result == SmallDisk::notMounted)
        QSKIP("No small disk can be mounted here.");
    QCOMPARE(result, 0);
}

void UserDefaultsTest::followsALink()
{
    const QString real = m_folder->filePath(u"real.ini"_s);
    put(real, "[General]\nKey=1\n");
    QVERIFY(QFile::link(real, path()));
    UserDefaults defaults(path());
    QVERIFY(defaults.boolForKey(key));
    defaults.setInteger(key, 2);
    QVERIFY(defaults.synchronize());
    QVERIFY(QFileInfo(path()).isSymLink());
    QCOMPARE(get(real), "[General]\nKey=2\n"_ba);
}

void UserDefaultsTest::livesInTheConfigurationFolder()
{
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder->path()));
    UserDefaults defaults;
    QCOMPARE(UserDefaults::defaultFilePath(), m_folder->filePath(u"Tomely/Tomely.ini"_s));
    QCOMPARE(defaults.filePath(), UserDefaults::defaultFilePath());
    defaults.setBool(key, true);
    QVERIFY(defaults.synchronize());
    QVERIFY(UserDefaults().boolForKey(key));
    qputenv("XDG_CONFIG_HOME", before);
}

void UserDefaultsTest::writesWhatQtReads()
{
    UserDefaults defaults(path());
    defaults.setBool(u"flag"_s, true);
    defaults.setStringList(u"list"_s, {u"a b"_s, u"c, d"_s});
    defaults.setData(u"data"_s, "\0\xff"_ba);
    QVERIFY(defaults.synchronize());
    const QSettings settings(path(), QSettings::IniFormat);
    QCOMPARE(settings.allKeys(), QStringList({u"data"_s, u"flag"_s, u"list"_s}));
    QVERIFY(settings.value(u"flag"_s).toBool());
    QCOMPARE(settings.value(u"list"_s).toStringList(), QStringList({u"a b"_s, u"c, d"_s}));
    QCOMPARE(settings.value(u"data"_s).toByteArray(), "\0\xff"_ba);
}

QTEST_GUILESS_MAIN(UserDefaultsTest)

#include "UserDefaultsTest.moc"
