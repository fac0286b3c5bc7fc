#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSScreen : NSObject
/// The first one holds the origin of the screen coordinates.
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(readonly) NSRect frame;
@end

NS_ASSUME_NONNULL_END
