#include "ui/cards/update_banner.h"

namespace tarvo::ui {

UpdateBanner::UpdateBanner(PanelContext& context, QWidget* parent)
    : Card(context, parent), title_(add(new TextLabel)), text_(add(new TextLabel)),
      download_(add(new LabelButton("arrow.down.circle.fill", colors::blue))) {
    download_->setProminent(true);
    connect(download_, &QAbstractButton::clicked, this, [this] {
        const auto& update = context_.availableUpdate->get();
        if (update && context_.openLink) context_.openLink(update->url);
    });
}

void UpdateBanner::show(const StatsSnapshot&) {
    const auto& update = context_.availableUpdate->get();
    if (!update) return;
    title_->set(
        {t({.cs = "Nová verze", .en = "New version"}) + " " + update->version, TextRole::bannerTitle});
    TextLabelFields text{t({.cs = "K dispozici je novější verze ke stažení.",
                            .en = "A newer version is available to download."}),
                         TextRole::bannerText, colors::secondary};
    text.wraps = true;
    text_->set(text);
    download_->setName(t({.cs = "Stáhnout", .en = "Download"}));
}

} // namespace tarvo::ui
