#pragma once

#include "ui/elements/temp_bar.h"
#include "ui/elements/text_label.h"

namespace tarvo::ui {

/// A sensor's name, its temperature as a bar and as a number.
class SensorRow : public QWidget {
public:
    explicit SensorRow(QWidget* parent);
    void set(const std::string& name, double celsius, const std::string& temperature);

private:
    TextLabel* name_;
    TempBar* bar_;
    TextLabel* temperature_;
};

} // namespace tarvo::ui
