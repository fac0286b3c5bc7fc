#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSLineCapStyle) {
    NSLineCapStyleButt = 0,
    NSLineCapStyleRound = 1,
    NSLineCapStyleSquare = 2,
};

typedef NS_ENUM(NSUInteger, NSLineJoinStyle) {
    NSLineJoinStyleMiter = 0,
    NSLineJoinStyleRound = 1,
    NSLineJoinStyleBevel = 2,
};

@interface NSBezierPath : NSObject <NSCopying>
+ (NSBezierPath*)bezierPath;
- (void)moveToPoint:(NSPoint)point;
- (void)lineToPoint:(NSPoint)point;
@property CGFloat lineWidth;
@property NSLineCapStyle lineCapStyle;
@property NSLineJoinStyle lineJoinStyle;
- (void)stroke;
@end

NS_ASSUME_NONNULL_END
