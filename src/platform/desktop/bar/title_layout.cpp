#include "platform/desktop/bar/title_layout.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvo::desktop {

namespace {

struct InlineSymbol {
    char32_t character;
    const char* symbol;
};
constexpr std::array inlineSymbols{InlineSymbol{0x1F50B, "battery.100percent"}};

constexpr double symbolScale = 1.2; ///< a symbol's side against the font's ascent

struct Line {
    std::vector<TitlePiece> pieces;
    double width = 0;
    double ascent = 0;
    double descent = 0;

    void append(TitlePiece piece) {
        piece.origin.setX(width);
        width += piece.width;
        ascent = std::max(ascent, piece.font->ascent());
        descent = std::max(descent, piece.font->descent());
        pieces.push_back(std::move(piece));
    }
};

void appendText(Line& line, const QString& text, const BarFont& font, std::optional<SystemColor> color) {
    if (!text.isEmpty()) line.append({text, {}, &font, color, {}, font.width(text)});
}

/// Splits the text at characters that a symbol has to stand for.
void appendRun(Line& line, QString text, const BarFont& font, std::optional<SystemColor> color) {
    for (const InlineSymbol& each : inlineSymbols) {
        const QString character = QString::fromUcs4(&each.character, 1);
        qsizetype at = text.indexOf(character);
        if (at < 0 || font.canShow(each.character)) continue;
        for (; at >= 0; at = text.indexOf(character)) {
            appendText(line, text.left(at), font, color);
            line.append({{}, each.symbol, &font, color, {}, std::round(font.ascent() * symbolScale)});
            text.remove(0, at + character.size());
        }
    }
    appendText(line, text, font, color);
}

std::vector<Line> splitIntoLines(const AttributedTitle& title, const TextFont& buttonFont, BarFonts& fonts) {
    std::vector<Line> lines(1);
    for (const TextRun& run : title.runs) {
        const BarFont& font = fonts.font(run.font.value_or(buttonFont));
        const QStringList parts = QString::fromStdString(run.text).split(u'\n');
        for (qsizetype index = 0; index < parts.size(); ++index) {
            if (index > 0) lines.emplace_back();
            appendRun(lines.back(), parts[index], font, run.color);
        }
    }
    return lines;
}

} // namespace

TitleLayout layoutTitle(const AttributedTitle& title, const TextFont& buttonFont, BarFonts& fonts) {
    TitleLayout layout;
    std::vector<Line> lines = splitIntoLines(title, buttonFont, fonts);
    for (const Line& line : lines)
        layout.size.setWidth(std::max(layout.size.width(), line.width));
    double top = 0;
    for (Line& line : lines) {
        const double natural = line.ascent + line.descent;
        const double height = std::min(natural, title.maximumLineHeight.value_or(natural));
        const double base = std::round(top + (height - natural) / 2 + line.ascent);
        const double left = title.centred ? (layout.size.width() - line.width) / 2 : 0;
        for (TitlePiece& piece : line.pieces) {
            piece.origin = {left + piece.origin.x(), base};
            layout.pieces.push_back(std::move(piece));
        }
        top += height;
    }
    layout.size.setHeight(top);
    return layout;
}

QString withRoomForNumbers(const QString& text) {
    static const QRegularExpression lonePercent(QStringLiteral("(?<![0-9])[0-9](?=%)"));
    static const QRegularExpression rate(QStringLiteral("[0-9]+\\.[0-9] [KMG]?B/s"));
    QString widest = text;
    widest.replace(lonePercent, QStringLiteral("00"));
    widest.replace(rate, QStringLiteral("000.0 MB/s"));
    return widest;
}

double ReservedWidth::fit(const AttributedTitle& title, const TitleLayout& layout, const TextFont& buttonFont,
                          BarFonts& fonts) {
    AttributedTitle widest = title;
    qsizetype parts = title.runs.empty() ? 0 : 1;
    for (TextRun& run : widest.runs) {
        const QString text = QString::fromStdString(run.text);
        parts += text.count(QStringLiteral(" · ")) + text.count(u'\n');
        run.text = withRoomForNumbers(text).toStdString();
    }
    if (parts != parts_) width_ = 0;
    parts_ = parts;
    const double roomy =
        widest == title ? layout.size.width() : layoutTitle(widest, buttonFont, fonts).size.width();
    width_ = std::max({width_, layout.size.width(), roomy});
    return width_;
}

} // namespace tarvo::desktop
