#include "ui/style/typography.h"

#include <QGlyphRun>
#include <QGuiApplication>
#include <QScreen>
#include <QTextLayout>

#include <algorithm>
#include <array>

namespace tarvo::ui {
namespace {

struct Style {
    TextRole role;
    double size;
    QFont::Weight weight;
};

constexpr std::array<Style, 21> styles{{
    {TextRole::axis, 8, QFont::Normal},
    {TextRole::version, 9, QFont::Normal},
    {TextRole::ringDetail, 9, QFont::Normal},
    {TextRole::badge, 9.5, QFont::Bold},
    {TextRole::tileLabel, 9.5, QFont::Medium},
    {TextRole::caption, 10, QFont::Medium},
    {TextRole::sectionCaption, 10, QFont::DemiBold},
    {TextRole::placeholder, 10, QFont::Normal},
    {TextRole::ringTitle, 10, QFont::Medium},
    {TextRole::heroDetail, 10.5, QFont::Normal},
    {TextRole::button, 11, QFont::Medium},
    {TextRole::bannerText, 11.5, QFont::Normal},
    {TextRole::rowLabel, 12, QFont::Medium},
    {TextRole::rowValue, 12, QFont::DemiBold},
    {TextRole::heroTitle, 13, QFont::DemiBold},
    {TextRole::cardTitle, 12, QFont::DemiBold},
    {TextRole::ringValue, 13, QFont::DemiBold},
    {TextRole::bannerTitle, 13, QFont::DemiBold},
    {TextRole::productName, 14, QFont::Bold},
    {TextRole::sectionTitle, 22, QFont::Bold},
    {TextRole::heroValue, 40, QFont::Bold},
}};

constexpr bool tableFollowsTheEnumeration() {
    for (std::size_t index = 0; index < styles.size(); ++index) {
        if (static_cast<std::size_t>(styles[index].role) != index) return false;
    }
    return true;
}
static_assert(tableFollowsTheEnumeration());

// QFont keeps fractions of a size only in points of 1/72 inch.
double pointsPerPixel() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dotsPerInch = screen ? screen->logicalDotsPerInchY() : 96.0;
    return 72.0 / (dotsPerInch > 0 ? dotsPerInch : 96.0);
}

} // namespace

double textSize(TextRole role) {
    return styles[static_cast<std::size_t>(role)].size;
}

QFont textFont(TextRole role, const QFont& base) {
    QFont font = base;
    font.setPointSizeF(textSize(role) * pointsPerPixel());
    font.setWeight(styles[static_cast<std::size_t>(role)].weight);
    return font;
}

bool canShow(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const auto runs = layout.glyphRuns();
    return std::none_of(runs.begin(), runs.end(), [](const QGlyphRun& run) {
        return run.glyphIndexes().contains(0); // the picture of a missing character
    });
}

} // namespace tarvo::ui
