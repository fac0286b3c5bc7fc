#pragma once

#include "ui/elements/element.h"

#include <string>
#include <vector>

namespace tarvo::ui {

struct HeroStatCardFields {
    std::string icon; ///< system symbol name
    std::string title;
    std::string value;
    std::string detail;
    std::vector<Color> colors;   ///< its gradient, from the top left to the bottom right
    std::vector<double> history; ///< percentages, oldest first
    bool operator==(const HeroStatCardFields&) const = default;
};

/// A large card for one reading, on a gradient, with the latest values as a white line along its bottom.
class HeroStatCard : public Element<HeroStatCardFields> {
public:
    explicit HeroStatCard(QWidget* parent = nullptr) : HeroStatCard(HeroStatCardFields{}, parent) {}
    explicit HeroStatCard(HeroStatCardFields fields, QWidget* parent = nullptr);
    QString accessibleText() const override;
    QSize sizeHint() const override { return {220, 168}; }
    QSize minimumSizeHint() const override { return {140, 168}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintGround(QPainter& painter) const;
    void paintHistory(QPainter& painter) const;
    void paintTexts(QPainter& painter) const;
};

} // namespace tarvo::ui
