#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSImageHintKey;

@class NSGraphicsContext;

@interface NSImage : NSObject <NSCopying>
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description;
+ (instancetype)imageWithSize:(NSSize)size
                      flipped:(BOOL)drawingHandlerShouldBeCalledWithFlippedContext
               drawingHandler:(BOOL (^)(NSRect dstRect))drawingHandler;
@property NSSize size;
// A property of that name cannot be declared for C++, where the word is taken.
- (void)setTemplate:(BOOL)isTemplate;
- (void)drawInRect:(NSRect)rect;
- (nullable CGImageRef)CGImageForProposedRect:(nullable NSRect*)proposedDestRect
                                      context:(nullable NSGraphicsContext*)referenceContext
                                        hints:(nullable NSDictionary<NSImageHintKey, id>*)hints;
@end

NS_ASSUME_NONNULL_END
