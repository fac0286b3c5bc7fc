#include "platform/linux/linux_gpus.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarvo::linux_platform {

namespace {

// Drivers whose clients tell of themselves, the parts of i915 and xe being able to tell how long they slept
// as well.
constexpr std::array<std::string_view, 6> driversWithClients{"i915", "xe",       "msm",
                                                             "v3d",  "panfrost", "panthor"};

PropertyDictionary service(std::optional<double> utilization) {
    PropertyDictionary service;
    if (!utilization) return service;
    PropertyDictionary performance;
    performance.set("Device Utilization %", PropertyValue(*utilization));
    service.set("PerformanceStatistics", std::move(performance));
    return service;
}

std::vector<std::string> matching(const std::string& folder, std::string_view prefix) {
    auto names = folderEntries(folder);
    std::erase_if(names, [prefix](const std::string& name) { return !name.starts_with(prefix); });
    return names;
}

bool belongsTo(const DRMClient& client, const GPUCard& card) {
    return client.address.empty() ? client.driver == card.driver : client.address == card.address;
}

} // namespace

LinuxGPUs::LinuxGPUs(const Root& root, Clock& clock, NVIDIAUtilization nvidia)
    : root_(root), clock_(clock), nvidia_(std::move(nvidia)), clients_(root, clock) {}

std::vector<PropertyDictionary> LinuxGPUs::services() {
    std::vector<PropertyDictionary> result;
    bool isFound = false;
    for (const auto& card : listGPUCards(root_)) {
        const auto value = isFound || isSleeping(root_, card) ? std::nullopt : utilization(card);
        isFound = isFound || value.has_value();
        result.push_back(service(value));
    }
    return result;
}

std::optional<double> LinuxGPUs::utilization(const GPUCard& card) {
    if (card.driver == "amdgpu")
        return readNumber<unsigned>(root_.path(card.folder + "/device/gpu_busy_percent"));
    if (card.driver == "nvidia") return ofNVIDIA(card);
    const auto* const known = std::find(driversWithClients.begin(), driversWithClients.end(), card.driver);
    if (known == driversWithClients.end()) return std::nullopt;
    auto& history = histories_[card.folder + ' ' + card.address];
    if (const auto value = ofQueues(card, history)) return value;
    return ofClients(card, history);
}

std::optional<double> LinuxGPUs::ofNVIDIA(const GPUCard& card) const {
    if (!nvidia_) return std::nullopt;
    const bool maySleep = readAttribute(root_.path(card.folder + "/device/power/control")) == "auto";
    return nvidia_(card.address, maySleep);
}

std::optional<double> LinuxGPUs::ofQueues(const GPUCard& card, History& history) const {
    const auto text = readFile(root_.path(card.folder + "/device/gpu_stats"));
    if (!text) return std::nullopt;
    auto now = parseGPUQueues(*text);
    const auto value = busiestQueue(history.queues, now);
    history.queues = std::move(now);
    return value;
}

std::optional<double> LinuxGPUs::ofClients(const GPUCard& card, History& history) {
    auto clients = clients_.read();
    std::erase_if(clients, [&card](const DRMClient& client) { return !belongsTo(client, card); });
    const auto now = clock_.steadyNow();
    const auto usage = history.usage.sample(clients, now);
    if (!clients.empty()) return usage;
    return history.residency.sample(sleptMilliseconds(card), now);
}

std::map<std::string, std::uint64_t> LinuxGPUs::sleptMilliseconds(const GPUCard& card) const {
    std::map<std::string, std::uint64_t> result;
    const auto add = [&](const std::string& path) {
        if (const auto milliseconds = readNumber<std::uint64_t>(path)) result.emplace(path, *milliseconds);
    };
    const auto folder = root_.path(card.folder);
    for (const auto& part : matching(folder + "/gt", "gt"))
        add(folder + "/gt/" + part + "/rc6_residency_ms");
    if (result.empty()) add(folder + "/power/rc6_residency_ms");
    for (const auto& tile : matching(folder + "/device", "tile")) {
        const auto tileFolder = folder + "/device/" + tile;
        for (const auto& part : matching(tileFolder, "gt"))
            add(tileFolder + '/' + part + "/gtidle/idle_residency_ms");
    }
    return result;
}

} // namespace tarvo::linux_platform
