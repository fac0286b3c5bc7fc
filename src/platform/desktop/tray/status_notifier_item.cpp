#include "platform/desktop/tray/status_notifier_item.h"

#include "platform/desktop/bar/title_layout.h"

#include <QDBusMetaType>

#include <array>
#include <utility>

namespace tarvo::desktop {

namespace {

/// Trays that are drawn at twice the size find a picture that is.
constexpr std::array ratios{1.0, 2.0};

void registerItemTypes() {
    qDBusRegisterMetaType<TrayPixmap>();
    qDBusRegisterMetaType<TrayPixmaps>();
    qDBusRegisterMetaType<TrayToolTip>();
}

} // namespace

StatusNotifierItem::StatusNotifierItem(QObject* exported, StatusItemModel& model, QString id,
                                       TrayTraits traits, BarFonts& fonts, SymbolImages& symbols)
    : QDBusAbstractAdaptor(exported), model_(model), id_(std::move(id)), traits_(traits),
      picture_(traits, fonts, symbols), announcedLabel_(label()), announcedImage_(model.content().image),
      announcedTint_(model.content().tint) {
    registerItemTypes();
}

void StatusNotifierItem::faceChanged() {
    if (!faceChanged_ && !toolTipChanged_) announceLater();
    faceChanged_ = true;
}

void StatusNotifierItem::toolTipChanged() {
    if (!faceChanged_ && !toolTipChanged_) announceLater();
    toolTipChanged_ = true;
}

void StatusNotifierItem::announceLater() {
    QMetaObject::invokeMethod(this, &StatusNotifierItem::announce, Qt::QueuedConnection);
}

void StatusNotifierItem::announce() {
    if (std::exchange(faceChanged_, false)) announceFace();
    if (std::exchange(toolTipChanged_, false)) emit NewToolTip();
}

void StatusNotifierItem::announceFace() {
    if (pictureDiffers()) {
        announcedImage_ = model_.content().image;
        announcedTint_ = model_.content().tint;
        pixmaps_.clear();
        emit NewIcon();
    }
    if (const QString present = label(); present != announcedLabel_) {
        announcedLabel_ = present;
        emit XAyatanaNewLabel(present, labelGuide());
    }
}

bool StatusNotifierItem::pictureDiffers() const {
    const StatusItemContent& content = model_.content();
    return !traits_.showsLabel || content.image != announcedImage_ || content.tint != announcedTint_;
}

TrayPixmaps StatusNotifierItem::iconPixmap() {
    if (pixmaps_.isEmpty()) {
        for (const double ratio : ratios)
            pixmaps_.append(toTrayPixmap(picture_.draw(model_.content(), ratio)));
    }
    if (pictureRead) pictureRead();
    return pixmaps_;
}

TrayToolTip StatusNotifierItem::toolTip() const {
    return {{}, {}, title(), escapedMarkup(model_.content().toolTip)};
}

QDBusObjectPath StatusNotifierItem::menu() const {
    return QDBusObjectPath(QStringLiteral("/MenuBar"));
}

QString StatusNotifierItem::label() const {
    return traits_.showsLabel ? QString::fromStdString(plainText(model_.content().title)) : QString();
}

QString StatusNotifierItem::labelGuide() const {
    return withRoomForNumbers(label());
}

void StatusNotifierItem::Activate(int, int) {
    QMetaObject::invokeMethod(
        this, [this] { model_.clicked(StatusClick::left); }, Qt::QueuedConnection);
}

void StatusNotifierItem::ContextMenu(int, int) {
    QMetaObject::invokeMethod(
        this, [this] { model_.clicked(StatusClick::right); }, Qt::QueuedConnection);
}

} // namespace tarvo::desktop
