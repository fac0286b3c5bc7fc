#include "ui/pages/settings_page.h"

#include "ui/pages/settings_sections.h"
#include "ui/style/metrics.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tarvo::ui {

SettingsPage::SettingsPage(PanelContext& context, std::function<void()> onBack, QWidget* parent)
    : QWidget(parent), context_(context), later_([this] { refresh(); }) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader(std::move(onBack)));
    column_ = new CardColumn(this);
    layout->addWidget(column_, 1);
    addSection(makeMenuBarSection(context_, this));
    addSection(makePanelSection(context_, this));
    if (context_.makeAutomationsSettingsCard) {
        if (QWidget* card = context_.makeAutomationsSettingsCard(this)) column_->addCard(card);
    }
    addSection(makeGeneralSection(context_, this));
    addSection(makeAlertsSection(context_, this));
    const auto ask = [this] {
        if (isVisible()) later_.ask();
    };
    subscriptions_.push_back(context_.settings.defaults().observe(ask));
    subscriptions_.push_back(context_.loc.publishedLanguage().observeWillChange(ask));
    subscriptions_.push_back(context_.notifications.observe(hotKeyStateChanged, ask));
    refresh();
}

QWidget* SettingsPage::makeHeader(std::function<void()> onBack) {
    auto* header = new QWidget(this);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(metrics::medium, metrics::medium, metrics::medium, metrics::regular);
    row->setSpacing(metrics::medium);
    back_ = new LabelButton("chevron.left", colors::primary);
    title_ = new TextLabel({"", TextRole::productName});
    row->addWidget(back_);
    row->addWidget(title_, 1);
    connect(back_, &QAbstractButton::clicked, this, std::move(onBack));
    return header;
}

void SettingsPage::addSection(SettingsSection* section) {
    sections_.push_back(section);
    column_->addCard(section);
}

void SettingsPage::showEvent(QShowEvent* event) {
    refresh();
    QWidget::showEvent(event);
}

void SettingsPage::refresh() {
    back_->setName(context_.loc.t({.cs = "Zpět", .en = "Back"}));
    title_->setText(context_.loc.t({.cs = "Nastavení", .en = "Settings"}));
    for (SettingsSection* section : sections_)
        section->refresh();
}

} // namespace tarvo::ui
