#include "power/images_sim.h"

#include <QPainter>
#include <cmath>

namespace kestrel::gui {

namespace {

constexpr int largeur_bat = 44, hauteur_bat = 76;

QPixmap batterie(int barres, bool vide) {
    QPixmap pm(largeur_bat, hauteur_bat);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor contour = vide ? QColor(200, 30, 30) : QColor(50, 50, 50);
    p.setPen(QPen(contour, 2.5));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(4, 8, largeur_bat - 8, hauteur_bat - 11), 4, 4);
    p.setBrush(contour);
    p.drawRect(QRectF(largeur_bat / 2.0 - 7, 2, 14, 6));
    // Bars from the bottom; the colour goes from green to red as it empties.
    const QColor couleurs[5] = {QColor(220, 60, 40), QColor(235, 140, 30), QColor(230, 200, 40),
                                QColor(120, 190, 60), QColor(50, 170, 70)};
    p.setPen(Qt::NoPen);
    p.setBrush(couleurs[std::max(barres - 1, 0)]);
    const double hb = (hauteur_bat - 19) / 5.0;
    for (int i = 0; i < barres; ++i) p.drawRect(QRectF(8.5, hauteur_bat - 7.5 - (i + 1) * hb + 1.5, largeur_bat - 17, hb - 3));
    if (vide) {
        p.setPen(QPen(QColor(200, 30, 30), 3));
        p.drawLine(QPointF(12, 22), QPointF(largeur_bat - 12, hauteur_bat - 14));
        p.drawLine(QPointF(largeur_bat - 12, 22), QPointF(12, hauteur_bat - 14));
    }
    return pm;
}

}  // namespace

std::vector<QPixmap> ImageList_bat() {
    std::vector<QPixmap> v;
    for (int barres = 5; barres >= 1; --barres) v.push_back(batterie(barres, false));
    v.push_back(batterie(0, true));
    return v;
}

QPixmap image_eclipse(bool eclipse) {
    QPixmap pm(40, 40);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    if (!eclipse) {
        p.setPen(QPen(QColor(240, 170, 0), 2.5));
        for (int i = 0; i < 8; ++i) {
            const double a = i * M_PI / 4;
            p.drawLine(QPointF(20 + 12 * std::cos(a), 20 + 12 * std::sin(a)),
                       QPointF(20 + 18 * std::cos(a), 20 + 18 * std::sin(a)));
        }
        p.setBrush(QColor(255, 210, 0));
        p.drawEllipse(QPointF(20, 20), 9, 9);
    } else {
        // The Earth's disc with the Sun's rim just showing behind it.
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 210, 0));
        p.drawEllipse(QPointF(23, 17), 12, 12);
        p.setBrush(QColor(30, 40, 90));
        p.drawEllipse(QPointF(19, 21), 15, 15);
    }
    return pm;
}

}  // namespace kestrel::gui
