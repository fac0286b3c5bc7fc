#include "platform/desktop/session_service.h"

#include "platform/desktop/logging.h"

#include <QDBusMessage>
#include <QDBusReply>

#include <chrono>
#include <utility>

namespace tarvo::desktop {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds busPatience = 2s;
constexpr std::chrono::milliseconds ownerPatience = 5s;

constexpr uint doNotQueue = 4; // DBUS_NAME_FLAG_DO_NOT_QUEUE
constexpr uint primaryOwner = 1;
constexpr uint exists = 3;
constexpr uint alreadyOwner = 4;

int milliseconds(std::chrono::milliseconds time) {
    return static_cast<int>(time.count());
}

QString pathOf(QString name) {
    return '/' + name.replace('.', '/');
}

} // namespace

SessionService::SessionService(QDBusConnection bus, QString name)
    : bus_(std::move(bus)), name_(std::move(name)), path_(pathOf(name_)) {
    if (bus_.isConnected()) bus_.registerVirtualObject(path_, this);
}

SessionService::~SessionService() {
    bus_.unregisterObject(path_);
}

void SessionService::setMethod(const QString& method, std::function<void()> called) {
    methods_[method] = std::move(called);
}

SessionService::Claim SessionService::claim() {
    if (!bus_.isConnected()) return Claim::impossible;
    const auto busName = QStringLiteral("org.freedesktop.DBus");
    auto call = QDBusMessage::createMethodCall(busName, QStringLiteral("/org/freedesktop/DBus"), busName,
                                               QStringLiteral("RequestName"));
    call << name_ << doNotQueue;
    const QDBusReply<uint> reply = bus_.call(call, QDBus::Block, milliseconds(busPatience));
    if (!reply.isValid()) return Claim::impossible;
    const uint answer = reply.value();
    if (answer == exists) return Claim::taken;
    return answer == primaryOwner || answer == alreadyOwner ? Claim::ours : Claim::impossible;
}

bool SessionService::callOwner(const QString& method) {
    auto call = QDBusMessage::createMethodCall(name_, path_, name_, method);
    call.setAutoStartService(false);
    const auto reply = bus_.call(call, QDBus::Block, milliseconds(ownerPatience));
    return reply.type() == QDBusMessage::ReplyMessage;
}

QString SessionService::introspect(const QString& path) const {
    if (path != path_) return {};
    QString text = QStringLiteral("  <interface name=\"%1\">\n").arg(name_);
    for (const auto& [method, called] : methods_)
        text += QStringLiteral("    <method name=\"%1\"/>\n").arg(method);
    return text + QStringLiteral("  </interface>\n");
}

// Answered before anything is done: the caller has no use for waiting.
bool SessionService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    const QString& interface = message.interface();
    if (!interface.isEmpty() && interface != name_) return false;
    const auto found = methods_.find(message.member());
    if (found == methods_.end() || !message.signature().isEmpty()) return false;
    connection.send(message.createReply());
    qCDebug(sessionLog, "called: %s", qUtf8Printable(message.member()));
    const auto called = found->second;
    if (called) called();
    return true;
}

} // namespace tarvo::desktop
