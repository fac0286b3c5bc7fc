#pragma once

#include "ui/controls/activity_indicator.h"
#include "ui/controls/label_button.h"
#include "ui/elements/section_header.h"
#include "ui/elements/text_label.h"
#include "ui/pages/later.h"
#include "ui/sections/detail_context.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::ui {

/// How a section names itself.
struct SectionTitle {
    std::string_view symbol; ///< system symbol name
    Color color;
    LKey title;
};

/// A page of the detail window: a header above its content. It follows the readings, the settings and the
/// language while it is visible, and does nothing while it is not.
class Section : public QWidget {
public:
    Section(DetailContext& context, const SectionTitle& title, QWidget* parent);
    ~Section() override;

    /// What the Refresh button does; nothing in sections without one.
    void reload();

protected:
    /// Brings the content in line with readings, settings and language.
    virtual void refresh() = 0;
    /// The section has come into view.
    virtual void appear() {}

    std::string t(const LKey& key) const { return context_.panel.loc.t(key); }
    QVBoxLayout* column() const { return column_; }
    /// The main reading, at the right of the header.
    void setReading(const std::string& reading) { reading_->setText(reading); }
    /// Adds the Refresh button, with what it does.
    void setReload(std::function<void()> reload);
    /// Shows that a load is under way.
    void setLoading(bool isLoading);
    /// A refresh in the next turn of the loop, if the section is visible then.
    void askForRefresh();
    /// Keeps an observation for the life of the section.
    void keep(Subscription subscription) { subscriptions_.push_back(std::move(subscription)); }

    void showEvent(QShowEvent* event) override;

    DetailContext& context_; // NOLINT: shared with the derived sections on purpose

private:
    QHBoxLayout* makeHeader();
    void observe();
    void refreshAll();

    SectionTitle title_;
    QVBoxLayout* column_;
    SectionHeader* header_;
    TextLabel* reading_;
    ActivityIndicator* activity_;
    LabelButton* refreshButton_;
    std::function<void()> reload_;
    Later later_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tarvo::ui
