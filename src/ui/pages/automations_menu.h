#pragma once

#include <QMenu>

#include <functional>
#include <string>
#include <vector>

namespace tarvo::ui {

/// The menu of names that can be added.
class AutomationsMenu : public QMenu {
public:
    AutomationsMenu(std::function<void(const std::string& name)> chosen, QWidget* parent);

    /// Shows the names as they are, in their order.
    void offer(const std::vector<std::string>& names);
    /// Shows one line that cannot be chosen.
    void explain(const std::string& text);

private:
    std::function<void(const std::string&)> chosen_;
};

} // namespace tarvo::ui
