#pragma once

#include "platform/build_options.h"
#include "platform/https_client.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// Answers with the caller's public IPv4 address as plain text.
inline constexpr std::string_view publicAddressService = build_options::publicAddressService;

/// The address in a service's reply: its text without white space at both ends, which may leave nothing.
/// Absent when there is no reply, it is empty or it is not UTF-8.
std::optional<std::string> publicAddress(const std::optional<std::string>& reply);

/// Asks the service and hands on the address, absent on any failure; once, on any thread. At once absent,
/// without a request, when the service is not an HTTPS address.
void fetchPublicIP(HTTPSClient& client, std::function<void(std::optional<std::string>)> completion,
                   std::string_view service = publicAddressService);

} // namespace tarvo
