#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSEventType) {
    NSEventTypeLeftMouseDown = 1,
    NSEventTypeLeftMouseUp = 2,
    NSEventTypeRightMouseDown = 3,
    NSEventTypeRightMouseUp = 4,
};

typedef NS_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskLeftMouseDown = 1ULL << NSEventTypeLeftMouseDown,
    NSEventMaskLeftMouseUp = 1ULL << NSEventTypeLeftMouseUp,
    NSEventMaskRightMouseDown = 1ULL << NSEventTypeRightMouseDown,
    NSEventMaskRightMouseUp = 1ULL << NSEventTypeRightMouseUp,
};

@interface NSEvent : NSObject <NSCopying>
@property(readonly) NSEventType type;
@end

NS_ASSUME_NONNULL_END
