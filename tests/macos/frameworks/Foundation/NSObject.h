#pragma once

#include <objc/objc.h>

NS_ASSUME_NONNULL_BEGIN

typedef struct _NSZone NSZone;

@class NSString;

@protocol NSObject
- (BOOL)isEqual:(nullable id)object;
@property(readonly, copy) NSString* description;
- (BOOL)isKindOfClass:(Class)aClass;
- (instancetype)retain OBJC_ARC_UNAVAILABLE;
- (oneway void)release OBJC_ARC_UNAVAILABLE;
- (instancetype)autorelease OBJC_ARC_UNAVAILABLE;
@end

@protocol NSCopying
- (id)copyWithZone:(nullable NSZone*)zone;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
+ (instancetype)new;
+ (Class)class;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (void)dealloc;
- (id)copy;
@end

/// What `for (x in collection)` and the literals of the language ask the collections for.
typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)len;
@end

NS_ASSUME_NONNULL_END
