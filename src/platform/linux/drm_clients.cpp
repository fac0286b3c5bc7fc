#include "platform/linux/drm_clients.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

namespace tarvo::linux_platform {

namespace {

constexpr std::chrono::seconds searchInterval{10};

bool isProcess(const std::string& name) {
    return parseNumber<unsigned>(name).has_value();
}

bool isGraphicsCard(const std::string& descriptor) {
    const auto target = linkText(descriptor);
    return target && target->starts_with("/dev/dri/");
}

} // namespace

std::vector<DRMClient> DRMClients::read() {
    const auto now = clock_.steadyNow();
    if (!found_ || now - *found_ >= searchInterval) {
        findDescriptors();
        found_ = now;
    }
    std::vector<DRMClient> clients;
    for (const auto& path : descriptors_) {
        const auto text = readFile(path);
        if (!text) continue;
        if (auto client = parseDRMFdinfo(*text)) clients.push_back(std::move(*client));
    }
    return clients;
}

void DRMClients::findDescriptors() {
    descriptors_.clear();
    const auto processes = root_.path("/proc");
    for (const auto& process : folderEntries(processes)) {
        if (!isProcess(process)) continue;
        const auto folder = processes + '/' + process;
        for (const auto& number : folderEntries(folder + "/fd")) {
            if (isGraphicsCard(folder + "/fd/" + number))
                descriptors_.push_back(folder + "/fdinfo/" + number);
        }
    }
}

} // namespace tarvo::linux_platform
