// A management library with one GPU, for tests. It tells through stub_open how often it is open.

#include <cstring>

namespace {
int openCount = 0;
int gpu = 0;
} // namespace

extern "C" {

struct StubUtilization {
    unsigned int gpu;
    unsigned int memory;
};

int stub_open();
int nvmlInit_v2();
int nvmlShutdown();
int nvmlDeviceGetHandleByPciBusId_v2(const char* address, void** device);
int nvmlDeviceGetUtilizationRates(void* device, StubUtilization* rates);
int nvmlDeviceGetTemperature(void* device, int sensor, unsigned int* celsius);

int stub_open() {
    return openCount;
}

int nvmlInit_v2() {
    ++openCount;
    return 0;
}

int nvmlShutdown() {
    --openCount;
    return 0;
}

int nvmlDeviceGetHandleByPciBusId_v2(const char* address, void** device) {
    if (openCount < 1) return 1;
    if (std::strcmp(address, "0000:01:00.0") != 0) return 6;
    *device = &gpu;
    return 0;
}

int nvmlDeviceGetUtilizationRates(void* device, StubUtilization* rates) {
    if (device != &gpu) return 2;
    *rates = {37, 12};
    return 0;
}

int nvmlDeviceGetTemperature(void* device, int sensor, unsigned int* celsius) {
    if (device != &gpu || sensor != 0) return 2;
    *celsius = 58;
    return 0;
}
}
