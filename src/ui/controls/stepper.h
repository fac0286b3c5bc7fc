#pragma once

#include <QWidget>

#include <functional>
#include <string>

namespace tarvo::ui {

/// The values that a stepper walks through.
struct StepRange {
    double least = 0;
    double most = 100;
    double step = 1;
};

/// The value after one step up or down, kept within the range.
double stepped(const StepRange& range, double value, int direction);

/// A pair of buttons that lower and raise a value; a held button repeats.
class Stepper : public QWidget {
public:
    /// `onChange` is told the new value.
    Stepper(StepRange range, std::function<void(double)> onChange, QWidget* parent = nullptr);
    void setValue(double value);
    double value() const { return value_; }
    /// Accessible names of the buttons.
    void setNames(const std::string& lower, const std::string& raise);
    /// Lowers below 0, raises above.
    void step(int direction);

private:
    class StepButton;
    void enableButtons();

    StepRange range_;
    std::function<void(double)> onChange_;
    double value_ = 0;
    StepButton* lower_;
    StepButton* raise_;
};

} // namespace tarvo::ui
