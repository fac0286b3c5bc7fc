// render_icon SVG SIZE PNG: the icon in one size, for desktops that take no scalable ones.
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int count, char** arguments) {
    const int size = count == 4 ? QByteArray(arguments[2]).toInt() : 0;
    if (size <= 0) return 2;
    QSvgRenderer drawing(QString::fromLocal8Bit(arguments[1]));
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.end();
    if (drawing.isValid() && image.save(QString::fromLocal8Bit(arguments[3]), "PNG")) return 0;
    std::fprintf(stderr, "render_icon: cannot make %s\n", arguments[3]);
    return 1;
}
