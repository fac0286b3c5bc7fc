#pragma once

#include <Foundation/NSDictionary.h>
#include <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

extern "C" {
extern NSString* const NSAppleScriptErrorMessage; // NSString
}

@interface NSAppleEventDescriptor : NSObject <NSCopying>
@end

@interface NSAppleScript : NSObject <NSCopying>
- (nullable instancetype)initWithSource:(NSString*)source NS_DESIGNATED_INITIALIZER;
/// Null when the script fails, with the reason in the dictionary.
- (NSAppleEventDescriptor*)executeAndReturnError:
    (NSDictionary<NSString*, id>* _Nullable __autoreleasing* _Nullable)errorInfo;
@end

NS_ASSUME_NONNULL_END
