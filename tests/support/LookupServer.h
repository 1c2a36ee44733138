// A small web server within the test program, for https unless it is told otherwise, on a free port
// of this machine. It answers what a test gives it and remembers what it was asked; what it was not
// given is "404 Not Found". It works while the test's event loop runs, also a nested one.

#pragma once

#include "tests/support/TestAuthority.h"

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QUrl>

#include <memory>
#include <optional>
#include <utility>

class QTcpServer;
class QTcpSocket;

namespace tomely {

struct ServedReply {
    /// How the body goes out.
    enum class Manner {
        Whole,
        CutOff, // half of it, then the connection ends
        Drip, // a byte at a time, one every 20 ms
        Endless, // over and over, as fast as it is taken; no length is told
        Silence, // nothing at all is sent, not even a status line; the connection stays
        Raw, // the body is all that is sent, it has its own head or none; the connection ends
        RawThenSilence, // the same, but the connection stays
        EndlessHead, // the status line, then the body as header lines over and over
    };

    QByteArray body = {};
    int status = 200;
    QList<std::pair<QByteArray, QByteArray>> headers = {}; // beyond those of length and connection
    Manner manner = Manner::Whole;

    static ServedReply redirect(const QByteArray& location, int status = 302)
    {
        return {{}, status, {{"Location", location}}};
    }
};

struct ServedRequest {
    QByteArray method;
    QByteArray target; // path and query, as they came
    QHash<QByteArray, QByteArray> headers = {}; // names in lower case
};

class LookupServer : public QObject {
    Q_OBJECT

public:
    /// An https server; without an identity one for plain http.
    explicit LookupServer(const std::optional<ServerIdentity>& identity,
        const QHostAddress& address = QHostAddress(QHostAddress::LocalHost));
    ~LookupServer() override;

    quint16 port() const;

    /// "localhost:" and the port: what the settings take for a host.
    QString host() const;

    /// The address of a path with its query, by https (plain http without an identity).
    QUrl url(const QByteArray& target) const;

    /// What to answer to a path with its query from now on.
    void serve(const QByteArray& target, const ServedReply& reply);

    /// In the order they came.
    const QList<ServedRequest>& requests() const { return m_requests; }

    /// Their paths with queries.
    QList<QByteArray> targets() const;

    void forgetRequests() { m_requests.clear(); }

    /// How many connections were opened, also such as never asked for anything.
    int connectionCount() const { return m_connectionCount; }

private:
    void receive(qintptr descriptor);
    std::unique_ptr<QTcpSocket> makeSocket() const;
    /// What is answered to that request, which is remembered.
    ServedReply replyTo(const ServedRequest& request);

    std::optional<ServerIdentity> m_identity;
    std::unique_ptr<QTcpServer> m_server;
    QHash<QByteArray, ServedReply> m_replies;
    QList<ServedRequest> m_requests;
    int m_connectionCount = 0;
};

} // namespace tomely
