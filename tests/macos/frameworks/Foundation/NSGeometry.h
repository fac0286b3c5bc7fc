#pragma once

#include <objc/objc.h>

#include <CoreGraphics/CoreGraphics.h>

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

extern "C" {
NSPoint NSMakePoint(CGFloat x, CGFloat y);
NSSize NSMakeSize(CGFloat w, CGFloat h);
NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat w, CGFloat h);
}
