#include "platform/desktop/network_manager_wifi.h"

#include "platform/utf8.h"

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QList>

#include <algorithm>
#include <utility>
#include <vector>

namespace tarvo::desktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.NetworkManager");
const QString managerPath = QStringLiteral("/org/freedesktop/NetworkManager");
const QString deviceInterface = QStringLiteral("org.freedesktop.NetworkManager.Device");
const QString wirelessInterface = QStringLiteral("org.freedesktop.NetworkManager.Device.Wireless");
const QString accessPointInterface = QStringLiteral("org.freedesktop.NetworkManager.AccessPoint");

constexpr uint wirelessDevice = 2;  // NM_DEVICE_TYPE_WIFI
constexpr uint accessPointMode = 3; // NM_802_11_MODE_AP

struct Adapter {
    std::optional<std::string> ssid; ///< of the network of others that it has joined
    bool isPrimary = false;
};

bool isNone(const QDBusObjectPath& path) {
    return path.path().isEmpty() || path.path() == QLatin1String("/");
}

// The bytes are whatever the owner of the network chose.
std::optional<std::string> networkName(const QByteArray& bytes) {
    auto name = bytes.toStdString();
    return name.empty() || !isUTF8(name) ? std::nullopt : std::optional(std::move(name));
}

/// Asks one question after another until one stays without an answer.
class Questions {
public:
    Questions(QDBusConnection bus, std::chrono::milliseconds patience)
        : bus_(std::move(bus)), patience_(patience) {}

    bool isRunning() { return saysYes(ask(nameHasOwnerCall(service))); }
    bool wentUnanswered() const { return wentUnanswered_; }

    /// Absent as well when the property is missing or of another type.
    template <typename Value>
    std::optional<Value> property(const QString& path, const QString& interface, const char* name) {
        const auto value = property(path, interface, name);
        return value.metaType() == QMetaType::fromType<Value>() ? std::optional(value.value<Value>())
                                                                : std::nullopt;
    }

    std::optional<QList<QDBusObjectPath>> devices() {
        const auto value = property(managerPath, service, "Devices");
        if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return std::nullopt;
        const auto argument = value.value<QDBusArgument>();
        if (argument.currentSignature() != QLatin1String("ao")) return std::nullopt;
        return qdbus_cast<QList<QDBusObjectPath>>(argument);
    }

private:
    QVariant property(const QString& path, const QString& interface, const char* name) {
        auto call = QDBusMessage::createMethodCall(
            service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        call << interface << QLatin1String(name);
        call.setAutoStartService(false);
        const auto reply = ask(call);
        return reply.type() == QDBusMessage::ReplyMessage
                   ? reply.arguments().value(0).value<QDBusVariant>().variant()
                   : QVariant();
    }

    QDBusMessage ask(const QDBusMessage& call) {
        if (wentUnanswered_) return {};
        auto reply = bus_.call(call, QDBus::Block, static_cast<int>(patience_.count()));
        if (reply.type() != QDBusMessage::ReplyMessage) noteError(QDBusError(reply).type());
        return reply;
    }

    // Any other error is an answer: a device may be gone by the time that it is asked for.
    void noteError(QDBusError::ErrorType type) {
        wentUnanswered_ = type == QDBusError::NoReply || type == QDBusError::Timeout ||
                          type == QDBusError::TimedOut || type == QDBusError::Disconnected ||
                          type == QDBusError::ServiceUnknown;
    }

    QDBusConnection bus_;
    std::chrono::milliseconds patience_;
    bool wentUnanswered_ = false;
};

std::optional<std::string> joinedNetwork(Questions& questions, const QString& device) {
    // A network of its own has an access point too.
    if (questions.property<uint>(device, wirelessInterface, "Mode") == accessPointMode) return std::nullopt;
    const auto accessPoint =
        questions.property<QDBusObjectPath>(device, wirelessInterface, "ActiveAccessPoint");
    if (!accessPoint || isNone(*accessPoint)) return std::nullopt;
    return networkName(questions.property<QByteArray>(accessPoint->path(), accessPointInterface, "Ssid")
                           .value_or(QByteArray()));
}

// Empty when NetworkManager has none or could not be asked.
std::vector<Adapter> wirelessAdapters(Questions& questions) {
    const auto devices = questions.devices().value_or(QList<QDBusObjectPath>());
    const auto primary = questions.property<QDBusObjectPath>(managerPath, service, "PrimaryConnection");
    std::vector<Adapter> adapters;
    for (const auto& each : devices) {
        const auto device = each.path();
        if (questions.property<uint>(device, deviceInterface, "DeviceType") != wirelessDevice) continue;
        if (!questions.property<bool>(device, deviceInterface, "Managed").value_or(false)) continue;
        const auto connection =
            questions.property<QDBusObjectPath>(device, deviceInterface, "ActiveConnection");
        adapters.push_back(
            {joinedNetwork(questions, device), primary && !isNone(*primary) && connection == primary});
    }
    if (questions.wentUnanswered()) adapters.clear();
    return adapters;
}

} // namespace

NetworkManagerWiFi::NetworkManagerWiFi(ConnectBus connect, std::unique_ptr<WiFiClient> otherwise,
                                       std::chrono::milliseconds patience)
    : connect_(std::move(connect)), otherwise_(std::move(otherwise)), patience_(patience) {}

std::optional<std::string> NetworkManagerWiFi::ssid() {
    Questions questions(connect_(), patience_);
    const auto adapters = questions.isRunning() ? wirelessAdapters(questions) : std::vector<Adapter>();
    if (adapters.empty()) return otherwise_->ssid();
    const auto firstWith = [&adapters](auto isWanted) -> std::optional<std::string> {
        const auto found = std::find_if(adapters.begin(), adapters.end(), isWanted);
        return found == adapters.end() ? std::nullopt : found->ssid;
    };
    const auto primary = firstWith([](const Adapter& adapter) { return adapter.isPrimary && adapter.ssid; });
    return primary ? primary : firstWith([](const Adapter& adapter) { return adapter.ssid.has_value(); });
}

} // namespace tarvo::desktop
