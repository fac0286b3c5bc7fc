#pragma once

#include <Foundation/NSURL.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSVolumeEnumerationOptions) {
    NSVolumeEnumerationSkipHiddenVolumes = 1UL << 1,
    NSVolumeEnumerationProduceFileReferenceURLs = 1UL << 2,
};
typedef NS_ENUM(NSUInteger, NSSearchPathDirectory) {
    NSCachesDirectory = 13,
    NSApplicationSupportDirectory = 14,
};
typedef NS_OPTIONS(NSUInteger, NSSearchPathDomainMask) {
    NSUserDomainMask = 1,
    NSLocalDomainMask = 2,
};

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager* defaultManager;
- (nullable NSArray<NSURL*>*)
    mountedVolumeURLsIncludingResourceValuesForKeys:(nullable NSArray<NSURLResourceKey>*)propertyKeys
                                            options:(NSVolumeEnumerationOptions)options;
- (NSArray<NSURL*>*)URLsForDirectory:(NSSearchPathDirectory)directory
                           inDomains:(NSSearchPathDomainMask)domainMask;
@end

NS_ASSUME_NONNULL_END
