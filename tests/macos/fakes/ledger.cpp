#include "macos/fakes/ledger.h"

namespace tarvo::fakes {

Ledger& ledger() {
    static Ledger instance;
    return instance;
}

bool expect(bool condition, const std::string& mistake) {
    if (!condition) ledger().mistakes.push_back(mistake);
    return condition;
}

} // namespace tarvo::fakes
