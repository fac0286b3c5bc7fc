#include "ui/pages/automation_row.h"

#include "ui/controls/plain_tool_tip.h"
#include "ui/style/metrics.h"
#include "ui/style/painting.h"

#include <QHBoxLayout>
#include <QPainter>

#include <utility>

namespace tarvo::ui {
namespace {

constexpr int tileSide = 22;
constexpr int buttonSide = 22;
constexpr double removeSymbolSize = 13;

/// The symbol of an automation on a small filled tile.
class BoltTile : public QWidget {
public:
    explicit BoltTile(QWidget* parent) : QWidget(parent) { setFixedSize(tileSide, tileSide); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintIconTile(painter, Theme(palette()), rect(), {"bolt.fill", 12, 6}, colors::yellow);
    }
};

} // namespace

AutomationRow::AutomationRow(std::function<void(const std::string&)> remove, QWidget* parent)
    : QWidget(parent), name_(new TextLabel({"", TextRole::rowLabel})),
      remove_(new IconButton("xmark.circle.fill", removeSymbolSize, buttonSide)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::regular);
    row->addWidget(new BoltTile(this));
    row->addWidget(name_, 1);
    row->addWidget(remove_);
    connect(remove_, &QAbstractButton::clicked, this,
            [this, remove = std::move(remove)] { remove(name_->fields().text); });
}

void AutomationRow::set(const std::string& name, const std::string& help) {
    name_->setText(name);
    setPlainToolTip(*name_, name);
    remove_->setName(help);
    setPlainToolTip(*remove_, help);
}

} // namespace tarvo::ui
