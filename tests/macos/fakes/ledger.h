#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarvo::fakes {

/// What the fakes have handed out and not got back, and what was done to them that the system would punish.
struct Ledger {
    void taken(const std::string& kind) { ++takenSoFar[kind], ++held[kind]; }
    void givenBack(const std::string& kind) {
        if (--held[kind] == 0) held.erase(kind);
    }

    std::map<std::string, int> held;       ///< kinds of which none is held are not in it
    std::map<std::string, int> takenSoFar; ///< by kind
    std::vector<std::string> mistakes;
};

Ledger& ledger();

/// Notes a mistake when the condition does not hold.
bool expect(bool condition, const std::string& mistake);

} // namespace tarvo::fakes
