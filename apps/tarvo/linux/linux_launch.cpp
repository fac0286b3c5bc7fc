#include "linux/linux_launch.h"

#include "core/application_identifier.h"
#include "platform/build_options.h"
#include "platform/desktop/display_check.h"

#include <QDBusConnection>

#include <fmt/format.h>

#include <cstdio>
#include <utility>

namespace tarvo {

namespace {

constexpr ExitStatus displayStatus = 1;
constexpr ExitStatus busyStatus = 1;

/// What a second instance calls in the first one.
constexpr QLatin1String openPopoverMethod("OpenPopover");

ExitStatus openRunningOne(desktop::SessionService& session) {
    if (session.callOwner(openPopoverMethod)) return 0;
    fmt::print(stderr, "tarvo: already running, but it does not answer\n");
    return busyStatus;
}

} // namespace

LinuxLaunch::LinuxLaunch(int& argumentCount, char** arguments)
    : application_(argumentCount, arguments, build_options::version, applicationIdentifier),
      session_(QDBusConnection::sessionBus(), QString::fromLatin1(applicationIdentifier)) {}

void LinuxLaunch::answer(OutsideRequests requests) {
    session_.setMethod(QStringLiteral("TogglePopover"), std::move(requests.togglePopover));
    session_.setMethod(openPopoverMethod, std::move(requests.openPopover));
    session_.setMethod(QStringLiteral("OpenDetailWindow"), std::move(requests.openDetailWindow));
}

std::variant<std::unique_ptr<Launch>, ExitStatus> launch(int& argumentCount, char** arguments) {
    if (const auto missing = desktop::missingDisplay()) {
        fmt::print(stderr, "tarvo: {}\n", *missing);
        return displayStatus;
    }
    auto launched = std::make_unique<LinuxLaunch>(argumentCount, arguments);
    desktop::SessionService& session = launched->session();
    if (session.claim() == desktop::SessionService::Claim::taken) return openRunningOne(session);
    return launched;
}

} // namespace tarvo
