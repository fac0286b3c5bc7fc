#pragma once

#include "bluetooth.h"
#include "composition/machine.h"
#include "core/menu_bar_module.h"
#include "platform/dispatcher.h"
#include "platform/popover.h"
#include "ui/sections/detail_context.h"

#include <memory>

class QWidget;

namespace tarvo {

/// Wires the loads of the detail window to the machine. All references outlive the window; the reading itself
/// runs on background threads.
ui::DetailContext detailContext(ui::PanelContext panel, Machine& machine, const Bluetooth& bluetooth,
                                Dispatcher& dispatcher);

/// Puts the sections into the window.
void fillDetailWindow(QWidget& window, ui::DetailContext context);

/// What the hover preview shows of a module.
std::unique_ptr<PopoverContent> makePreviewContent(MenuBarModule module, ui::PanelContext context);

} // namespace tarvo
