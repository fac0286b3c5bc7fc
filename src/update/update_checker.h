#pragma once

#include "core/published.h"
#include "platform/clock.h"
#include "platform/dispatcher.h"
#include "platform/https_client.h"
#include "platform/preference_store.h"
#include "update/update_info.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// What the update checker works with; the references outlive it.
struct UpdateServices {
    PreferenceStore& preferences;
    HTTPSClient& https;
    const Clock& clock;
    Dispatcher& dispatcher;
    std::string manifestAddress;               ///< HTTPS; empty: there is no check
    std::optional<std::string> currentVersion; ///< absent: every version above 0 is newer
};

/// Asks once a day whether there is a newer version and publishes it. Nothing is downloaded or installed, and
/// a failed attempt is silent: the next one comes a day later. Main thread only.
class UpdateChecker {
public:
    static constexpr std::chrono::seconds checkInterval{86'400};
    static constexpr std::chrono::seconds timeout{8};

    explicit UpdateChecker(UpdateServices services);
    UpdateChecker(const UpdateChecker&) = delete;
    UpdateChecker& operator=(const UpdateChecker&) = delete;

    /// The instance that the whole process uses; see SharedInstance.
    static UpdateChecker& shared();

    /// Starts a check when the last one was completed more than a day ago, and returns at once.
    void checkIfNeeded();

    /// The newer version found by the last successful check.
    const std::optional<UpdateInfo>& available() const { return *available_; }
    Published<std::optional<UpdateInfo>>& publishedAvailable() { return available_; }

private:
    void requestCompleted(const std::optional<std::string>& reply);

    UpdateServices services_;
    Published<std::optional<UpdateInfo>> available_;
    std::shared_ptr<UpdateChecker*> self_; ///< lets a late reply see that the checker is gone
};

/// "v" and the version, or nothing when there is no version.
std::string appVersionString(const std::optional<std::string>& version);

} // namespace tarvo
