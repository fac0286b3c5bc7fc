// What the detail window says of recorded machines, word for word: every section that has readings in a
// recording, so not the tables and the log. The expected texts stand in sections/<machine>.txt.

#include "detail.h"

#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"
#include "support/recorded_machine.h"
#include "ui/detail/detail_view.h"
#include "ui/shown_texts.h"

#include <QApplication>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace tarvo {
namespace {

using ui::DetailSection;

constexpr std::array sectionsWithReadings{
    DetailSection::overview, DetailSection::cpu,       DetailSection::memory, DetailSection::battery,
    DetailSection::disk,     DetailSection::bluetooth, DetailSection::sensors};

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

class RecordedSections : public testing::TestWithParam<const char*> {
protected:
    RecordedSections() {
        model->setDetailVisible(true);
        model->start();
        dispatcher.runAll();
        recorded.letTimePass();
        dispatcher.advance(std::chrono::seconds(2)); // one tick, which sees what has changed since
    }

    std::string texts(ui::DetailView& view, DetailSection section) {
        view.select(section);
        dispatcher.runAll();
        QApplication::processEvents();
        return "== " + std::string(identifier(section)) + "\n" + ui::shownTexts(*view.section(section)) +
               "\n";
    }

    RecordedMachine recorded{GetParam()};
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    MemoryPreferenceStore store;
    Settings settings{store};
    LocalizationManager loc{store, "en"};
    NotificationCenter notifications;
    ui::AppIconCache icons{{}};
    Machine machine{{.root = recorded.root()}, clock, dispatcher};
    Bluetooth bluetooth{bluetoothBus(recorded.root()), recorded.root(), dispatcher};
    std::shared_ptr<StatsModel> model =
        StatsModel::make(settings, clock, dispatcher, machine.readers(), nullptr);
};

TEST_P(RecordedSections, SayWhatTheMachineTells) {
    ui::PanelContext panel{*model, settings, loc, notifications, icons, SystemFamily::other, "v1"};
    ui::DetailContext context = detailContext(panel, machine, bluetooth, dispatcher);
    context.alerts = {};
    ui::DetailView view(std::move(context));
    view.resize(980, 640);
    view.show();
    std::string said;
    for (const DetailSection section : sectionsWithReadings)
        said += texts(view, section);
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
