#pragma once

#import <AppKit/NSButton.h>
#import <AppKit/NSMenu.h>

NS_ASSUME_NONNULL_BEGIN

extern "C" const CGFloat NSVariableStatusItemLength;

@interface NSStatusBarButton : NSButton
@end

@interface NSStatusItem : NSObject
@property(nullable, readonly, strong) NSStatusBarButton* button;
@property(nullable, strong) NSMenu* menu;
@end

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end

NS_ASSUME_NONNULL_END
