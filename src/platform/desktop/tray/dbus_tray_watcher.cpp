#include "platform/desktop/tray/dbus_tray_watcher.h"

#include "platform/desktop/tray/status_notifier_names.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <algorithm>
#include <utility>

namespace tarvo::desktop {

namespace {

constexpr int timeoutMilliseconds = 2000;
const QString busService = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");
const QString localPath = QStringLiteral("/org/freedesktop/DBus/Local");
const QString localInterface = QStringLiteral("org.freedesktop.DBus.Local");

/// Sends the call and hands its reply to `answered` on this thread.
template <typename... Values, typename Answered>
void call(const QDBusConnection& bus, QDBusMessage message, QObject* owner, Answered answered) {
    // Nobody is started by being asked.
    message.setAutoStartService(false);
    auto* pending = new QDBusPendingCallWatcher(bus.asyncCall(message, timeoutMilliseconds), owner);
    QObject::connect(pending, &QDBusPendingCallWatcher::finished, owner,
                     [answered = std::move(answered)](QDBusPendingCallWatcher* finished) {
                         finished->deleteLater();
                         answered(QDBusPendingReply<Values...>(*finished));
                     });
}

QDBusMessage busCall(const QString& method) {
    return QDBusMessage::createMethodCall(busService, busPath, busService, method);
}

} // namespace

DBusTrayWatcher::DBusTrayWatcher(QDBusConnection bus, ProcessName processName)
    : bus_(std::move(bus)), services_(sni::watcherService, bus_, QDBusServiceWatcher::WatchForOwnerChange),
      processName_(std::move(processName)) {
    if (!bus_.isConnected()) {
        state_ = TrayState::absent;
        return;
    }
    connect(&services_, &QDBusServiceWatcher::serviceOwnerChanged, this, &DBusTrayWatcher::ask);
    for (const QString& signal : {sni::hostRegistered, sni::hostUnregistered}) {
        bus_.connect(sni::watcherService, sni::watcherPath, sni::watcherInterface, signal, this, SLOT(ask()));
    }
    bus_.connect({}, localPath, localInterface, QStringLiteral("Disconnected"), this, SLOT(disconnected()));
    ask();
}

void DBusTrayWatcher::ask() {
    askForHostRegistered(++round_);
}

void DBusTrayWatcher::disconnected() {
    ++round_;
    become(TrayState::absent, {});
}

void DBusTrayWatcher::askForHostRegistered(int round) {
    auto message = QDBusMessage::createMethodCall(sni::watcherService, sni::watcherPath,
                                                  sni::propertiesInterface, QStringLiteral("Get"));
    message << sni::watcherInterface << QStringLiteral("IsStatusNotifierHostRegistered");
    call<QDBusVariant>(bus_, message, this, [this, round](const QDBusPendingReply<QDBusVariant>& reply) {
        if (round != round_) return;
        if (reply.isError() || !reply.value().variant().toBool()) {
            become(TrayState::absent, {});
        } else {
            askForHostName(round);
        }
    });
}

// Hosts own a name of their own beside the watcher's; where there is none, the watcher is taken to be the
// host.
void DBusTrayWatcher::askForHostName(int round) {
    const auto message = busCall(QStringLiteral("ListNames"));
    call<QStringList>(bus_, message, this, [this, round](const QDBusPendingReply<QStringList>& reply) {
        if (round != round_) return;
        const QStringList names = reply.isError() ? QStringList() : reply.value();
        const auto host = std::find_if(names.begin(), names.end(),
                                       [](const QString& name) { return name.startsWith(sni::hostPrefix); });
        askForProcess(round, host == names.end() ? sni::watcherService : *host);
    });
}

void DBusTrayWatcher::askForProcess(int round, const QString& service) {
    auto message = busCall(QStringLiteral("GetConnectionUnixProcessID"));
    message << service;
    call<uint>(bus_, message, this, [this, round](const QDBusPendingReply<uint>& reply) {
        if (round != round_) return;
        become(TrayState::present, reply.isError() ? std::string() : processName_(reply.value()));
    });
}

void DBusTrayWatcher::become(TrayState state, std::string hostProcess) {
    if (state == state_ && hostProcess == hostProcess_) return;
    state_ = state;
    hostProcess_ = std::move(hostProcess);
    if (changed) changed();
}

} // namespace tarvo::desktop
