#include "platform/desktop/theme_icon.h"

#include <QFileInfo>

namespace tarvo::desktop {
namespace {

// Some desktop files name a theme's icon together with a file suffix.
QString withoutSuffix(const QString& name) {
    for (const QLatin1String suffix : {QLatin1String(".png"), QLatin1String(".svg"), QLatin1String(".xpm")}) {
        if (name.endsWith(suffix)) return name.chopped(suffix.size());
    }
    return name;
}

} // namespace

std::optional<QIcon> themeIcon(const std::string& nameOrPath) {
    const QString name = QString::fromStdString(nameOrPath);
    QIcon icon;
    if (!name.startsWith(QLatin1Char('/'))) {
        icon = QIcon::fromTheme(withoutSuffix(name));
    } else if (QFileInfo(name).isFile()) {
        icon = QIcon(name);
    }
    if (icon.isNull() || icon.availableSizes().isEmpty()) return std::nullopt;
    return icon;
}

} // namespace tarvo::desktop
