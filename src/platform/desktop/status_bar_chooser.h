#pragma once

#include "platform/desktop/null_host.h"
#include "platform/desktop/portable_status_item.h"
#include "platform/desktop/status_bar_choice.h"
#include "platform/desktop/tray_watcher.h"
#include "platform/dispatcher.h"
#include "platform/status_bar.h"

#include <functional>
#include <memory>
#include <vector>

namespace tarvo::desktop {

/// How hosts are made. A function may answer null where its host cannot work.
struct StatusBarHosts {
    std::function<std::unique_ptr<StatusBarHost>()> makeBar;
    std::function<std::unique_ptr<StatusBarHost>(const std::string& trayProcess)> makeTray;
};

/// The status bar of this session: puts the items where the user and the desktop want them, and moves them
/// when that changes. Outlives its items. Main thread only.
class StatusBarChooser : public StatusBar {
public:
    /// A desktop that has not answered by then is taken to have no tray.
    static constexpr std::chrono::milliseconds answerTimeout{1000};
    /// A tray that vanished may be restarting: the items come back to it without a detour over the bar.
    static constexpr std::chrono::milliseconds vanishedGrace{2000};

    /// References outlive the chooser. `wish` is asked at each choice.
    StatusBarChooser(TrayWatcher& watcher, StatusBarHosts hosts, Dispatcher& dispatcher,
                     std::function<StatusBarWish()> wish);
    ~StatusBarChooser() override;

    std::unique_ptr<StatusItem> makeItem() override;
    bool tellsPlaces() const override { return host_->tellsPlaces(); }

    /// To be called when the wish may have changed.
    void wishChanged() { choose(); }
    StatusBarKind kind() const { return kind_; }

    /// Called after the items moved to another host.
    std::function<void()> hostChanged;

private:
    void trayChanged();
    void considerLater(std::chrono::milliseconds delay);
    void choose();
    void moveAll(StatusBarKind kind);
    std::unique_ptr<StatusBarHost> makeHost(StatusBarKind kind);

    TrayWatcher& watcher_;
    StatusBarHosts hosts_;
    Dispatcher& dispatcher_;
    std::function<StatusBarWish()> wish_;
    TrayState tray_ = TrayState::unknown; ///< the watcher's state as far as it is believed
    std::string trayProcess_;             ///< that the present tray host was made for
    StatusBarKind kind_ = StatusBarKind::none;
    std::unique_ptr<StatusBarHost> host_ = std::make_unique<NullHost>();
    std::vector<PortableStatusItem*> items_;
    std::shared_ptr<int> alive_ = std::make_shared<int>(); ///< what delayed tasks watch
};

} // namespace tarvo::desktop
