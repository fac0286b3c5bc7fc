#include "sensors/smc.h"

#include "support/connected_smc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace tarvo {
namespace {

using Bytes = ScriptedSMC::Bytes;

/// A record with the given bytes at the given offsets and zeroes elsewhere.
Bytes recordWith(std::initializer_list<std::pair<std::size_t, std::uint8_t>> bytes) {
    Bytes record{};
    for (const auto& [offset, value] : bytes)
        record[offset] = value;
    return record;
}

bool isZero(const CSMCReadResult& result) {
    return result.key == 0 && result.dataSize == 0 && result.success == 0 &&
           std::all_of(std::begin(result.dataType), std::end(result.dataType),
                       [](char c) { return c == '\0'; }) &&
           std::all_of(std::begin(result.bytes), std::end(result.bytes),
                       [](unsigned char b) { return b == 0; });
}

TEST(SMC, OpensTheNamedServiceAndReleasesIt) {
    const ConnectedSMC smc;
    EXPECT_EQ(csmc_open(), 0);
    EXPECT_EQ(smc->calls, (std::vector<std::string>{"find AppleSMC", "open 7 type 0", "release 7"}));
    EXPECT_TRUE(smc->requests.empty());
}

TEST(SMC, SaysMinusOneWithoutTheService) {
    const ConnectedSMC smc;
    smc->service = 0;
    EXPECT_EQ(csmc_open(), -1);
    EXPECT_EQ(smc->calls, std::vector<std::string>{"find AppleSMC"});
}

TEST(SMC, SaysMinusOneWithoutAClient) {
    EXPECT_EQ(csmc_open(), -1);
    EXPECT_TRUE(isZero(csmc_read_key("FNum")));
}

TEST(SMC, SaysMinusTwoWhenTheClientCannotBeOpenedAndStillReleasesTheService) {
    const ConnectedSMC smc;
    smc->openResult = 5;
    EXPECT_EQ(csmc_open(), -2);
    EXPECT_EQ(smc->calls.back(), "release 7");
    csmc_close();
    EXPECT_EQ(smc->calls.back(), "release 7") << "the handle is 0 after a failed open, so nothing is closed";
}

TEST(SMC, AMissingServiceLeavesAnOpenHandleAsItWas) {
    const ConnectedSMC smc;
    smc->countKeys();
    ASSERT_EQ(csmc_open(), 0);
    smc->service = 0;
    EXPECT_EQ(csmc_open(), -1);
    EXPECT_EQ(csmc_key_count(), 1U);
}

TEST(SMC, ASecondOpenReplacesTheHandle) {
    const ConnectedSMC smc;
    smc->addFloat("PSTR", 1);
    ASSERT_EQ(csmc_open(), 0);
    smc->nextConnection = 42;
    ASSERT_EQ(csmc_open(), 0);
    csmc_read_key("PSTR");
    EXPECT_EQ(smc->requests.back().connection, 42U);
    EXPECT_EQ(std::count(smc->calls.begin(), smc->calls.end(), "close 41"), 0);
}

TEST(SMC, ClosesOnce) {
    const ConnectedSMC smc;
    ASSERT_EQ(csmc_open(), 0);
    csmc_close();
    csmc_close();
    EXPECT_EQ(std::count(smc->calls.begin(), smc->calls.end(), "close 41"), 1);
}

TEST(SMC, AsksNothingWhileClosed) {
    const ConnectedSMC smc;
    smc->addFloat("PSTR", 1);
    smc->countKeys();
    ASSERT_EQ(csmc_open(), 0);
    csmc_close();
    char name[5] = "keep";
    EXPECT_TRUE(isZero(csmc_read_key("PSTR")));
    EXPECT_EQ(csmc_key_count(), 0xFFFFFFFF);
    EXPECT_EQ(csmc_key_at_index(0, name), 0);
    EXPECT_STREQ(name, "keep");
    EXPECT_TRUE(smc->requests.empty());
    ASSERT_EQ(csmc_open(), 0);
    EXPECT_EQ(csmc_key_count(), 2U);
}

TEST(SMC, ReadsAKeyByAskingForItsInfoAndThenItsBytes) {
    const ConnectedSMC smc;
    smc->add("F0Ac", "fpe2", {0x12, 0x34});
    ASSERT_EQ(csmc_open(), 0);
    const auto result = csmc_read_key("F0Ac");

    ASSERT_EQ(smc->requests.size(), 2U);
    // "F0Ac" as a little-endian number: c A 0 F. Command 9, then command 5 with the size.
    EXPECT_EQ(smc->requests[0].input, recordWith({{0, 'c'}, {1, 'A'}, {2, '0'}, {3, 'F'}, {42, 9}}));
    EXPECT_EQ(smc->requests[1].input, recordWith({{0, 'c'}, {1, 'A'}, {2, '0'}, {3, 'F'}, {28, 2}, {42, 5}}));
    for (const auto& request : smc->requests) {
        EXPECT_EQ(request.connection, 41U);
        EXPECT_EQ(request.selector, 2U);
        EXPECT_EQ(request.inputSize, 80U);
        EXPECT_EQ(request.outputSize, 80U);
        EXPECT_EQ(request.outputBefore, Bytes{});
    }

    EXPECT_EQ(result.success, 1);
    EXPECT_EQ(result.key, 0x46304163U);
    EXPECT_STREQ(result.dataType, "fpe2");
    EXPECT_EQ(result.dataSize, 2U);
    EXPECT_EQ(result.bytes[0], 0x12);
    EXPECT_EQ(result.bytes[1], 0x34);
    EXPECT_EQ(std::accumulate(std::begin(result.bytes) + 2, std::end(result.bytes), 0), 0);
}

TEST(SMC, KeepsTheBlanksOfATypeCode) {
    const ConnectedSMC smc;
    smc->add("FNum", "ui8 ", {2});
    ASSERT_EQ(csmc_open(), 0);
    EXPECT_STREQ(csmc_read_key("FNum").dataType, "ui8 ");
}

TEST(SMC, LeavesOutBytesPastTheSize) {
    const ConnectedSMC smc;
    smc->add("FNum", "ui8 ", {2});
    smc->alter = [](const SMCRecord&, SMCRecord& output) { output.bytes.fill(0xEE); };
    ASSERT_EQ(csmc_open(), 0);
    const auto result = csmc_read_key("FNum");
    EXPECT_EQ(result.bytes[0], 0xEE);
    EXPECT_EQ(std::accumulate(std::begin(result.bytes) + 1, std::end(result.bytes), 0), 0);
}

TEST(SMC, AcceptsThirtyTwoBytes) {
    const ConnectedSMC smc;
    std::vector<unsigned char> value(32);
    std::iota(value.begin(), value.end(), static_cast<unsigned char>(1));
    smc->add("Long", "ch8*", value);
    ASSERT_EQ(csmc_open(), 0);
    const auto result = csmc_read_key("Long");
    EXPECT_EQ(result.success, 1);
    EXPECT_EQ(result.dataSize, 32U);
    EXPECT_TRUE(std::equal(value.begin(), value.end(), std::begin(result.bytes)));
}

TEST(SMC, AcceptsOneByte) {
    const ConnectedSMC smc;
    smc->add("FNum", "ui8 ", {9});
    ASSERT_EQ(csmc_open(), 0);
    EXPECT_EQ(csmc_read_key("FNum").dataSize, 1U);
}

class SMCRefusedSize : public testing::TestWithParam<std::uint32_t> {};

TEST_P(SMCRefusedSize, FailsBeforeTheBytesAreAskedFor) {
    const ConnectedSMC smc;
    smc->add("Size", "ch8*", {1});
    smc->alter = [](const SMCRecord&, SMCRecord& output) { output.keyInfo.dataSize = GetParam(); };
    ASSERT_EQ(csmc_open(), 0);
    EXPECT_TRUE(isZero(csmc_read_key("Size")));
    EXPECT_EQ(smc->requests.size(), 1U);
}
INSTANTIATE_TEST_SUITE_P(SMC, SMCRefusedSize, testing::Values(0U, 33U, 80U, 0xFFFFFFFFU));

TEST(SMC, AFailedInfoOrAFailedReadYieldsAZeroedResult) {
    const ConnectedSMC smc;
    smc->addFloat("PSTR", 1);
    ASSERT_EQ(csmc_open(), 0);

    smc->key("PSTR").infoResult = 0x84;
    EXPECT_TRUE(isZero(csmc_read_key("PSTR")));
    EXPECT_EQ(smc->requests.size(), 1U);

    smc->key("PSTR").infoResult = 0;
    smc->key("PSTR").readResult = 0x84;
    EXPECT_TRUE(isZero(csmc_read_key("PSTR")));
    EXPECT_EQ(smc->requests.size(), 3U);
}

TEST(SMC, AFailedCallYieldsAZeroedResult) {
    const ConnectedSMC smc;
    smc->addFloat("PSTR", 1);
    ASSERT_EQ(csmc_open(), 0);
    for (const auto failing : {SMCCommand::readKeyInfo, SMCCommand::readBytes}) {
        smc->callResult = [failing](const SMCRecord& input) {
            return input.data8 == static_cast<std::uint8_t>(failing) ? -536870206 : 0;
        };
        EXPECT_TRUE(isZero(csmc_read_key("PSTR")));
    }
}

class SMCRefusedKey : public testing::TestWithParam<const char*> {};

TEST_P(SMCRefusedKey, FailsWithoutACall) {
    const ConnectedSMC smc;
    smc->addFloat("PSTR", 1);
    ASSERT_EQ(csmc_open(), 0);
    EXPECT_TRUE(isZero(csmc_read_key(GetParam())));
    EXPECT_TRUE(smc->requests.empty());
}
INSTANTIATE_TEST_SUITE_P(SMC, SMCRefusedKey, testing::Values("", "PST", "F10Ac", "PSTRPSTR"));

TEST(SMC, CountsTheKeysFromFourBigEndianBytes) {
    const ConnectedSMC smc;
    smc->add("#KEY", "ui32", {0x00, 0x01, 0x02, 0x03});
    ASSERT_EQ(csmc_open(), 0);
    EXPECT_EQ(csmc_key_count(), 0x00010203U);
    EXPECT_EQ(smc->requests[0].input, recordWith({{0, 'Y'}, {1, 'E'}, {2, 'K'}, {3, '#'}, {42, 9}}));
}

TEST(SMC, ACountOfAnotherTypeIsNoCount) {
    for (const char* type : {"ui16", "ui8 ", "UI32", "flt "}) {
        const ConnectedSMC smc;
        smc->add("#KEY", type, {0, 0, 0, 5});
        ASSERT_EQ(csmc_open(), 0);
        EXPECT_EQ(csmc_key_count(), 0xFFFFFFFF) << type;
        EXPECT_EQ(static_cast<std::int32_t>(csmc_key_count()), -1);
    }
}

TEST(SMC, LooksUpAKeyByIndexWithOneRequest) {
    const ConnectedSMC smc;
    smc->addFloat("PSTR", 1);
    smc->addFloat("Tp01", 40);
    ASSERT_EQ(csmc_open(), 0);
    char name[5];
    EXPECT_EQ(csmc_key_at_index(1, name), 1);
    EXPECT_STREQ(name, "Tp01");
    ASSERT_EQ(smc->requests.size(), 1U);
    EXPECT_EQ(smc->requests[0].input, recordWith({{42, 8}, {44, 1}}));
    EXPECT_EQ(smc->requests[0].outputBefore, Bytes{});
    EXPECT_EQ(smc->requests[0].selector, 2U);
}

TEST(SMC, PassesTheWholeIndex) {
    const ConnectedSMC smc;
    ASSERT_EQ(csmc_open(), 0);
    char name[5];
    csmc_key_at_index(0x01020304, name);
    EXPECT_EQ(smc->requests[0].input, recordWith({{42, 8}, {44, 4}, {45, 3}, {46, 2}, {47, 1}}));
}

TEST(SMC, AnIndexLookUpDoesNotLookAtTheResultByte) {
    const ConnectedSMC smc;
    smc->addFloat("Tp01", 40);
    smc->alter = [](const SMCRecord&, SMCRecord& output) { output.result = 0x84; };
    ASSERT_EQ(csmc_open(), 0);
    char name[5];
    EXPECT_EQ(csmc_key_at_index(0, name), 1);
    EXPECT_STREQ(name, "Tp01");
}

TEST(SMC, AnIndexWithoutAKeyFails) {
    const ConnectedSMC smc;
    ASSERT_EQ(csmc_open(), 0);
    char name[5] = "keep";
    EXPECT_EQ(csmc_key_at_index(0, name), 0);
    EXPECT_STREQ(name, "keep");
}

TEST(SMC, AFailedIndexCallFails) {
    const ConnectedSMC smc;
    smc->addFloat("Tp01", 40);
    smc->callResult = [](const SMCRecord&) { return 1; };
    ASSERT_EQ(csmc_open(), 0);
    char name[5] = "keep";
    EXPECT_EQ(csmc_key_at_index(0, name), 0);
    EXPECT_STREQ(name, "keep");
}

} // namespace
} // namespace tarvo
