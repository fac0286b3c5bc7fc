#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace tarvo::ui {

/// A column of cards that scrolls when it is higher than its place. Cards are as wide as the column.
class CardColumn : public QScrollArea {
public:
    explicit CardColumn(QWidget* parent = nullptr);
    /// The cards from top to bottom; what is added last stands lowest.
    void addCard(QWidget* card);
    void insertCard(int place, QWidget* card);
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QVBoxLayout* cards_;
};

} // namespace tarvo::ui
