#include "power/images_faces.h"

#include <QPainter>
#include <QPolygonF>
#include <cmath>

namespace kestrel::gui {

QPixmap image_faces(int n) {
    constexpr int cote = 120;
    QPixmap img(cote, cote);
    img.fill(Qt::white);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF c(cote / 2.0, cote / 2.0);
    // Face i has its outer normal at azimuth i * 360 / n from +X (right),
    // +Y up; corners halfway between two normals.
    const double pas = 2 * M_PI / n, r_coin = 30 / std::cos(pas / 2);
    QPolygonF corps;
    for (int i = 0; i < n; ++i) {
        const double a = (i + 0.5) * pas;
        corps << c + QPointF(r_coin * std::cos(a), -r_coin * std::sin(a));
    }
    p.setPen(QPen(Qt::black, 1.5));
    p.setBrush(QColor(220, 228, 245));
    p.drawPolygon(corps);
    p.setPen(QColor(0, 0, 160));
    for (int i = 0; i < n; ++i) {
        const double a = i * pas;
        const QPointF q = c + QPointF(46 * std::cos(a), -46 * std::sin(a));
        p.drawText(QRectF(q.x() - 10, q.y() - 8, 20, 16), Qt::AlignCenter, QString::number(i + 1));
    }
    p.setPen(Qt::darkGray);
    p.drawText(QRectF(c.x() - 10, c.y() - 8, 20, 16), Qt::AlignCenter, QStringLiteral("Z"));
    p.drawText(QRectF(cote - 16, cote - 18, 14, 16), Qt::AlignCenter, QStringLiteral("X"));
    p.drawLine(QPointF(cote - 40, cote - 10), QPointF(cote - 18, cote - 10));
    return img;
}

}  // namespace kestrel::gui
