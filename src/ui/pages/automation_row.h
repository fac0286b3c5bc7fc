#pragma once

#include "ui/controls/icon_button.h"
#include "ui/elements/text_label.h"

#include <functional>
#include <string>

namespace tarvo::ui {

/// A chosen automation on the settings page: its symbol, its name and a button that removes it.
class AutomationRow : public QWidget {
public:
    /// `remove` gets the name; it must not delete the row at once.
    explicit AutomationRow(std::function<void(const std::string& name)> remove, QWidget* parent = nullptr);
    void set(const std::string& name, const std::string& help);
    IconButton* removeButton() const { return remove_; }

private:
    TextLabel* name_;
    IconButton* remove_;
};

} // namespace tarvo::ui
