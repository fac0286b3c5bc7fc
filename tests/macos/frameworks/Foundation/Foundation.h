#pragma once

// Hand-written from the public documentation of Foundation: what the program uses of it, no more. It is for
// checking types only; nothing is ever linked against it.

#include <objc/objc.h>

#include <dispatch/dispatch.h>

#include <Foundation/NSAppleScript.h>
#include <Foundation/NSArray.h>
#include <Foundation/NSAttributedString.h>
#include <Foundation/NSBundle.h>
#include <Foundation/NSData.h>
#include <Foundation/NSDate.h>
#include <Foundation/NSDictionary.h>
#include <Foundation/NSError.h>
#include <Foundation/NSFileManager.h>
#include <Foundation/NSGeometry.h>
#include <Foundation/NSLocale.h>
#include <Foundation/NSNotification.h>
#include <Foundation/NSNumber.h>
#include <Foundation/NSObject.h>
#include <Foundation/NSOperation.h>
#include <Foundation/NSString.h>
#include <Foundation/NSThread.h>
#include <Foundation/NSURL.h>
#include <Foundation/NSURLSession.h>
#include <Foundation/NSUUID.h>
#include <Foundation/NSUserDefaults.h>
