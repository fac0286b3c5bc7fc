#pragma once

#include "ui/detail/sidebar.h"
#include "ui/pages/later.h"
#include "ui/sections/section.h"

#include <QStackedWidget>

#include <array>

namespace tarvo::ui {

/// The content of the detail window: the sidebar and, beside it, the selected section. A section is made when
/// it is first selected and then kept, so that going back to it finds its search, sorting and selection.
class DetailView : public QWidget {
public:
    explicit DetailView(DetailContext context, QWidget* parent = nullptr);

    DetailSection selection() const { return sidebar_->selection(); }
    void select(DetailSection section) { sidebar_->select(section); }
    Sidebar& sidebar() const { return *sidebar_; }
    /// Null while it was never selected.
    Section* section(DetailSection section) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void retranslate();
    void showSection(DetailSection section);

    DetailContext context_;
    Later later_;
    Sidebar* sidebar_;
    QStackedWidget* pages_;
    std::array<Section*, allDetailSections.size()> sections_{};
    Subscription languageSubscription_;
};

} // namespace tarvo::ui
