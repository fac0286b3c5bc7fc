#include "ui/controls/accent_theme_picker.h"

#include "ui/controls/painted_button.h"
#include "ui/style/accent.h"
#include "ui/style/metrics.h"
#include "ui/style/symbol.h"

#include <QHBoxLayout>
#include <QPainter>

namespace tarvo::ui {
namespace {

constexpr int circleSize = 22;

// In the order of the themes.
constexpr std::array<LKey, allAccentThemes.size()> names{{{.cs = "Modrá", .en = "Blue"},
                                                          {.cs = "Fialová", .en = "Purple"},
                                                          {.cs = "Zelená", .en = "Green"},
                                                          {.cs = "Oranžová", .en = "Orange"},
                                                          {.cs = "Růžová", .en = "Pink"},
                                                          {.cs = "Červená", .en = "Red"},
                                                          {.cs = "Modrozelená", .en = "Teal"},
                                                          {.cs = "Grafitová", .en = "Graphite"}}};

} // namespace

class AccentThemePicker::Circle : public PaintedButton {
public:
    Circle(AccentTheme accent, QWidget* parent) : PaintedButton(parent), accent_(accent) {
        setCheckable(true);
        setAutoExclusive(true);
        setFixedSize(circleSize, circleSize);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const Theme shades = theme();
        const QRectF circle = QRectF(rect()).adjusted(2, 2, -2, -2);
        QLinearGradient gradient(circle.topLeft(), circle.bottomRight());
        const auto colors = gradientColors(accent_);
        gradient.setColorAt(0, shades.color(colors[0]));
        gradient.setColorAt(1, shades.color(colors[1]));
        painter.setPen(Qt::NoPen);
        painter.setBrush(gradient);
        painter.drawEllipse(circle);
        if (isChecked()) {
            paintSymbol(painter, circle.adjusted(4, 4, -4, -4), "checkmark", shades.color(ui::colors::white));
        }
        paintFocus(painter, rect(), circleSize / 2.0);
    }

private:
    AccentTheme accent_;
};

AccentThemePicker::AccentThemePicker(std::function<void(AccentTheme)> onSelect, QWidget* parent)
    : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::hair);
    for (const AccentTheme theme : allAccentThemes) {
        auto* circle = new Circle(theme, this);
        circles_[static_cast<std::size_t>(theme)] = circle;
        row->addWidget(circle);
        // Assistive technology toggles without a click.
        connect(circle, &QAbstractButton::toggled, this, [onSelect, theme](bool isChosen) {
            if (isChosen) onSelect(theme);
        });
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void AccentThemePicker::setSelected(AccentTheme theme) {
    static_cast<PaintedButton*>(circle(theme))->setCheckedByProgram(true);
}

AccentTheme AccentThemePicker::selected() const {
    for (const AccentTheme theme : allAccentThemes) {
        if (circle(theme)->isChecked()) return theme;
    }
    return AccentTheme::blue;
}

QAbstractButton* AccentThemePicker::circle(AccentTheme theme) const {
    return circles_[static_cast<std::size_t>(theme)];
}

void AccentThemePicker::setLanguage(const LocalizationManager& loc) {
    for (std::size_t index = 0; index < names.size(); ++index)
        circles_[index]->setName(loc.t(names[index]), true);
}

} // namespace tarvo::ui
