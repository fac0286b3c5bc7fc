#pragma once

#include <cstdint>
#include <vector>

namespace tarvo::fakes {

struct RegisteredKey {
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;
    std::uint32_t signature = 0;
    std::uint32_t number = 0;
    bool operator==(const RegisteredKey&) const = default;
};

struct Carbon {
    bool keysAreTaken = false;
    std::vector<RegisteredKey> everRegistered;
};

Carbon& carbon();
/// Presses the keys: the status of the handler, absent when no event came about.
bool pressKeys(std::uint32_t keyCode, std::uint32_t modifiers);
/// Runs the handler installed last without an event, or with one but without its user data.
std::int32_t callHandler(bool withEvent, bool withUserData);
/// Forgets the handlers and keys that are held.
void forgetKeys();

} // namespace tarvo::fakes
