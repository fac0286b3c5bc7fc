#include "platform/desktop/network/qt_https_client.h"

#include "platform/build_options.h"
#include "platform/desktop/network/environment_proxy.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace tarvo::desktop {
namespace {

constexpr int maxRedirects = 5;

bool isHTTPS(const QUrl& url) {
    return url.isValid() && url.scheme() == QLatin1String("https") && !url.host().isEmpty();
}

QSslConfiguration verifiedConnections(const QList<QSslCertificate>& extraAuthorities) {
    auto configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
    if (!extraAuthorities.isEmpty()) {
        configuration.setCaCertificates(QSslConfiguration::systemCaCertificates() + extraAuthorities);
    }
    return configuration;
}

QNetworkRequest makeRequest(const QUrl& url, const HTTPSOptions& options) {
    QNetworkRequest request(url);
    request.setSslConfiguration(verifiedConnections(options.extraAuthorities));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(maxRedirects);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setHeader(
        QNetworkRequest::UserAgentHeader,
        QByteArray("Tarvo/") +
            QByteArray(build_options::version.data(), static_cast<qsizetype>(build_options::version.size())));
    // Stated, so that no compressed reply is unpacked to more than was received.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

void refuseMoreThan(qint64 maxSize, QNetworkReply* reply) {
    QObject::connect(reply, &QNetworkReply::metaDataChanged, reply, [reply, maxSize] {
        if (reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() > maxSize) reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, maxSize] {
        if (reply->bytesAvailable() > maxSize) reply->abort();
    });
}

std::optional<std::string> bodyOf(QNetworkReply& reply, qint64 maxSize) {
    if (reply.error() != QNetworkReply::NoError || reply.bytesAvailable() > maxSize) return std::nullopt;
    return reply.readAll().toStdString();
}

} // namespace

QtHTTPSClient::QtHTTPSClient(HTTPSOptions options) : options_(std::move(options)) {}

void QtHTTPSClient::fetch(const std::string& address, std::chrono::milliseconds timeout,
                          Completion completion) {
    const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
    if (!isHTTPS(url)) {
        QTimer::singleShot(0, this, [completion = std::move(completion)] { completion(std::nullopt); });
        return;
    }
    // One manager a request: with it go its thread, its connections and what TLS has cached.
    auto* const manager = new QNetworkAccessManager(this);
    manager->setProxy(environmentProxy(url.host()));
    auto* const reply = manager->get(makeRequest(url, options_));
    refuseMoreThan(options_.maxReplySize, reply);
    QTimer::singleShot(timeout, reply, &QNetworkReply::abort);
    connect(reply, &QNetworkReply::finished, this,
            [reply, manager, maxSize = options_.maxReplySize, completion = std::move(completion)] {
                manager->deleteLater();
                completion(bodyOf(*reply, maxSize));
            });
}

} // namespace tarvo::desktop
