#pragma once

#import <AppKit/NSColor.h>
#import <AppKit/NSEvent.h>
#import <AppKit/NSFont.h>
#import <AppKit/NSImage.h>
#import <AppKit/NSWindow.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSCellImagePosition) {
    NSNoImage = 0,
    NSImageOnly = 1,
    NSImageLeft = 2,
    NSImageRight = 3,
};

@interface NSView : NSObject
@property NSRect bounds;
@property(nullable, readonly, weak) NSWindow* window;
@property(nullable, copy) NSString* toolTip;
- (NSRect)convertRect:(NSRect)rect toView:(nullable NSView*)view;
@end

@interface NSControl : NSView
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property(nullable, strong) NSFont* font;
- (NSInteger)sendActionOn:(NSEventMask)mask;
- (void)performClick:(nullable id)sender;
@end

@interface NSButton : NSControl
@property(copy) NSString* title;
@property(copy) NSAttributedString* attributedTitle;
@property(nullable, strong) NSImage* image;
@property NSCellImagePosition imagePosition;
@property(nullable, copy) NSColor* contentTintColor;
@end

NS_ASSUME_NONNULL_END
