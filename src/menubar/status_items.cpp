#include "menubar/status_items.h"

#include "localization/localization_manager.h"
#include "menubar/menu_bar_graph.h"
#include "menubar/menu_bar_module_table.h"
#include "menubar/status_text.h"

#include <algorithm>
#include <utility>

namespace tarvo {
namespace {

constexpr TextFont buttonFont{.pointSize = 12, .weight = FontWeight::regular, .monospacedDigits = true};
constexpr auto placeholderTitle = "\u2026";

bool belongsTo(const StatusItems::ItemPointer& item, const StatusButton& button) {
    return item && item->button() == &button;
}

} // namespace

StatusItems::StatusItems(StatusBar& statusBar, const Settings& settings,
                         const LocalizationManager& localization, const StatsModel& model, Actions actions)
    : statusBar_(statusBar), settings_(settings), localization_(localization), model_(model),
      actions_(std::move(actions)) {}

void StatusItems::rebuild() {
    statusItems_.clear();
    combinedStatusItem_.reset();
    if (!settings_.modularMenuBar()) {
        combinedStatusItem_ = makeItem(std::nullopt);
        return;
    }
    for (const auto module : allMenuBarModules) {
        if (shouldShow(module, model_.snap())) statusItems_.emplace(module, makeItem(module));
    }
}

StatusItems::ItemPointer StatusItems::makeItem(std::optional<MenuBarModule> module) {
    ItemPointer item = statusBar_.makeItem();
    item->setMenuSource(actions_.contextMenu);
    auto* button = item->button();
    if (!button) return item;
    configureButton(*button, module);
    button->setAction([this, weakItem = std::weak_ptr(item)](std::optional<StatusClick> click) {
        const auto held = weakItem.lock();
        if (held && held->button()) actions_.clicked(*held->button(), click);
    });
    return item;
}

void StatusItems::configureButton(StatusButton& button, std::optional<MenuBarModule> module) {
    button.setFont(buttonFont);
    button.setTitle(placeholderTitle);
    if (!module) return;
    button.setImage(SymbolImage{std::string(symbolName(*module)),
                                std::string(label(*module, localization_.language())), true});
}

bool StatusItems::shouldShow(MenuBarModule module, const StatsSnapshot& snapshot) const {
    const bool needsValue = module == MenuBarModule::battery || module == MenuBarModule::temp;
    return settings_.isMenuBarModuleEnabled(module) && (!needsValue || hasValue(module, snapshot));
}

void StatusItems::updateStatusBarAppearance(const StatsSnapshot& snapshot) {
    if (settings_.modularMenuBar()) {
        updateModularItems(snapshot);
    } else {
        updateCombinedItem(snapshot);
    }
}

void StatusItems::updateCombinedItem(const StatsSnapshot& snapshot) {
    auto* button = combinedStatusItem_ ? combinedStatusItem_->button() : nullptr;
    if (!button) return;
    switch (settings_.menuBarStyle()) {
    case MenuBarStyle::graph:
        button->setTitle("");
        button->setImage(renderMenuBarGraph(model_.cpuHistory(), model_.memHistory(),
                                            static_cast<int>(StatsModel::maxHistory)));
        button->setContentTint(std::nullopt);
        break;
    case MenuBarStyle::icon:
        button->setTitle("");
        button->setImage(SymbolImage{"gauge.with.dots.needle.67percent", "Tarvo", true});
        button->setContentTint(iconTint(snapshot));
        break;
    case MenuBarStyle::text:
        writeCombinedText(text_, snapshot, settings_);
        button->setTitle(text_);
        button->setImage(std::monostate{});
        button->setContentTint(std::nullopt);
        break;
    }
    writeCombinedToolTip(text_, snapshot, settings_, localization_.language());
    button->setToolTip(text_);
}

void StatusItems::updateModularItems(const StatsSnapshot& snapshot) {
    const bool someMissing =
        std::any_of(allMenuBarModules.begin(), allMenuBarModules.end(), [&](MenuBarModule module) {
            return statusItems_.count(module) == 0 && shouldShow(module, snapshot);
        });
    if (someMissing) rebuild();
    for (const auto& [module, item] : statusItems_) {
        if (auto* button = item->button()) updateModule(module, *button, snapshot);
    }
}

void StatusItems::updateModule(MenuBarModule module, StatusButton& button, const StatsSnapshot& snapshot) {
    const auto value = moduleValue(module, snapshot, settings_);
    if (!value) return;
    setModularTitle(button, module, *value, moduleTint(module, snapshot));
    button.setToolTip(moduleToolTip(module, *value, localization_.language()));
}

void StatusItems::setModularTitle(StatusButton& button, MenuBarModule module, const std::string& value,
                                  std::optional<SystemColor> tint) {
    button.setContentTint(tint);
    if (settings_.stackedModularLabels()) {
        button.setAttributedTitle(stackedTitle(label(module, localization_.language()), value, tint));
    } else {
        button.setTitle(value);
    }
}

StatusItems::ItemPointer StatusItems::itemOf(const StatusButton& button) const {
    for (const auto& [module, item] : statusItems_) {
        if (belongsTo(item, button)) return item;
    }
    return combinedStatusItem_;
}

StatusButton* StatusItems::defaultAnchor() const {
    if (combinedStatusItem_ && combinedStatusItem_->button()) return combinedStatusItem_->button();
    const auto cpu = statusItems_.find(MenuBarModule::cpu);
    return cpu == statusItems_.end() ? nullptr : cpu->second->button();
}

StatusButton* StatusItems::firstButton() const {
    if (combinedStatusItem_) return combinedStatusItem_->button();
    return statusItems_.empty() ? nullptr : statusItems_.begin()->second->button();
}

} // namespace tarvo
