#pragma once

#include "core/stats_snapshot.h"
#include "ui/cards/name_value_row.h"
#include "ui/controls/icon_button.h"
#include "ui/elements/process_icon_view.h"

#include <functional>

namespace tarvo::ui {

/// A process with its icon, its share of the processor and a button that ends it.
class ProcessRow : public QWidget {
public:
    ProcessRow(AppIconCache& icons, std::function<void(const ProcInfo&)> quit, QWidget* parent);
    void set(const ProcInfo& process, const std::string& quitHelp);

private:
    ProcInfo process_;
    ProcessIconView* icon_;
    NameValueRow* text_;
    IconButton* quit_;
};

} // namespace tarvo::ui
