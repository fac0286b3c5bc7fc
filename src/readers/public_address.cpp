#include "readers/public_address.h"

#include "platform/utf8.h"

#include <chrono>

namespace tarvo {

namespace {

constexpr std::chrono::seconds timeout{5};
constexpr std::string_view scheme = "https://";

} // namespace

std::optional<std::string> publicAddress(const std::optional<std::string>& reply) {
    if (!reply || reply->empty() || !isUTF8(*reply)) return std::nullopt;
    return std::string(trimmedWhiteSpace(*reply));
}

void fetchPublicIP(HTTPSClient& client, std::function<void(std::optional<std::string>)> completion,
                   std::string_view service) {
    if (!service.starts_with(scheme) || service.size() == scheme.size()) {
        completion(std::nullopt);
        return;
    }
    client.fetch(std::string(service), timeout,
                 [completion = std::move(completion)](std::optional<std::string> reply) {
                     completion(publicAddress(reply));
                 });
}

} // namespace tarvo
