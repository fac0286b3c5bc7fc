// What the detail window leaves behind on the heap when it closes.
#include "support/c_library_heap.h"
#include "ui/detail/detail_view.h"
#include "ui/detail_fixture.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

constexpr int rounds = 10;

// Opens the window on long tables, goes through every section and closes it.
void openWalkAndClose(DetailParts& parts) {
    DetailView view(parts.detail());
    view.resize(980, 640);
    view.show();
    for (const DetailSection section : allDetailSections) {
        view.select(section);
        parts.dispatcher.runAll();
        QApplication::processEvents();
        view.grab();
    }
}

} // namespace

TEST(DetailMemory, ComesBackToWithinFivePercentAfterEachOfTenRounds) {
    if (!heapInUse()) GTEST_SKIP() << "this heap is not the C library's";
    DetailParts parts;
    for (int index = 0; index < 500; ++index)
        parts.processes.push_back({index + 10'000, "process-" + std::to_string(index), 1, 1});
    parts.publish(laptopSnapshot());
    openWalkAndClose(parts); // fonts, symbols and styles are there for good from now on
    QApplication::processEvents();
    const auto before = static_cast<double>(*heapInUse());
    for (int round = 1; round <= rounds; ++round) {
        openWalkAndClose(parts);
        QApplication::processEvents();
        EXPECT_LT(static_cast<double>(*heapInUse()), before * 1.05) << "round " << round;
    }
}

} // namespace tarvo::ui
