#pragma once

#include "platform/desktop/status_bar_host.h"

#include <string>
#include <vector>

namespace tarvo::desktop {

/// A host that writes down what it is asked for, in a log that outlives it.
class RecordingStatusBarHost : public StatusBarHost {
public:
    using Log = std::vector<std::string>;

    RecordingStatusBarHost(std::string name, Log& log) : name_(std::move(name)), log_(log) {}

    bool tellsPlaces() const override { return name_ == "bar"; }
    std::unique_ptr<HostedItem> realise(StatusItemModel& model) override {
        return std::make_unique<Item>(name_, model, log_);
    }

private:
    class Item : public HostedItem {
    public:
        Item(std::string name, StatusItemModel& model, Log& log)
            : name_(std::move(name)), model_(model), log_(log) {
            write("add");
        }
        ~Item() override { log_.push_back(name_ + " remove"); }
        Item(const Item&) = delete;
        Item& operator=(const Item&) = delete;

        void changed(StatusItemPart part) override {
            write(part == StatusItemPart::face ? "face" : "tip " + model_.content().toolTip);
        }
        void popUpMenu(const Menu& menu) override { log_.push_back(name_ + " menu " + menu.front().title); }
        std::optional<Rect> screenRect() const override { return Rect{1, 2, 3, 4}; }

    private:
        void write(const std::string& what) {
            log_.push_back(name_ + " " + what + " [" + plainText(model_.content().title) + "]");
        }
        std::string name_;
        StatusItemModel& model_;
        Log& log_;
    };

    std::string name_;
    Log& log_;
};

} // namespace tarvo::desktop
