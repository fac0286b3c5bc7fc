#pragma once

#include "platform/desktop/status_bar_host.h"
#include "platform/status_bar.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tarvo::desktop {

/// A status item that keeps what it shows, so that it can move from one host to another.
/// What did not change is not passed on.
class PortableStatusItem : public StatusItem, public StatusButton, public StatusItemModel {
public:
    /// `removed` runs when the item is destroyed; may be empty.
    explicit PortableStatusItem(std::function<void(PortableStatusItem&)> removed = {});
    ~PortableStatusItem() override;
    PortableStatusItem(const PortableStatusItem&) = delete;
    PortableStatusItem& operator=(const PortableStatusItem&) = delete;

    /// Leaves the present host and appears in this one.
    void moveTo(StatusBarHost& host);
    void leaveHost() { hosted_.reset(); }

    StatusButton* button() override { return this; }
    void setMenu(std::optional<Menu> menu) override { menu_ = std::move(menu); }
    void setMenuSource(std::function<Menu()> source) override { menuSource_ = std::move(source); }

    void setFont(const TextFont& font) override;
    void setTitle(const std::string& title) override;
    void setAttributedTitle(const AttributedTitle& title) override;
    void setImage(const StatusImage& image) override;
    void setContentTint(std::optional<SystemColor> tint) override;
    void setToolTip(const std::string& text) override;
    void setAction(std::function<void(std::optional<StatusClick>)> action) override {
        action_ = std::move(action);
    }
    void performClick() override;
    std::optional<Rect> screenRect() const override;

    const StatusItemContent& content() const override { return content_; }
    void clicked(StatusClick click) override;
    Menu contextMenu() const override;

private:
    void click(std::optional<StatusClick> click);
    template <typename Value>
    void change(Value& present, const Value& wanted, StatusItemPart part);

    std::function<void(PortableStatusItem&)> removed_;
    StatusItemContent content_;
    std::optional<Menu> menu_;
    std::function<Menu()> menuSource_;
    std::function<void(std::optional<StatusClick>)> action_;
    std::unique_ptr<HostedItem> hosted_;
};

} // namespace tarvo::desktop
