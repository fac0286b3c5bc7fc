#include "composition/machine.h"

#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"
#include "support/recorded_machine.h"
#include "support/scripted_wifi_client.h"

#include <gtest/gtest.h>

namespace tarvo {

TEST(MachineOptions, AWiFiClientIsAskedInPlaceOfTheMachinesOwn) {
    const RecordedMachine files("vm-empty");
    ManualClock clock;
    ManualDispatcher dispatcher(clock);
    const auto wifi = std::make_shared<ScriptedWiFiClient>();
    wifi->name = "Home";
    Machine machine({.root = files.root(), .wifi = wifi}, clock, dispatcher);
    EXPECT_EQ(machine.readers().currentSSID(), "Home");
    EXPECT_EQ(&machine.wifi(), wifi.get());
}

TEST(MachineOptions, WithoutAnHTTPSClientThereIsNoPublicAddress) {
    const RecordedMachine files("vm-empty");
    ManualClock clock;
    ManualDispatcher dispatcher(clock);
    Machine machine({.root = files.root()}, clock, dispatcher);
    EXPECT_FALSE(machine.readers().fetchPublicIP);
}

} // namespace tarvo
