#pragma once

#include "ui/style/color.h"

#include <string_view>

namespace tarvo::ui {

struct AlertIcon {
    std::string_view symbol; ///< system symbol name
    Color color;
    bool operator==(const AlertIcon&) const = default;
};

/// The picture of a logged alert, told by words in its title in either language; case does not matter.
AlertIcon alertIcon(std::string_view title);

} // namespace tarvo::ui
