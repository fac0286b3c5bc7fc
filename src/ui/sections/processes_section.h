#pragma once

#include "ui/sections/table_section.h"
#include "ui/tables/process_table_model.h"

namespace tarvo::ui {

/// The processes that use the processor most, to be searched, sorted and ended.
class ProcessesSection : public TableSection {
public:
    ProcessesSection(DetailContext& context, QWidget* parent);
    ~ProcessesSection() override;
    bool isLoading() const { return loading_.isLoading(); }

protected:
    void appear() override { loading_.start(); }

private:
    ProcessesSection(DetailContext& context, ProcessTableModel* model, QWidget* parent);

    ProcessTableModel* model_; ///< a child of this
    Loading<std::vector<ProcInfo>> loading_;
};

} // namespace tarvo::ui
