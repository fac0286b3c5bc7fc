#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// NVIDIA's management library, loaded when a reading is first asked for and absent on most machines: every
/// reading is then absent. An open library keeps the GPU of a laptop awake, and so does every reading: ask
/// only for a GPU that is not suspended. Any thread. Interface: NVML API Reference Guide.
class NVML {
public:
    explicit NVML(std::string library = "libnvidia-ml.so.1");
    ~NVML();
    NVML(const NVML&) = delete;
    NVML& operator=(const NVML&) = delete;

    /// Whether the library stays open after a reading. False where the system may suspend the GPU.
    enum class After { staysOpen, closes };

    /// Busy share, percent, of the GPU at a PCI address such as "0000:01:00.0".
    std::optional<double> utilization(const std::string& pciAddress, After after);
    /// Degrees Celsius.
    std::optional<double> temperature(const std::string& pciAddress, After after);

private:
    struct Functions;

    bool load();
    template <typename Read>
    std::optional<double> read(const std::string& pciAddress, After after, Read&& read);

    std::string library_;
    std::mutex mutex_;
    bool loadTried_ = false;
    std::unique_ptr<Functions> functions_;
    bool open_ = false;
};

} // namespace tarvo::linux_platform
