#include "ui/detail/detail_section.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvo::ui {

TEST(DetailSection, HasItsSymbolsAndLabelsInOrder) {
    std::string table;
    for (const DetailSection section : allDetailSections) {
        const LKey name = label(section);
        table += std::string(identifier(section)) + " " + std::string(symbolName(section)) + " " +
                 std::string(name.en) + "/" + std::string(name.cs) + "\n";
    }
    EXPECT_EQ(table, "overview square.grid.2x2.fill Overview/Přehled\n"
                     "cpu cpu.fill CPU/CPU\n"
                     "memory memorychip.fill Memory/Paměť\n"
                     "battery battery.100percent Battery/Baterie\n"
                     "disk internaldrive.fill Disks/Disky\n"
                     "network network Network/Síť\n"
                     "bluetooth dot.radiowaves.left.and.right Bluetooth/Bluetooth\n"
                     "sensors thermometer.medium Sensors/Senzory\n"
                     "processes list.bullet.rectangle.fill Processes/Procesy\n"
                     "history clock.arrow.circlepath History/Historie\n");
}

TEST(DetailSection, HasItsColours) {
    const std::array expected{colors::blue, colors::blue, colors::purple, colors::green, colors::indigo,
                              colors::teal, colors::blue, colors::orange, colors::pink,  colors::gray};
    for (std::size_t index = 0; index < expected.size(); ++index)
        EXPECT_EQ(color(allDetailSections[index]), expected[index]) << index;
}

} // namespace tarvo::ui
