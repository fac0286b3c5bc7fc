#pragma once

#include "platform/dialogs.h"

#include <list>
#include <memory>

class QMessageBox;

namespace tarvo::desktop {

/// Alerts as message boxes of their own, one beside the other where several are open. The event loop goes on
/// while they wait. Alerts that are still open when this is destroyed go away unanswered.
class QtDialogs : public Dialogs {
public:
    QtDialogs();
    ~QtDialogs() override;

    void show(const Alert& alert, std::function<void(std::size_t button)> chosen) override;

private:
    std::list<std::unique_ptr<QMessageBox>> open_;
};

} // namespace tarvo::desktop
