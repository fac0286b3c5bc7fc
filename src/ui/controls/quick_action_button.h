#pragma once

#include "ui/controls/painted_button.h"

#include <QStringList>

#include <string>

namespace tarvo::ui {

struct QuickActionButtonFields {
    std::string icon; ///< system symbol name
    std::string label;
    Color color = colors::blue;
    bool operator==(const QuickActionButtonFields&) const = default;
};

/// A tile to press: the symbol in the colour above the label. As wide as its place, however long the label
/// is.
class QuickActionButton : public PaintedButton {
public:
    explicit QuickActionButton(QWidget* parent = nullptr);
    void set(QuickActionButtonFields fields);
    /// How many lines the label has room for; one that does not fit is the tool tip too.
    void setLabelLines(int lines);
    const QuickActionButtonFields& fields() const { return fields_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QStringList labelLines() const;
    double labelWidth() const;
    void showWholeLabel();
    void paintGround(QPainter& painter) const;
    void paintContent(QPainter& painter) const;

    QuickActionButtonFields fields_;
    int labelLines_ = 1;
};

} // namespace tarvo::ui
