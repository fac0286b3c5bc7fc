#pragma once

#include "platform/application.h"

#include <QApplication>

#include <string_view>

namespace tarvo::desktop {

/// The QApplication behind the seam. Ordinary windows have taskbar entries by themselves and bars and
/// popovers none, so that the activation policy is only remembered.
class QtApplication : public Application {
public:
    /// `version` as it is shown to people, without a leading letter; `desktopFile` is the name of the
    /// program's desktop file without its suffix, by which desktops find its icon.
    QtApplication(int& argumentCount, char** arguments, std::string_view version, const char* desktopFile);

    void setActivationPolicy(ActivationPolicy policy) override { policy_ = policy; }
    void activateIgnoringOtherApps() override;
    void terminate() override;

    ActivationPolicy activationPolicy() const { return policy_; }
    /// Runs the event loop until terminate(); the program's exit status.
    int run();

private:
    /// No window can refuse the end.
    class Ending : public QApplication {
    public:
        using QApplication::QApplication;
        bool event(QEvent* event) override;
    };

    Ending application_;
    ActivationPolicy policy_ = ActivationPolicy::regular;
};

} // namespace tarvo::desktop
