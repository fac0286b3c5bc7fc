#include "ui/sections/network_section.h"

namespace tarvo::ui {

NetworkSection::NetworkSection(DetailContext& context, QWidget* parent)
    : NetworkSection(context, new ConnectionTableModel(context.panel.loc), parent) {}

NetworkSection::NetworkSection(DetailContext& context, ConnectionTableModel* model, QWidget* parent)
    : TableSection(context, {"network", colors::teal, {.cs = "Network", .en = "Network"}}, *model, parent),
      model_(model),
      loading_(
          context.connections, [this](auto connections) { model_->setConnections(std::move(connections)); },
          [this] { setLoading(loading_.isLoading()); }) {
    model_->setParent(this);
    setReload([this] { loading_.start(); });
    setTexts({.cs = "Hledat spojení…", .en = "Search connections…"}, {.cs = "Spojení", .en = "Connections"});
    table().sortBy(ConnectionTableModel::processColumn, Qt::AscendingOrder);
}

NetworkSection::~NetworkSection() = default;

} // namespace tarvo::ui
