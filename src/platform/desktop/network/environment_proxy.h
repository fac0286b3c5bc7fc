#pragma once

#include <QNetworkProxy>
#include <QString>

#include <functional>

namespace tarvo::desktop {

/// The proxy that https_proxy, HTTPS_PROXY, all_proxy or ALL_PROXY names (the first that is set) for HTTPS
/// requests to this host; none where no_proxy or NO_PROXY lists the host, a domain above it or "*".
/// Understands http:// and socks5:// addresses with or without a scheme, user and port. `lookup` reads one
/// environment variable.
QNetworkProxy environmentProxy(const QString& host, const std::function<QString(const char*)>& lookup);
/// By the environment of the process.
QNetworkProxy environmentProxy(const QString& host);

} // namespace tarvo::desktop
