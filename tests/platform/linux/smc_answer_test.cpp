#include "platform/linux/smc_answer.h"

#include <gtest/gtest.h>

#include <bit>

namespace tarvo::linux_platform {
namespace {

class SMCAnswer : public testing::Test {
protected:
    SMCRecord ask(SMCCommand command, std::string_view key, std::uint32_t size = 0) {
        SMCRecord request{};
        request.data8 = static_cast<std::uint8_t>(command);
        if (!key.empty()) request.key = smcCode(key);
        request.keyInfo.dataSize = size;
        return answerSMCRequest(table, request);
    }
    static bool hasNoBytes(const SMCRecord& answer) { return answer.bytes == decltype(answer.bytes){}; }

    std::optional<double> temperature = 45.5;
    int readings = 0;
    const SMCKeyTable table{{
        {"#KEY", "ui32", {}, [] { return std::optional(258.0); }},
        {"FNum", "ui8 ", {}, [] { return std::optional(3.0); }},
        {"Tp00",
         "flt ",
         {},
         [this] {
             ++readings;
             return temperature;
         }},
    }};
};

TEST_F(SMCAnswer, InfoTellsSizeAndTypeAndReadsNothing) {
    const auto answer = ask(SMCCommand::readKeyInfo, "Tp00");
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.keyInfo.dataSize, 4U);
    EXPECT_EQ(answer.keyInfo.dataType, smcCode("flt "));
    EXPECT_EQ(ask(SMCCommand::readKeyInfo, "FNum").keyInfo.dataSize, 1U);
    EXPECT_EQ(ask(SMCCommand::readKeyInfo, "#KEY").keyInfo.dataType, smcCode("ui32"));
    EXPECT_EQ(readings, 0);
}

TEST_F(SMCAnswer, BytesAreInTheOrderOfTheirType) {
    const auto number = ask(SMCCommand::readBytes, "Tp00", 4);
    const auto raw = std::bit_cast<std::array<std::uint8_t, 4>>(45.5F);
    EXPECT_TRUE(std::equal(raw.begin(), raw.end(), number.bytes.begin()));
    const auto count = ask(SMCCommand::readBytes, "#KEY", 4);
    EXPECT_EQ(count.bytes[2], 1);
    EXPECT_EQ(count.bytes[3], 2);
    EXPECT_EQ(ask(SMCCommand::readBytes, "FNum", 1).bytes[0], 3);
}

TEST_F(SMCAnswer, EachRequestReadsAnew) {
    ask(SMCCommand::readBytes, "Tp00", 4);
    ask(SMCCommand::readBytes, "Tp00", 4);
    EXPECT_EQ(readings, 2);
}

TEST_F(SMCAnswer, AnUnreadableSensorIsAFailureWithoutBytes) {
    temperature = std::nullopt;
    const auto answer = ask(SMCCommand::readBytes, "Tp00", 4);
    EXPECT_NE(answer.result, 0);
    EXPECT_TRUE(hasNoBytes(answer));
}

TEST_F(SMCAnswer, AnUnknownKeyASizeThatDiffersAndAnUnknownCommandFail) {
    EXPECT_NE(ask(SMCCommand::readKeyInfo, "Tp01").result, 0);
    EXPECT_NE(ask(SMCCommand::readBytes, "Tp01", 4).result, 0);
    EXPECT_NE(ask(SMCCommand::readBytes, "Tp00", 2).result, 0);
    EXPECT_NE(ask(static_cast<SMCCommand>(6), "Tp00", 4).result, 0);
    EXPECT_EQ(readings, 0);
}

TEST_F(SMCAnswer, AnIndexNamesItsKey) {
    SMCRecord request{};
    request.data8 = static_cast<std::uint8_t>(SMCCommand::keyAtIndex);
    request.data32 = 2;
    EXPECT_EQ(answerSMCRequest(table, request).key, smcCode("Tp00"));
    request.data32 = 3;
    EXPECT_EQ(answerSMCRequest(table, request).key, 0U);
    request.data32 = 0xFFFFFFFF;
    EXPECT_EQ(answerSMCRequest(table, request).key, 0U);
}

} // namespace
} // namespace tarvo::linux_platform
