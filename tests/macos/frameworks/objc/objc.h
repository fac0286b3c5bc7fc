#pragma once

// The Objective-C language's own types. BOOL is a real boolean on Apple silicon and a character on Intel; the
// check runs with both.

#ifdef TARVO_BOOL_IS_CHARACTER
typedef signed char BOOL;
#else
typedef bool BOOL;
#endif

#define nil nullptr
#define Nil nullptr
#define YES __objc_yes
#define NO __objc_no

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double NSTimeInterval;

#define NS_ENUM(type, name)                                                                                  \
    enum name : type name;                                                                                   \
    enum name : type
// In C++ a set of options is a plain number, so that options can be joined without a cast.
#define NS_OPTIONS(type, name)                                                                               \
    type name;                                                                                               \
    enum __attribute__((flag_enum)) : type
#define NS_DESIGNATED_INITIALIZER __attribute__((objc_designated_initializer))
#define OBJC_ARC_UNAVAILABLE                                                                                 \
    __attribute__((unavailable("not available in automatic reference counting mode")))
#define NS_UNAVAILABLE __attribute__((unavailable))
#define NS_REQUIRES_SUPER __attribute__((objc_requires_super))
#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
