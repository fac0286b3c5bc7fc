#pragma once

// Hand-written from the public documentation of AppKit: what the program uses of it, no more.

#import <Foundation/Foundation.h>

#import <AppKit/NSBitmapImageRep.h>
#import <AppKit/NSImage.h>
#import <AppKit/NSRunningApplication.h>
#import <AppKit/NSWorkspace.h>
