#pragma once

#include "platform/desktop/status_bar_host.h"
#include "platform/desktop/tray/dbus_menu.h"
#include "platform/desktop/tray/status_notifier_item.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>

namespace tarvo::desktop {

/// One item in the desktop's tray, on a connection to the bus of its own: that is what a tray sees go when
/// the item is removed.
class TrayItem : public HostedItem {
public:
    /// `removed` runs when the item is destroyed.
    TrayItem(StatusItemModel& model, const QString& id, TrayTraits traits, BarFonts& fonts,
             SymbolImages& symbols, std::chrono::milliseconds readingLimit,
             std::function<void(TrayItem&)> removed);
    ~TrayItem() override;
    TrayItem(const TrayItem&) = delete;
    TrayItem& operator=(const TrayItem&) = delete;

    /// Name of the connection that is to be opened for it.
    const QString& connectionName() const { return connectionName_; }
    bool isExported() const { return isExported_; }
    /// The connection is open: puts the item on it.
    void exportTo(QDBusConnection bus);
    /// Tells the tray of the item. `done` runs on the main thread once the tray has replied and read the
    /// picture, which is when trays put an item in its place, and the tray's pause is over; without waiting
    /// longer than a second for the reading.
    void registerItem(std::function<void()> done);

    void changed(StatusItemPart part) override;
    void popUpMenu(const Menu& menu) override;

private:
    void replied(bool isError);
    void pictureRead();
    void waitForPause();
    void finishRegistration();

    QString connectionName_;
    std::function<void(TrayItem&)> removed_;
    std::chrono::milliseconds readingLimit_;
    QObject exported_;
    StatusNotifierItem* notifier_;
    bool isExported_ = false;
    std::function<void()> registrationDone_; ///< empty while none is under way
    bool hasReply_ = false;
    bool isRead_ = false;
    std::chrono::milliseconds pause_;
    QTimer wait_; ///< for the reading, then for the pause after it
};

} // namespace tarvo::desktop
