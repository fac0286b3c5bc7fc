#include "platform/macos/termination_observer.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace tarvo::macos_platform {

struct TerminationObserver::State {
    id<NSObject> observer;
};

TerminationObserver::TerminationObserver(std::function<void()> willTerminate)
    : state_(std::make_unique<State>()) {
    state_->observer = [NSNotificationCenter.defaultCenter
        addObserverForName:NSApplicationWillTerminateNotification
                    object:nil
                     queue:nil
                usingBlock:[save = std::move(willTerminate)](NSNotification*) { save(); }];
}

TerminationObserver::~TerminationObserver() {
    [NSNotificationCenter.defaultCenter removeObserver:state_->observer];
}

} // namespace tarvo::macos_platform
