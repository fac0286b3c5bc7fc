#pragma once

#include "platform/desktop/status_bar_host.h"

namespace tarvo::desktop {

/// Shows nothing: the items wait for a host, or there is none.
class NullHost : public StatusBarHost {
public:
    std::unique_ptr<HostedItem> realise(StatusItemModel&) override { return std::make_unique<NoItem>(); }

private:
    class NoItem : public HostedItem {
    public:
        void changed(StatusItemPart) override {}
        void popUpMenu(const Menu&) override {}
    };
};

} // namespace tarvo::desktop
