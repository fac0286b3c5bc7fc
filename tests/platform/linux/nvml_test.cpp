#include "platform/linux/nvml.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using After = NVML::After;

/// How often the stub library is open; it must be loaded already.
int openCount() {
    void* const library = ::dlopen(TARVO_NVML_STUB, RTLD_LAZY | RTLD_LOCAL);
    const auto count = reinterpret_cast<int (*)()>(::dlsym(library, "stub_open"))();
    ::dlclose(library);
    return count;
}

TEST(NVML, WithoutTheLibraryEveryReadingIsAbsent) {
    NVML nvml("libtarvo-no-such-library.so.1");
    EXPECT_EQ(nvml.utilization("0000:01:00.0", After::staysOpen), std::nullopt);
    EXPECT_EQ(nvml.temperature("0000:01:00.0", After::closes), std::nullopt);
}

TEST(NVML, ALibraryWithoutTheSymbolsIsNone) {
    NVML nvml("libc.so.6");
    EXPECT_EQ(nvml.utilization("0000:01:00.0", After::staysOpen), std::nullopt);
}

TEST(NVML, ReadsTheGPUAtAnAddress) {
    NVML nvml(TARVO_NVML_STUB);
    EXPECT_EQ(nvml.utilization("0000:01:00.0", After::staysOpen), 37.0);
    EXPECT_EQ(nvml.temperature("0000:01:00.0", After::staysOpen), 58.0);
}

TEST(NVML, AnAddressWithoutGPUHasNoReading) {
    NVML nvml(TARVO_NVML_STUB);
    EXPECT_EQ(nvml.temperature("0000:02:00.0", After::staysOpen), std::nullopt);
    EXPECT_EQ(nvml.temperature("0000:01:00.0", After::staysOpen), 58.0);
}

TEST(NVML, StaysOpenOrClosesAsAsked) {
    NVML nvml(TARVO_NVML_STUB);
    nvml.temperature("0000:01:00.0", After::staysOpen);
    EXPECT_EQ(openCount(), 1);
    nvml.utilization("0000:01:00.0", After::closes);
    EXPECT_EQ(openCount(), 0);
    nvml.temperature("0000:02:00.0", After::closes);
    EXPECT_EQ(openCount(), 0) << "closed after a failure too";
    EXPECT_EQ(nvml.temperature("0000:01:00.0", After::closes), 58.0);
}

TEST(NVML, ClosesWithItsOwner) {
    NVML keepsTheLibraryLoaded(TARVO_NVML_STUB);
    keepsTheLibraryLoaded.temperature("0000:01:00.0", After::closes);
    {
        NVML nvml(TARVO_NVML_STUB);
        nvml.temperature("0000:01:00.0", After::staysOpen);
        EXPECT_EQ(openCount(), 1);
    }
    EXPECT_EQ(openCount(), 0);
}

} // namespace
} // namespace tarvo::linux_platform
