#include "platform/network/ServerRequest.h"

#include "platform/network/UrlFetch.h"

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslConfiguration>

#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// Beyond the body that was taken already.
constexpr qint64 readBufferSize = qint64{64} * 1024;
constexpr int httpsPort = 443;

QSslConfiguration sslConfiguration(const FetchPolicy& policy)
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
    // Naming any authority keeps the system's from being found on demand.
    if (!policy.furtherAuthorities.isEmpty()) {
        static const auto systemAuthorities = QSslConfiguration::systemCaCertificates();
        configuration.setCaCertificates(systemAuthorities + policy.furtherAuthorities);
    }
    return configuration;
}

QByteArray hostHeader(const QUrl& url)
{
    const QString name = url.host(QUrl::FullyEncoded);
    QByteArray header = name.toLatin1();
    if (name.contains(u':'))
        header = '[' + header + ']';
    const int port = url.port(httpsPort);
    return port == httpsPort ? header : header + ':' + QByteArray::number(port);
}

QNetworkRequest makeRequest(const QUrl& url, const QHostAddress& address, const FetchPolicy& policy)
{
    QUrl pinned = url;
    pinned.setHost(address.toString());
    pinned.setFragment({});
    QNetworkRequest request(pinned);
    request.setPeerVerifyName(url.host(QUrl::FullyEncoded));
    request.setSslConfiguration(sslConfiguration(policy));
    request.setRawHeader("Host", hostHeader(url));
    request.setHeader(QNetworkRequest::UserAgentHeader, u"Tomely/" TOMELY_VERSION ""_s);
    // What is decompressed could be any size.
    request.setRawHeader("Accept-Encoding", "identity");
    // Nobody needs to know the person's language.
    request.setRawHeader("Accept-Language", "*");
    request.setRawHeader("Connection", "close");
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(
        QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    for (const auto attribute :
        {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
            QNetworkRequest::AuthenticationReuseAttribute})
        request.setAttribute(attribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    return request;
}

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

bool isUnreachable(QNetworkReply::NetworkError error)
{
    return error == QNetworkReply::ConnectionRefusedError || error == QNetworkReply::TimeoutError
        || error == QNetworkReply::RemoteHostClosedError
        || error == QNetworkReply::HostNotFoundError
        || error == QNetworkReply::TemporaryNetworkFailureError
        || error == QNetworkReply::UnknownNetworkError;
}

} // namespace

ServerRequest::ServerRequest(const QUrl& url, const QHostAddress& address, qint64 mostBytes,
    const FetchPolicy& policy, std::function<void()> changed)
    : m_mostBytes(mostBytes)
    , m_changed(std::move(changed))
{
    m_manager.setProxy(QNetworkProxy::NoProxy);
    m_reply.reset(m_manager.get(makeRequest(url, address, policy)));
    m_reply->setReadBufferSize(readBufferSize);
    const QNetworkReply* const reply = m_reply.get();
    QObject::connect(reply, &QNetworkReply::encrypted, &m_context, [this] {
        if (m_state == State::Connecting)
            change(State::Waiting);
    });
    QObject::connect(reply, &QNetworkReply::metaDataChanged, &m_context, [this] { readHead(); });
    QObject::connect(reply, &QIODevice::readyRead, &m_context, [this] { readBody(); });
    QObject::connect(reply, &QNetworkReply::finished, &m_context, [this] { finish(); });
}

ServerRequest::~ServerRequest() = default;

void ServerRequest::readHead()
{
    if (hasHead())
        return;
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (isRedirect(status)) {
        m_location = m_reply->rawHeader("Location").trimmed();
        return change(State::Redirected);
    }
    const QByteArray encoding = m_reply->rawHeader("Content-Encoding").trimmed().toLower();
    const bool isEncoded = !encoding.isEmpty() && encoding != "identity";
    const bool isSuccess = status >= 200 && status <= 299 && !isEncoded && readLength();
    change(isSuccess ? State::Answering : State::Failed);
}

/// False when the length is none, or more than is allowed: then nothing of the body is read.
bool ServerRequest::readLength()
{
    // Without a length the body ends with its last chunk or with the connection.
    if (m_reply->hasRawHeader("Transfer-Encoding") || !m_reply->hasRawHeader("Content-Length"))
        return true;
    bool isNumber = false;
    m_length = m_reply->rawHeader("Content-Length").trimmed().toLongLong(&isNumber);
    return isNumber && *m_length >= 0 && *m_length <= m_mostBytes;
}

void ServerRequest::readBody()
{
    readHead();
    while (!isFinished() && m_reply->bytesAvailable() > 0) {
        m_body += m_reply->read(readBufferSize);
        if (m_body.size() > m_mostBytes)
            change(State::Failed);
    }
}

void ServerRequest::finish()
{
    if (isFinished())
        return;
    const QNetworkReply::NetworkError error = m_reply->error();
    if (m_state == State::Connecting && isUnreachable(error))
        return change(State::Unreachable);
    if (error != QNetworkReply::NoError)
        return change(State::Failed);
    readBody();
    if (isFinished())
        return;
    const bool isComplete = m_body.size() == m_length.value_or(m_body.size());
    change(isComplete ? State::Succeeded : State::Failed);
}

void ServerRequest::change(State state)
{
    m_state = state;
    m_changed();
}

} // namespace tomely
