#pragma once

// Objective-C++ only: for the implementation files of this folder.

#import <Foundation/Foundation.h>

#include <functional>

/// What a control of the system sends its action to: runs a function. Controls hold their target weakly, so
/// somebody else has to keep it.
@interface TarvoActionTarget : NSObject
- (instancetype)initWithAction:(std::function<void()>)action;
- (void)perform:(id)sender;
@end
