#include "linux/https_helper_path.h"

#include <system_error>

namespace tarvo {

std::string httpsHelperPath(const std::filesystem::path& programFolder) {
    const auto installation = programFolder.parent_path();
    for (const auto& folder : {programFolder, installation / "libexec" / "tarvo"}) {
        std::error_code ignored;
        const auto candidate = folder / "tarvo-fetch";
        if (std::filesystem::is_regular_file(candidate, ignored)) return candidate.string();
    }
    return {};
}

} // namespace tarvo
