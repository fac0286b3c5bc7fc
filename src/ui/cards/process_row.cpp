#include "ui/cards/process_row.h"

#include "ui/style/metrics.h"

#include <QHBoxLayout>

#include <fmt/format.h>

namespace tarvo::ui {

ProcessRow::ProcessRow(AppIconCache& icons, std::function<void(const ProcInfo&)> quit, QWidget* parent)
    : QWidget(parent), icon_(new ProcessIconView(icons)), text_(new NameValueRow),
      quit_(new IconButton("xmark.circle.fill", 13, 20)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::regular);
    row->addWidget(icon_);
    row->addWidget(text_, 1);
    row->addWidget(quit_);
    quit_->setVisible(static_cast<bool>(quit));
    connect(quit_, &QAbstractButton::clicked, this, [this, quit = std::move(quit)] { quit(process_); });
}

void ProcessRow::set(const ProcInfo& process, const std::string& quitHelp) {
    process_ = process;
    icon_->set({process.pid});
    text_->set({process.name, fmt::format("{:.1f} %", process.cpu)});
    quit_->setName(quitHelp, true);
    quit_->setAccessibleDescription(QString::fromStdString(process.name));
}

} // namespace tarvo::ui
