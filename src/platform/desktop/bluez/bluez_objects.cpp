#include "platform/desktop/bluez/bluez_objects.h"

#include "platform/desktop/bluez/bluez_names.h"

#include <QDBusMessage>

#include <algorithm>

namespace tarvo::desktop {

namespace {

constexpr unsigned longestPercentage = 255;

void setBoolean(const QVariantMap& from, const char* key, bool& to) {
    const auto value = from.value(QLatin1String(key));
    if (value.metaType().id() == QMetaType::Bool) to = value.toBool();
}

void setText(const QVariantMap& from, const char* key, std::string& to) {
    const auto value = from.value(QLatin1String(key));
    if (value.metaType().id() == QMetaType::QString) to = value.toString().toStdString();
}

template <typename Number>
void setNumber(const QVariantMap& from, const char* key, Number& to) {
    bool isNumber = false;
    const auto number = from.value(QLatin1String(key)).toUInt(&isNumber);
    if (isNumber && number <= std::numeric_limits<Number>::max()) to = static_cast<Number>(number);
}

void apply(const QVariantMap& properties, BluezDevice& device) {
    setText(properties, "Address", device.address);
    setText(properties, "Alias", device.alias);
    setText(properties, "Icon", device.kind.icon);
    setBoolean(properties, "Paired", device.isPaired);
    setBoolean(properties, "Connected", device.isConnected);
    setNumber(properties, "Class", device.kind.classOfDevice);
    setNumber(properties, "Appearance", device.kind.appearance);
}

void applyBattery(const QVariantMap& properties, BluezDevice& device) {
    bool isNumber = false;
    const auto percentage = properties.value(bluez::percentage).toUInt(&isNumber);
    if (isNumber && percentage <= longestPercentage)
        device.percentage = static_cast<std::uint8_t>(percentage);
}

} // namespace

std::optional<std::string> BluezDevice::name() const {
    auto dashed = address;
    std::replace(dashed.begin(), dashed.end(), ':', '-');
    return alias.empty() || alias == dashed ? std::nullopt : std::optional(alias);
}

void BluezObjects::add(const QString& path, const Interfaces& interfaces) {
    for (auto interface = interfaces.cbegin(); interface != interfaces.cend(); ++interface) {
        const auto key = path.toStdString();
        if (interface.key() == bluez::adapterInterface) adapters_.try_emplace(key, false);
        if (interface.key() == bluez::deviceInterface) devices_.try_emplace(key);
    }
    for (auto interface = interfaces.cbegin(); interface != interfaces.cend(); ++interface) {
        change(path, interface.key(), interface.value());
    }
}

void BluezObjects::remove(const QString& path, const QStringList& interfaces) {
    const auto key = path.toStdString();
    if (interfaces.contains(bluez::adapterInterface)) adapters_.erase(key);
    if (interfaces.contains(bluez::deviceInterface)) devices_.erase(key);
    const auto device = devices_.find(key);
    if (device != devices_.end() && interfaces.contains(bluez::batteryInterface)) {
        device->second.percentage.reset();
    }
}

void BluezObjects::change(const QString& path, const QString& interface, const QVariantMap& changed) {
    const auto key = path.toStdString();
    const auto adapter = adapters_.find(key);
    if (adapter != adapters_.end() && interface == bluez::adapterInterface) {
        setBoolean(changed, "Powered", adapter->second);
    }
    const auto device = devices_.find(key);
    if (device == devices_.end()) return;
    if (interface == bluez::deviceInterface) apply(changed, device->second);
    if (interface == bluez::batteryInterface) applyBattery(changed, device->second);
}

void BluezObjects::clear() {
    adapters_.clear();
    devices_.clear();
}

BluetoothState BluezObjects::state() const {
    if (adapters_.empty()) return BluetoothState::unsupported;
    const bool isOn =
        std::any_of(adapters_.begin(), adapters_.end(), [](const auto& adapter) { return adapter.second; });
    return isOn ? BluetoothState::poweredOn : BluetoothState::poweredOff;
}

const BluezDevice* BluezObjects::device(const std::string& path) const {
    const auto found = devices_.find(path);
    return found == devices_.end() ? nullptr : &found->second;
}

std::vector<PairedBluetoothDevice> pairedDevicesOf(const BluezObjects& objects) {
    std::vector<PairedBluetoothDevice> paired;
    for (const auto& [path, device] : objects.devices()) {
        if (!device.isPaired) continue;
        const auto deviceClass = desktop::deviceClass(device.kind);
        paired.push_back({device.name(),
                          device.address.empty() ? std::nullopt : std::optional(device.address),
                          device.isConnected, deviceClass.majorClass, deviceClass.minorClass});
    }
    return paired;
}

std::optional<BluezObjects> parseBluezObjects(const QDBusMessage& reply) {
    const auto managed = parseManagedObjects(reply);
    if (!managed) return std::nullopt;
    BluezObjects objects;
    for (const auto& [path, interfaces] : *managed)
        objects.add(path, interfaces);
    return objects;
}

} // namespace tarvo::desktop
