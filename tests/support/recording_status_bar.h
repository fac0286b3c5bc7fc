#pragma once

#include "platform/status_bar.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

/// A button that keeps what it was told. Counts the calls that changed something, as a host would repaint.
class RecordingStatusButton : public StatusButton {
public:
    void setFont(const TextFont& value) override { change(font, value); }
    void setTitle(const std::string& value) override {
        if (whenTitleIsSet) whenTitleIsSet(value);
        change(title, value);
        if (attributedTitle) change(attributedTitle, std::optional<AttributedTitle>());
    }
    void setAttributedTitle(const AttributedTitle& value) override {
        change(attributedTitle, std::optional(value));
    }
    void setImage(const StatusImage& value) override { change(image, value); }
    void setContentTint(std::optional<SystemColor> value) override { change(tint, value); }
    void setToolTip(const std::string& value) override { change(toolTip, value); }
    void setAction(std::function<void(std::optional<StatusClick>)> value) override {
        action = std::move(value);
    }
    void performClick() override {
        if (menu) {
            openedMenus.push_back(*menu);
            if (whileMenuIsOpen) whileMenuIsOpen();
        } else {
            click(std::nullopt);
        }
    }
    std::optional<Rect> screenRect() const override { return rect; }

    /// What a user's click does; a host opens an attached menu instead.
    void click(std::optional<StatusClick> kind) {
        const auto held = action;
        if (held) held(kind);
    }

    const SymbolImage* symbol() const { return std::get_if<SymbolImage>(&image); }
    const LineDrawing* drawing() const { return std::get_if<LineDrawing>(&image); }

    std::optional<TextFont> font;
    std::string title;
    std::optional<AttributedTitle> attributedTitle;
    StatusImage image;
    std::optional<SystemColor> tint;
    std::string toolTip;
    std::optional<Rect> rect;
    std::optional<Menu> menu;
    std::vector<Menu> openedMenus;
    std::function<void()> whileMenuIsOpen;
    std::function<void(const std::string&)> whenTitleIsSet;
    std::function<void(std::optional<StatusClick>)> action;
    int changes = 0;

private:
    template <typename Value, typename Given>
    void change(Value& value, const Given& given) {
        if (value == Value(given)) return;
        value = given;
        ++changes;
    }
};

/// A status bar without a screen. Items stand in it in the order of their making.
class RecordingStatusBar : public StatusBar {
    struct Slot {
        RecordingStatusButton button;
        std::function<Menu()> menuSource;
        bool hasButton = true;
    };

public:
    std::unique_ptr<StatusItem> makeItem() override {
        slots_->push_back(std::make_shared<Slot>());
        slots_->back()->hasButton = !takesButtonsAway;
        slots_->back()->button.whenTitleIsSet = whenTitleIsSet;
        ++made;
        return std::make_unique<Item>(slots_, slots_->back());
    }

    bool tellsPlaces() const override { return placesKnown; }

    std::size_t size() const { return slots_->size(); }
    RecordingStatusButton& button(std::size_t index) { return slots_->at(index)->button; }
    Menu menuFromSource(std::size_t index) { return slots_->at(index)->menuSource(); }
    /// The items' symbols, left to right; "" for an item without.
    std::vector<std::string> symbols() const {
        std::vector<std::string> names;
        for (const auto& slot : *slots_)
            names.push_back(slot->button.symbol() ? slot->button.symbol()->name : "");
        return names;
    }

    int made = 0;
    bool takesButtonsAway = false; ///< items made from now on have no button
    bool placesKnown = true;
    std::function<void(const std::string&)> whenTitleIsSet; ///< for items made from now on

private:
    using Slots = std::vector<std::shared_ptr<Slot>>;

    struct Item : StatusItem {
        Item(std::shared_ptr<Slots> all, std::shared_ptr<Slot> own)
            : slots(std::move(all)), slot(std::move(own)) {}
        ~Item() override { slots->erase(std::find(slots->begin(), slots->end(), slot)); }
        StatusButton* button() override { return slot->hasButton ? &slot->button : nullptr; }
        void setMenu(std::optional<Menu> menu) override { slot->button.menu = std::move(menu); }
        void setMenuSource(std::function<Menu()> source) override { slot->menuSource = std::move(source); }
        std::shared_ptr<Slots> slots;
        std::shared_ptr<Slot> slot;
    };

    std::shared_ptr<Slots> slots_ = std::make_shared<Slots>();
};

} // namespace tarvo
