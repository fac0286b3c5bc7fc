#pragma once

#include "platform/clock.h"
#include "platform/preference_store.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tarvo {

/// What the system keeps for the user who runs the program.
struct User {
    std::unique_ptr<PreferenceStore> preferences;
    /// Takes over what another program wrote into the preferences; false when nothing did. Main thread only.
    std::function<bool()> reloadPreferences;
    /// The language of the user's system, "cs" of "cs_CZ"; absent when none is set.
    std::function<std::optional<std::string>()> languageCode;
    /// The folder of the history and the alert log, without a slash at the end; empty: nothing can be kept.
    std::string dataFolder;
};

/// The user on the system that the program is built for. The clock outlives the preferences.
User openUser(Clock& clock);

} // namespace tarvo
