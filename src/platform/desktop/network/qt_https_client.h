#pragma once

#include "platform/https_client.h"

#include <QList>
#include <QObject>
#include <QSslCertificate>
#include <QtGlobal>

namespace tarvo::desktop {

struct HTTPSOptions {
    /// Trusted besides the system's authorities.
    QList<QSslCertificate> extraAuthorities;
    qint64 maxReplySize = qint64{1} << 20; ///< bytes; a larger reply is a failure
};

/// HTTPS over Qt Network. Failures are all alike: an address that is not HTTPS, no network, a certificate
/// that cannot be verified, a redirect to anything but HTTPS, a status that is not a success, the time-out, a
/// reply that is too large. No cookies, no cache, no credentials; proxies by the environment
/// (environment_proxy.h). Nothing is kept between requests. Main thread only, where the completion runs too,
/// never from inside fetch(); requests that are under way when the client goes are dropped without it.
class QtHTTPSClient : public QObject, public HTTPSClient {
public:
    explicit QtHTTPSClient(HTTPSOptions options = {});

    void fetch(const std::string& address, std::chrono::milliseconds timeout, Completion completion) override;

private:
    HTTPSOptions options_;
};

} // namespace tarvo::desktop
