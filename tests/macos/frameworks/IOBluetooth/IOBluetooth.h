#pragma once

#import <Foundation/Foundation.h>

typedef std::uint32_t BluetoothDeviceClassMajor;
typedef std::uint32_t BluetoothDeviceClassMinor;

@interface IOBluetoothDevice : NSObject
+ (NSArray*)pairedDevices;
@property(readonly) NSString* name;
@property(readonly) NSString* addressString;
@property(readonly) BluetoothDeviceClassMajor deviceClassMajor;
@property(readonly) BluetoothDeviceClassMinor deviceClassMinor;
- (BOOL)isConnected;
@end
