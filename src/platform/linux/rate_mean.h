#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// Mean of the last six rates of one kind; rates of another kind begin anew.
class RateMean {
public:
    /// `kind` tells what the rates are rates of. A rate of 0 is no rate and only fails to add one.
    void add(const std::string& kind, double rate) {
        if (kind != kind_) {
            kind_ = kind;
            count_ = 0;
        }
        if (rate > 0) rates_[count_++ % rates_.size()] = rate;
    }

    /// Absent without any rate of the present kind.
    std::optional<double> mean() const {
        const auto held = count_ < rates_.size() ? count_ : rates_.size();
        if (held == 0) return std::nullopt;
        double sum = 0;
        for (std::size_t i = 0; i < held; ++i)
            sum += rates_[i];
        return sum / static_cast<double>(held);
    }

private:
    std::string kind_;
    std::array<double, 6> rates_{};
    std::size_t count_ = 0;
};

} // namespace tarvo::linux_platform
