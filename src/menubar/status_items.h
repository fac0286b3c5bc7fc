#pragma once

#include "core/settings.h"
#include "core/stats_model.h"
#include "platform/status_bar.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

class LocalizationManager;

/// The program's items in the status bar: one combined item, or one a module. Sets every title, image, tint
/// and tool tip at each snapshot; hosts compare and repaint only what changed. Main thread only.
class StatusItems {
public:
    /// Shared, so that an item whose menu is open outlives a rebuild that happens meanwhile.
    using ItemPointer = std::shared_ptr<StatusItem>;

    struct Actions {
        /// A click on an item's button; no value: clicked by the program.
        std::function<void(StatusButton&, std::optional<StatusClick>)> clicked;
        std::function<Menu()> contextMenu;
    };

    /// The references outlive the items.
    StatusItems(StatusBar& statusBar, const Settings& settings, const LocalizationManager& localization,
                const StatsModel& model, Actions actions);

    /// Removes all items and makes those that the settings and the model's snapshot ask for.
    void rebuild();
    /// Shows a snapshot. In the modular layout an item that is missing makes it rebuild first.
    void updateStatusBarAppearance(const StatsSnapshot& snapshot);

    /// The item that the button belongs to, else the combined item; null without either.
    ItemPointer itemOf(const StatusButton& button) const;
    /// Where the popover opens when nobody clicked: at the combined item, else at the processor's; null
    /// without.
    StatusButton* defaultAnchor() const;
    /// Any item's button, that of the first module before others; null without items.
    StatusButton* firstButton() const;
    /// The modular layout's items in module order; empty in the combined layout.
    const std::map<MenuBarModule, ItemPointer>& modularItems() const { return statusItems_; }

private:
    ItemPointer makeItem(std::optional<MenuBarModule> module);
    void configureButton(StatusButton& button, std::optional<MenuBarModule> module);
    bool shouldShow(MenuBarModule module, const StatsSnapshot& snapshot) const;
    void updateCombinedItem(const StatsSnapshot& snapshot);
    void updateModularItems(const StatsSnapshot& snapshot);
    void updateModule(MenuBarModule module, StatusButton& button, const StatsSnapshot& snapshot);
    void setModularTitle(StatusButton& button, MenuBarModule module, const std::string& value,
                         std::optional<SystemColor> tint);

    StatusBar& statusBar_;
    const Settings& settings_;
    const LocalizationManager& localization_;
    const StatsModel& model_;
    Actions actions_;
    std::map<MenuBarModule, ItemPointer> statusItems_;
    ItemPointer combinedStatusItem_;
    std::string text_; ///< kept between snapshots for its memory
};

} // namespace tarvo
