#pragma once

#include "macos/fakes/carbon.h"
#include "macos/fakes/core_foundation.h"
#include "macos/fakes/interfaces.h"
#include "macos/fakes/io_kit.h"
#include "macos/fakes/ledger.h"
#include "macos/fakes/mach.h"
#include "macos/fakes/power_sources.h"
#include "macos/fakes/processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {

/// A machine of its own for each test. Fails when something was not given back at its end or a function was
/// called in a way that the system does not take.
class MacTest : public testing::Test {
protected:
    MacTest() {
        fakes::forgetObjects();
        fakes::forgetHandles();
        fakes::forgetMappings();
        fakes::forgetKeys();
        fakes::ledger() = {};
        fakes::coreFoundation() = {};
        fakes::ioKit() = {};
        fakes::mach() = {};
        fakes::interfaces() = {};
        fakes::powerSupply() = {};
        fakes::carbon() = {};
        fakes::processes() = {};
    }

    ~MacTest() override {
        EXPECT_THAT(fakes::ledger().held, testing::IsEmpty());
        EXPECT_THAT(fakes::ledger().mistakes, testing::IsEmpty());
    }

    /// How many of a kind were ever handed out.
    static int taken(const std::string& kind) {
        const auto found = fakes::ledger().takenSoFar.find(kind);
        return found == fakes::ledger().takenSoFar.end() ? 0 : found->second;
    }
};

} // namespace tarvo
