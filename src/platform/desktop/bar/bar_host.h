#pragma once

#include "platform/desktop/bar/bar_font.h"
#include "platform/desktop/bar/bar_window.h"
#include "platform/desktop/bar/x11_client_watcher.h"
#include "platform/desktop/status_bar_host.h"
#include "platform/desktop/symbols/symbol_images.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace tarvo::desktop {

/// The program's own bar: a dock at the top edge of the primary screen on X11, an ordinary small window
/// elsewhere. It shows everything a status item has.
class BarHost : public QObject, public StatusBarHost {
    Q_OBJECT

public:
    /// `symbols` outlives the host. `closedByUser` runs when the user closes the ordinary window.
    BarHost(SymbolImages& symbols, std::function<void()> closedByUser);
    ~BarHost() override;

    bool tellsPlaces() const override { return docks_; }
    std::unique_ptr<HostedItem> realise(StatusItemModel& model) override;
    const BarWindow& window() const { return *window_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchScreen();
    void placeLater();
    /// Puts the dock under what other programs reserve at the top edge.
    void place();

    SymbolImages& symbols_;
    BarFonts fonts_;
    std::unique_ptr<BarWindow> window_;
    bool docks_ = false;
    bool isToBePlaced_ = false;
    std::optional<X11ClientWatcher> others_;
};

} // namespace tarvo::desktop
