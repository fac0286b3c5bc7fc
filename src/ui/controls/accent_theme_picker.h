#pragma once

#include "core/accent_theme.h"
#include "localization/localization_manager.h"

#include <QAbstractButton>
#include <QWidget>

#include <array>
#include <functional>

namespace tarvo::ui {

/// One filled circle for each accent theme; the selected one carries a check mark.
class AccentThemePicker : public QWidget {
public:
    explicit AccentThemePicker(std::function<void(AccentTheme)> onSelect, QWidget* parent = nullptr);
    void setSelected(AccentTheme theme);
    AccentTheme selected() const;
    /// The circle of a theme.
    QAbstractButton* circle(AccentTheme theme) const;
    /// Names the circles in the current language.
    void setLanguage(const LocalizationManager& loc);

private:
    class Circle;
    std::array<Circle*, allAccentThemes.size()> circles_{};
};

} // namespace tarvo::ui
