#include "platform/desktop/tray/tray_host.h"

#include "platform/desktop/tray/status_notifier_names.h"

#include <algorithm>
#include <utility>

namespace tarvo::desktop {

namespace {

void openConnection(const QString& address, const QString& name) {
    if (address.isEmpty()) {
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    } else {
        QDBusConnection::connectToBus(address, name);
    }
}

} // namespace

TrayHost::TrayHost(TrayTraits traits, SymbolImages& symbols, Dispatcher& dispatcher, QDBusConnection bus,
                   std::string busAddress, std::chrono::milliseconds readingLimit)
    : traits_(traits), symbols_(symbols), dispatcher_(dispatcher),
      trays_(sni::watcherService, bus, QDBusServiceWatcher::WatchForRegistration),
      busAddress_(QString::fromStdString(busAddress)), readingLimit_(readingLimit) {
    QObject::connect(&trays_, &QDBusServiceWatcher::serviceRegistered, &trays_, [this] { registerAll(); });
}

TrayHost::~TrayHost() = default;

std::unique_ptr<HostedItem> TrayHost::realise(StatusItemModel& model) {
    const QString id = QStringLiteral("tarvo-%1").arg(++made_);
    auto item = std::make_unique<TrayItem>(model, id, traits_, fonts_, symbols_, readingLimit_,
                                           [this](TrayItem& gone) { removed(gone); });
    items_.push_back(item.get());
    if (awaitingConnection_.isEmpty()) {
        dispatcher_.async([this, alive = std::weak_ptr<int>(alive_)] {
            if (!alive.expired()) connectNewItems();
        });
    }
    awaitingConnection_.append(item->connectionName());
    return item;
}

void TrayHost::connectNewItems() {
    const QStringList names = std::exchange(awaitingConnection_, {});
    dispatcher_.global(QualityOfService::userInitiated, [this, alive = std::weak_ptr<int>(alive_), names,
                                                         address = busAddress_, &dispatcher = dispatcher_] {
        for (const QString& name : names)
            openConnection(address, name);
        dispatcher.async([this, alive, names] {
            if (!alive.expired()) {
                connected(names);
            } else {
                for (const QString& name : names)
                    QDBusConnection::disconnectFromBus(name);
            }
        });
    });
}

void TrayHost::connected(const QStringList& names) {
    for (const QString& name : names) {
        TrayItem* item = find(name);
        if (item) item->exportTo(QDBusConnection(name));
        if (item && item->isExported()) {
            awaitingRegistration_.append(name);
        } else {
            QDBusConnection::disconnectFromBus(name);
        }
    }
    registerNext();
}

void TrayHost::removed(TrayItem& item) {
    std::erase(items_, &item);
    if (registering_ != item.connectionName()) return;
    registering_.clear();
    registerNext();
}

// The tray came back and knows nobody.
void TrayHost::registerAll() {
    awaitingRegistration_.clear();
    for (const TrayItem* item : items_) {
        if (item->isExported()) awaitingRegistration_.append(item->connectionName());
    }
    registerNext();
}

void TrayHost::registerNext() {
    if (!registering_.isEmpty() || awaitingRegistration_.isEmpty()) return;
    registering_ = traits_.reversed ? awaitingRegistration_.takeLast() : awaitingRegistration_.takeFirst();
    const auto done = [this, alive = std::weak_ptr<int>(alive_)] {
        if (alive.expired()) return;
        registering_.clear();
        registerNext();
    };
    if (TrayItem* item = find(registering_)) {
        item->registerItem(done);
    } else {
        done();
    }
}

TrayItem* TrayHost::find(const QString& connectionName) const {
    const auto item = std::find_if(items_.begin(), items_.end(), [&](const TrayItem* each) {
        return each->connectionName() == connectionName;
    });
    return item == items_.end() ? nullptr : *item;
}

} // namespace tarvo::desktop
