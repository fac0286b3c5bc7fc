#include "platform/desktop/udisks_devices.h"

#include <QByteArrayList>
#include <QDBusArgument>
#include <QDBusObjectPath>

namespace tarvo::desktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.UDisks2");
const QString root = QStringLiteral("/org/freedesktop/UDisks2");
const QString blockInterface = QStringLiteral("org.freedesktop.UDisks2.Block");
const QString driveInterface = QStringLiteral("org.freedesktop.UDisks2.Drive");

constexpr std::chrono::seconds lifetime{5};

bool isTrue(const QVariantMap& properties, const char* key) {
    const auto value = properties.value(QLatin1String(key));
    return value.metaType().id() == QMetaType::Bool && value.toBool();
}

/// Paths come as bytes with a zero at their end.
std::string path(const QByteArray& bytes) {
    return bytes.constData();
}

std::vector<std::string> paths(const QVariantMap& block) {
    std::vector<std::string> all{path(block.value(QStringLiteral("Device")).toByteArray()),
                                 path(block.value(QStringLiteral("PreferredDevice")).toByteArray())};
    for (const auto& link : qdbus_cast<QByteArrayList>(block.value(QStringLiteral("Symlinks"))))
        all.push_back(path(link));
    return all;
}

/// Absent for a device that has no drive, such as a layer over others.
std::optional<bool> isRemovable(const QVariantMap& block, const ManagedObjects& objects) {
    const auto drive = objects.find(block.value(QStringLiteral("Drive")).value<QDBusObjectPath>().path());
    if (drive == objects.end()) return std::nullopt;
    const auto properties = drive->second.value(driveInterface);
    const auto bus = properties.value(QStringLiteral("ConnectionBus")).toString();
    const bool isPlugged =
        bus == QLatin1String("usb") || bus == QLatin1String("sdio") || bus == QLatin1String("ieee1394");
    return isPlugged || isTrue(properties, "Removable") || isTrue(properties, "MediaRemovable");
}

} // namespace

std::map<std::string, DeviceHint> udisksHints(const ManagedObjects& objects) {
    std::map<std::string, DeviceHint> hints;
    for (const auto& [name, interfaces] : objects) {
        const auto block = interfaces.constFind(blockInterface);
        if (block == interfaces.cend()) continue;
        DeviceHint hint;
        const auto label = block->value(QStringLiteral("IdLabel")).toString();
        if (!label.isEmpty()) hint.label = label.toStdString();
        hint.isRemovable = isRemovable(*block, objects);
        hint.isHidden = isTrue(*block, "HintIgnore");
        for (const auto& device : paths(*block)) {
            if (!device.empty()) hints.insert_or_assign(device, hint);
        }
    }
    return hints;
}

DeviceHint UDisksDevices::hint(const std::string& device) {
    const std::lock_guard lock(mutex_);
    if (!askedAt_ || clock_.steadyNow() - *askedAt_ >= lifetime) {
        hints_ = ask();
        askedAt_ = clock_.steadyNow();
    }
    const auto found = hints_.find(device);
    return found == hints_.end() ? DeviceHint{} : found->second;
}

std::map<std::string, DeviceHint> UDisksDevices::ask() {
    const auto bus = connect_();
    const auto reply = [&bus, limit = static_cast<int>(patience_.count())](const QDBusMessage& call) {
        return bus.call(call, QDBus::Block, limit);
    };
    if (!bus.isConnected() || !saysYes(reply(nameHasOwnerCall(service)))) return {};
    return udisksHints(
        parseManagedObjects(reply(managedObjectsCall(service, root))).value_or(ManagedObjects{}));
}

} // namespace tarvo::desktop
