#include "platform/desktop/hot_key/portal_hot_key.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QStringList>

#include <utility>

namespace tarvo::desktop {

/// A row of BindShortcuts, (sa{sv}).
struct PortalShortcut {
    QString id;
    QVariantMap options;
};

static QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut) {
    argument.beginStructure();
    argument << shortcut.id << shortcut.options;
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut) {
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.options;
    argument.endStructure();
    return argument;
}

} // namespace tarvo::desktop

Q_DECLARE_METATYPE(tarvo::desktop::PortalShortcut)

namespace tarvo::desktop {
namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");
const QString sessionInterface = QStringLiteral("org.freedesktop.portal.Session");
const QString registryInterface = QStringLiteral("org.freedesktop.host.portal.Registry");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString response = QStringLiteral("Response");
const QString shortcutID = QStringLiteral("toggle-popover");
constexpr uint success = 0;

QDBusMessage portalCall(const QString& interface, const QString& method) {
    return QDBusMessage::createMethodCall(service, path, interface, method);
}

/// Where the answer to a request of this caller appears.
QString requestPath(const QString& uniqueName, const QString& token) {
    QString sender = uniqueName.mid(1);
    sender.replace('.', '_');
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

} // namespace

QString portalTrigger(const KeyCombination& keys) {
    QStringList parts;
    if (keys.control) parts += QStringLiteral("CTRL");
    if (keys.alt) parts += QStringLiteral("ALT");
    if (keys.shift) parts += QStringLiteral("SHIFT");
    if (keys.logo) parts += QStringLiteral("LOGO");
    return (parts << QString::fromUcs4(&keys.letter, 1)).join('+');
}

PortalHotKey::PortalHotKey(const KeyCombination& keys, HotKeyEvents events, QDBusConnection bus, Texts texts)
    : trigger_(portalTrigger(keys)), events_(std::move(events)), bus_(std::move(bus)),
      texts_(std::move(texts)), portal_(service, bus_, QDBusServiceWatcher::WatchForOwnerChange) {
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    // A slot is only found when the types of its arguments are known by their names.
    qRegisterMetaType<QDBusObjectPath>();
    connect(&portal_, &QDBusServiceWatcher::serviceOwnerChanged, this, &PortalHotKey::ownerChanged);
    bus_.connect(service, path, shortcutsInterface, QStringLiteral("Activated"), this,
                 SLOT(activated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    ask();
}

PortalHotKey::~PortalHotKey() {
    if (session_.isEmpty()) return;
    bus_.asyncCall(
        QDBusMessage::createMethodCall(service, session_, sessionInterface, QStringLiteral("Close")));
}

void PortalHotKey::ownerChanged() {
    session_.clear();
    ask();
}

// Starts the portal where it is not running yet. A program outside of any sandbox tells its name first, where
// the portal wants to know it.
void PortalHotKey::ask() {
    auto name = portalCall(registryInterface, QStringLiteral("Register"));
    name << texts_.applicationID << QVariantMap();
    bus_.asyncCall(name);
    auto version = portalCall(propertiesInterface, QStringLiteral("Get"));
    version << shortcutsInterface << QStringLiteral("version");
    auto* asked = new QDBusPendingCallWatcher(bus_.asyncCall(version), this);
    connect(asked, &QDBusPendingCallWatcher::finished, this, [this, asked] {
        asked->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *asked;
        if (reply.isError()) {
            setState(HotKeyState::unavailable);
        } else {
            createSession();
        }
    });
}

void PortalHotKey::createSession() {
    request(portalCall(shortcutsInterface, QStringLiteral("CreateSession")),
            {{QStringLiteral("session_handle_token"), QStringLiteral("tarvo")}},
            SLOT(sessionAnswered(uint, QVariantMap)));
}

void PortalHotKey::sessionAnswered(uint answer, const QVariantMap& results) {
    const QVariant handle = results.value(QStringLiteral("session_handle"));
    // A string by the interface's text; some portals send an object path.
    session_ =
        handle.canConvert<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path() : handle.toString();
    if (answer != success || session_.isEmpty()) {
        setState(HotKeyState::unavailable);
        return;
    }
    bindShortcut();
}

void PortalHotKey::bindShortcut() {
    const PortalShortcut shortcut{shortcutID,
                                  {{QStringLiteral("description"), texts_.description},
                                   {QStringLiteral("preferred_trigger"), trigger_}}};
    auto call = portalCall(shortcutsInterface, QStringLiteral("BindShortcuts"));
    call << QVariant::fromValue(QDBusObjectPath(session_))
         << QVariant::fromValue(QList<PortalShortcut>{shortcut}) << QString();
    request(call, {}, SLOT(bindingAnswered(uint, QVariantMap)));
}

void PortalHotKey::bindingAnswered(uint answer, const QVariantMap&) {
    setState(answer == success ? HotKeyState::active : HotKeyState::unavailable);
}

void PortalHotKey::request(QDBusMessage call, QVariantMap options, const char* answered) {
    const QString token = QStringLiteral("tarvo%1").arg(++requests_);
    bus_.connect(service, requestPath(bus_.baseService(), token), requestInterface, response, this, answered);
    options.insert(QStringLiteral("handle_token"), token);
    call << options;
    auto* sent = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(sent, &QDBusPendingCallWatcher::finished, this, [this, sent] {
        sent->deleteLater();
        if (sent->isError()) setState(HotKeyState::unavailable);
    });
}

void PortalHotKey::activated(const QDBusObjectPath& session, const QString& shortcut, qulonglong,
                             const QVariantMap&) {
    if (session.path() == session_ && shortcut == shortcutID) events_.pressed();
}

void PortalHotKey::setState(HotKeyState state) {
    if (std::exchange(state_, state) != state) events_.stateChanged(state);
}

} // namespace tarvo::desktop
