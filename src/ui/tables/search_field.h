#pragma once

#include "ui/controls/icon_button.h"

#include <QLineEdit>

#include <functional>
#include <string>

namespace tarvo::ui {

/// A line to type what is looked for; Escape empties it, and so does a button that stands in it meanwhile.
class SearchField : public QLineEdit {
public:
    /// `onQuery` is told the text whenever it changes.
    explicit SearchField(std::function<void(const QString&)> onQuery, QWidget* parent = nullptr);
    /// What stands there while it is empty; its accessible name too.
    void setPrompt(const std::string& prompt);
    /// What the button that empties it is called.
    void setClearName(const std::string& name) { clear_->setName(name, true); }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    IconButton* clear_;
};

} // namespace tarvo::ui
