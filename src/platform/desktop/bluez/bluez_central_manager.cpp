#include "platform/desktop/bluez/bluez_central_manager.h"

#include "platform/desktop/bluez/bluez_names.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace tarvo::desktop {

namespace {

constexpr std::string_view batteryService = "180F";
constexpr std::string_view batteryLevel = "2A19";

bool asksFor(std::span<const std::string_view> wanted, std::string_view one) {
    return std::find(wanted.begin(), wanted.end(), one) != wanted.end();
}

/// Sends the call and hands the reply to `answered` on this thread.
template <typename Answered>
void send(const QDBusConnection& bus, const QDBusMessage& call, QObject* owner, Answered answered) {
    auto* const pending = new QDBusPendingCallWatcher(bus.asyncCall(call, bluez::timeoutMilliseconds), owner);
    QObject::connect(pending, &QDBusPendingCallWatcher::finished, owner,
                     [answered = std::move(answered)](QDBusPendingCallWatcher* finished) {
                         finished->deleteLater();
                         answered(finished->reply());
                     });
}

} // namespace

std::string peripheralIdentifier(const std::string& objectPath) {
    // The name space that RFC 4122 gives for names of another kind than its own.
    static const QUuid pathSpace(0x6ba7b812, 0x9dad, 0x11d1, 0x80, 0xb4, 0x00, 0xc0, 0x4f, 0xd4, 0x30, 0xc8);
    return QUuid::createUuidV5(pathSpace, QByteArray::fromStdString(objectPath))
        .toString(QUuid::WithoutBraces)
        .toUpper()
        .toStdString();
}

BluezCentralManager::BluezCentralManager(ConnectBus connect, ReadAccessoryPower readAccessoryPower,
                                         Dispatcher& dispatcher, BluetoothCentralDelegate& delegate)
    : readAccessoryPower_(std::move(readAccessoryPower)), dispatcher_(dispatcher), delegate_(delegate) {
    inBackground([connect = std::move(connect)] { return connect(); },
                 [this](const QDBusConnection& bus) { start(bus); });
}

BluezCentralManager::~BluezCentralManager() = default;

void BluezCentralManager::start(const QDBusConnection& bus) {
    bus_ = bus;
    if (!bus_->isConnected()) {
        loseObjects();
        return;
    }
    followSignals();
    readPowers([this] { askForOwner(); });
}

void BluezCentralManager::followSignals() {
    // Without a sender: naming one would make the library wait for the bus. Its answer tells who BlueZ is.
    const auto follow = [this](const QString& path, const QString& interface, const QString& signal,
                               const QStringList& firstArgument, const char* slot) {
        bus_->connect({}, path, interface, signal, firstArgument, {}, this, slot);
    };
    follow(bluez::root, bluez::objectManager, QStringLiteral("InterfacesAdded"), {},
           SLOT(interfacesAdded(QDBusMessage)));
    follow(bluez::root, bluez::objectManager, QStringLiteral("InterfacesRemoved"), {},
           SLOT(interfacesRemoved(QDBusMessage)));
    for (const auto& interface : {bluez::adapterInterface, bluez::deviceInterface, bluez::batteryInterface}) {
        follow({}, bluez::propertiesInterface, QStringLiteral("PropertiesChanged"), {interface},
               SLOT(propertiesChanged(QDBusMessage)));
    }
    follow(bluez::busPath, bluez::bus, QStringLiteral("NameOwnerChanged"), {bluez::service},
           SLOT(nameOwnerChanged(QDBusMessage)));
}

void BluezCentralManager::askForOwner() {
    send(*bus_, nameHasOwnerCall(bluez::service), this, [this](const QDBusMessage& reply) {
        if (saysYes(reply)) {
            askForObjects();
        } else if (!hasObjects_) {
            loseObjects();
        }
    });
}

void BluezCentralManager::askForObjects() {
    send(*bus_, managedObjectsCall(bluez::service, bluez::root), this, [this](const QDBusMessage& reply) {
        auto objects = parseBluezObjects(reply);
        if (!objects) {
            loseObjects();
            return;
        }
        objects_ = std::move(*objects);
        owner_ = reply.service();
        hasObjects_ = true;
        updateState();
    });
}

void BluezCentralManager::loseObjects() {
    objects_.clear();
    hasObjects_ = false;
    updateState();
}

void BluezCentralManager::updateState() {
    const auto before = std::exchange(state_, objects_.state());
    if (state_ != before) delegate_.didUpdateState();
}

bool BluezCentralManager::isFromBluez(const QDBusMessage& message, const QString& signature) const {
    return hasObjects_ && message.service() == owner_ && message.signature() == signature;
}

void BluezCentralManager::nameOwnerChanged(const QDBusMessage& message) {
    if (message.service() != bluez::bus || message.signature() != QStringLiteral("sss")) return;
    loseObjects();
    if (!message.arguments().at(2).toString().isEmpty()) askForObjects();
}

