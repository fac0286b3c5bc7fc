#pragma once

#include "macos/fakes/core_foundation.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::fakes {

struct Service {
    std::string className;
    std::optional<Value> properties{}; ///< absent: they cannot be read
};

/// One request to a user client.
struct StructCall {
    std::uint32_t selector = 0;
    std::vector<unsigned char> input{};
    std::size_t outputSize = 0;
    bool outputWasZero = true;
};

struct IOKit {
    std::vector<Service> services;
    bool matchingFails = false;
    bool enumerationFails = false;
    std::optional<std::size_t> iteratorEndsAfter; ///< services
    std::int32_t openFailure = 0;
    /// Answers a request to an open user client: fills the output, gives the status.
    std::function<std::int32_t(const StructCall& call, unsigned char* output)> answer;

    // What was asked.
    std::vector<std::string> propertyNames;
    std::vector<std::uint32_t> openedTypes;
    std::vector<StructCall> calls;
};

IOKit& ioKit();
/// Forgets all services, iterators and connections that are held.
void forgetHandles();

} // namespace tarvo::fakes
