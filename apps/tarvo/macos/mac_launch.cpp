#include "core/application_identifier.h"
#include "launch.h"
#include "platform/build_options.h"
#include "platform/macos/application_activation.h"

namespace tarvo {

namespace {

/// The QApplication, which the system shows in the Dock only while it is told to.
class MacApplication : public desktop::QtApplication {
public:
    using QtApplication::QtApplication;

    void setActivationPolicy(ActivationPolicy policy) override {
        QtApplication::setActivationPolicy(policy);
        macos_platform::setActivationPolicy(policy);
    }
    void activateIgnoringOtherApps() override {
        macos_platform::activateIgnoringOtherApps();
        QtApplication::activateIgnoringOtherApps();
    }
};

/// The system itself keeps an application from running twice, and nobody reaches it from outside.
class MacLaunch : public Launch {
public:
    MacLaunch(int& argumentCount, char** arguments)
        : application_(argumentCount, arguments, build_options::version, applicationIdentifier) {}

    desktop::QtApplication& application() override { return application_; }
    void answer(OutsideRequests) override {}

private:
    MacApplication application_;
};

} // namespace

std::variant<std::unique_ptr<Launch>, ExitStatus> launch(int& argumentCount, char** arguments) {
    return std::make_unique<MacLaunch>(argumentCount, arguments);
}

} // namespace tarvo
