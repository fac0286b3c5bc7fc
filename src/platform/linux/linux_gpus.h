#pragma once

#include "platform/clock.h"
#include "platform/linux/drm_clients.h"
#include "platform/linux/drm_usage.h"
#include "platform/linux/gpu_cards.h"
#include "platform/linux/gpu_queue_stats.h"
#include "platform/linux/idle_residency.h"
#include "platform/linux/root.h"
#include "platform/property_dictionary.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// Busy share, percent, of the NVIDIA card at a PCI address. `maySleep`: the system suspends the card when it
/// is not used, so nothing may be kept open on it.
using NVIDIAUtilization = std::function<std::optional<double>(const std::string& address, bool maySleep)>;

/// The graphics cards as services, of which the first that can tell its utilisation carries it. The cards
/// after it are not asked, since asking keeps them awake; one that sleeps is never asked. Hardware queue
/// only.
class LinuxGPUs {
public:
    LinuxGPUs(const Root& root, Clock& clock, NVIDIAUtilization nvidia);

    std::vector<PropertyDictionary> services();

private:
    struct History {
        DRMUsage usage;
        IdleResidency residency;
        GPUQueues queues;
    };

    std::optional<double> utilization(const GPUCard& card);
    std::optional<double> ofNVIDIA(const GPUCard& card) const;
    std::optional<double> ofQueues(const GPUCard& card, History& history) const;
    std::optional<double> ofClients(const GPUCard& card, History& history);
    std::map<std::string, std::uint64_t> sleptMilliseconds(const GPUCard& card) const;

    Root root_;
    Clock& clock_;
    NVIDIAUtilization nvidia_;
    DRMClients clients_;
    std::map<std::string, History> histories_; ///< by the card's folder and address
};

} // namespace tarvo::linux_platform
