#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

namespace tarvo::desktop {

/// The symbols that the icon set does not have, drawn in black on a transparent square of `pixels`.
/// Null for a name that is not drawn here.
QImage drawSymbol(const QString& name, int pixels);

QStringList drawnSymbolNames();

} // namespace tarvo::desktop
