#include "platform/network/UrlFetch.h"

#include "platform/network/FetchWait.h"
#include "platform/network/HostAddresses.h"
#include "platform/network/ServerRequest.h"

#include <QScopeGuard>
#include <QUrl>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

bool isAllowed(const QUrl& url)
{
    return url.isValid() && url.scheme() == "https"_L1 && !url.host().isEmpty()
        && url.userInfo().isEmpty();
}

using State = ServerRequest::State;

/// How the request went at the first of the server's addresses that could be reached; nothing when
/// there is none in time.
std::unique_ptr<ServerRequest> ask(
    const QUrl& url, qint64 mostBytes, const FetchPolicy& policy, FetchWait& wait)
{
    QList<QHostAddress> addresses = findAddresses(url.host(QUrl::FullyEncoded), policy, wait);
    while (!addresses.isEmpty() && !wait.isOver()) {
        auto request = std::make_unique<ServerRequest>(
            url, addresses.takeFirst(), mostBytes, policy, [&wait] { wait.wake(); });
        const auto isConnected = [&] {
            return request->state() != State::Connecting;
        };
        // One address that never answers must not use up the time of the others.
        if (!addresses.isEmpty() && !wait.until(isConnected, wait.timeLeft() / 3))
            continue;
        if (!wait.until(isConnected)
            || !wait.until([&] { return request->hasHead(); }, policy.mostTimeToHead)
            || !wait.until([&] { return request->isFinished(); }))
            return nullptr;
        if (request->state() != State::Unreachable)
            return request;
    }
    return nullptr;
}

} // namespace

UrlFetch::UrlFetch(FetchPolicy policy) : m_policy(std::move(policy)) { }

UrlFetch::~UrlFetch() = default;

std::optional<QByteArray> UrlFetch::fetch(const QUrl& url)
{
    return fetch(url, m_policy.mostBytes);
}

std::optional<QByteArray> UrlFetch::fetch(const QUrl& url, qint64 mostBytes)
{
    if (m_isGivenUp || m_wait)
        return std::nullopt;
    FetchWait wait(m_policy.mostTime);
    m_wait = &wait;
    const auto forget = qScopeGuard([this, &wait] {
        m_isGivenUp = m_isGivenUp || wait.isEnded();
        m_wait = nullptr;
    });
    QUrl current = url;
    for (int redirects = 0; redirects <= m_policy.mostRedirects && isAllowed(current);
         ++redirects) {
        const auto request = ask(current, mostBytes, m_policy, wait);
        if (!request)
            return std::nullopt;
        if (request->state() == State::Succeeded)
            return request->body();
        if (request->state() != State::Redirected || request->location().isEmpty())
            return std::nullopt;
        current = current.resolved(QUrl::fromEncoded(request->location()));
    }
    return std::nullopt;
}

void UrlFetch::giveUp()
{
    m_isGivenUp = true;
    if (m_wait)
        m_wait->end();
}

} // namespace tomely
