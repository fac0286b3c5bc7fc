#include "platform/desktop/bar/bar_item_accessible.h"

#include "platform/desktop/status_bar_host.h"

#include <variant>

namespace tarvo::desktop {

namespace {

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* view = qobject_cast<BarItemView*>(object);
    return view ? new BarItemAccessible(*view) : nullptr;
}

QString imageDescription(const StatusImage& image) {
    const auto* symbol = std::get_if<SymbolImage>(&image);
    return symbol ? QString::fromStdString(symbol->accessibilityDescription) : QString();
}

/// The value alone: a stacked title has its label in the line above, in capitals.
QString lastLine(const AttributedTitle& title) {
    return QString::fromStdString(plainText(title)).section(u'\n', -1);
}

QString accessibleName(const StatusItemContent& content) {
    const QString label = imageDescription(content.image);
    const QString value = lastLine(content.title);
    if (label.isEmpty() && value.isEmpty()) return QStringLiteral("Tarvo");
    return (label + u' ' + value).trimmed();
}

} // namespace

BarItemAccessible::BarItemAccessible(BarItemView& view)
    : QAccessibleWidget(&view, QAccessible::Button), view_(view) {}

QString BarItemAccessible::text(QAccessible::Text kind) const {
    const StatusItemContent* content = view_.content();
    if (content && kind == QAccessible::Name) return accessibleName(*content);
    if (content && kind == QAccessible::Description) return QString::fromStdString(content->toolTip);
    return QAccessibleWidget::text(kind);
}

QStringList BarItemAccessible::actionNames() const {
    return {pressAction(), showMenuAction()};
}

void BarItemAccessible::doAction(const QString& name) {
    if (name == pressAction()) view_.click(StatusClick::left);
    if (name == showMenuAction()) view_.click(StatusClick::right);
}

void installBarAccessibility() {
    QAccessible::installFactory(makeAccessible);
}

} // namespace tarvo::desktop
