#include "sensors/sensor_decode.h"

#include <array>
#include <cstring>
#include <string_view>

namespace tarvo {
namespace {

std::uint32_t bigEndian(const CSMCReadResult& result, int bytes) {
    std::uint32_t value = 0;
    for (int i = 0; i < bytes; ++i)
        value = value << 8 | result.bytes[i];
    return value;
}

double hostFloat(const CSMCReadResult& result) {
    float value = 0;
    std::memcpy(&value, result.bytes, sizeof value);
    return static_cast<double>(value);
}
double fixed78(const CSMCReadResult& result) {
    return static_cast<std::int16_t>(bigEndian(result, 2)) / 256.0;
}
double fixedE2(const CSMCReadResult& result) {
    return bigEndian(result, 2) / 4.0;
}
double unsigned8(const CSMCReadResult& result) {
    return result.bytes[0];
}
double unsigned16(const CSMCReadResult& result) {
    return bigEndian(result, 2);
}
double unsigned32(const CSMCReadResult& result) {
    return bigEndian(result, 4);
}

struct Decoder {
    std::string_view type;
    double (*value)(const CSMCReadResult& result);
};

constexpr std::array<Decoder, 6> decoders{{
    {"flt ", hostFloat},
    {"sp78", fixed78},
    {"fpe2", fixedE2},
    {"ui8 ", unsigned8},
    {"ui16", unsigned16},
    {"ui32", unsigned32},
}};

std::string_view typeOf(const CSMCReadResult& result) {
    return {result.dataType, strnlen(result.dataType, sizeof result.dataType)};
}

} // namespace

std::string typeString(const CSMCReadResult& result) {
    return std::string(typeOf(result));
}

std::optional<double> decode(const CSMCReadResult& result) {
    for (const auto& decoder : decoders) {
        if (decoder.type == typeOf(result)) return decoder.value(result);
    }
    return std::nullopt;
}

} // namespace tarvo
