#include "readers/public_address.h"

#include "support/scripted_https_client.h"

#include <gtest/gtest.h>

namespace tarvo {

TEST(PublicAddress, IsTheReplyWithoutWhiteSpaceAround) {
    EXPECT_EQ(publicAddress("203.0.113.7"), "203.0.113.7");
    EXPECT_EQ(publicAddress(" 203.0.113.7\r\n"), "203.0.113.7");
}

TEST(PublicAddress, OfAReplyOfOnlyWhiteSpaceIsTheEmptyText) {
    EXPECT_EQ(publicAddress("  \n"), "");
}

TEST(PublicAddress, IsAbsentForNoEmptyOrUndecodableReply) {
    EXPECT_EQ(publicAddress(std::nullopt), std::nullopt);
    EXPECT_EQ(publicAddress(""), std::nullopt);
    EXPECT_EQ(publicAddress("\xFF\xFE"), std::nullopt);
}

TEST(PublicAddress, IsAskedOfTheServiceWithinFiveSeconds) {
    ScriptedHTTPSClient client;
    std::optional<std::string> received;
    fetchPublicIP(client, [&](std::optional<std::string> address) { received = std::move(address); });
    ASSERT_EQ(client.requests.size(), 1U);
    EXPECT_EQ(client.requests[0].address, publicAddressService);
    EXPECT_EQ(client.requests[0].timeout, std::chrono::seconds(5));
    client.requests[0].completion("198.51.100.1\n");
    EXPECT_EQ(received, "198.51.100.1");
    client.requests[0].completion(std::nullopt);
    EXPECT_EQ(received, std::nullopt);
}

TEST(PublicAddress, IsAbsentAtOnceWhenTheServiceIsNotAnHTTPSAddress) {
    for (const auto* const service : {"", "https://", "http://example.org", "example"}) {
        ScriptedHTTPSClient client;
        int calls = 0;
        fetchPublicIP(
            client,
            [&](std::optional<std::string> address) {
                ++calls;
                EXPECT_EQ(address, std::nullopt);
            },
            service);
        EXPECT_EQ(calls, 1) << service;
        EXPECT_TRUE(client.requests.empty()) << service;
    }
}

} // namespace tarvo
