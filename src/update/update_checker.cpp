#include "update/update_checker.h"

#include "core/setting_keys.h"
#include "core/shared_instance.h"
#include "update/version_order.h"

#include <utility>
#include <variant>

namespace tarvo {
namespace {

WallTime lastCheck(const PreferenceStore& preferences) {
    const auto stored = preferences.object(keys::lastUpdateCheck);
    const auto* date = stored ? std::get_if<WallTime>(&*stored) : nullptr;
    return date ? *date : distantPastDate;
}

} // namespace

UpdateChecker::UpdateChecker(UpdateServices services)
    : services_(std::move(services)), self_(std::make_shared<UpdateChecker*>(this)) {}

UpdateChecker& UpdateChecker::shared() {
    return SharedInstance<UpdateChecker>::get();
}

void UpdateChecker::checkIfNeeded() {
    if (services_.manifestAddress.empty()) return;
    if (services_.clock.wallNow() - lastCheck(services_.preferences) <= checkInterval) return;
    // The reply comes on any thread; the preferences and the published value belong to the main one.
    auto completed = [self = std::weak_ptr(self_), &dispatcher = services_.dispatcher](auto reply) {
        dispatcher.async([self, reply = std::move(reply)] {
            if (const auto checker = self.lock()) (*checker)->requestCompleted(reply);
        });
    };
    services_.https.fetch(services_.manifestAddress, timeout, std::move(completed));
}

void UpdateChecker::requestCompleted(const std::optional<std::string>& reply) {
    services_.preferences.set(keys::lastUpdateCheck, services_.clock.wallNow());
    if (!reply) return;
    const auto info = parseUpdateManifest(*reply);
    if (info && isNewer(info->version, services_.currentVersion.value_or("0"))) available_.set(info);
}

std::string appVersionString(const std::optional<std::string>& version) {
    return version ? "v" + *version : std::string();
}

} // namespace tarvo
