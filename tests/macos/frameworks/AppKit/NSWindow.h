#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSWindow : NSObject
- (NSRect)convertRectToScreen:(NSRect)rect;
@end

NS_ASSUME_NONNULL_END
