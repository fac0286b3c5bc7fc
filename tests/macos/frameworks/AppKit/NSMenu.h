#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSMenuItem : NSObject <NSCopying>
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)string
                       action:(nullable SEL)selector
                keyEquivalent:(NSString*)charCode NS_DESIGNATED_INITIALIZER;
@property(nullable, weak) id target;
@property(nullable, strong) id representedObject;
@end

@interface NSMenu : NSObject <NSCopying>
- (void)addItem:(NSMenuItem*)newItem;
@end

NS_ASSUME_NONNULL_END
