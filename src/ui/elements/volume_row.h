#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct VolumeRowFields {
    std::string icon; ///< system symbol name
    std::string name;
    std::string value;
    double fraction = 0; ///< used share, 0 to 1
    Color color = colors::indigo;
    bool operator==(const VolumeRowFields&) const = default;
};

/// A mounted volume: its symbol on a tile, name and capacity in a line, and how full it is below.
class VolumeRow : public Element<VolumeRowFields> {
public:
    explicit VolumeRow(QWidget* parent = nullptr);
    QString accessibleText() const override;
    QSize sizeHint() const override { return {240, 40}; }
    QSize minimumSizeHint() const override { return {120, 40}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
