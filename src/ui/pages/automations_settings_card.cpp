#include "ui/pages/automations_settings_card.h"

#include "ui/cards/row_pool.h"
#include "ui/pages/automations_menu.h"
#include "ui/style/metrics.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace tarvo::ui {
namespace {

constexpr LKey shortcutsCaption{
    .cs = "Přidej vlastní zkratky z appky Zkratky jako tlačítka rychlých akcí.",
    .en = "Add your own automations from the Shortcuts app as quick-action buttons."};
constexpr LKey automationsCaption{
    .cs = "Přidej vlastní programy, skripty a soubory .desktop jako tlačítka rychlých akcí.",
    .en = "Add your own programs, scripts and .desktop files as quick-action buttons."};
constexpr LKey theirPlace{.cs = " Ulož je do složky ", .en = " Keep them in the folder "};

} // namespace

CustomAutomationsCard::CustomAutomationsCard(const AutomationsContext& context, QWidget* parent)
    : CardBackground(parent), context_(context), rowColumn_(new QVBoxLayout),
      title_(new TextLabel({"", TextRole::sectionCaption, colors::secondary})),
      caption_(new TextLabel({"", TextRole::placeholder, colors::secondary, Qt::AlignLeft, true})),
      addButton_(new LabelButton("plus.circle.fill", colors::yellow)),
      menu_(new AutomationsMenu([this](const std::string& name) { add(name); }, this)),
      later_([this] { refresh(); }) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::regular);
    rowColumn_->setSpacing(metrics::tight);
    column->addWidget(title_);
    column->addWidget(caption_);
    column->addLayout(rowColumn_);
    column->addWidget(addButton_, 0, Qt::AlignLeft);
    connect(addButton_, &QAbstractButton::clicked, menu_, [this] {
        menu_->popup(addButton_->mapToGlobal(QPoint(0, addButton_->height() + metrics::hair)));
    });
    const auto ask = [this] { later_.ask(); };
    subscriptions_.push_back(context_.settings.defaults().observe(ask));
    subscriptions_.push_back(context_.loc.publishedLanguage().observeWillChange(ask));
    refresh();
}

void CustomAutomationsCard::showEvent(QShowEvent* event) {
    refresh();
    refreshAvailable();
    CardBackground::showEvent(event);
}

void CustomAutomationsCard::refreshAvailable() {
    context_.runner.list([card = QPointer<CustomAutomationsCard>(this)](std::vector<std::string> names) {
        if (!card) return;
        card->available_ = std::move(names);
        card->fillMenu();
    });
}

void CustomAutomationsCard::add(const std::string& name) {
    added_.push_back(name);
    context_.settings.setCustomShortcuts(added_);
}

void CustomAutomationsCard::remove(const std::string& name) {
    std::erase(added_, name);
    context_.settings.setCustomShortcuts(added_);
}

void CustomAutomationsCard::refresh() {
    added_ = context_.settings.customShortcuts();
    title_->setText(context_.loc.t({.cs = "VLASTNÍ AUTOMATIZACE", .en = "CUSTOM AUTOMATIONS"}));
    std::string caption = t(shortcutsCaption, automationsCaption);
    if (!context_.place.empty()) caption += context_.loc.t(theirPlace) + context_.place + ".";
    caption_->setText(std::move(caption));
    addButton_->setName(t({.cs = "Přidat zkratku", .en = "Add Shortcut"},
                          {.cs = "Přidat automatizaci", .en = "Add Automation"}));
    showRows();
    fillMenu();
}

void CustomAutomationsCard::showRows() {
    const bool hadFocus = hasFocusInRows();
    resizePool(rows_, added_.size(), [this] {
        auto* row = new AutomationRow([this](const std::string& name) { remove(name); }, this);
        rowColumn_->addWidget(row);
        return row;
    });
    const std::string help = context_.loc.t({.cs = "Odebrat", .en = "Remove"});
    for (std::size_t index = 0; index < added_.size(); ++index)
        rows_[index]->set(added_[index], help + " " + added_[index]);
    keepFocus(hadFocus);
}

// The keyboard stays in the list when the row that it was on goes.
void CustomAutomationsCard::keepFocus(bool hadFocus) {
    if (!hadFocus || hasFocusInRows()) return;
    if (rows_.empty()) {
        addButton_->setFocus();
    } else {
        rows_.back()->removeButton()->setFocus();
    }
}

bool CustomAutomationsCard::hasFocusInRows() const {
    return std::any_of(rows_.begin(), rows_.end(),
                       [](const AutomationRow* row) { return row->removeButton()->hasFocus(); });
}

void CustomAutomationsCard::fillMenu() {
    if (available_.empty()) {
        menu_->explain(
            t({.cs = "V appce Zkratky nemáš zatím žádné zkratky", .en = "You don't have any shortcuts yet"},
              {.cs = "Nemáš zatím žádné automatizace", .en = "You don't have any automations yet"}));
        return;
    }
    std::vector<std::string> left;
    for (const std::string& name : available_) {
        if (std::find(added_.begin(), added_.end(), name) == added_.end()) left.push_back(name);
    }
    if (!left.empty()) {
        menu_->offer(left);
        return;
    }
    menu_->explain(
        t({.cs = "Všechny zkratky jsou už přidané", .en = "All your shortcuts are already added"},
          {.cs = "Všechny automatizace jsou už přidané", .en = "All your automations are already added"}));
}

std::string CustomAutomationsCard::t(const LKey& mac, const LKey& elsewhere) const {
    return context_.loc.t(context_.runner.family() == SystemFamily::macOS ? mac : elsewhere);
}

} // namespace tarvo::ui
