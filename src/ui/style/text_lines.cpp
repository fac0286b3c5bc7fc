#include "ui/style/text_lines.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>

namespace tarvo::ui {

QStringList textLines(const QString& text, const QFont& font, double width, int limit) {
    QStringList lines;
    if (text.isEmpty()) return lines;
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const bool isLast = lines.size() + 1 == limit;
        const QString rest = text.mid(line.textStart());
        const QString shown = rest.left(line.textLength()).trimmed();
        if (isLast) {
            lines << QFontMetricsF(font).elidedText(rest, Qt::ElideRight, width);
            break;
        }
        lines << shown;
    }
    layout.endLayout();
    return lines;
}

} // namespace tarvo::ui
