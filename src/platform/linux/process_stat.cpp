#include "platform/linux/process_stat.h"

#include "platform/linux/text_cursor.h"

#include <cstring>

namespace tarvo::linux_platform {

namespace {

constexpr std::uint64_t kernelThreadFlag = 0x00200000; // PF_KTHREAD

// Distances between the wanted fields, which proc(5) numbers 3 state, 9 flags, 14 utime, 15 stime, 20
// num_threads, 22 starttime, 24 rss.
constexpr int betweenStateAndFlags = 5;
constexpr int betweenFlagsAndTimes = 4;
constexpr int betweenTimesAndThreads = 4;
constexpr int betweenThreadsAndStart = 1;
constexpr int betweenStartAndResident = 1;

/// The name stands in parentheses and may hold any byte, parentheses and line feeds too, so only the
/// outermost count.
std::optional<std::string_view> takeName(std::string_view& text) {
    const auto* const opening = static_cast<const char*>(std::memchr(text.data(), '(', text.size()));
    if (opening == nullptr) return std::nullopt;
    const auto* const closing = static_cast<const char*>(::memrchr(text.data(), ')', text.size()));
    if (closing == nullptr || closing < opening) return std::nullopt;
    const std::string_view name(opening + 1, static_cast<std::size_t>(closing - opening - 1));
    text.remove_prefix(static_cast<std::size_t>(closing + 1 - text.data()));
    return name;
}

} // namespace

std::optional<ProcessStat> parseProcessStat(std::string_view text) {
    if (text.empty()) return std::nullopt;
    const auto name = takeName(text);
    if (!name) return std::nullopt;
    TextCursor cursor(text);
    const auto state = cursor.field();
    cursor.skipFields(betweenStateAndFlags);
    const auto flags = cursor.number();
    cursor.skipFields(betweenFlagsAndTimes);
    const auto userTicks = cursor.number();
    const auto systemTicks = cursor.number();
    cursor.skipFields(betweenTimesAndThreads);
    const auto threads = cursor.number();
    cursor.skipFields(betweenThreadsAndStart);
    const auto startTime = cursor.number();
    cursor.skipFields(betweenStartAndResident);
    const auto residentPages = cursor.number();
    if (!flags || !userTicks || !systemTicks || !threads || !startTime || !residentPages) return std::nullopt;
    return ProcessStat{
        *name,      state.front(), (*flags & kernelThreadFlag) != 0, *userTicks + *systemTicks, *threads,
        *startTime, *residentPages};
}

} // namespace tarvo::linux_platform
