#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// What the update manifest says of the newest version.
struct UpdateInfo {
    std::string version; ///< dotted numbers, e.g. "1.4.2"
    std::string url;     ///< the page or download offered to the user
    std::optional<std::string> notes;
    bool operator==(const UpdateInfo&) const = default;
};

/// Reads the update manifest, a JSON object with the texts "version", "url" and, where there are release
/// notes, "notes"; other keys are passed over. Absent for anything else.
std::optional<UpdateInfo> parseUpdateManifest(std::string_view json);

} // namespace tarvo
