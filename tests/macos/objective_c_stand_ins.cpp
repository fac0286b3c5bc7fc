// Volumes and Wi-Fi are asked in Objective-C++, which runs only on a Mac. These answer in its place.
#include "platform/macos/core_wlan_client.h"
#include "platform/macos/macos_volumes.h"

namespace tarvo::macos_platform {

std::optional<VolumeValues> MacVolumes::root() {
    return VolumeValues{.path = "/",
                        .name = "Macintosh HD",
                        .availableForImportantUsage = 200'000'000'000,
                        .totalCapacity = 500'000'000'000,
                        .isRemovable = false,
                        .isInternal = true};
}

std::optional<std::vector<VolumeValues>> MacVolumes::mounted() {
    return std::vector<VolumeValues>{*root()};
}

struct CoreWLANClient::State {};

CoreWLANClient::CoreWLANClient() = default;
CoreWLANClient::~CoreWLANClient() = default;

int CoreWLANClient::authorizationStatus() {
    return authorizedAlways;
}

void CoreWLANClient::requestWhenInUseAuthorization() {}

std::optional<std::string> CoreWLANClient::ssid() {
    return "Home";
}

} // namespace tarvo::macos_platform
