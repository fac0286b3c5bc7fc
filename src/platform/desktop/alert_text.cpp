#include "platform/desktop/alert_text.h"

namespace tarvo::desktop {
namespace {

constexpr qsizetype longestText = 1000;
constexpr int longestWord = 40;
constexpr QChar ellipsis(0x2026);
constexpr QChar invisibleBreak(0x200b);

QString shortened(const QString& text) {
    if (text.size() <= longestText) return text;
    const bool splitsPair = text.at(longestText - 1).isHighSurrogate();
    return text.left(longestText - (splitsPair ? 1 : 0)) + ellipsis;
}

} // namespace

QString alertText(const QString& text) {
    QString shown;
    int run = 0;
    for (const QChar character : shortened(text)) {
        if (run >= longestWord && !character.isLowSurrogate()) {
            shown += invisibleBreak;
            run = 0;
        }
        run = character.isSpace() ? 0 : run + 1;
        shown += character;
    }
    return shown;
}

} // namespace tarvo::desktop
