#include "ui/pages/settings_section.h"

#include "ui/controls/switch_button.h"
#include "ui/elements/text_label.h"
#include "ui/style/metrics.h"

#include <QHBoxLayout>

#include <fmt/format.h>

namespace tarvo::ui {

SettingsSection::SettingsSection(PanelContext& context, const LKey& title, QWidget* parent)
    : CardBackground(parent), context_(context), bindings_(context.settings, context.notifications),
      column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(metrics::regular);
    addText(TextRole::sectionCaption, [this, title] { return t(title); });
}

void SettingsSection::refresh() {
    for (const auto& task : tasks_)
        task();
}

void SettingsSection::addText(TextRole role, std::function<std::string()> text) {
    addWidget(makeText(role, std::move(text)));
}

TextLabel* SettingsSection::makeText(TextRole role, std::function<std::string()> text) {
    TextLabelFields fields{"", role, role == TextRole::rowLabel ? colors::primary : colors::secondary};
    fields.wraps = role == TextRole::placeholder;
    auto* label = new TextLabel(fields);
    onRefresh([label, text = std::move(text)] { label->setText(text()); });
    return label;
}

void SettingsSection::addCaption(const LKey& text) {
    addWidget(makeCaption(text));
}

TextLabel* SettingsSection::makeCaption(const LKey& text) {
    return makeText(TextRole::placeholder, [this, text] { return t(text); });
}

void SettingsSection::addSwitch(std::string_view key, const LKey& label, const LKey& caption,
                                std::function<void()> turnedOn) {
    addSwitch(
        label, caption, [this, key] { return context_.settings.boolean(key); },
        [this, key, turnedOn = std::move(turnedOn)](bool isOn) {
            bindings_.set(key, isOn);
            if (isOn && turnedOn) turnedOn();
        });
}

void SettingsSection::addSwitch(const LKey& label, const LKey& caption, std::function<bool()> read,
                                std::function<void(bool)> write) {
    auto* button = new SwitchButton;
    // The caption stands closer to its switch than the next control.
    auto* group = new QVBoxLayout;
    group->setSpacing(metrics::hair);
    group->addLayout(labelled(label, button));
    column_->addLayout(group);
    connect(button, &QAbstractButton::toggled, this, [read, write = std::move(write)](bool isOn) {
        if (isOn != read()) write(isOn);
    });
    onRefresh([this, button, label, read] {
        button->setChecked(read());
        button->setName(t(label));
    });
    if (!caption.en.empty()) group->addWidget(makeCaption(caption));
}

void SettingsSection::addControl(const LKey& label, QWidget* control, bool below) {
    if (!below) {
        column_->addLayout(labelled(label, control));
        return;
    }
    addWidget(makeLabel(label));
    addWidget(control);
}

QLayout* SettingsSection::labelled(const LKey& label, QWidget* control) {
    auto* row = new QHBoxLayout;
    row->setSpacing(metrics::regular);
    row->addWidget(makeLabel(label), 1);
    row->addWidget(control);
    return row;
}

TextLabel* SettingsSection::makeLabel(const LKey& text) {
    return makeText(TextRole::rowLabel, [this, text] { return t(text); });
}

void SettingsSection::addThreshold(std::string_view key, const LKey& label, std::string_view unit,
                                   StepRange range) {
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::regular);
    auto* value = new TextLabel({"", TextRole::rowValue});
    auto* stepper = new Stepper(range, [this, key](double changed) { bindings_.set(key, changed); });
    stepper->setObjectName(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())));
    row->addWidget(value);
    row->addWidget(stepper);
    addControl(label, line);
    onRefresh([this, key, label, unit, value, stepper] {
        const double number = context_.settings.number(key);
        value->setText(fmt::format("{:.0f} {}", number, unit));
        stepper->setValue(number);
        stepper->setNames(t(label) + " −", t(label) + " +");
    });
}

} // namespace tarvo::ui
