#include "platform/desktop/appearance/dark_palette.h"

#include "platform/desktop/system_palette.h"

#include <QApplication>

namespace tarvo::desktop {

namespace {

constexpr QRgb windowColor = 0xff2b2d31;
constexpr QRgb baseColor = 0xff1f2124;
constexpr QRgb buttonColor = 0xff3a3d42;
constexpr QRgb textColor = 0xfff2f2f2;
constexpr QRgb faintColor = 0xff8d9096;
constexpr QRgb accentColor = 0xff2f6fd6;
constexpr QRgb linkColor = 0xff7ab4ff;

void setDisabledText(QPalette& palette) {
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(faintColor));
}

} // namespace

QPalette darkPalette() {
    // The toolkit derives frames and shadows from the button's colour and the window's.
    QPalette palette{QColor(buttonColor), QColor(windowColor)};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText,
                            QPalette::HighlightedText, QPalette::ToolTipText})
        palette.setColor(role, QColor(textColor));
    palette.setColor(QPalette::Base, QColor(baseColor));
    palette.setColor(QPalette::AlternateBase, QColor(windowColor));
    palette.setColor(QPalette::ToolTipBase, QColor(buttonColor));
    palette.setColor(QPalette::PlaceholderText, QColor(faintColor));
    palette.setColor(QPalette::Highlight, QColor(accentColor));
    palette.setColor(QPalette::Link, QColor(linkColor));
    palette.setColor(QPalette::LinkVisited, QColor(linkColor));
    setDisabledText(palette);
    return palette;
}

void followColorScheme(bool prefersDark) {
    // A palette that sets nothing brings the toolkit's own back.
    QApplication::setPalette(QPalette());
    if (prefersDark && !isDark(QApplication::palette())) QApplication::setPalette(darkPalette());
}

} // namespace tarvo::desktop
