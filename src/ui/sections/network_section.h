#pragma once

#include "ui/sections/table_section.h"
#include "ui/tables/connection_table_model.h"

namespace tarvo::ui {

/// The open connections of every process that this user may see.
class NetworkSection : public TableSection {
public:
    NetworkSection(DetailContext& context, QWidget* parent);
    ~NetworkSection() override;
    bool isLoading() const { return loading_.isLoading(); }

protected:
    void appear() override { loading_.start(); }

private:
    NetworkSection(DetailContext& context, ConnectionTableModel* model, QWidget* parent);

    ConnectionTableModel* model_; ///< a child of this
    Loading<std::vector<NetworkConnection>> loading_;
};

} // namespace tarvo::ui
