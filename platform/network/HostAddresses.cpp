#include "platform/network/HostAddresses.h"

#include "platform/network/FetchWait.h"
#include "platform/network/UrlFetch.h"

#include <QHostInfo>
#include <QObject>
#include <QString>

#include <algorithm>
#include <optional>

namespace tomely {

namespace {

QList<QHostAddress> lookUp(const QString& hostName, FetchWait& wait)
{
    std::optional<QHostInfo> info;
    // Answers that come after the wait find nobody.
    QObject context;
    const int lookup = QHostInfo::lookupHost(hostName, &context, [&](const QHostInfo& found) {
        info = found;
        wait.wake();
    });
    if (wait.until([&] { return info.has_value(); }))
        return info->addresses();
    QHostInfo::abortHostLookup(lookup);
    return {};
}

} // namespace

QList<QHostAddress> findAddresses(
    const QString& hostName, const FetchPolicy& policy, FetchWait& wait)
{
    QList<QHostAddress> addresses;
    // An address is not looked up: that would ask for its name.
    if (const QHostAddress literal(hostName); !literal.isNull())
        addresses = {literal};
    else if (const auto known = policy.knownHosts.constFind(hostName);
             known != policy.knownHosts.cend())
        addresses = *known;
    else
        addresses = lookUp(hostName, wait);
    const auto isRefused = [&](const QHostAddress& address) {
        return !policy.mayConnect(address);
    };
    addresses.erase(std::remove_if(addresses.begin(), addresses.end(), isRefused), addresses.end());
    return addresses;
}

} // namespace tomely
