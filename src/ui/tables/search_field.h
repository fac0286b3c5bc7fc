#pragma once

#include <QLineEdit>

#include <functional>
#include <string>

namespace tarvo::ui {

/// A line to type what is looked for; Escape empties it.
class SearchField : public QLineEdit {
public:
    /// `onQuery` is told the text whenever it changes.
    explicit SearchField(std::function<void(const QString&)> onQuery, QWidget* parent = nullptr);
    /// What stands there while it is empty; its accessible name too.
    void setPrompt(const std::string& prompt);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tarvo::ui
