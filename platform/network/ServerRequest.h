// One request to one address of a server, over a connection of its own that nothing outlives. It
// reads no more than it is allowed, and only what comes with success.

#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QNetworkReply;
class QUrl;

namespace tomely {

struct FetchPolicy;

class ServerRequest {
public:
    enum class State {
        Connecting,
        Waiting, // connected, and the server is who it should be
        Answering, // it has told the head of a success
        Unreachable, // no connection came about; another address of the server may do
        Failed,
        Redirected,
        Succeeded,
    };

    /// Asks for what the https address holds. What is asked is that address of its host and no
    /// other, while the certificate must be that of the host. The body may have
    /// `mostBytes`. `changed` is called when the state
    /// changed; the request must not be destroyed by it.
    ServerRequest(const QUrl& url, const QHostAddress& address, qint64 mostBytes,
        const FetchPolicy& policy, std::function<void()> changed);
    ~ServerRequest();
    Q_DISABLE_COPY_MOVE(ServerRequest)

    State state() const { return m_state; }

    /// The server has answered, or never will.
    bool hasHead() const { return m_state != State::Connecting && m_state != State::Waiting; }

    bool isFinished() const { return hasHead() && m_state != State::Answering; }

    /// Of a success.
    const QByteArray& body() const { return m_body; }

    /// Where a redirect leads, as the server wrote it.
    const QByteArray& location() const { return m_location; }

private:
    void readHead();
    void readBody();
    void finish();
    bool readLength();
    void change(State state);

    qint64 m_mostBytes;
    std::function<void()> m_changed;
    State m_state = State::Connecting;
    QByteArray m_location;
    // As the server told it.
    std::optional<qint64> m_length;
    QByteArray m_body;
    QNetworkAccessManager m_manager;
    // Goes before the manager.
    std::unique_ptr<QNetworkReply> m_reply;
    // Goes first: what the reply says while it is destroyed has nobody to hear it.
    QObject m_context;
};

} // namespace tomely
