#include "platform/linux/nvml.h"

#include <dlfcn.h>

namespace tarvo::linux_platform {
namespace {

using Device = void*;
struct UtilizationRates {
    unsigned int gpu;
    unsigned int memory;
};

constexpr int success = 0;
constexpr int gpuSensor = 0; // the only temperature sensor that the interface names

struct CloseLibrary {
    void operator()(void* library) const { ::dlclose(library); }
};
using Library = std::unique_ptr<void, CloseLibrary>;

template <typename Function>
bool find(const Library& library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(::dlsym(library.get(), name));
    return function != nullptr;
}

} // namespace

/// The few symbols that are used, declared here so that no header of the library is needed.
struct NVML::Functions {
    Library library;
    int (*initialize)();
    int (*shutdown)();
    int (*deviceByAddress)(const char* pciAddress, Device* device);
    int (*utilizationRates)(Device device, UtilizationRates* rates);
    int (*temperature)(Device device, int sensor, unsigned int* celsius);
};

NVML::NVML(std::string library) : library_(std::move(library)) {}

NVML::~NVML() {
    if (open_) functions_->shutdown();
}

std::optional<double> NVML::utilization(const std::string& pciAddress, After after) {
    return read(pciAddress, after, [this](Device device) -> std::optional<double> {
        UtilizationRates rates{};
        if (functions_->utilizationRates(device, &rates) != success) return std::nullopt;
        return rates.gpu;
    });
}

std::optional<double> NVML::temperature(const std::string& pciAddress, After after) {
    return read(pciAddress, after, [this](Device device) -> std::optional<double> {
        unsigned int celsius = 0;
        if (functions_->temperature(device, gpuSensor, &celsius) != success) return std::nullopt;
        return celsius;
    });
}

bool NVML::load() {
    if (loadTried_) return functions_ != nullptr;
    loadTried_ = true;
    auto functions = std::make_unique<Functions>();
    functions->library.reset(::dlopen(library_.c_str(), RTLD_LAZY | RTLD_LOCAL));
    const auto& library = functions->library;
    if (library && find(library, "nvmlInit_v2", functions->initialize) &&
        find(library, "nvmlShutdown", functions->shutdown) &&
        find(library, "nvmlDeviceGetHandleByPciBusId_v2", functions->deviceByAddress) &&
        find(library, "nvmlDeviceGetUtilizationRates", functions->utilizationRates) &&
        find(library, "nvmlDeviceGetTemperature", functions->temperature)) {
        functions_ = std::move(functions);
    }
    return functions_ != nullptr;
}

template <typename Read>
std::optional<double> NVML::read(const std::string& pciAddress, After after, Read&& read) {
    const std::lock_guard lock(mutex_);
    if (!load()) return std::nullopt;
    if (!open_) open_ = functions_->initialize() == success;
    if (!open_) return std::nullopt;
    Device device = nullptr;
    std::optional<double> value;
    if (functions_->deviceByAddress(pciAddress.c_str(), &device) == success) value = read(device);
    if (after == After::closes) {
        functions_->shutdown();
        open_ = false;
    }
    return value;
}

} // namespace tarvo::linux_platform
