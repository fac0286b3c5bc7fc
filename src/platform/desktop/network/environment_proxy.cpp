#include "platform/desktop/network/environment_proxy.h"

#include <QStringList>
#include <QUrl>

#include <array>

namespace tarvo::desktop {
namespace {

constexpr quint16 usualProxyPort = 8080;
constexpr quint16 usualSocksPort = 1080;

using Lookup = std::function<QString(const char*)>;

template <std::size_t Count>
QString firstSet(const Lookup& lookup, const std::array<const char*, Count>& variables) {
    for (const char* const variable : variables) {
        if (const QString value = lookup(variable).trimmed(); !value.isEmpty()) return value;
    }
    return {};
}

bool isListed(const QString& host, const QString& list) {
    for (const QString& part : list.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        QString entry = part.trimmed();
        if (entry == QLatin1String("*")) return true;
        if (entry.startsWith(QLatin1Char('.'))) entry.remove(0, 1);
        if (entry.isEmpty()) continue;
        const bool isBelow = host.endsWith(QLatin1Char('.') + entry, Qt::CaseInsensitive);
        if (isBelow || host.compare(entry, Qt::CaseInsensitive) == 0) return true;
    }
    return false;
}

QNetworkProxy proxyAt(const QString& address) {
    const QUrl url(address.contains(QLatin1String("://")) ? address : QLatin1String("http://") + address);
    if (!url.isValid() || url.host().isEmpty()) return QNetworkProxy::NoProxy;
    const bool isSocks = url.scheme().startsWith(QLatin1String("socks"));
    const auto port = static_cast<quint16>(url.port(isSocks ? usualSocksPort : usualProxyPort));
    return {isSocks ? QNetworkProxy::Socks5Proxy : QNetworkProxy::HttpProxy, url.host(), port, url.userName(),
            url.password()};
}

} // namespace

QNetworkProxy environmentProxy(const QString& host, const Lookup& lookup) {
    const QString address =
        firstSet(lookup, std::array{"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"});
    if (address.isEmpty() || isListed(host, firstSet(lookup, std::array{"no_proxy", "NO_PROXY"}))) {
        return QNetworkProxy::NoProxy;
    }
    return proxyAt(address);
}

QNetworkProxy environmentProxy(const QString& host) {
    return environmentProxy(host, [](const char* variable) { return qEnvironmentVariable(variable); });
}

} // namespace tarvo::desktop
