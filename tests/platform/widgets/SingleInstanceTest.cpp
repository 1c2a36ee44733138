#include <array>
#include <iostream>
#include <memory>
#include <optional>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "platform/widgets/SingleInstance.h"

using namespace Qt::StringLiterals;
using namespace tomely;
using Outcome = SingleInstance::Outcome;

Q_DECLARE_METATYPE(Outcome)

namespace {

// What this program does when the test starts it as another process: `verb` is "start" to start
// with the files and end, "hold" to stay until it is killed.
int runAsOther(const QStringList& arguments)
{
    SingleInstance instance(arguments.value(2));
    const Outcome outcome = instance.start(arguments.mid(3));
    std::cout << static_cast<int>(outcome) << std::endl;
    return arguments.value(1) == u"hold"_s ? QCoreApplication::exec() : 0;
}

// Another process; give it the event loop while it runs.
class OtherProcess {
public:
    OtherProcess(const QString& verb, const QString& socketPath, const QStringList& files,
        const QString& folder = QDir::currentPath())
    {
        m_process.setWorkingDirectory(folder);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(
            QCoreApplication::applicationFilePath(), QStringList({verb, socketPath}) + files);
    }

    // Gives nothing when there is no outcome in time.
    std::optional<Outcome> outcome()
    {
        if (!QTest::qWaitFor([this] { return m_process.canReadLine(); }, 10'000))
            return std::nullopt;
        return static_cast<Outcome>(m_process.readLine().trimmed().toInt());
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

} // namespace

class SingleInstanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFirstIsTheFirst();
    void filesGoToTheFirst_data();
    void filesGoToTheFirst();
    void relativePathsBecomeAbsolute();
    void manyStartsAtOnceMakeOneFirst();
    void theNextIsFirstAfterTheFirstEnds();
    void whatAKilledProgramLeftIsNoHindrance();
    void aStaleSocketIsNoHindrance_data();
    void aStaleSocketIsNoHindrance();
    void aBusyFirstIsNotWaitedForLong();
    void aBusyFirstTakesTheFilesLater();
    void goesOnAloneWithoutAPlaceForTheSocket();
    void goesOnAloneWithTooManyPaths();
    void dropsRubbish_data();
    void dropsRubbish();
    void dropsAPeerThatDoesNotGoOn();
    void takesARequestInPieces();
    void otherUsersAreKeptOut();
    void eachSessionHasItsOwn();

private:
    QString socketPath() const { return m_folder->filePath(u"s"_s); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void SingleInstanceTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void SingleInstanceTest::theFirstIsTheFirst()
{
    SingleInstance instance(socketPath());
    QVERIFY(!instance.isFirst());
    QCOMPARE(instance.start({u"/a"_s}), Outcome::First);
    QVERIFY(instance.isFirst());
}

void SingleInstanceTest::filesGoToTheFirst_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::newRow("none: come forward") << QStringList();
    QTest::newRow("one") << QStringList(u"/folder/mine.books"_s);
    QTest::newRow("two") << QStringList({u"/a.books"_s, u"/b.books"_s});
    QTest::newRow("difficult names")
        << QStringList({u"/ a\nb "_s, u"/Bücher 本 📚.books"_s, u"/-x"_s, u"/%1"_s});
    QStringList many;
    for (int number = 0; number < 2000; ++number)
        many.append(u"/a folder with a rather long name/file %1.books"_s.arg(number));
    QTest::newRow("many") << many;
}

void SingleInstanceTest::filesGoToTheFirst()
{
    QFETCH(const QStringList, files);
    SingleInstance first(socketPath());
    QSignalSpy requests(&first, &SingleInstance::filesRequested);
    QCOMPARE(first.start({}), Outcome::First);
    for (int round = 1; round <= 2; ++round) {
        OtherProcess other(u"start"_s, socketPath(), files);
        QCOMPARE(other.outcome(), Outcome::HandedOver);
        QCOMPARE(requests.size(), round);
        QCOMPARE(requests.last().first().toStringList(), files);
    }
}

void SingleInstanceTest::relativePathsBecomeAbsolute()
{
    SingleInstance first(socketPath());
    QSignalSpy requests(&first, &SingleInstance::filesRequested);
    QCOMPARE(first.start({}), Outcome::First);
    OtherProcess other(u"start"_s, socketPath(), {u"a.books"_s, u"../b.books"_s}, u"/usr/lib"_s);
    QCOMPARE(other.outcome(), Outcome::HandedOver);
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests.first().first().toStringList(),
        QStringList({u"/usr/lib/a.books"_s, u"/usr/b.books"_s}));
}

void SingleInstanceTest::manyStartsAtOnceMakeOneFirst()
{
    std::array<std::unique_ptr<OtherProcess>, 5> others;
    for (auto& other : others) {
        other =
            std::make_unique<OtherProcess>(u"hold"_s, socketPath(), QStringList(u"/mine.books"_s));
    }
    int firsts = 0;
    for (const auto& other : others) {
        const auto outcome = other->outcome();
        QVERIFY(outcome == Outcome::First || outcome == Outcome::HandedOver);
        if (outcome == Outcome::First)
            ++firsts;
    }
    QCOMPARE(firsts, 1);
    for (const auto& other : others)
        other->kill();
}

void SingleInstanceTest::theNextIsFirstAfterTheFirstEnds()
{
    {
        SingleInstance first(socketPath());
        QCOMPARE(first.start({}), Outcome::First);
    }
    QVERIFY(!QFileInfo::exists(socketPath()));
    SingleInstance next(socketPath());
    QCOMPARE(next.start({}), Outcome::First);
}

void SingleInstanceTest::whatAKilledProgramLeftIsNoHindrance()
{
    OtherProcess killed(u"hold"_s, socketPath(), {});
    QCOMPARE(killed.outcome(), Outcome::First);
    killed.kill();
    QVERIFY(QFileInfo::exists(socketPath()));
    QVERIFY(QFileInfo::exists(socketPath() + u".lock"_s));

    SingleInstance first(socketPath());
    QSignalSpy requests(&first, &SingleInstance::filesRequested);
    QCOMPARE(first.start({}), Outcome::First);
    OtherProcess other(u"start"_s, socketPath(), {u"/a"_s});
    QCOMPARE(other.outcome(), Outcome::HandedOver);
    QCOMPARE(requests.size(), 1);
}

void SingleInstanceTest::aStaleSocketIsNoHindrance_data()
{
    QTest::addColumn<QByteArray>("lock");
    QTest::newRow("no lock") << QByteArray();
    QTest::newRow("empty lock") << ""_ba;
    QTest::newRow("lock of a program that is gone") << "999999999\ntomely\n"_ba;
}

void SingleInstanceTest::aStaleSocketIsNoHindrance()
{
    QFETCH(const QByteArray, lock);
    QFile stale(socketPath());
    QVERIFY(stale.open(QIODevice::WriteOnly));
    stale.close();
    if (!lock.isNull()) {
        QFile file(socketPath() + u".lock"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(lock), lock.size());
    }
    SingleInstance first(socketPath());
    QCOMPARE(first.start({}), Outcome::First);
    OtherProcess other(u"start"_s, socketPath(), {u"/a"_s});
    QCOMPARE(other.outcome(), Outcome::HandedOver);
}

void SingleInstanceTest::aBusyFirstIsNotWaitedForLong()
{
    // In this very thread the first cannot answer while the second waits.
    SingleInstance first(socketPath());
    QCOMPARE(first.start({}), Outcome::First);
    SingleInstance second(socketPath());
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(second.start({u"/a"_s}), Outcome::Unanswered);
    QVERIFY(timer.elapsed() < SingleInstance::waitMilliseconds + 1000);
    QVERIFY(!second.isFirst());
}

void SingleInstanceTest::aBusyFirstTakesTheFilesLater()
{
    SingleInstance first(socketPath());
    QSignalSpy requests(&first, &SingleInstance::filesRequested);
    QCOMPARE(first.start({}), Outcome::First);
    {
        SingleInstance second(socketPath());
        QCOMPARE(second.start({u"/a"_s}), Outcome::Unanswered);
    }
    QTRY_COMPARE(requests.size(), 1);
    QCOMPARE(requests.first().first().toStringList(), QStringList(u"/a"_s));
}

void SingleInstanceTest::goesOnAloneWithoutAPlaceForTheSocket()
{
    for (const QString& path :
        {QString(), m_folder->filePath(u"missing/s"_s), m_folder->filePath(QString(200, u'x'))}) {
        SingleInstance instance(path);
        QCOMPARE(instance.start({}), Outcome::Alone);
        QVERIFY(!instance.isFirst());
    }
    // A socket that cannot be made leaves no lock that keeps others out.
    QVERIFY(QDir(m_folder->path()).mkdir(u"s"_s));
    SingleInstance instance(socketPath());
    QCOMPARE(instance.start({}), Outcome::Alone);
    QVERIFY(QDir(m_folder->path()).rmdir(u"s"_s));
    SingleInstance next(socketPath());
    QCOMPARE(next.start({}), Outcome::First);
}

void SingleInstanceTest::goesOnAloneWithTooManyPaths()
{
    SingleInstance first(socketPath());
    QCOMPARE(first.start({}), Outcome::First);
    SingleInstance second(socketPath());
    const QString path = u'/' + QString(1024, u'x');
    QCOMPARE(second.start(QStringList(1024, path)), Outcome::Alone);
}

void SingleInstanceTest::dropsRubbish_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("another protocol") << "GET / HTTP/1.1\r\n\r\n"_ba;
    QTest::newRow("unknown version") << "tomely-open 2 3\n/a\0"_ba;
    QTest::newRow("no number") << "tomely-open 1 x\n/a\0"_ba;
    QTest::newRow("empty number") << "tomely-open 1 \n"_ba;
    QTest::newRow("negative") << "tomely-open 1 -3\n/a\0"_ba;
    QTest::newRow("too large") << "tomely-open 1 1048577\n"_ba;
    QTest::newRow("far too large") << "tomely-open 1 99999999999999999999\n"_ba;
    QTest::newRow("endless number") << "tomely-open 1 000000000000000000000000000"_ba;
    QTest::newRow("no NUL at the end") << "tomely-open 1 2\n/a"_ba;
    QTest::newRow("relative path") << "tomely-open 1 2\na\0"_ba;
    QTest::newRow("empty path") << "tomely-open 1 1\n\0"_ba;
    QTest::newRow("more than announced") << "tomely-open 1 3\n/a\0/b\0"_ba;
    QTest::newRow("much") << QByteArray(qsizetype{3} * 1024 * 1024, 'x');
}

void SingleInstanceTest::dropsRubbish()
{
    QFETCH(const QByteArray, bytes);
    SingleInstance first(socketPath());
    QSignalSpy requests(&first, &SingleInstance::filesRequested);
    QCOMPARE(first.start({}), Outcome::First);
    QLocalSocket socket;
    QSignalSpy dropped(&socket, &QLocalSocket::disconnected);
    QElapsedTimer timer;
    timer.start();
    socket.connectToServer(socketPath());
    socket.write(bytes);
    QTRY_COMPARE(dropped.size(), 1);
    // At once, not only when the time is up.
    QVERIFY(timer.elapsed() < SingleInstance::waitMilliseconds / 2);
    QCOMPARE(socket.readAll(), QByteArray());
    QCOMPARE(requests.size(), 0);

    OtherProcess other(u"start"_s, socketPath(), {u"/a"_s});
    QCOMPARE(other.outcome(), Outcome::HandedOver);
}

void SingleInstanceTest::dropsAPeerThatDoesNotGoOn()
{
    SingleInstance first(socketPath());
    QSignalSpy requests(&first, &SingleInstance::filesRequested);
    QCOMPARE(first.start({}), Outcome::First);
    QLocalSocket silent;
    QSignalSpy silentDropped(&silent, &QLocalSocket::disconnected);
    silent.connectToServer(socketPath());
    QLocalSocket slow;
    QSignalSpy slowDropped(&slow, &QLocalSocket::disconnected);
    slow.connectToServer(socketPath());
    slow.write("tomely-open 1 30\n/a");
    QTRY_COMPARE(silentDropped.size(), 1);
    QTRY_COMPARE(slowDropped.size(), 1);
    QCOMPARE(requests.size(), 0);
}

void SingleInstanceTest::takesARequestInPieces()
{
    SingleInstance first(socketPath());
    QSignalSpy requests(&first, &SingleInstance::filesRequested);
    QCOMPARE(first.start({}), Outcome::First);
    QLocalSocket socket;
    socket.connectToServer(socketPath());
    for (const char byte : "tomely-open 1 6\n/a\0/b\0"_ba) {
        QCOMPARE(requests.size(), 0);
        socket.write(&byte, 1);
        socket.flush();
        QTest::qWait(1);
    }
    QTRY_COMPARE(requests.size(), 1);
    QCOMPARE(requests.first().first().toStringList(), QStringList({u"/a"_s, u"/b"_s}));
    QTRY_COMPARE(socket.bytesAvailable(), 3);
    QCOMPARE(socket.readAll(), "ok\n"_ba);
}

void SingleInstanceTest::otherUsersAreKeptOut()
{
    SingleInstance first(socketPath());
    QCOMPARE(first.start({}), Outcome::First);
    const auto permissions = QFileInfo(socketPath()).permissions();
    QVERIFY(!permissions.testAnyFlags(QFileDevice::ReadGroup | QFileDevice::WriteGroup
        | QFileDevice::ReadOther | QFileDevice::WriteOther));
}

void SingleInstanceTest::eachSessionHasItsOwn()
{
    const auto pathFor = [](const QByteArray& wayland, const QByteArray& display) {
        qputenv("DISPLAY", display);
        if (wayland.isNull())
            qunsetenv("WAYLAND_DISPLAY");
        else
            qputenv("WAYLAND_DISPLAY", wayland);
        return SingleInstance::defaultSocketPath();
    };
    const QByteArray display = qgetenv("DISPLAY");
    const QString none = pathFor({}, "");
    const QString zero = pathFor({}, ":0");
    QVERIFY(zero != none);
    QCOMPARE(pathFor({}, ":0.1"), zero);
    QVERIFY(pathFor({}, ":1") != zero);
    QVERIFY(pathFor({}, "host.example.org:0") != zero);
    QCOMPARE(pathFor("wayland-0", ":0"), pathFor("wayland-0", ":1"));
    QVERIFY(pathFor("wayland-0", ":0") != pathFor("wayland-1", ":0"));
    const QString slashes = pathFor("/run/user/1/wayland-0", ":0");
    pathFor({}, display);
    const QString folder = QFileInfo(zero).path();
    QCOMPARE(QFileInfo(slashes).path(), folder);
    QVERIFY(zero.size() - folder.size() < 30);
    const auto others = QFileInfo(folder).permissions()
        & (QFileDevice::WriteGroup | QFileDevice::WriteOther | QFileDevice::ExeOther);
    QVERIFY(!others);
}

int main(int argumentCount, char** arguments)
{
    QCoreApplication application(argumentCount, arguments);
    const QStringList list = QCoreApplication::arguments();
    if (list.value(1) == u"start"_s || list.value(1) == u"hold"_s)
        return runAsOther(list);
    SingleInstanceTest test;
    return QTest::qExec(&test, argumentCount, arguments);
}

#include "SingleInstanceTest.moc"
