#include "ui/cards/network_card.h"

#include "readers/format_bytes_per_second.h"

namespace tarvo::ui {

NetworkCard::NetworkCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), download_(add(new StatRow)), upload_(add(new StatRow)), total_(add(new StatRow)),
      localIP_(add(new StatRow)), publicIP_(add(new StatRow)), wifi_(add(new StatRow)) {
    column()->setSpacing(0);
}

void NetworkCard::show(const StatsSnapshot& snapshot) {
    download_->set({"arrow.down.circle.fill", colors::blue, t({.cs = "Stahování", .en = "Download"}),
                    formatBytesPerSecond(snapshot.netInRate), colors::primary});
    upload_->set({"arrow.up.circle.fill", colors::green, t({.cs = "Odesílání", .en = "Upload"}),
                  formatBytesPerSecond(snapshot.netOutRate), colors::primary});
    total_->set({"arrow.up.arrow.down.circle.fill", colors::gray,
                 t({.cs = "Celkem přeneseno", .en = "Total Transferred"}),
                 gigabytes(snapshot.totalNetIn + snapshot.totalNetOut), colors::primary});
    showAddresses(snapshot);
    setShown(wifi_, context_.settings.wifiSSIDEnabled());
    wifi_->set({"wifi", colors::blue, t({.cs = "Wi-Fi síť", .en = "Wi-Fi Network"}),
                snapshot.wifiSSID.value_or(std::string(unavailable)), colors::primary});
}

void NetworkCard::showAddresses(const StatsSnapshot& snapshot) {
    const bool shown = context_.settings.boolean(keys::showIPs);
    setShown(localIP_, shown);
    setShown(publicIP_, shown);
    localIP_->set({"house.fill", colors::indigo, t({.cs = "Lokální IP", .en = "Local IP"}),
                   snapshot.localIP.value_or(std::string(unavailable)), colors::primary});
    publicIP_->set({"globe", colors::teal, t({.cs = "Veřejná IP", .en = "Public IP"}),
                    snapshot.publicIP.value_or(std::string(unavailable)), colors::primary});
}

} // namespace tarvo::ui
