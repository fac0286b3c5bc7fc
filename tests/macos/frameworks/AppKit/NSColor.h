#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSColor : NSObject <NSCopying>
@property(class, readonly, strong) NSColor* labelColor;
@property(class, readonly, strong) NSColor* secondaryLabelColor;
@property(class, readonly, strong) NSColor* systemRedColor;
@property(class, readonly, strong) NSColor* systemOrangeColor;
@property(class, readonly, strong) NSColor* systemGreenColor;
@property(class, readonly, strong) NSColor* systemBlueColor;
@property(class, readonly, strong) NSColor* systemPurpleColor;
- (void)setStroke;
@end

NS_ASSUME_NONNULL_END
