#include "platform/linux/sensor_file.h"

#include "platform/linux/parse_number.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace tarvo::linux_platform {

SensorFolder openSensorFolder(const std::string& path) {
    return std::make_shared<const FileDescriptor>(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

std::optional<std::string_view> SensorFile::read() {
    if (!file_ && *folder_) {
        file_ = FileDescriptor(
            ::openat(folder_->get(), name_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    }
    if (!file_) return std::nullopt;
    ssize_t length = 0;
    do {
        length = ::pread(file_.get(), line_, sizeof line_, 0);
    } while (length < 0 && errno == EINTR);
    if (length <= 0) return std::nullopt;
    std::string_view text(line_, static_cast<std::size_t>(length));
    if (text.back() == '\n') text.remove_suffix(1);
    return text.empty() ? std::nullopt : std::optional(text);
}

std::optional<std::int64_t> SensorFile::readInteger() {
    const auto text = read();
    return text ? parseNumber<std::int64_t>(*text) : std::nullopt;
}

} // namespace tarvo::linux_platform
