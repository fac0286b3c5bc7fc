#pragma once

#include "platform/popover.h"

#include <QWidget>

#include <memory>
#include <utility>

namespace tarvo::desktop {

/// What the popovers of this platform show: a widget, sized by its size hint.
class WidgetContent : public PopoverContent {
public:
    explicit WidgetContent(std::unique_ptr<QWidget> widget) : widget_(std::move(widget)) {}
    QWidget& widget() const { return *widget_; }

private:
    std::unique_ptr<QWidget> widget_;
};

} // namespace tarvo::desktop
