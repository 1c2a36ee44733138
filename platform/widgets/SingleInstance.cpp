#include "platform/widgets/SingleInstance.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// A request is a line with the number of bytes that follow, then those bytes: every path in the
// bytes that the file system uses, each ended by NUL. The answer is one line. What it says about
// versions matters after an update, when the running program is older than the one that starts.
constexpr QByteArrayView requestStart("tomely-open 1 ");
constexpr QByteArrayView answer("ok\n");
// The start, up to seven digits and the line feed.
constexpr qsizetype maximumHeaderSize = requestStart.size() + 8;
constexpr int retryMilliseconds = 20;

// Which session the person sees: two displays are two desktops with a running program each.
QByteArray sessionName()
{
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return qgetenv("WAYLAND_DISPLAY");
    // ":0" and ":0.1" are screens of the same display.
    static const QRegularExpression screen(u"\\.\\d+$"_s);
    return qEnvironmentVariable("DISPLAY").remove(screen).toLocal8Bit();
}

QByteArray encodeRequest(const QStringList& paths)
{
    QByteArray payload;
    for (const QString& path : paths)
        payload += QFile::encodeName(QFileInfo(path).absoluteFilePath()) + '\0';
    return requestStart.toByteArray() + QByteArray::number(payload.size()) + '\n' + payload;
}

// What has come of a request so far.
struct Request {
    enum class State {
        Incomplete,
        Complete,
        Rubbish,
    };

    State state = State::Rubbish;
    QStringList paths;
};

Request decodePayload(const QByteArray& payload)
{
    Request request;
    if (!payload.isEmpty() && !payload.endsWith('\0'))
        return request;
    QByteArrayList paths = payload.split('\0');
    paths.removeLast();
    for (const QByteArray& path : std::as_const(paths)) {
        if (!path.startsWith('/'))
            return {};
        request.paths.append(QFile::decodeName(path));
    }
    request.state = Request::State::Complete;
    return request;
}

Request decodeRequest(const QByteArray& bytes)
{
    const qsizetype known = qMin(bytes.size(), requestStart.size());
    if (QByteArrayView(bytes).first(known) != requestStart.first(known))
        return {};
    const qsizetype headerSize = bytes.indexOf('\n') + 1;
    if (headerSize == 0) {
        const bool mayCome = bytes.size() < maximumHeaderSize;
        return {mayCome ? Request::State::Incomplete : Request::State::Rubbish, {}};
    }
    bool isNumber = false;
    const qsizetype size = bytes.first(headerSize - 1).sliced(requestStart.size()).toInt(&isNumber);
    if (!isNumber || size < 0 || size > SingleInstance::maximumMessageSize - headerSize
        || bytes.size() > headerSize + size)
        return {};
    if (bytes.size() < headerSize + size)
        return {Request::State::Incomplete, {}};
    return decodePayload(bytes.sliced(headerSize));
}

} // namespace

SingleInstance::SingleInstance(QObject* parent) : SingleInstance(defaultSocketPath(), parent) { }

SingleInstance::SingleInstance(const QString& socketPath, QObject* parent)
    : QObject(parent)
    , m_socketPath(socketPath)
    , m_server(this)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::acceptConnections);
}

SingleInstance::~SingleInstance()
{
    // Before the lock goes: another start may make its own socket then.
    m_server.close();
    releaseLock();
}

QString SingleInstance::defaultSocketPath()
{
    // Where the desktop has none, this is a private folder in the one for temporary files.
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        return {};
    // Each start of a Flatpak has a runtime folder of its own, with one in it that they share.
    if (const QString id = qEnvironmentVariable("FLATPAK_ID"); !id.isEmpty())
        folder += "/app/"_L1 + id;
    // A hash, because a display's name may hold slashes and a socket's path must be short.
    const QByteArray session = QByteArray::number(::getuid()) + ' ' + sessionName();
    const QByteArray hash =
        QCryptographicHash::hash(session, QCryptographicHash::Sha1).toHex().first(16);
    return folder + "/tomely-"_L1 + QLatin1StringView(hash);
}

SingleInstance::Outcome SingleInstance::start(const QStringList& paths)
{
    const QByteArray request = encodeRequest(paths);
    if (m_socketPath.isEmpty() || request.size() > maximumMessageSize)
        return Outcome::Alone;
    const QDeadlineTimer deadline(waitMilliseconds);
    // Both again and again: the first may be about to listen, or about to end.
    do {
        const Lock lock = takeLock();
        if (lock == Lock::Taken)
            return listen() ? Outcome::First : Outcome::Alone;
        if (lock == Lock::Impossible)
            return Outcome::Alone;
        const Delivery delivery = deliver(request, deadline);
        if (delivery != Delivery::NotConnected)
            return delivery == Delivery::Taken ? Outcome::HandedOver : Outcome::Unanswered;
        QThread::msleep(retryMilliseconds);
    } while (!deadline.hasExpired());
    return Outcome::Alone;
}

SingleInstance::Lock SingleInstance::takeLock()
{
    const QByteArray path = QFile::encodeName(m_socketPath + ".lock"_L1);
    // Not for the programs we start: they may outlive us.
    m_lock = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_lock < 0)
        return Lock::Impossible;
    if (::flock(m_lock, LOCK_EX | LOCK_NB) == 0)
        return Lock::Taken;
    const bool isHeld = errno == EWOULDBLOCK;
    releaseLock();
    return isHeld ? Lock::HeldByAnother : Lock::Impossible;
}

// The file stays: another start may be about to lock it, and would then lock one that has no name.
void SingleInstance::releaseLock()
{
    if (m_lock >= 0)
        ::close(std::exchange(m_lock, -1));
}

bool SingleInstance::listen()
{
    // What is left of a program that did not end in good order; with the lock it is nobody else's.
    QLocalServer::removeServer(m_socketPath);
    if (m_server.listen(m_socketPath))
        return true;
    releaseLock();
    return false;
}

SingleInstance::Delivery SingleInstance::deliver(
    const QByteArray& request, const QDeadlineTimer& deadline) const
{
    const auto timeLeft = [&deadline] {
        return static_cast<int>(deadline.remainingTime());
    };
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    if (!socket.waitForConnected(timeLeft()))
        return Delivery::NotConnected;
    socket.write(request);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(timeLeft()))
            return Delivery::Unanswered;
    }
    while (socket.bytesAvailable() < answer.size()) {
        if (!socket.waitForReadyRead(timeLeft()))
            return Delivery::Unanswered;
    }
    return socket.readAll() == answer ? Delivery::Taken : Delivery::Unanswered;
}

void SingleInstance::acceptConnections()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        socket->setReadBufferSize(maximumMessageSize + 1);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readRequest(socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        QTimer::singleShot(waitMilliseconds, socket, [socket] {
            socket->abort();
            socket->deleteLater();
        });
    }
}

void SingleInstance::readRequest(QLocalSocket* socket)
{
    const Request request = decodeRequest(socket->peek(maximumMessageSize + 1));
    if (request.state == Request::State::Incomplete)
        return;
    // One request a connection.
    disconnect(socket, &QLocalSocket::readyRead, this, nullptr);
    if (request.state == Request::State::Rubbish) {
        socket->abort();
        return;
    }
    socket->write(answer.data(), answer.size());
    socket->flush();
    socket->disconnectFromServer();
    // Last, since a receiver may run an event loop of its own, in which the socket goes.
    Q_EMIT filesRequested(request.paths);
}

} // namespace tomely
