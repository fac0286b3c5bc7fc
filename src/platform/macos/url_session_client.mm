#include "platform/macos/url_session_client.h"

#include "platform/macos/foundation_text.h"

namespace tarvo::macos_platform {
namespace {

bool isHTTPS(NSURL* _Nullable url) {
    NSString* const scheme = url.scheme;
    return scheme != nil && [scheme caseInsensitiveCompare:@"https"] == NSOrderedSame;
}

/// Of the reply that the last redirect led to.
bool isSuccess(NSURLResponse* response) {
    if (![response isKindOfClass:[NSHTTPURLResponse class]]) return false;
    const NSInteger status = static_cast<NSHTTPURLResponse*>(response).statusCode;
    return status >= 200 && status < 300 && isHTTPS(response.URL);
}

std::string contentOf(NSData* data) {
    return {static_cast<const char*>(data.bytes), data.length};
}

} // namespace

void URLSessionClient::fetch(const std::string& address, std::chrono::milliseconds timeout,
                             Completion completion) {
    @autoreleasepool {
        NSURL* const url = [NSURL URLWithString:systemText(address)];
        if (url == nil || !isHTTPS(url)) {
            completion(std::nullopt);
            return;
        }
        NSURLRequest* const request =
            [NSURLRequest requestWithURL:url
                             cachePolicy:NSURLRequestUseProtocolCachePolicy
                         timeoutInterval:std::chrono::duration<double>(timeout).count()];
        NSURLSessionDataTask* const task = [NSURLSession.sharedSession
            dataTaskWithRequest:request
              completionHandler:^(NSData* data, NSURLResponse* response, NSError* error) {
                const bool succeeded = error == nil && data != nil && isSuccess(response);
                completion(succeeded ? std::optional(contentOf(data)) : std::nullopt);
              }];
        [task resume];
        // The request's own limit starts anew with every packet; this one bounds the whole.
        __weak NSURLSessionDataTask* const weakTask = task;
        const auto limit = std::chrono::duration_cast<std::chrono::nanoseconds>(timeout).count();
        dispatch_after(dispatch_time(DISPATCH_TIME_NOW, limit),
                       dispatch_get_global_queue(QOS_CLASS_UTILITY, 0), ^{
                         [weakTask cancel];
                       });
    }
}

} // namespace tarvo::macos_platform
