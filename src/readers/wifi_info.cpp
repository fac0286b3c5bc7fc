#include "readers/wifi_info.h"

namespace tarvo {

std::optional<std::string> WiFiInfo::currentSSID() const {
    if (client_.authorizationStatus() != WiFiClient::authorizedAlways) return std::nullopt;
    return client_.ssid();
}

} // namespace tarvo
