#pragma once

#include "ui/controls/painted_button.h"

#include <string>

namespace tarvo::ui {

struct ModuleToggleTileFields {
    std::string icon; ///< system symbol name
    std::string label;
    Color color = colors::blue;
    bool operator==(const ModuleToggleTileFields&) const = default;
};

/// A tile that is switched on and off by a press anywhere on it: filled and marked when on, pale when off.
class ModuleToggleTile : public PaintedButton {
public:
    explicit ModuleToggleTile(QWidget* parent = nullptr);
    void set(ModuleToggleTileFields fields);
    void setOn(bool isOn);
    /// How many lines the label has room for.
    void setLabelLines(int lines);
    bool isOn() const { return isChecked(); }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintTile(QPainter& painter, const QRectF& tile) const;
    void paintLabel(QPainter& painter, double top) const;

    ModuleToggleTileFields fields_;
    int labelLines_ = 2;
};

} // namespace tarvo::ui
