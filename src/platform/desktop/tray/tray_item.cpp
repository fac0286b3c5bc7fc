#include "platform/desktop/tray/tray_item.h"

#include "platform/desktop/status_menu.h"
#include "platform/desktop/tray/status_notifier_names.h"

#include <QCursor>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QUuid>

#include <utility>

namespace tarvo::desktop {

namespace {

constexpr int timeoutMilliseconds = 5000;
const QString itemPath = QStringLiteral("/StatusNotifierItem");

} // namespace

TrayItem::TrayItem(StatusItemModel& model, const QString& id, TrayTraits traits, BarFonts& fonts,
                   SymbolImages& symbols, std::chrono::milliseconds readingLimit,
                   std::function<void(TrayItem&)> removed)
    : connectionName_(QUuid::createUuid().toString()), removed_(std::move(removed)),
      readingLimit_(readingLimit),
      notifier_(new StatusNotifierItem(&exported_, model, id, traits, fonts, symbols)), pause_(traits.pause) {
    new DBusMenu(&exported_, [&model] { return model.contextMenu(); });
    wait_.setSingleShot(true);
    QObject::connect(&wait_, &QTimer::timeout, &exported_, [this] { finishRegistration(); });
    // The answer with the picture leaves first.
    notifier_->pictureRead = [this] {
        if (registrationDone_)
            QMetaObject::invokeMethod(
                &exported_, [this] { pictureRead(); }, Qt::QueuedConnection);
    };
}

TrayItem::~TrayItem() {
    if (isExported_) QDBusConnection::disconnectFromBus(connectionName_);
    removed_(*this);
}

// One object serves both interfaces, under two paths.
void TrayItem::exportTo(QDBusConnection bus) {
    isExported_ =
        bus.registerObject(itemPath, &exported_) && bus.registerObject(notifier_->menu().path(), &exported_);
}

void TrayItem::registerItem(std::function<void()> done) {
    auto message =
        QDBusMessage::createMethodCall(sni::watcherService, sni::watcherPath, sni::watcherInterface,
                                       QStringLiteral("RegisterStatusNotifierItem"));
    message.setAutoStartService(false);
    message << itemPath;
    registrationDone_ = std::move(done);
    hasReply_ = false;
    isRead_ = false;
    const QDBusPendingCall call = QDBusConnection(connectionName_).asyncCall(message, timeoutMilliseconds);
    auto* pending = new QDBusPendingCallWatcher(call, &exported_);
    QObject::connect(pending, &QDBusPendingCallWatcher::finished, &exported_, [this, pending] {
        pending->deleteLater();
        replied(pending->isError());
    });
}

void TrayItem::replied(bool isError) {
    hasReply_ = true;
    if (isError) return finishRegistration();
    if (isRead_) return waitForPause();
    wait_.start(readingLimit_);
}

void TrayItem::pictureRead() {
    isRead_ = true;
    if (hasReply_) waitForPause();
}

// Begins anew with each reading.
void TrayItem::waitForPause() {
    if (registrationDone_) wait_.start(pause_);
}

void TrayItem::finishRegistration() {
    wait_.stop();
    if (const auto done = std::exchange(registrationDone_, {})) done();
}

void TrayItem::changed(StatusItemPart part) {
    if (part == StatusItemPart::toolTip) {
        notifier_->toolTipChanged();
    } else {
        notifier_->faceChanged();
    }
}

// Reached only through hosts that do not open the menu themselves.
void TrayItem::popUpMenu(const Menu& menu) {
    (new StatusMenu(menu))->popup(QCursor::pos());
}

} // namespace tarvo::desktop
