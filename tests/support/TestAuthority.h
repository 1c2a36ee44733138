// A certificate authority made for one run of a test, and what servers need to be believed, or not,
// by whoever trusts it.

#pragma once

#include "platform/network/UrlFetch.h"

#include <QSslCertificate>
#include <QSslKey>
#include <QTemporaryDir>

namespace tomely {

/// What a server shows of itself.
struct ServerIdentity {
    QSslCertificate certificate;
    QSslKey key;
};

class TestAuthority {
public:
    /// Ends the test program with a message when no certificate can be made.
    TestAuthority();

    const QSslCertificate& certificate() const { return m_identity.certificate; }

    /// A certificate for that host, a name or an address, signed by this authority.
    ServerIdentity identityFor(const QString& hostName) const;

    /// The same, but it was valid years ago.
    ServerIdentity expiredIdentityFor(const QString& hostName) const;

    /// A certificate for that host that nobody else signed.
    static ServerIdentity selfSigned(const QString& hostName);

    /// The program's policy, but for servers on this machine with certificates of this authority.
    FetchPolicy policy() const;

private:
    QTemporaryDir m_folder;
    ServerIdentity m_identity;
};

} // namespace tomely
