#pragma once

#include <Foundation/NSData.h>
#include <Foundation/NSError.h>
#include <Foundation/NSURL.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSURLRequestCachePolicy) {
    NSURLRequestUseProtocolCachePolicy = 0,
    NSURLRequestReloadIgnoringLocalCacheData = 1,
};

@interface NSURLRequest : NSObject <NSCopying>
+ (instancetype)requestWithURL:(NSURL*)URL
                   cachePolicy:(NSURLRequestCachePolicy)cachePolicy
               timeoutInterval:(NSTimeInterval)timeoutInterval;
@end

@interface NSURLResponse : NSObject <NSCopying>
@property(nullable, readonly, copy) NSURL* URL;
@end

@interface NSHTTPURLResponse : NSURLResponse
@property(readonly) NSInteger statusCode;
@end

@interface NSURLSessionTask : NSObject <NSCopying>
- (void)resume;
- (void)cancel;
@end

@interface NSURLSessionDataTask : NSURLSessionTask
@end

@interface NSURLSession : NSObject
@property(class, readonly, strong) NSURLSession* sharedSession;
- (NSURLSessionDataTask*)dataTaskWithRequest:(NSURLRequest*)request
                           completionHandler:(void (^)(NSData* _Nullable data,
                                                       NSURLResponse* _Nullable response,
                                                       NSError* _Nullable error))completionHandler;
@end

NS_ASSUME_NONNULL_END
