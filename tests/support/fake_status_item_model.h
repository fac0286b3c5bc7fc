#pragma once

#include "platform/desktop/status_bar_host.h"

#include <vector>

namespace tarvo::desktop {

/// An item with content that a test writes, remembering its clicks.
class FakeStatusItemModel : public StatusItemModel {
public:
    const StatusItemContent& content() const override { return shown; }
    void clicked(StatusClick click) override { clicks.push_back(click); }
    Menu contextMenu() const override { return menu; }

    void setTitle(const std::string& text) {
        shown.title = {{{text, std::nullopt, std::nullopt}}, false, {}};
    }

    StatusItemContent shown;
    std::vector<StatusClick> clicks;
    Menu menu;
};

} // namespace tarvo::desktop
