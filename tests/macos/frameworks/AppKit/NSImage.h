#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSImageHintKey;

@class NSGraphicsContext;

@interface NSImage : NSObject <NSCopying>
- (nullable CGImageRef)CGImageForProposedRect:(nullable NSRect*)proposedDestRect
                                      context:(nullable NSGraphicsContext*)referenceContext
                                        hints:(nullable NSDictionary<NSImageHintKey, id>*)hints;
@end

NS_ASSUME_NONNULL_END
