#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSBitmapImageRepPropertyKey;

typedef NS_ENUM(NSUInteger, NSBitmapImageFileType) {
    NSBitmapImageFileTypeTIFF,
    NSBitmapImageFileTypeBMP,
    NSBitmapImageFileTypeGIF,
    NSBitmapImageFileTypeJPEG,
    NSBitmapImageFileTypePNG,
    NSBitmapImageFileTypeJPEG2000,
};

@interface NSImageRep : NSObject <NSCopying>
@end

@interface NSBitmapImageRep : NSImageRep
- (instancetype)initWithCGImage:(CGImageRef)cgImage;
- (nullable NSData*)representationUsingType:(NSBitmapImageFileType)storageType
                                 properties:(NSDictionary<NSBitmapImageRepPropertyKey, id>*)properties;
@end

NS_ASSUME_NONNULL_END
