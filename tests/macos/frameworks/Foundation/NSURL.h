#pragma once

#include <Foundation/NSArray.h>
#include <Foundation/NSDictionary.h>
#include <Foundation/NSError.h>
#include <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSURLResourceKey;

extern "C" {
extern NSURLResourceKey const NSURLVolumeNameKey;                               // NSString
extern NSURLResourceKey const NSURLVolumeTotalCapacityKey;                      // NSNumber
extern NSURLResourceKey const NSURLVolumeAvailableCapacityForImportantUsageKey; // NSNumber
extern NSURLResourceKey const NSURLVolumeIsRemovableKey;                        // boolean NSNumber
extern NSURLResourceKey const NSURLVolumeIsInternalKey;                         // boolean NSNumber
}

@interface NSURL : NSObject <NSCopying>
+ (nullable instancetype)URLWithString:(NSString*)URLString;
+ (NSURL*)fileURLWithPath:(NSString*)path;
+ (NSURL*)fileURLWithPath:(NSString*)path isDirectory:(BOOL)isDir;
@property(nullable, readonly, copy) NSString* scheme;
@property(nullable, readonly, copy) NSString* path;
- (nullable NSDictionary<NSURLResourceKey, id>*)
    resourceValuesForKeys:(NSArray<NSURLResourceKey>*)keys
                    error:(NSError* _Nullable __autoreleasing* _Nullable)error;
@end

NS_ASSUME_NONNULL_END
