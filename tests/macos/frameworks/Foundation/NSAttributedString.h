#pragma once

#include <Foundation/NSDictionary.h>
#include <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSAttributedStringKey;

typedef struct {
    NSUInteger location;
    NSUInteger length;
} NSRange;

extern "C" NSRange NSMakeRange(NSUInteger loc, NSUInteger len);

@interface NSAttributedString : NSObject <NSCopying>
@property(readonly) NSUInteger length;
- (instancetype)initWithString:(NSString*)str
                    attributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attrs;
@end

@interface NSMutableAttributedString : NSAttributedString
- (void)appendAttributedString:(NSAttributedString*)attrString;
- (void)addAttribute:(NSAttributedStringKey)name value:(id)value range:(NSRange)range;
@end

NS_ASSUME_NONNULL_END
