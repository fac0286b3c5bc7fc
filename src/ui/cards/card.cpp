#include "ui/cards/card.h"

#include "ui/style/metrics.h"

#include <fmt/format.h>

namespace tarvo::ui {

Card::Card(PanelContext& context, QWidget* parent)
    : CardBackground(parent), context_(context), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(metrics::tight);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

std::string Card::temperature(std::optional<double> celsius) const {
    return celsius ? context_.settings.formatTemperature(*celsius) : std::string(unavailable);
}

void setShown(QWidget* widget, bool shown) {
    if (widget->isHidden() == shown) widget->setVisible(shown);
}

std::string gigabytes(std::uint64_t bytes) {
    constexpr double bytesPerGB = 1024.0 * 1024 * 1024;
    return fmt::format("{:.1f} GB", static_cast<double>(bytes) / bytesPerGB);
}

} // namespace tarvo::ui
