#pragma once

#include "platform/posix/file_descriptor.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// A device's folder, held open: names in it lead to this device only, even after its number was given to
/// another.
using SensorFolder = std::shared_ptr<const FileDescriptor>;

/// An empty handle when the folder cannot be opened; every file in it then counts as missing.
SensorFolder openSensorFolder(const std::string& path);

/// A one-line attribute of a device that stays open from its first reading on and is read from offset 0 each
/// time. A device that vanished gives nothing from then on, and is not replaced by another. For one thread.
class SensorFile {
public:
    SensorFile(SensorFolder folder, std::string name) : folder_(std::move(folder)), name_(std::move(name)) {}

    /// The content without the line feed at its end, valid until the next reading. Absent when it is missing,
    /// unreadable or empty.
    std::optional<std::string_view> read();
    /// The whole content as an integer.
    std::optional<std::int64_t> readInteger();

private:
    static constexpr std::size_t longestLine = 64;

    SensorFolder folder_;
    std::string name_;
    FileDescriptor file_;
    char line_[longestLine]{};
};

} // namespace tarvo::linux_platform
