#include "platform/linux/smc_key_table.h"

#include "platform/smc_record.h"

#include <algorithm>

namespace tarvo::linux_platform {
namespace {

constexpr std::string_view digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

bool isSource(const SMCKey& key) {
    return key.key != "#KEY" && key.key != "FNum";
}

} // namespace

SMCKeyTable::SMCKeyTable(std::vector<SMCKey> keys) : keys_(std::move(keys)) {
    for (std::size_t i = 0; i < keys_.size(); ++i)
        positions_.emplace(smcCode(keys_[i].key), i);
}

bool SMCKeyTable::hasSources() const {
    return std::any_of(keys_.begin(), keys_.end(), isSource);
}

const SMCKey* SMCKeyTable::find(std::uint32_t code) const {
    const auto found = positions_.find(code);
    return found == positions_.end() ? nullptr : &keys_[found->second];
}

std::optional<std::string> runningKey(std::string_view prefix, std::size_t index) {
    if (index >= digits.size() * digits.size()) return std::nullopt;
    return std::string(prefix) + digits[index / digits.size()] + digits[index % digits.size()];
}

} // namespace tarvo::linux_platform
