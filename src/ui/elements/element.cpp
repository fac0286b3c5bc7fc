#include "ui/elements/element.h"

#include <QAccessibleWidget>

namespace tarvo::ui {
namespace {

class ElementInterface : public QAccessibleWidget {
public:
    explicit ElementInterface(DrawnElement* element)
        : QAccessibleWidget(element, element->accessibleRole()), element_(element) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? element_->accessibleText() : QAccessibleWidget::text(kind);
    }

private:
    DrawnElement* element_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* element = dynamic_cast<DrawnElement*>(object);
    return element ? new ElementInterface(element) : nullptr;
}

} // namespace

void DrawnElement::contentChanged() {
    update();
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void installElementAccessibility() {
    QAccessible::installFactory(makeInterface);
}

} // namespace tarvo::ui
