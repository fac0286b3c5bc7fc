#include "platform/desktop/tray/tray_tool_tip.h"

namespace tarvo::desktop {

QString escapedMarkup(const std::string& plain) {
    QString text = QString::fromStdString(plain);
    text.replace(u'&', QStringLiteral("&amp;"));
    text.replace(u'<', QStringLiteral("&lt;"));
    text.replace(u'>', QStringLiteral("&gt;"));
    return text;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.iconPixmaps << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.iconPixmaps >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

} // namespace tarvo::desktop
