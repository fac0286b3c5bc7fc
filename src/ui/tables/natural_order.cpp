#include "ui/tables/natural_order.h"

#include <algorithm>

namespace tarvo::ui {
namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

// Takes the digits at the front away; those that count, without leading zeros.
std::string_view takeNumber(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(number.size());
    const std::size_t first = number.find_first_not_of('0');
    return first == std::string_view::npos ? std::string_view() : number.substr(first);
}

} // namespace

int naturalOrder(std::string_view first, std::string_view second) {
    while (!first.empty() && !second.empty()) {
        if (isDigit(first.front()) && isDigit(second.front())) {
            const std::string_view one = takeNumber(first);
            const std::string_view other = takeNumber(second);
            if (one.size() != other.size()) return one.size() < other.size() ? -1 : 1;
            if (const int order = one.compare(other)) return order;
            continue;
        }
        if (first.front() != second.front()) {
            return static_cast<unsigned char>(first.front()) < static_cast<unsigned char>(second.front()) ? -1
                                                                                                          : 1;
        }
        first.remove_prefix(1);
        second.remove_prefix(1);
    }
    if (first.empty() == second.empty()) return 0;
    return first.empty() ? -1 : 1;
}

} // namespace tarvo::ui
