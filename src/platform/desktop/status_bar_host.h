#pragma once

#include "platform/status_bar.h"

#include <memory>
#include <optional>
#include <string>

namespace tarvo::desktop {

/// What a status item shows, whatever host shows it.
struct StatusItemContent {
    TextFont font;
    AttributedTitle title; ///< a plain title is one run without attributes
    StatusImage image;
    std::optional<SystemColor> tint; ///< absent: the host's own colour
    std::string toolTip;
    bool operator==(const StatusItemContent&) const = default;
};

/// The title's text without attributes.
std::string plainText(const AttributedTitle& title);

enum class StatusItemPart { face, toolTip }; ///< face: everything that is seen without pointing at it

/// A status item as its host sees it.
class StatusItemModel {
public:
    virtual ~StatusItemModel() = default;
    virtual const StatusItemContent& content() const = 0;
    /// The user clicked: opens the attached menu or runs the action.
    virtual void clicked(StatusClick click) = 0;
    /// The rows for hosts that open the context menu by themselves.
    virtual Menu contextMenu() const = 0;
};

/// One item on screen; destroying it takes it off.
class HostedItem {
public:
    virtual ~HostedItem() = default;
    /// Called once a change, before the host shows anything of it.
    virtual void changed(StatusItemPart part) = 0;
    virtual void popUpMenu(const Menu& menu) = 0;
    /// Absent where the host does not tell.
    virtual std::optional<Rect> screenRect() const { return std::nullopt; }
};

/// One way of showing status items. Main thread only.
class StatusBarHost {
public:
    virtual ~StatusBarHost() = default;
    /// True where items know their place on the screen.
    virtual bool tellsPlaces() const { return false; }
    /// The model outlives the item.
    virtual std::unique_ptr<HostedItem> realise(StatusItemModel& model) = 0;
};

} // namespace tarvo::desktop
