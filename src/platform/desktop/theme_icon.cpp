#include "platform/desktop/theme_icon.h"

#include <QFileInfo>
#include <QPixmap>

namespace tarvo::desktop {
namespace {

// Some desktop files name a theme's icon together with a file suffix.
QString withoutSuffix(const QString& name) {
    for (const QLatin1String suffix : {QLatin1String(".png"), QLatin1String(".svg"), QLatin1String(".xpm")}) {
        if (name.endsWith(suffix)) return name.chopped(suffix.size());
    }
    return name;
}

std::optional<QIcon> pictureIcon(const IconPicture& picture) {
    QPixmap pixmap;
    const auto* const bytes = reinterpret_cast<const uchar*>(picture.png.data());
    if (!pixmap.loadFromData(bytes, static_cast<uint>(picture.png.size()), "PNG")) return std::nullopt;
    return QIcon(pixmap);
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

std::optional<QIcon> applicationIcon(const ProcessIcon& icon) {
    if (const auto* const picture = std::get_if<IconPicture>(&icon)) return pictureIcon(*picture);
    return themeIcon(std::get<NamedIcon>(icon).nameOrPath);
}

} // namespace tarvo::desktop
