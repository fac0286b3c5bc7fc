#pragma once

#import <AppKit/NSBitmapImageRep.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSGraphicsContext : NSObject
@property(class, nullable, strong) NSGraphicsContext* currentContext;
+ (nullable NSGraphicsContext*)graphicsContextWithBitmapImageRep:(NSBitmapImageRep*)bitmapRep;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@end

NS_ASSUME_NONNULL_END
