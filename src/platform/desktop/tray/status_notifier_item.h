#pragma once

#include "platform/desktop/status_bar_host.h"
#include "platform/desktop/tray/pixmap_bytes.h"
#include "platform/desktop/tray/tray_picture.h"
#include "platform/desktop/tray/tray_tool_tip.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>

#include <functional>
#include <optional>

namespace tarvo::desktop {

/// Serves one status item as org.kde.StatusNotifierItem, on the object it is made for. Pictures are drawn
/// when a host asks for them, and once a change.
class StatusNotifierItem : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconThemePath READ none)
    Q_PROPERTY(QString IconName READ none)
    Q_PROPERTY(tarvo::desktop::TrayPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ none)
    Q_PROPERTY(tarvo::desktop::TrayPixmaps OverlayIconPixmap READ noPixmap)
    Q_PROPERTY(QString AttentionIconName READ none)
    Q_PROPERTY(tarvo::desktop::TrayPixmaps AttentionIconPixmap READ noPixmap)
    Q_PROPERTY(QString AttentionMovieName READ none)
    Q_PROPERTY(tarvo::desktop::TrayToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ labelGuide)

public:
    /// `model`, `fonts` and `symbols` outlive the item.
    StatusNotifierItem(QObject* exported, StatusItemModel& model, QString id, TrayTraits traits,
                       BarFonts& fonts, SymbolImages& symbols);

    /// The face changed: hosts are told once in this turn of the loop, by the signals of what differs.
    void faceChanged();
    void toolTipChanged();

    /// Runs when somebody has asked for the picture, before the answer leaves.
    std::function<void()> pictureRead;

    QString category() const { return QStringLiteral("Hardware"); }
    QString id() const { return id_; }
    QString title() const { return QStringLiteral("Tarvo"); }
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    QString none() const { return {}; }
    TrayPixmaps noPixmap() const { return {}; }
    TrayPixmaps iconPixmap();
    TrayToolTip toolTip() const;
    bool itemIsMenu() const { return false; }
    QDBusObjectPath menu() const;
    /// Empty where the tray shows no label.
    QString label() const;
    QString labelGuide() const;

public slots:
    void Activate(int x, int y);
    void SecondaryActivate(int, int) {}
    void ContextMenu(int x, int y);
    void Scroll(int, const QString&) {}

signals:
    void NewTitle();
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString& status);
    void XAyatanaNewLabel(const QString& label, const QString& guide);

private:
    void announceLater();
    void announce();
    void announceFace();
    /// The picture holds the text only where the tray shows no label.
    bool pictureDiffers() const;

    StatusItemModel& model_;
    QString id_;
    TrayTraits traits_;
    TrayPicture picture_;
    TrayPixmaps pixmaps_; ///< of the present face; empty until asked for
    QString announcedLabel_;
    StatusImage announcedImage_;
    std::optional<SystemColor> announcedTint_;
    bool faceChanged_ = false;
    bool toolTipChanged_ = false;
};

} // namespace tarvo::desktop
