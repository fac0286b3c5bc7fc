#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace tarvo {

/// HTTPS requests. Certificates are verified and a redirect to plain HTTP is a failure.
class HTTPSClient {
public:
    /// The bytes of a successful reply, absent on any failure. Runs once, on any thread.
    using Completion = std::function<void(std::optional<std::string>)>;

    virtual ~HTTPSClient() = default;
    /// Returns at once. The time-out bounds the whole request.
    virtual void fetch(const std::string& address, std::chrono::milliseconds timeout,
                       Completion completion) = 0;
};

} // namespace tarvo
