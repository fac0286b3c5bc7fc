#include "ui/sections/processes_section.h"

namespace tarvo::ui {

ProcessesSection::ProcessesSection(DetailContext& context, QWidget* parent)
    : ProcessesSection(context, new ProcessTableModel(context.panel.loc), parent) {}

ProcessesSection::ProcessesSection(DetailContext& context, ProcessTableModel* model, QWidget* parent)
    : TableSection(context,
                   {"list.bullet.rectangle.fill", colors::pink, {.cs = "Procesy", .en = "Processes"}}, *model,
                   parent),
      model_(model),
      loading_(
          context.processes, [this](const auto& processes) { model_->setProcesses(processes); },
          [this] { setLoading(loading_.isLoading()); }) {
    model_->setParent(this);
    setReload([this] { loading_.start(); });
    setTexts({.cs = "Hledat proces…", .en = "Search processes…"}, {.cs = "Procesy", .en = "Processes"});
    table().sortBy(ProcessTableModel::cpuColumn, Qt::DescendingOrder);
    table().onButton = [this](std::size_t record) {
        if (context_.panel.confirmKill) context_.panel.confirmKill(model_->process(record));
    };
    keep(context.panel.notifications.observe(processListChanged, [this] {
        if (isVisible()) loading_.startAfresh();
    }));
}

ProcessesSection::~ProcessesSection() = default;

} // namespace tarvo::ui
