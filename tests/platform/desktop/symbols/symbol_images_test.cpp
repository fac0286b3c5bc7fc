#include "platform/desktop/symbols/symbol_images.h"

#include "platform/desktop/symbols/drawn_symbols.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <gmock/gmock.h>

#include <array>

namespace tarvo::desktop {
namespace {

constexpr std::array moduleSymbols{"cpu.fill",           "memorychip.fill",    "battery.100percent",
                                   "thermometer.medium", "internaldrive.fill", "network"};

/// The rows of the table: name and where its picture comes from.
QList<QStringList> table() {
    QFile file(QStringLiteral(TARVO_SYMBOL_TABLE));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QList<QStringList> rows;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (!line.isEmpty() && !line.startsWith('#')) rows.append(QString::fromUtf8(line).split(u' '));
    }
    return rows;
}

int inkedPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 100 ? 1 : 0;
    }
    return count;
}

TEST(SymbolImages, EveryNameOfTheTableShowsSomethingAndLeavesSomethingFree) {
    const auto rows = table();
    ASSERT_GE(rows.size(), 60);
    for (const QStringList& row : rows) {
        const QImage image = renderSymbol(row[0], 32);
        ASSERT_FALSE(image.isNull()) << row[0].toStdString();
        EXPECT_GE(inkedPixels(image), 40) << row[0].toStdString();
        EXPECT_LE(inkedPixels(image), 1000) << row[0].toStdString();
    }
}

TEST(SymbolImages, TheTableNamesExactlyWhatIsEmbeddedAndDrawn) {
    QStringList embedded;
    QStringList drawn;
    for (const QStringList& row : table())
        (row[1] == "drawn" ? drawn : embedded).append(row[0]);
    QStringList present = QDir(QStringLiteral(":/symbols")).entryList();
    QStringList drawable = drawnSymbolNames();
    for (QStringList* list : {&embedded, &drawn, &present, &drawable})
        list->sort();
    EXPECT_EQ(embedded, present);
    EXPECT_EQ(drawn, drawable);
}

TEST(SymbolImages, NoTwoModulesLookTheSame) {
    for (const int pixels : {15, 16, 30}) {
        for (std::size_t one = 0; one < moduleSymbols.size(); ++one) {
            for (std::size_t other = one + 1; other < moduleSymbols.size(); ++other) {
                EXPECT_NE(renderSymbol(moduleSymbols[one], pixels),
                          renderSymbol(moduleSymbols[other], pixels))
                    << moduleSymbols[one] << " and " << moduleSymbols[other];
            }
        }
    }
}

TEST(SymbolImages, BatteriesFillWithTheirLevel) {
    const QStringList levels{"battery.0percent", "battery.25percent", "battery.50percent",
                             "battery.75percent", "battery.100percent"};
    for (qsizetype level = 1; level < levels.size(); ++level) {
        EXPECT_GT(inkedPixels(renderSymbol(levels[level], 32)),
                  inkedPixels(renderSymbol(levels[level - 1], 32)));
    }
}

TEST(SymbolImages, AnUnknownNameHasNoPicture) {
    SymbolImages symbols;
    EXPECT_TRUE(symbols.image("no.such.symbol", 16, 1, Qt::black).isNull());
    EXPECT_TRUE(symbols.image("", 16, 1, Qt::black).isNull());
}

TEST(SymbolImages, IsRenderedAtTheScreensOwnPixels) {
    SymbolImages symbols;
    const QImage image = symbols.image("cpu.fill", 15, 2, Qt::black);
    EXPECT_EQ(image.size(), QSize(30, 30));
    EXPECT_DOUBLE_EQ(image.devicePixelRatio(), 2);
    EXPECT_EQ(image.deviceIndependentSize(), QSizeF(15, 15));
}

TEST(SymbolImages, HasTheColourThatWasAskedFor) {
    SymbolImages symbols;
    const QImage image = symbols.image("battery.100percent", 32, 1, QColor(10, 200, 30));
    EXPECT_EQ(image.pixelColor(12, 16), QColor(10, 200, 30));
    EXPECT_EQ(symbols.image("battery.100percent", 32, 1, Qt::red).pixelColor(12, 16), QColor(Qt::red));
}

TEST(SymbolImages, IsDrawnOnceForEachSizeRatioAndColour) {
    SymbolImages symbols;
    const qint64 first = symbols.image("cpu.fill", 16, 1, Qt::black).cacheKey();
    EXPECT_EQ(symbols.image("cpu.fill", 16, 1, Qt::black).cacheKey(), first);
    EXPECT_NE(symbols.image("cpu.fill", 16, 2, Qt::black).cacheKey(), first);
    EXPECT_NE(symbols.image("cpu.fill", 16, 1, Qt::red).cacheKey(), first);
    EXPECT_NE(symbols.image("network", 16, 1, Qt::black).cacheKey(), first);
}

} // namespace
} // namespace tarvo::desktop
