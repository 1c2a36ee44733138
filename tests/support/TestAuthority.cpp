#include "tests/support/TestAuthority.h"

#include <QFile>
#include <QHostAddress>
#include <QProcess>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// Without any other, so that a certificate has no extensions but those that are asked for.
constexpr const char* configuration = "[req]\n"
                                      "distinguished_name = name\n"
                                      "[name]\n"
                                      "[ca]\n"
                                      "default_ca = authority\n"
                                      "[authority]\n"
                                      "database = issued\n"
                                      "new_certs_dir = .\n"
                                      "certificate = authority.pem\n"
                                      "private_key = authority.key\n"
                                      "default_md = sha256\n"
                                      "rand_serial = yes\n"
                                      "unique_subject = no\n"
                                      "copy_extensions = copy\n"
                                      "policy = anyone\n"
                                      "[anyone]\n"
                                      "commonName = supplied\n";

void writeText(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("%s cannot be written", qPrintable(path));
}

void runOpenssl(const QString& folder, const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(u"openssl"_s, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("openssl %s: %s", qPrintable(arguments.join(u' ')), process.readAll().constData());
    }
}

QByteArray readBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ServerIdentity readIdentity(const QTemporaryDir& folder, const QString& name)
{
    ServerIdentity identity{QSslCertificate(readBytes(folder.filePath(name + u".pem"_s))),
        QSslKey(readBytes(folder.filePath(name + u".key"_s)), QSsl::Ec)};
    if (identity.certificate.isNull() || identity.key.isNull())
        qFatal("the certificate of %s cannot be read", qPrintable(name));
    return identity;
}

/// A new key and a request or certificate with it.
QStringList newKeyArguments(const QString& name, const QString& commonName)
{
    return {u"req"_s, u"-config"_s, u"openssl.cnf"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
        u"ec_paramgen_curve:P-256"_s, u"-nodes"_s, u"-subj"_s, u"/CN="_s + commonName, u"-keyout"_s,
        name + u".key"_s};
}

QStringList certificateArguments(const QString& name)
{
    return {u"-x509"_s, u"-days"_s, u"2"_s, u"-out"_s, name + u".pem"_s};
}

QStringList hostArguments(const QString& hostName)
{
    const bool isAddress = !QHostAddress(hostName).isNull();
    return {u"-addext"_s, u"subjectAltName="_s + (isAddress ? u"IP:"_s : u"DNS:"_s) + hostName,
        u"-addext"_s, u"extendedKeyUsage=serverAuth"_s};
}

QStringList signerArguments()
{
    return {u"-CA"_s, u"authority.pem"_s, u"-CAkey"_s, u"authority.key"_s};
}

} // namespace

TestAuthority::TestAuthority()
{
    const QString name = u"authority"_s;
    writeText(m_folder.filePath(u"openssl.cnf"_s), configuration);
    runOpenssl(m_folder.path(),
        newKeyArguments(name, u"Authority of a test"_s) + certificateArguments(name)
            + QStringList{u"-addext"_s, u"basicConstraints=critical,CA:TRUE"_s, u"-addext"_s,
                u"keyUsage=critical,keyCertSign,cRLSign"_s});
    m_identity = readIdentity(m_folder, name);
}

ServerIdentity TestAuthority::identityFor(const QString& hostName) const
{
    const QString name = u"host"_s;
    runOpenssl(m_folder.path(),
        newKeyArguments(name, hostName) + certificateArguments(name) + hostArguments(hostName)
            + signerArguments());
    return readIdentity(m_folder, name);
}

ServerIdentity TestAuthority::expiredIdentityFor(const QString& hostName) const
{
    const QString name = u"expired"_s;
    writeText(m_folder.filePath(u"issued"_s), {});
    runOpenssl(m_folder.path(),
        newKeyArguments(name, hostName) + hostArguments(hostName)
            + QStringList{u"-out"_s, u"expired.csr"_s});
    // Only this command can make a certificate of the past.
    runOpenssl(m_folder.path(),
        {u"ca"_s, u"-config"_s, u"openssl.cnf"_s, u"-batch"_s, u"-notext"_s, u"-startdate"_s,
            u"20200101000000Z"_s, u"-enddate"_s, u"20200201000000Z"_s, u"-in"_s, u"expired.csr"_s,
            u"-out"_s, u"expired.pem"_s});
    return readIdentity(m_folder, name);
}

ServerIdentity TestAuthority::selfSigned(const QString& hostName)
{
    const QTemporaryDir folder;
    const QString name = u"host"_s;
    writeText(folder.filePath(u"openssl.cnf"_s), configuration);
    runOpenssl(folder.path(),
        newKeyArguments(name, hostName) + certificateArguments(name) + hostArguments(hostName));
    return readIdentity(folder, name);
}

FetchPolicy TestAuthority::policy() const
{
    FetchPolicy policy;
    policy.mayConnect = [](const QHostAddress& address) {
        return address.isLoopback();
    };
    policy.furtherAuthorities = {m_identity.certificate};
    return policy;
}

} // namespace tomely
