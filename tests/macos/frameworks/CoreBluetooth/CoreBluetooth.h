#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, CBManagerState) {
    CBManagerStateUnknown = 0,
    CBManagerStateResetting,
    CBManagerStateUnsupported,
    CBManagerStateUnauthorized,
    CBManagerStatePoweredOff,
    CBManagerStatePoweredOn,
};

extern "C" {
extern NSString* const CBCentralManagerOptionShowPowerAlertKey; // boolean NSNumber
}

@class CBCentralManager;
@class CBCharacteristic;
@class CBPeripheral;
@class CBService;

@interface CBUUID : NSObject <NSCopying>
@property(nonatomic, readonly) NSString* UUIDString;
+ (CBUUID*)UUIDWithString:(NSString*)theString;
@end

@interface CBAttribute : NSObject
@property(readonly, nonatomic) CBUUID* UUID;
@end

@interface CBService : CBAttribute
@property(retain, readonly, nullable) NSArray<CBCharacteristic*>* characteristics;
@end

@interface CBCharacteristic : CBAttribute
@property(retain, readonly, nullable) NSData* value;
@end

@interface CBPeer : NSObject <NSCopying>
@property(readonly, nonatomic) NSUUID* identifier;
@end

// The methods of the delegates are optional in truth. Those that the program implements are required here, so
// that a misspelt one is missed.

@protocol CBPeripheralDelegate <NSObject>
- (void)peripheral:(CBPeripheral*)peripheral didDiscoverServices:(nullable NSError*)error;
- (void)peripheral:(CBPeripheral*)peripheral
    didDiscoverCharacteristicsForService:(CBService*)service
                                   error:(nullable NSError*)error;
- (void)peripheral:(CBPeripheral*)peripheral
    didUpdateValueForCharacteristic:(CBCharacteristic*)characteristic
                              error:(nullable NSError*)error;
@end

@interface CBPeripheral : CBPeer
@property(weak, nonatomic, nullable) id<CBPeripheralDelegate> delegate;
@property(retain, readonly, nullable) NSString* name;
@property(retain, readonly, nullable) NSArray<CBService*>* services;
- (void)discoverServices:(nullable NSArray<CBUUID*>*)serviceUUIDs;
- (void)discoverCharacteristics:(nullable NSArray<CBUUID*>*)characteristicUUIDs
                     forService:(CBService*)service;
- (void)readValueForCharacteristic:(CBCharacteristic*)characteristic;
@end

@protocol CBCentralManagerDelegate <NSObject>
- (void)centralManagerDidUpdateState:(CBCentralManager*)central;
- (void)centralManager:(CBCentralManager*)central didConnectPeripheral:(CBPeripheral*)peripheral;
- (void)centralManager:(CBCentralManager*)central
    didFailToConnectPeripheral:(CBPeripheral*)peripheral
                         error:(nullable NSError*)error;
@end

@interface CBManager : NSObject
@property(nonatomic, assign, readonly) CBManagerState state;
@end

@interface CBCentralManager : CBManager
@property(nonatomic, weak, nullable) id<CBCentralManagerDelegate> delegate;
- (instancetype)initWithDelegate:(nullable id<CBCentralManagerDelegate>)delegate
                           queue:(nullable dispatch_queue_t)queue
                         options:(nullable NSDictionary<NSString*, id>*)options;
- (NSArray<CBPeripheral*>*)retrieveConnectedPeripheralsWithServices:(NSArray<CBUUID*>*)serviceUUIDs;
- (void)connectPeripheral:(CBPeripheral*)peripheral options:(nullable NSDictionary<NSString*, id>*)options;
- (void)cancelPeripheralConnection:(CBPeripheral*)peripheral;
@end

NS_ASSUME_NONNULL_END
