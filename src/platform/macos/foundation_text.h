#pragma once

// Objective-C++ only: for the implementation files of this folder.

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

NS_ASSUME_NONNULL_BEGIN

namespace tarvo::macos_platform {

/// UTF-8 text as the system's string. Bytes that are no UTF-8 give the empty text.
inline NSString* systemText(std::string_view text) {
    NSString* const made = [[NSString alloc] initWithBytes:text.data()
                                                    length:text.size()
                                                  encoding:NSUTF8StringEncoding];
    return made != nil ? made : @"";
}

/// The system's string as UTF-8; absent for nil.
inline std::optional<std::string> utf8Text(NSString* _Nullable text) {
    if (text == nil) return std::nullopt;
    const char* const bytes = text.UTF8String;
    if (bytes == nullptr) return std::nullopt;
    return std::string(bytes, [text lengthOfBytesUsingEncoding:NSUTF8StringEncoding]);
}

} // namespace tarvo::macos_platform

NS_ASSUME_NONNULL_END
