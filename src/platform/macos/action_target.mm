#include "platform/macos/action_target.h"

#include <utility>

@interface TarvoActionTarget ()
@property(nonatomic) std::function<void()> action;
@end

@implementation TarvoActionTarget

- (instancetype)initWithAction:(std::function<void()>)action {
    self = [super init];
    if (self != nil) _action = std::move(action);
    return self;
}

- (void)perform:(id)sender {
    (void)sender;
    // Running it may be the end of the control and of this object.
    const auto action = self.action;
    if (action) action();
}

@end
