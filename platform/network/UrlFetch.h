// Fetches what an https address holds, for a caller that waits. Meanwhile events are handled, so
// windows repaint; that no input reaches them is the caller's affair. It trusts nobody: it
// asks only public servers whose certificates are valid, takes no longer and no more than it is
// allowed, keeps no more than addresses between fetches and tells a server no more than the
// program's name.

#pragma once

#include "platform/network/PublicAddress.h"

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QSslCertificate>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

class QUrl;

namespace tomely {

class FetchWait;

/// What a fetch may do. The program uses the defaults; tests make others, for a server of their own
/// on this machine.
struct FetchPolicy {
    /// For one fetch: finding the server, its redirects and the whole body.
    std::chrono::milliseconds mostTime{30'000};
    /// Of the body of a reply.
    qint64 mostBytes = 20'000'000;
    int mostRedirects = 5;
    /// From the connection to the end of a reply's head, whose size nobody limits.
    std::chrono::milliseconds mostTimeToHead{10'000};
    /// Which addresses may be asked.
    std::function<bool(const QHostAddress&)> mayConnect = &isPublicAddress;
    /// Who may sign certificates besides those whom the system trusts.
    QList<QSslCertificate> furtherAuthorities;
    /// Servers, by names in small letters, whose addresses need not be looked up. They are tried in
    /// their order, as far as they may be asked.
    QHash<QString, QList<QHostAddress>> knownHosts;
};

class UrlFetch : public QObject {
    Q_OBJECT

public:
    explicit UrlFetch(FetchPolicy policy = {});
    ~UrlFetch() override;

    /// The body of a successful reply, which may be empty; nothing when there is none: the address
    /// is not https or has no public server, the certificate is not valid, the server does not
    /// answer with success, the limits are reached, or the person gave up. Blocks in an event loop.
    /// A fetch within a fetch gives nothing. The object must not be destroyed meanwhile.
    std::optional<QByteArray> fetch(const QUrl& url);

    /// The same with a limit of its own for the body, in bytes.
    std::optional<QByteArray> fetch(const QUrl& url, qint64 mostBytes);

    /// Ends the running fetch, which then gives nothing, and so does every later one. May be called
    /// by whatever is handled while a fetch waits; the end of the program is the same.
    void giveUp();

    bool isGivenUp() const { return m_isGivenUp; }

private:
    FetchPolicy m_policy;
    bool m_isGivenUp = false;
    // That of the running fetch.
    FetchWait* m_wait = nullptr;
};

} // namespace tomely
