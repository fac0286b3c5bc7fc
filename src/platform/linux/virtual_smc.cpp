#include "platform/linux/virtual_smc.h"

#include "platform/linux/smc_answer.h"
#include "platform/linux/smc_key_builder.h"
#include "platform/smc_record.h"

#include <cstring>
#include <utility>

namespace tarvo::linux_platform {
namespace {

constexpr SMCService theService = 1;
constexpr std::int32_t failed = -1;

} // namespace

VirtualSMC::VirtualSMC(Root root, const Clock& clock, std::shared_ptr<NVML> nvml)
    : root_(std::move(root)), clock_(clock), nvml_(std::move(nvml)) {}

SMCService VirtualSMC::matchingService(std::string_view className) {
    if (className != "AppleSMC") return 0;
    found_ = std::make_unique<const SMCKeyTable>(buildSMCKeyTable(root_, clock_, nvml_));
    return found_->hasSources() ? theService : 0;
}

std::int32_t VirtualSMC::open(SMCService service, std::uint32_t /*type*/, SMCConnection& connection) {
    if (service != theService || !found_) return failed;
    table_ = std::move(found_);
    connection = ++connection_;
    return 0;
}

void VirtualSMC::release(SMCService) {
    found_.reset();
}

std::int32_t VirtualSMC::callStructMethod(SMCConnection connection, std::uint32_t selector, const void* input,
                                          std::size_t inputSize, void* output, std::size_t& outputSize) {
    const bool fits = inputSize == sizeof(SMCRecord) && outputSize == sizeof(SMCRecord);
    if (!table_ || connection != connection_ || selector != smcRequestSelector || !fits) return failed;
    SMCRecord request;
    std::memcpy(&request, input, sizeof request);
    const auto answer = answerSMCRequest(*table_, request);
    std::memcpy(output, &answer, sizeof answer);
    return 0;
}

void VirtualSMC::close(SMCConnection connection) {
    if (connection == connection_) table_.reset();
}

std::optional<SensorName> VirtualSMC::sensorName(std::string_view key) const {
    if (!table_ || key.size() != 4) return std::nullopt;
    const auto* const found = table_->find(smcCode(key));
    return found ? std::optional(found->name) : std::nullopt;
}

} // namespace tarvo::linux_platform
