#pragma once

#include "platform/desktop/bar/bar_font.h"
#include "platform/desktop/status_bar_host.h"
#include "platform/desktop/symbols/symbol_images.h"
#include "platform/desktop/tray/tray_item.h"
#include "platform/desktop/tray/tray_traits.h"
#include "platform/dispatcher.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QStringList>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace tarvo::desktop {

/// The desktop's own tray, by the StatusNotifierItem protocol. Items appear a moment after they were made:
/// their connections are opened off the main thread, and they are registered one after the other, each when
/// the tray has read the one before, so that they stand in their order.
class TrayHost : public StatusBarHost {
public:
    /// `busAddress` is empty for the session bus, whose services `bus` watches. `readingLimit` is how long
    /// the next item waits at most for the one before. References outlive the host.
    TrayHost(TrayTraits traits, SymbolImages& symbols, Dispatcher& dispatcher, QDBusConnection bus,
             std::string busAddress = {}, std::chrono::milliseconds readingLimit = std::chrono::seconds{1});
    ~TrayHost() override;

    std::unique_ptr<HostedItem> realise(StatusItemModel& model) override;

private:
    void connectNewItems();
    void connected(const QStringList& names);
    void removed(TrayItem& item);
    void registerAll();
    void registerNext();
    TrayItem* find(const QString& connectionName) const;

    TrayTraits traits_;
    SymbolImages& symbols_;
    Dispatcher& dispatcher_;
    QDBusServiceWatcher trays_;
    QString busAddress_;
    std::chrono::milliseconds readingLimit_;
    BarFonts fonts_;
    std::vector<TrayItem*> items_; ///< in order of making
    int made_ = 0;
    QStringList awaitingConnection_;
    QStringList awaitingRegistration_;
    QString registering_;                                  ///< whose registration waits for its reply
    std::shared_ptr<int> alive_ = std::make_shared<int>(); ///< what delayed tasks watch
};

} // namespace tarvo::desktop
