#include "readers/wifi_info.h"

#include "support/scripted_wifi_client.h"

#include <gtest/gtest.h>

namespace tarvo {

TEST(WiFiInfo, NamesTheJoinedNetwork) {
    ScriptedWiFiClient client;
    client.name = "Home";
    EXPECT_EQ(WiFiInfo(client).currentSSID(), "Home");
}

TEST(WiFiInfo, IsAbsentWithoutThePermission) {
    ScriptedWiFiClient client;
    client.name = "Home";
    client.status = 4; // only while in use
    EXPECT_EQ(WiFiInfo(client).currentSSID(), std::nullopt);
    client.status = 0;
    EXPECT_EQ(WiFiInfo(client).currentSSID(), std::nullopt);
    EXPECT_EQ(client.requests, 0);
}

TEST(WiFiInfo, IsAbsentWithoutANetwork) {
    ScriptedWiFiClient client;
    EXPECT_EQ(WiFiInfo(client).currentSSID(), std::nullopt);
}

TEST(WiFiInfo, AsksForThePermissionWhenTold) {
    ScriptedWiFiClient client;
    WiFiInfo(client).requestPermission();
    EXPECT_EQ(client.requests, 1);
}

} // namespace tarvo
