#pragma once

#include <QCache>
#include <QColor>
#include <QImage>
#include <QString>

#include <string_view>

namespace tarvo::desktop {

/// Pictures of system symbols by their names ("cpu.fill"), each in one colour. Main thread only.
/// symbols.txt is the table of names; nothing of the drawing code is loaded before the first picture is asked
/// for.
class SymbolImages {
public:
    SymbolImages();

    /// A square picture of `size` logical pixels at a device pixel ratio. Null for a name that is not in the
    /// table.
    QImage image(std::string_view name, double size, double ratio, const QColor& color);

private:
    QCache<QString, QImage> images_;
};

/// The symbol in black on a transparent square of `pixels`. Null for a name that is not in the table.
QImage renderSymbol(const QString& name, int pixels);

} // namespace tarvo::desktop
