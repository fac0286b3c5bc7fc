#include "platform/desktop/status_bar_chooser.h"

#include "platform/desktop/logging.h"

#include <algorithm>
#include <utility>

namespace tarvo::desktop {

namespace {

const char* nameOf(StatusBarKind kind) {
    switch (kind) {
    case StatusBarKind::none:
        return "none";
    case StatusBarKind::tray:
        return "tray";
    case StatusBarKind::bar:
        return "bar";
    }
    return "";
}

} // namespace

StatusBarChooser::StatusBarChooser(TrayWatcher& watcher, StatusBarHosts hosts, Dispatcher& dispatcher,
                                   std::function<StatusBarWish()> wish)
    : watcher_(watcher), hosts_(std::move(hosts)), dispatcher_(dispatcher), wish_(std::move(wish)),
      tray_(watcher.state()) {
    watcher_.changed = [this] { trayChanged(); };
    choose();
    if (kind_ == StatusBarKind::none) considerLater(answerTimeout);
}

StatusBarChooser::~StatusBarChooser() {
    watcher_.changed = nullptr;
}

std::unique_ptr<StatusItem> StatusBarChooser::makeItem() {
    auto item = std::make_unique<PortableStatusItem>(
        [this](PortableStatusItem& removed) { std::erase(items_, &removed); });
    items_.push_back(item.get());
    item->moveTo(*host_);
    return item;
}

void StatusBarChooser::trayChanged() {
    if (watcher_.state() != TrayState::present && tray_ == TrayState::present) {
        considerLater(vanishedGrace);
        return;
    }
    tray_ = watcher_.state();
    choose();
}

// What is not known by then counts as absent.
void StatusBarChooser::considerLater(std::chrono::milliseconds delay) {
    dispatcher_.after(delay, [this, alive = std::weak_ptr<int>(alive_)] {
        if (alive.expired()) return;
        tray_ = watcher_.state() == TrayState::present ? TrayState::present : TrayState::absent;
        choose();
    });
}

void StatusBarChooser::choose() {
    const StatusBarKind kind = chooseStatusBar(wish_(), tray_);
    const bool sameTray = kind != StatusBarKind::tray || trayProcess_ == watcher_.hostProcess();
    if (kind != kind_ || !sameTray) moveAll(kind);
}

void StatusBarChooser::moveAll(StatusBarKind kind) {
    trayProcess_ = watcher_.hostProcess();
    std::unique_ptr<StatusBarHost> next = makeHost(kind);
    if (!next) next = std::make_unique<NullHost>();
    for (PortableStatusItem* item : items_)
        item->moveTo(*next);
    host_ = std::move(next);
    kind_ = kind;
    qCDebug(statusBarLog) << "host" << nameOf(kind) << trayProcess_.c_str();
    if (hostChanged) hostChanged();
}

std::unique_ptr<StatusBarHost> StatusBarChooser::makeHost(StatusBarKind kind) {
    switch (kind) {
    case StatusBarKind::tray:
        return hosts_.makeTray(trayProcess_);
    case StatusBarKind::bar:
        return hosts_.makeBar();
    case StatusBarKind::none:
        break;
    }
    return nullptr;
}

} // namespace tarvo::desktop
