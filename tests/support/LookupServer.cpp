#include "tests/support/LookupServer.h"

#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// What is sent without an end is made up to here, so that it takes no memory but the receiver's.
constexpr qint64 mostWaiting = qint64{256} * 1024;

/// Gives away its connections as they come, before anything is said in them.
class Listener : public QTcpServer {
public:
    explicit Listener(std::function<void(qintptr)> receive) : m_receive(std::move(receive)) { }

protected:
    void incomingConnection(qintptr descriptor) override { m_receive(descriptor); }

private:
    std::function<void(qintptr)> m_receive;
};

ServedRequest parseHead(const QByteArray& head)
{
    const QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> words = lines.first().trimmed().split(' ');
    ServedRequest request{words.value(0), words.value(1), {}};
    for (const QByteArray& line : lines.sliced(1)) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            request.headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    return request;
}

QByteArray headOf(const ServedReply& reply)
{
    using Manner = ServedReply::Manner;
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) + " Some reason\r\n";
    if (reply.manner != Manner::Endless && reply.manner != Manner::EndlessHead)
        head += "Content-Length: " + QByteArray::number(reply.body.size()) + "\r\n";
    head += "Connection: close\r\n";
    for (const auto& [name, value] : reply.headers)
        head += name + ": " + value + "\r\n";
    return reply.manner == Manner::EndlessHead ? head : head + "\r\n";
}

/// Reads one request from a socket, to which it belongs, and answers it.
class Conversation : public QObject {
public:
    using Answer = std::function<ServedReply(const ServedRequest&)>;

    Conversation(QTcpSocket& socket, Answer answer)
        : QObject(&socket)
        , m_socket(socket)
        , m_answer(std::move(answer))
    {
        connect(&socket, &QIODevice::readyRead, this, &Conversation::read);
        connect(&m_drip, &QTimer::timeout, this, &Conversation::drip);
    }

private:
    void read()
    {
        m_head += m_socket.readAll();
        const qsizetype end = m_head.indexOf("\r\n\r\n");
        if (m_isAnswered || end < 0)
            return;
        m_isAnswered = true;
        m_reply = m_answer(parseHead(m_head.first(end)));
        send();
    }

    void send()
    {
        using Manner = ServedReply::Manner;
        switch (m_reply.manner) {
        case Manner::Whole:
            return sendLast(headOf(m_reply) + m_reply.body);
        case Manner::CutOff:
            return sendLast(headOf(m_reply) + m_reply.body.first(m_reply.body.size() / 2));
        case Manner::Raw:
            return sendLast(m_reply.body);
        case Manner::RawThenSilence:
            m_socket.write(m_reply.body);
            return;
        case Manner::Drip:
            m_socket.write(headOf(m_reply));
            return m_drip.start(20);
        case Manner::Endless:
        case Manner::EndlessHead:
            return sendEndless();
        case Manner::Silence:
            return;
        }
    }

    void sendLast(const QByteArray& bytes)
    {
        m_socket.write(bytes);
        m_socket.disconnectFromHost();
    }

    void drip()
    {
        if (m_dripped == m_reply.body.size())
            return m_socket.disconnectFromHost();
        m_socket.write(m_reply.body.sliced(m_dripped, 1));
        ++m_dripped;
    }

    void sendEndless()
    {
        m_socket.write(headOf(m_reply));
        const QByteArray unit = m_reply.body.isEmpty() ? "X-More: of it\r\n" : m_reply.body;
        m_more = unit.repeated(std::max<qsizetype>(1, qsizetype{16} * 1024 / unit.size()));
        if (auto* encrypted = qobject_cast<QSslSocket*>(&m_socket))
            connect(encrypted, &QSslSocket::encryptedBytesWritten, this, &Conversation::sendMore);
        else
            connect(&m_socket, &QIODevice::bytesWritten, this, &Conversation::sendMore);
        sendMore();
    }

    void sendMore()
    {
        const auto* const encrypted = qobject_cast<QSslSocket*>(&m_socket);
        const auto waiting = [&] {
            return m_socket.bytesToWrite() + (encrypted ? encrypted->encryptedBytesToWrite() : 0);
        };
        // It goes out with later events, which ask for more.
        while (m_socket.state() == QAbstractSocket::ConnectedState && waiting() < mostWaiting) {
            if (m_socket.write(m_more) <= 0)
                return;
        }
    }

    QTcpSocket& m_socket;
    Answer m_answer;
    QByteArray m_head;
    bool m_isAnswered = false;
    ServedReply m_reply;
    QTimer m_drip;
    qsizetype m_dripped = 0;
    QByteArray m_more;
};

} // namespace

LookupServer::LookupServer(
    const std::optional<ServerIdentity>& identity, const QHostAddress& address)
    : m_identity(identity)
    , m_server(std::make_unique<Listener>([this](qintptr descriptor) { receive(descriptor); }))
{
    if (!m_server->listen(address))
        qFatal("no server: %s", qPrintable(m_server->errorString()));
}

LookupServer::~LookupServer()
{
    m_server->close();
    // Connections that end only now have nobody left to tell.
    for (QTcpSocket* const socket : findChildren<QTcpSocket*>()) {
        socket->disconnect();
        socket->abort();
    }
}

quint16 LookupServer::port() const
{
    return m_server->serverPort();
}

QString LookupServer::host() const
{
    return u"localhost:"_s + QString::number(port());
}

QUrl LookupServer::url(const QByteArray& target) const
{
    const QByteArray scheme = m_identity ? "https://" : "http://";
    return QUrl::fromEncoded(scheme + host().toLatin1() + target);
}

void LookupServer::serve(const QByteArray& target, const ServedReply& reply)
{
    m_replies.insert(target, reply);
}

QList<QByteArray> LookupServer::targets() const
{
    QList<QByteArray> targets;
    for (const ServedRequest& request : m_requests)
        targets.append(request.target);
    return targets;
}

void LookupServer::receive(qintptr descriptor)
{
    ++m_connectionCount;
    QTcpSocket* const socket = makeSocket().release();
    socket->setParent(this);
    connect(socket, &QAbstractSocket::disconnected, socket, &QObject::deleteLater);
    new Conversation(*socket, [this](const ServedRequest& request) { return replyTo(request); });
    if (!socket->setSocketDescriptor(descriptor))
        return delete socket;
    if (auto* const encrypted = qobject_cast<QSslSocket*>(socket))
        encrypted->startServerEncryption();
}

std::unique_ptr<QTcpSocket> LookupServer::makeSocket() const
{
    if (!m_identity)
        return std::make_unique<QTcpSocket>();
    auto socket = std::make_unique<QSslSocket>();
    QSslConfiguration configuration = socket->sslConfiguration();
    configuration.setLocalCertificate(m_identity->certificate);
    configuration.setPrivateKey(m_identity->key);
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    socket->setSslConfiguration(configuration);
    return socket;
}

ServedReply LookupServer::replyTo(const ServedRequest& request)
{
    m_requests.append(request);
    return m_replies.value(request.target, {"not here", 404});
}

} // namespace tomely
