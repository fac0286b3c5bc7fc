#include "platform/desktop/portable_status_item.h"

#include <utility>

namespace tarvo::desktop {

std::string plainText(const AttributedTitle& title) {
    std::string text;
    for (const TextRun& run : title.runs)
        text += run.text;
    return text;
}

PortableStatusItem::PortableStatusItem(std::function<void(PortableStatusItem&)> removed)
    : removed_(std::move(removed)) {}

PortableStatusItem::~PortableStatusItem() {
    leaveHost();
    if (removed_) removed_(*this);
}

void PortableStatusItem::moveTo(StatusBarHost& host) {
    leaveHost();
    hosted_ = host.realise(*this);
}

template <typename Value>
void PortableStatusItem::change(Value& present, const Value& wanted, StatusItemPart part) {
    if (present == wanted) return;
    present = wanted;
    if (hosted_) hosted_->changed(part);
}

void PortableStatusItem::setFont(const TextFont& font) {
    change(content_.font, font, StatusItemPart::face);
}

void PortableStatusItem::setTitle(const std::string& title) {
    AttributedTitle plain;
    if (!title.empty()) plain.runs.push_back({title, std::nullopt, std::nullopt});
    setAttributedTitle(plain);
}

void PortableStatusItem::setAttributedTitle(const AttributedTitle& title) {
    change(content_.title, title, StatusItemPart::face);
}

void PortableStatusItem::setImage(const StatusImage& image) {
    change(content_.image, image, StatusItemPart::face);
}

void PortableStatusItem::setContentTint(std::optional<SystemColor> tint) {
    change(content_.tint, tint, StatusItemPart::face);
}

void PortableStatusItem::setToolTip(const std::string& text) {
    change(content_.toolTip, text, StatusItemPart::toolTip);
}

void PortableStatusItem::performClick() {
    click(std::nullopt);
}

void PortableStatusItem::clicked(StatusClick click) {
    this->click(click);
}

void PortableStatusItem::click(std::optional<StatusClick> click) {
    if (menu_) {
        if (hosted_) hosted_->popUpMenu(*menu_);
        return;
    }
    // The action may destroy this item, and with it the function that is running.
    if (const auto action = action_) action(click);
}

std::optional<Rect> PortableStatusItem::screenRect() const {
    return hosted_ ? hosted_->screenRect() : std::nullopt;
}

Menu PortableStatusItem::contextMenu() const {
    if (menu_) return *menu_;
    return menuSource_ ? menuSource_() : Menu{};
}

} // namespace tarvo::desktop
