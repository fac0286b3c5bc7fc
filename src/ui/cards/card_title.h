#pragma once

#include "ui/elements/text_label.h"

namespace tarvo::ui {

/// The quiet title above a list in a card.
inline TextLabelFields cardTitle(std::string text) {
    return {std::move(text), TextRole::cardTitle, colors::primary};
}

/// The explaining line below a title.
inline TextLabelFields cardSubtitle(std::string text) {
    return {std::move(text), TextRole::placeholder, colors::secondary};
}

} // namespace tarvo::ui
