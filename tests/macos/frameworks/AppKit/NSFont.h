#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef CGFloat NSFontWeight;

extern "C" {
extern const NSFontWeight NSFontWeightRegular;
extern const NSFontWeight NSFontWeightMedium;
extern const NSFontWeight NSFontWeightSemibold;
}

@interface NSFont : NSObject <NSCopying>
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize weight:(NSFontWeight)weight;
+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)fontSize weight:(NSFontWeight)weight;
@end

NS_ASSUME_NONNULL_END
