#include "ui/sections/section.h"

#include "ui/style/metrics.h"

#include <QShowEvent>

namespace tarvo::ui {

Section::Section(DetailContext& context, const SectionTitle& title, QWidget* parent)
    : QWidget(parent), context_(context), title_(title), column_(new QVBoxLayout(this)),
      header_(new SectionHeader), reading_(new TextLabel({"", TextRole::sectionTitle, colors::secondary})),
      activity_(new ActivityIndicator), refreshButton_(new LabelButton("arrow.clockwise", colors::secondary)),
      later_([this] {
          if (isVisible()) refreshAll();
      }) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(0);
    column_->addLayout(makeHeader());
    refreshButton_->hide();
    observe();
}

Section::~Section() = default;

QHBoxLayout* Section::makeHeader() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(metrics::large, metrics::large, metrics::large, metrics::medium);
    row->setSpacing(metrics::medium);
    reading_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    row->addWidget(header_, 1);
    row->addWidget(activity_);
    row->addWidget(reading_);
    row->addWidget(refreshButton_);
    connect(refreshButton_, &QAbstractButton::clicked, this, [this] { reload(); });
    return row;
}

void Section::observe() {
    const auto ask = [this] { askForRefresh(); };
    PanelContext& panel = context_.panel;
    keep(panel.model.publishedSnap().observeWillChange(ask));
    keep(panel.model.publishedCPUHistory().observeWillChange(ask));
    keep(panel.settings.defaults().observe(ask));
    keep(panel.loc.publishedLanguage().observeWillChange(ask));
}

void Section::askForRefresh() {
    if (isVisible()) later_.ask();
}

void Section::setReload(std::function<void()> reload) {
    reload_ = std::move(reload);
    refreshButton_->show();
}

void Section::reload() {
    if (reload_) reload_();
}

void Section::setLoading(bool isLoading) {
    activity_->setActive(isLoading);
    refreshButton_->setEnabled(!isLoading);
    askForRefresh();
}

// A window that comes back from being minimised was not left by its user.
void Section::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) appear();
    refreshAll();
}

void Section::refreshAll() {
    header_->set({std::string(title_.symbol), title_.color, t(title_.title)});
    refreshButton_->setName(t({.cs = "Obnovit", .en = "Refresh"}));
    activity_->set({t({.cs = "Načítám…", .en = "Loading…"})});
    refresh();
}

} // namespace tarvo::ui
