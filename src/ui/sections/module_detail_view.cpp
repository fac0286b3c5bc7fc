#include "ui/sections/module_detail_view.h"

#include "menubar/menu_bar_module_table.h"
#include "ui/style/metrics.h"

#include <QEvent>

#include <algorithm>

namespace tarvo::ui {
namespace {

constexpr int leastWidth = 270;

} // namespace

ModuleDetailView::ModuleDetailView(MenuBarModule module, PanelContext context, QWidget* parent)
    : QWidget(parent), module_(module), context_(std::move(context)), header_(new ModuleHeader(this)),
      panel_(makeModulePanel(module, context_, this)), later_([this] { refresh(); }) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::large, metrics::medium, metrics::large, metrics::medium);
    column->setSpacing(metrics::small);
    column->addWidget(header_);
    column->addWidget(panel_);
    column->addStretch();
    const auto ask = [this] {
        if (isVisible()) later_.ask();
    };
    subscriptions_.push_back(context_.model.publishedSnap().observeWillChange(ask));
    subscriptions_.push_back(context_.settings.defaults().observe(ask));
    subscriptions_.push_back(context_.loc.publishedLanguage().observeWillChange(ask));
    refresh();
}

QSize ModuleDetailView::sizeHint() const {
    const int width = std::max(leastWidth, layout()->sizeHint().width());
    return {width, layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                 : layout()->sizeHint().height()};
}

void ModuleDetailView::showEvent(QShowEvent* event) {
    refresh();
    QWidget::showEvent(event);
}

// What holds this panel sizes it.
bool ModuleDetailView::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    return QWidget::event(event);
}

void ModuleDetailView::refresh() {
    header_->set({std::string(symbolName(module_)), std::string(label(module_, context_.loc.language())),
                  moduleColor(module_)});
    panel_->show(context_.model.snap());
}

} // namespace tarvo::ui
