#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskTitled = 1UL << 0,
    NSWindowStyleMaskClosable = 1UL << 1,
    NSWindowStyleMaskMiniaturizable = 1UL << 2,
    NSWindowStyleMaskResizable = 1UL << 3,
    NSWindowStyleMaskFullSizeContentView = 1UL << 15,
};

typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
    NSWindowCollectionBehaviorFullScreenPrimary = 1UL << 7,
};

@interface NSWindow : NSObject
@property NSWindowStyleMask styleMask;
@property NSWindowCollectionBehavior collectionBehavior;
@property BOOL titlebarAppearsTransparent;
@property(getter=isRestorable) BOOL restorable;
@property(readonly) NSRect frame;
/// What no title bar covers.
@property(readonly) NSRect contentLayoutRect;
- (NSRect)convertRectToScreen:(NSRect)rect;
@end

NS_ASSUME_NONNULL_END
