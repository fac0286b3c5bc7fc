#pragma once

#include "platform/sensor_names.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarvo::linux_platform {

/// One key of the virtual controller.
struct SMCKey {
    std::string key;  ///< four characters
    std::string type; ///< "flt ", "ui8 " or "ui32"
    SensorName name;
    /// The value now, absent when it cannot be read; any thread.
    std::function<std::optional<double>()> read;
};

/// The keys of this machine in index order; fixed once built, so that any number of threads may read it.
class SMCKeyTable {
public:
    explicit SMCKeyTable(std::vector<SMCKey> keys);

    /// False when the machine has no temperature, fan or system power at all.
    bool hasSources() const;
    std::size_t size() const { return keys_.size(); }
    /// Null past the end.
    const SMCKey* at(std::size_t index) const { return index < keys_.size() ? &keys_[index] : nullptr; }
    /// Null when there is no such key.
    const SMCKey* find(std::uint32_t code) const;

private:
    std::vector<SMCKey> keys_;
    std::unordered_map<std::uint32_t, std::size_t> positions_;
};

/// The running index as two base-36 digits behind the prefix, e.g. "Tp0A". Absent past the last one.
std::optional<std::string> runningKey(std::string_view prefix, std::size_t index);

} // namespace tarvo::linux_platform
