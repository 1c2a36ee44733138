#include "platform/network/PublicAddress.h"

#include <QHostAddress>
#include <QList>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

using Block = std::pair<QHostAddress, int>;

QList<Block> parseBlocks(std::initializer_list<QLatin1StringView> texts)
{
    QList<Block> blocks;
    for (const QLatin1StringView text : texts)
        blocks.append(QHostAddress::parseSubnet(text));
    return blocks;
}

bool isInAny(const QHostAddress& address, const QList<Block>& blocks)
{
    return std::any_of(blocks.cbegin(), blocks.cend(),
        [&](const Block& block) { return address.isInSubnet(block); });
}

bool isPublicIPv4(const QHostAddress& address)
{
    static const QList<Block> special = parseBlocks({
        "0.0.0.0/8"_L1, // this network
        "10.0.0.0/8"_L1, // private
        "100.64.0.0/10"_L1, // shared by the customers of a provider
        "127.0.0.0/8"_L1, // loopback
        "169.254.0.0/16"_L1, // link-local
        "172.16.0.0/12"_L1, // private
        "192.0.0.0/24"_L1, // protocol assignments
        "192.0.2.0/24"_L1, // documentation
        "192.88.99.0/24"_L1, // relays into IPv6, given up
        "192.168.0.0/16"_L1, // private
        "198.18.0.0/15"_L1, // benchmarks
        "198.51.100.0/24"_L1, // documentation
        "203.0.113.0/24"_L1, // documentation
        "224.0.0.0/4"_L1, // multicast
        "240.0.0.0/4"_L1, // reserved, and broadcast
    });
    return !isInAny(address, special);
}

/// The four bytes of an IPv6 address from that one on.
QHostAddress embeddedIPv4(const Q_IPV6ADDR& bytes, int first)
{
    quint32 value = 0;
    for (int index = first; index < first + 4; ++index)
        value = value << 8 | bytes[index];
    return QHostAddress(value);
}

bool isPublicIPv6(const QHostAddress& address)
{
    static const Block mapped = QHostAddress::parseSubnet(u"::ffff:0:0/96"_s);
    static const Block translated = QHostAddress::parseSubnet(u"64:ff9b::/96"_s);
    static const Block relayed = QHostAddress::parseSubnet(u"2002::/16"_s);
    static const Block global = QHostAddress::parseSubnet(u"2000::/3"_s);
    static const QList<Block> special = parseBlocks({
        "2001::/23"_L1, // protocol assignments, among them tunnels to hosts behind routers
        "2001:db8::/32"_L1, // documentation
        "3fff::/20"_L1, // documentation
    });
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    if (address.isInSubnet(mapped) || address.isInSubnet(translated))
        return isPublicIPv4(embeddedIPv4(bytes, 12));
    if (address.isInSubnet(relayed))
        return isPublicIPv4(embeddedIPv4(bytes, 2));
    return address.isInSubnet(global) && !isInAny(address, special);
}

} // namespace

bool isPublicAddress(const QHostAddress& address)
{
    // A scope is only told for addresses of this machine's own links.
    if (!address.scopeId().isEmpty())
        return false;
    switch (address.protocol()) {
    case QAbstractSocket::IPv4Protocol:
        return isPublicIPv4(address);
    case QAbstractSocket::IPv6Protocol:
        return isPublicIPv6(address);
    default:
        return false;
    }
}

} // namespace tomely
