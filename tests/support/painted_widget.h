#pragma once

#include <QEvent>
#include <QImage>
#include <QPalette>
#include <QWidget>

namespace tarvo {

inline QPalette lightPalette() {
    QPalette palette(QColor(0xef, 0xef, 0xef));
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

inline QPalette darkPalette() {
    QPalette palette(QColor(0x2a, 0x2a, 0x2c));
    palette.setColor(QPalette::WindowText, QColor(0xf2, 0xf2, 0xf2));
    return palette;
}

/// What a widget draws, on a ground that no element uses, so that untouched pixels are recognisable.
inline QImage painted(QWidget& widget, QSize size, double ratio = 1, QColor ground = Qt::transparent) {
    widget.resize(size);
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(ground);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

inline bool isBlank(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0) return false;
        }
    }
    return true;
}

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    int count() const { return count_; }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count_;
        return false;
    }

private:
    int count_ = 0;
};

} // namespace tarvo
