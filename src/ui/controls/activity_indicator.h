#pragma once

#include "ui/elements/element.h"

#include <QTimer>

#include <string>

namespace tarvo::ui {

struct ActivityIndicatorFields {
    std::string text; ///< what is under way, read aloud
    bool operator==(const ActivityIndicatorFields&) const = default;
};

/// A turning arc while something is under way. It appears only when that takes longer than a moment, and
/// costs nothing while it rests.
class ActivityIndicator : public Element<ActivityIndicatorFields> {
public:
    explicit ActivityIndicator(QWidget* parent = nullptr);
    void setActive(bool active);
    bool isActive() const { return isActive_; }
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::ProgressBar; }
    QSize sizeHint() const override { return {18, 18}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void turn();

    bool isActive_ = false;
    int step_ = 0; ///< 0 while it is not to be seen yet
    QTimer timer_;
};

} // namespace tarvo::ui
