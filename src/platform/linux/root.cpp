#include "platform/linux/root.h"

#include "platform/linux/folder.h"

namespace tarvo::linux_platform {

Root::Root(std::string folder) : folder_(std::move(folder)) {
    while (!folder_.empty() && folder_.back() == '/')
        folder_.pop_back();
}

std::string Root::path(std::string_view absolute) const {
    std::string result;
    result.reserve(folder_.size() + absolute.size());
    return result.append(folder_).append(absolute);
}

std::optional<std::string> Root::resolve(std::string_view absolute) const {
    auto real = realPath(path(absolute));
    if (!real || isLive()) return real;
    const auto top = realPath(folder_);
    if (!top || !real->starts_with(*top + "/")) return std::nullopt;
    return real->substr(top->size());
}

} // namespace tarvo::linux_platform
