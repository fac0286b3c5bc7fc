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

typedef NSString* NSColorSpaceName;
extern "C" NSColorSpaceName const NSDeviceRGBColorSpace;

@interface NSBitmapImageRep : NSImageRep
- (nullable instancetype)initWithBitmapDataPlanes:(unsigned char* _Nullable* _Nullable)planes
                                       pixelsWide:(NSInteger)width
                                       pixelsHigh:(NSInteger)height
                                    bitsPerSample:(NSInteger)bps
                                  samplesPerPixel:(NSInteger)spp
                                         hasAlpha:(BOOL)alpha
                                         isPlanar:(BOOL)isPlanar
                                   colorSpaceName:(NSColorSpaceName)colorSpaceName
                                      bytesPerRow:(NSInteger)rBytes
                                     bitsPerPixel:(NSInteger)pBits NS_DESIGNATED_INITIALIZER;
@property(nullable, readonly) unsigned char* bitmapData;
- (instancetype)initWithCGImage:(CGImageRef)cgImage;
- (nullable NSData*)representationUsingType:(NSBitmapImageFileType)storageType
                                 properties:(NSDictionary<NSBitmapImageRepPropertyKey, id>*)properties;
@end

NS_ASSUME_NONNULL_END
