#include "platform/macos/core_bluetooth_central.h"

#include "platform/macos/foundation_text.h"

#import <CoreBluetooth/CoreBluetooth.h>

using namespace tarvo;
using namespace tarvo::macos_platform;

namespace {

CBUUID* uuid(std::string_view text) {
    return [CBUUID UUIDWithString:systemText(text)];
}

NSArray<CBUUID*>* uuids(std::span<const std::string_view> texts) {
    NSMutableArray<CBUUID*>* const made = [NSMutableArray arrayWithCapacity:texts.size()];
    for (const auto text : texts)
        [made addObject:uuid(text)];
    return made;
}

std::string textOf(CBUUID* value) {
    return utf8Text(value.UUIDString).value_or(std::string());
}

BluetoothPeripheral described(CBPeripheral* peripheral) {
    return {utf8Text(peripheral.identifier.UUIDString).value_or(std::string()), utf8Text(peripheral.name)};
}

std::optional<std::vector<std::uint8_t>> bytesOf(NSData* data) {
    if (data == nil) return std::nullopt;
    const auto* const first = static_cast<const std::uint8_t*>(data.bytes);
    return std::vector<std::uint8_t>(first, first + data.length);
}

BluetoothState stateOf(CBManagerState state) {
    switch (state) {
    case CBManagerStateUnknown:
        return BluetoothState::unknown;
    case CBManagerStateResetting:
        return BluetoothState::resetting;
    case CBManagerStateUnsupported:
        return BluetoothState::unsupported;
    case CBManagerStateUnauthorized:
        return BluetoothState::unauthorized;
    case CBManagerStatePoweredOff:
        return BluetoothState::poweredOff;
    case CBManagerStatePoweredOn:
        return BluetoothState::poweredOn;
    }
    return BluetoothState::unknown;
}

} // namespace

/// Hands what the system reports to the delegate of the program, until that is taken away.
@interface TarvoCentralReporter : NSObject <CBCentralManagerDelegate, CBPeripheralDelegate>
@property(nonatomic, nullable) BluetoothCentralDelegate* delegate;
@end

@implementation TarvoCentralReporter

- (void)centralManagerDidUpdateState:(CBCentralManager*)central {
    if (self.delegate) self.delegate->didUpdateState();
}

- (void)centralManager:(CBCentralManager*)central didConnectPeripheral:(CBPeripheral*)peripheral {
    if (self.delegate) self.delegate->didConnect(described(peripheral));
}

- (void)centralManager:(CBCentralManager*)central
    didFailToConnectPeripheral:(CBPeripheral*)peripheral
                         error:(NSError*)error {
    if (self.delegate) self.delegate->didFailToConnect(described(peripheral));
}

- (void)peripheral:(CBPeripheral*)peripheral didDiscoverServices:(NSError*)error {
    std::vector<std::string> services;
    for (CBService* service in peripheral.services)
        services.push_back(textOf(service.UUID));
    if (self.delegate) self.delegate->didDiscoverServices(described(peripheral), services);
}

- (void)peripheral:(CBPeripheral*)peripheral
    didDiscoverCharacteristicsForService:(CBService*)service
                                   error:(NSError*)error {
    std::vector<std::string> characteristics;
    for (CBCharacteristic* characteristic in service.characteristics)
        characteristics.push_back(textOf(characteristic.UUID));
    if (!self.delegate) return;
    self.delegate->didDiscoverCharacteristics(described(peripheral), textOf(service.UUID), characteristics);
}

- (void)peripheral:(CBPeripheral*)peripheral
    didUpdateValueForCharacteristic:(CBCharacteristic*)characteristic
                              error:(NSError*)error {
    if (!self.delegate) return;
    const auto value = error == nil ? bytesOf(characteristic.value) : std::nullopt;
    self.delegate->didUpdateValue(described(peripheral), textOf(characteristic.UUID), value);
}

@end

namespace tarvo::macos_platform {

struct CoreBluetoothCentral::State {
    TarvoCentralReporter* reporter = [[TarvoCentralReporter alloc] init];
    CBCentralManager* manager = nil;
    /// By identifier. The system lets go of a peripheral that nobody holds, and with it of the connection.
    NSMutableDictionary<NSString*, CBPeripheral*>* known = [NSMutableDictionary dictionary];

    CBPeripheral* find(const BluetoothPeripheral& peripheral) const {
        return [known objectForKey:systemText(peripheral.identifier)];
    }
};

CoreBluetoothCentral::CoreBluetoothCentral(BluetoothCentralDelegate& delegate)
    : state_(std::make_unique<State>()) {
    state_->reporter.delegate = &delegate;
    state_->manager = [[CBCentralManager alloc] initWithDelegate:state_->reporter
                                                           queue:dispatch_get_main_queue()
                                                         options:@{
                                                             CBCentralManagerOptionShowPowerAlertKey : @NO
                                                         }];
}

CoreBluetoothCentral::~CoreBluetoothCentral() {
    state_->reporter.delegate = nullptr; // reports may be queued already
    state_->manager.delegate = nil;
}

BluetoothState CoreBluetoothCentral::state() const {
    return stateOf(state_->manager.state);
}

std::vector<BluetoothPeripheral> CoreBluetoothCentral::connectedPeripherals(std::string_view service) {
    std::vector<BluetoothPeripheral> found;
    for (CBPeripheral* peripheral in
         [state_->manager retrieveConnectedPeripheralsWithServices:@[ uuid(service) ]]) {
        [state_->known setObject:peripheral forKey:peripheral.identifier.UUIDString];
        found.push_back(described(peripheral));
    }
    return found;
}

void CoreBluetoothCentral::connect(const BluetoothPeripheral& peripheral) {
    CBPeripheral* const known = state_->find(peripheral);
    if (known == nil) return;
    known.delegate = state_->reporter;
    [state_->manager connectPeripheral:known options:nil];
}

void CoreBluetoothCentral::cancelConnection(const BluetoothPeripheral& peripheral) {
    CBPeripheral* const known = state_->find(peripheral);
    if (known != nil) [state_->manager cancelPeripheralConnection:known];
}

void CoreBluetoothCentral::discoverServices(const BluetoothPeripheral& peripheral,
                                            std::span<const std::string_view> services) {
    [state_->find(peripheral) discoverServices:uuids(services)];
}

void CoreBluetoothCentral::discoverCharacteristics(const BluetoothPeripheral& peripheral,
                                                   std::string_view service,
                                                   std::span<const std::string_view> characteristics) {
    CBPeripheral* const known = state_->find(peripheral);
    for (CBService* offered in known.services) {
        if ([offered.UUID isEqual:uuid(service)]) {
            [known discoverCharacteristics:uuids(characteristics) forService:offered];
        }
    }
}

void CoreBluetoothCentral::readValue(const BluetoothPeripheral& peripheral, std::string_view characteristic) {
    CBPeripheral* const known = state_->find(peripheral);
    for (CBService* service in known.services) {
        for (CBCharacteristic* offered in service.characteristics) {
            if ([offered.UUID isEqual:uuid(characteristic)]) [known readValueForCharacteristic:offered];
        }
    }
}

} // namespace tarvo::macos_platform
