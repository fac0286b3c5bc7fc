#include "platform/desktop/open_link.h"

#include <QDesktopServices>
#include <QUrl>

namespace tarvo::desktop {

void openLink(const std::string& address) {
    const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
    const bool isWeb = url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    if (isWeb && url.isValid() && !url.host().isEmpty()) QDesktopServices::openUrl(url);
}

} // namespace tarvo::desktop
