// What the detail window says of recorded machines, word for word. The expected texts stand in
// sections/<machine>.txt.

#include "recorded_detail.h"

#include "platform/iso8601.h"
#include "ui/detail/overview_history_card.h"
#include "ui/sections/history_section.h"
#include "ui/sections/table_section.h"
#include "ui/shown_texts.h"
#include "ui/table_texts.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace tarvo {
namespace {

using ui::DetailSection;

constexpr long recordedPageSize = 4096;

std::string expectedTexts(const std::string& machine) {
    std::ifstream file(std::string(TARVO_EXPECTED_SECTIONS) + "/" + machine + ".txt");
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

// Where the texts are renewed instead of compared, see docs/testing.md.
void writeTexts(const std::string& folder, const std::string& machine, const std::string& texts) {
    std::ofstream(folder + "/" + machine + ".txt") << texts;
}

// The sizes of disks are those of the computer that runs the test; the lines of elements without words are
// left out.
std::string comparable(const std::string& texts) {
    QString text = QString::fromStdString(texts);
    text.replace(QRegularExpression(QStringLiteral("^(Free|/|[a-z]+) \\d+ / \\d+ GB$"),
                                    QRegularExpression::MultilineOption),
                 QStringLiteral("\\1 (size)"));
    return text.replace(QRegularExpression(QStringLiteral("\n\n+")), QStringLiteral("\n")).toStdString();
}

// The dates of alerts are written as this computer writes them.
void writeDatesPlainly(std::string& texts, const std::vector<AlertLogEntry>& alerts) {
    for (const AlertLogEntry& alert : alerts) {
        const std::string shown = ui::alertDateText(alert.date);
        const auto place = texts.find(alert.body + ", " + shown);
        if (place == std::string::npos) continue;
        texts.replace(place + alert.body.size() + 2, shown.size(), formatISO8601(alert.date));
    }
}

template <typename Wanted>
Wanted* findElement(const QWidget& below) {
    for (QWidget* widget : below.findChildren<QWidget*>()) {
        if (auto* const found = dynamic_cast<Wanted*>(widget)) return found;
    }
    return nullptr;
}

// How much of the history the graph has in each of its ranges: its drawing has no words for that.
std::string graphTexts(const QWidget& overview) {
    auto* const card = findElement<ui::OverviewHistoryCard>(overview);
    const auto* const chart = findElement<ui::DayHistoryChart>(overview);
    if (!card || !chart) return "no graph\n";
    std::ostringstream text;
    text << "graph of";
    for (const HistoryRange range : {HistoryRange::twoWeeks, HistoryRange::week, HistoryRange::day}) {
        card->setRange(range);
        text << ' ' << chart->fields().samples.size();
    }
    return text.str() + " samples\n";
}

class RecordedSections : public testing::TestWithParam<const char*> {
protected:
    std::string texts(ui::DetailView& view, DetailSection section) {
        machine.showSection(view, section);
        const ui::Section* const page = view.section(section);
        std::string said = "== " + std::string(identifier(section)) + "\n" + ui::shownTexts(*page) + "\n";
        if (const auto* const table = dynamic_cast<const ui::TableSection*>(page))
            said += ui::tableText(*table->table().model());
        if (section == DetailSection::overview) said += graphTexts(*page);
        return said;
    }

    RecordedDetail machine{GetParam()};
};

TEST_P(RecordedSections, SayWhatTheMachineTells) {
    if (::sysconf(_SC_PAGESIZE) != recordedPageSize) GTEST_SKIP() << "pages of another size than recorded";
    ui::DetailView view(machine.context());
    view.resize(980, 640);
    view.show();
    std::string said;
    for (const DetailSection section : ui::allDetailSections)
        said += texts(view, section);
    writeDatesPlainly(said, AlertLogStore::shared().entries());
    if (const char* folder = std::getenv("TARVO_RENEWED_SECTIONS")) {
        writeTexts(folder, GetParam(), comparable(said));
        GTEST_SKIP() << "written to " << folder << ", not compared";
    }
    EXPECT_EQ(comparable(said), expectedTexts(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Machines, RecordedSections,
                         testing::Values("laptop-intel-hybrid", "desktop-amd-two-gpus", "raspberrypi5",
                                         "vm-empty"),
                         [](const auto& machine) {
                             std::string name = machine.param;
                             std::erase(name, '-');
                             return name;
                         });

} // namespace
} // namespace tarvo