void BluezCentralManager::interfacesAdded(const QDBusMessage& message) {
    if (!isFromBluez(message, QStringLiteral("oa{sa{sv}}"))) return;
    objects_.add(message.arguments().at(0).value<QDBusObjectPath>().path(),
                 qdbus_cast<BluezObjects::Interfaces>(message.arguments().at(1)));
    updateState();
}

void BluezCentralManager::interfacesRemoved(const QDBusMessage& message) {
    if (!isFromBluez(message, QStringLiteral("oas"))) return;
    objects_.remove(message.arguments().at(0).value<QDBusObjectPath>().path(),
                    message.arguments().at(1).toStringList());
    updateState();
}

void BluezCentralManager::propertiesChanged(const QDBusMessage& message) {
    if (!isFromBluez(message, QStringLiteral("sa{sv}as"))) return;
    objects_.change(message.path(), message.arguments().at(0).toString(),
                    qdbus_cast<QVariantMap>(message.arguments().at(1)));
    updateState();
}

std::vector<BluetoothPeripheral> BluezCentralManager::connectedPeripherals(std::string_view service) {
    std::vector<BluetoothPeripheral> peripherals;
    if (service != batteryService) return peripherals;
    for (const auto& [path, device] : objects_.devices()) {
        if (!device.isConnected || !percentOf(device)) continue;
        peripherals.push_back({peripheralIdentifier(path), device.name()});
    }
    readPowers([] {}); // for the accessories that were connected since
    return peripherals;
}

void BluezCentralManager::connect(const BluetoothPeripheral& peripheral) {
    later([this, peripheral] {
        if (connectedDevice(peripheral)) {
            delegate_.didConnect(peripheral);
        } else {
            delegate_.didFailToConnect(peripheral);
        }
    });
}

void BluezCentralManager::cancelConnection(const BluetoothPeripheral&) {}

void BluezCentralManager::discoverServices(const BluetoothPeripheral& peripheral,
                                           std::span<const std::string_view> services) {
    if (!asksFor(services, batteryService)) return;
    later([this, peripheral] { delegate_.didDiscoverServices(peripheral, {std::string(batteryService)}); });
}

void BluezCentralManager::discoverCharacteristics(const BluetoothPeripheral& peripheral,
                                                  std::string_view service,
                                                  std::span<const std::string_view> characteristics) {
    if (service != batteryService || !asksFor(characteristics, batteryLevel)) return;
    later([this, peripheral] {
        delegate_.didDiscoverCharacteristics(peripheral, std::string(batteryService),
                                             {std::string(batteryLevel)});
    });
}

void BluezCentralManager::readValue(const BluetoothPeripheral& peripheral, std::string_view characteristic) {
    const auto answer = [this, peripheral, name = std::string(characteristic)] {
        answerValue(peripheral, name);
    };
    const auto* const device = connectedDevice(peripheral);
    if (device && !device->percentage) {
        readPowers(answer);
    } else {
        later(answer);
    }
}

void BluezCentralManager::answerValue(const BluetoothPeripheral& peripheral,
                                      const std::string& characteristic) {
    const auto* const device = connectedDevice(peripheral);
    const auto percent = device && characteristic == batteryLevel ? percentOf(*device) : std::nullopt;
    delegate_.didUpdateValue(peripheral, characteristic,
                             percent ? std::optional(std::vector<std::uint8_t>{*percent}) : std::nullopt);
}

const BluezDevice* BluezCentralManager::connectedDevice(const BluetoothPeripheral& peripheral) const {
    for (const auto& [path, device] : objects_.devices()) {
        if (device.isConnected && peripheralIdentifier(path) == peripheral.identifier) return &device;
    }
    return nullptr;
}

std::optional<std::uint8_t> BluezCentralManager::percentOf(const BluezDevice& device) const {
    if (device.percentage) return device.percentage;
    const auto power = std::find_if(powers_.begin(), powers_.end(),
                                    [&device](const auto& one) { return one.address == device.address; });
    return power == powers_.end() ? std::nullopt : std::optional(power->percent);
}

void BluezCentralManager::later(std::function<void()> task) {
    QMetaObject::invokeMethod(this, std::move(task), Qt::QueuedConnection);
}

template <typename Work, typename Then>
void BluezCentralManager::inBackground(Work work, Then then) {
    dispatcher_.global(QualityOfService::utility,
                       [&dispatcher = dispatcher_, alive = std::weak_ptr<int>(alive_), work = std::move(work),
                        then = std::move(then)] {
                           auto result = work();
                           dispatcher.async([alive, then, result = std::move(result)] {
                               if (!alive.expired()) then(result);
                           });
                       });
}

void BluezCentralManager::readPowers(std::function<void()> then) {
    if (!readAccessoryPower_) {
        later(std::move(then));
        return;
    }
    inBackground([read = readAccessoryPower_] { return read(); },
                 [this, then = std::move(then)](const Powers& powers) {
                     powers_ = powers;
                     then();
                 });
}

} // namespace tarvo::desktop
