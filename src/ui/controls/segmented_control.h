#pragma once

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

namespace tarvo::ui {

/// One choice of a few, side by side. Arrow keys move the choice.
class SegmentedControl : public QWidget {
public:
    /// `onChange` is told the index that the user chose; not what the program chose.
    explicit SegmentedControl(std::function<void(int)> onChange, QWidget* parent = nullptr);

    /// Replaces the labels; the number of segments may change. Nothing happens for equal ones.
    void setLabels(const std::vector<std::string>& labels);
    /// An index without a segment changes nothing.
    void setChosen(int index);
    /// -1 while nothing is chosen.
    int chosen() const;
    /// The button of a segment, e.g. to press it.
    QWidget* segment(int index) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class Segment;
    void addSegment();

    std::vector<Segment*> segments_;
    std::function<void(int)> onChange_;
};

} // namespace tarvo::ui
