#include "shell/icones.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <cmath>

namespace kestrel::gui {

namespace {

// Every drawing is made on a 24 x 24 grid and scaled to the size asked.

void terre(QPainter& p, QPointF c, double r) {
    p.setPen(QPen(QColor(20, 60, 140), 1));
    p.setBrush(QColor(60, 130, 220));
    p.drawEllipse(c, r, r);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(70, 160, 70));
    p.drawEllipse(QPointF(c.x() - r * 0.3, c.y() - r * 0.2), r * 0.45, r * 0.35);
    p.drawEllipse(QPointF(c.x() + r * 0.35, c.y() + r * 0.4), r * 0.3, r * 0.25);
}

void soleil(QPainter& p, QPointF c, double r) {
    p.setPen(QPen(QColor(230, 150, 0), 1.5));
    for (int i = 0; i < 8; ++i) {
        const double a = i * M_PI / 4.0;
        p.drawLine(QPointF(c.x() + 1.3 * r * std::cos(a), c.y() + 1.3 * r * std::sin(a)),
                   QPointF(c.x() + 1.9 * r * std::cos(a), c.y() + 1.9 * r * std::sin(a)));
    }
    p.setBrush(QColor(255, 205, 0));
    p.drawEllipse(c, r, r);
}

void orbite(QPainter& p) {
    terre(p, {12, 12}, 5.5);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(90, 90, 90), 1.3));
    p.save();
    p.translate(12, 12);
    p.rotate(-25);
    p.drawEllipse(QPointF(0, 0), 11, 5);
    p.restore();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(200, 30, 30));
    p.drawRect(QRectF(19, 5, 3.5, 3.5));
}

void panneau(QPainter& p, QRectF r) {
    p.setPen(QPen(QColor(20, 40, 110), 1));
    p.setBrush(QColor(40, 80, 190));
    p.drawRect(r);
    p.setPen(QPen(QColor(170, 200, 255), 0.7));
    for (int i = 1; i < 3; ++i) {
        const double x = r.left() + r.width() * i / 3.0;
        p.drawLine(QPointF(x, r.top()), QPointF(x, r.bottom()));
        const double y = r.top() + r.height() * i / 3.0;
        p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
    }
}

void batterie(QPainter& p, QRectF r, bool avec_plus) {
    p.setPen(QPen(QColor(40, 40, 40), 1.3));
    p.setBrush(Qt::white);
    p.drawRect(r);
    p.setBrush(QColor(40, 40, 40));
    p.drawRect(QRectF(r.right(), r.center().y() - r.height() * 0.2, 2, r.height() * 0.4));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(60, 180, 60));
    p.drawRect(r.adjusted(1.5, 1.5, -r.width() * 0.3, -1.5));
    if (avec_plus) {
        p.setPen(QPen(Qt::white, 1.6));
        const QPointF c(r.left() + r.width() * 0.35, r.center().y());
        p.drawLine(c + QPointF(-2.5, 0), c + QPointF(2.5, 0));
        p.drawLine(c + QPointF(0, -2.5), c + QPointF(0, 2.5));
    }
}

void engrenage(QPainter& p, QColor couleur) {
    p.setPen(Qt::NoPen);
    p.setBrush(couleur);
    p.save();
    p.translate(12, 12);
    for (int i = 0; i < 8; ++i) {
        p.drawRect(QRectF(-2, -10.5, 4, 5));
        p.rotate(45);
    }
    p.restore();
    p.drawEllipse(QPointF(12, 12), 7.5, 7.5);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(12, 12), 3, 3);
}

void lecture(QPainter& p, QColor couleur) {
    p.setPen(QPen(couleur.darker(140), 1));
    p.setBrush(couleur);
    p.drawPolygon(QPolygonF({QPointF(6, 3), QPointF(21, 12), QPointF(6, 21)}));
}

void courbe(QPainter& p, QColor couleur) {
    p.setPen(QPen(QColor(40, 40, 40), 1.4));
    p.drawLine(QPointF(3, 3), QPointF(3, 21));
    p.drawLine(QPointF(3, 21), QPointF(22, 21));
    p.setPen(QPen(couleur, 1.8));
    QPainterPath c(QPointF(4, 17));
    c.cubicTo(QPointF(9, 2), QPointF(13, 22), QPointF(21, 6));
    p.setBrush(Qt::NoBrush);
    p.drawPath(c);
}

void dessine(QPainter& p, const QString& cle) {
    if (cle == "orbite" || cle == "orb") {
        orbite(p);
    } else if (cle == "envir") {
        terre(p, {15, 15}, 7);
        soleil(p, {6, 6}, 3.2);
    } else if (cle == "rad") {
        soleil(p, {6, 6}, 3.2);
        p.setPen(QPen(QColor(210, 40, 20), 1.6));
        p.setBrush(Qt::NoBrush);
        for (int i = 0; i < 3; ++i) {
            QPainterPath onde(QPointF(11 + 4 * i, 8));
            onde.cubicTo(QPointF(14 + 4 * i, 12), QPointF(8 + 4 * i, 15), QPointF(11 + 4 * i, 21));
            p.drawPath(onde);
        }
    } else if (cle == "quit") {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(200, 40, 40));
        p.drawEllipse(QPointF(12, 12), 10, 10);
        p.setPen(QPen(Qt::white, 2.5));
        p.drawLine(QPointF(8, 8), QPointF(16, 16));
        p.drawLine(QPointF(16, 8), QPointF(8, 16));
    } else if (cle == "open") {
        p.setPen(QPen(QColor(150, 110, 0), 1));
        p.setBrush(QColor(240, 200, 60));
        p.drawPolygon(QPolygonF({QPointF(2, 6), QPointF(9, 6), QPointF(11, 8), QPointF(21, 8),
                                 QPointF(21, 20), QPointF(2, 20)}));
        p.setBrush(QColor(255, 225, 110));
        p.drawPolygon(QPolygonF({QPointF(5, 11), QPointF(23, 11), QPointF(21, 20), QPointF(2, 20)}));
    } else if (cle == "save") {
        p.setPen(QPen(QColor(20, 30, 80), 1));
        p.setBrush(QColor(50, 80, 170));
        p.drawRect(QRectF(3, 3, 18, 18));
        p.setBrush(Qt::white);
        p.drawRect(QRectF(6, 3, 12, 7));
        p.setBrush(QColor(190, 190, 190));
        p.drawRect(QRectF(7, 14, 10, 7));
    } else if (cle == "cell") {
        panneau(p, QRectF(3, 3, 18, 18));
    } else if (cle == "therm") {
        p.setPen(QPen(QColor(60, 60, 60), 1));
        p.setBrush(Qt::white);
        p.drawRoundedRect(QRectF(9.5, 2, 5, 15), 2.5, 2.5);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(210, 30, 30));
        p.drawRect(QRectF(11, 8, 2, 9));
        p.setPen(QPen(QColor(60, 60, 60), 1));
        p.drawEllipse(QPointF(12, 18.5), 4, 4);
    } else if (cle == "pan") {
        panneau(p, QRectF(1, 8, 8, 8));
        panneau(p, QRectF(15, 8, 8, 8));
        p.setPen(QPen(QColor(90, 90, 90), 1));
        p.setBrush(QColor(200, 170, 60));
        p.drawRect(QRectF(9, 8.5, 6, 7));
    } else if (cle == "bat") {
        batterie(p, QRectF(2, 6, 18, 12), true);
    } else if (cle == "oper") {
        engrenage(p, QColor(110, 110, 110));
    } else if (cle == "gestatt") {
        engrenage(p, QColor(50, 90, 170));
    } else if (cle == "sim_pow") {
        soleil(p, {6, 6}, 3.2);
        p.setPen(QPen(QColor(20, 40, 110), 1));
        p.setBrush(QColor(40, 80, 190));
        p.drawPolygon(QPolygonF({QPointF(10, 12), QPointF(22, 12), QPointF(19, 21), QPointF(7, 21)}));
    } else if (cle == "sim_all") {
        lecture(p, QColor(40, 170, 60));
    } else if (cle == "simulation") {
        lecture(p, QColor(50, 110, 210));
    } else if (cle == "exp_bat") {
        batterie(p, QRectF(2, 2, 10, 7), false);
        courbe(p, QColor(40, 150, 40));
    } else if (cle == "exp_data") {
        courbe(p, QColor(210, 40, 30));
    } else if (cle == "expatt") {
        courbe(p, QColor(50, 90, 200));
    } else if (cle == "masses") {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(50, 50, 50));
        p.drawPolygon(QPolygonF({QPointF(7, 7), QPointF(17, 7), QPointF(21, 21), QPointF(3, 21)}));
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(50, 50, 50), 1.6));
        p.drawEllipse(QPointF(12, 5), 2.5, 2.5);
        p.setPen(Qt::white);
        QFont f = p.font();
        f.setPixelSize(8);
        f.setBold(true);
        p.setFont(f);
        p.drawText(QRectF(3, 10, 18, 10), Qt::AlignCenter, QStringLiteral("kg"));
    } else if (cle == "proprietes") {
        p.setPen(QPen(QColor(60, 60, 60), 1));
        p.setBrush(QColor(220, 190, 90));
        p.drawPolygon(QPolygonF({QPointF(4, 9), QPointF(15, 9), QPointF(15, 20), QPointF(4, 20)}));
        p.setBrush(QColor(240, 215, 130));
        p.drawPolygon(QPolygonF({QPointF(4, 9), QPointF(9, 4), QPointF(20, 4), QPointF(15, 9)}));
        p.setBrush(QColor(190, 160, 60));
        p.drawPolygon(QPolygonF({QPointF(15, 9), QPointF(20, 4), QPointF(20, 15), QPointF(15, 20)}));
        p.setPen(QPen(QColor(200, 30, 30), 1.4));
        p.drawLine(QPointF(9.5, 14.5), QPointF(23, 14.5));
    } else if (cle == "actuators") {
        p.setPen(QPen(QColor(60, 60, 60), 1.5));
        p.setBrush(QColor(200, 200, 200));
        p.drawEllipse(QPointF(12, 12), 9, 9);
        for (int i = 0; i < 3; ++i) {
            const double a = i * 2.0 * M_PI / 3.0;
            p.drawLine(QPointF(12, 12), QPointF(12 + 9 * std::cos(a), 12 + 9 * std::sin(a)));
        }
        p.setBrush(QColor(60, 60, 60));
        p.drawEllipse(QPointF(12, 12), 2, 2);
    } else {
        p.setPen(QColor(60, 60, 60));
        QFont f = p.font();
        f.setPixelSize(18);
        f.setBold(true);
        p.setFont(f);
        p.drawText(QRectF(0, 0, 24, 24), Qt::AlignCenter, QStringLiteral("?"));
    }
}

// Keys that have a usual name in the desktop icon themes.
QString nom_theme(const QString& cle) {
    if (cle == "quit") return QStringLiteral("application-exit");
    if (cle == "open") return QStringLiteral("document-open");
    if (cle == "save") return QStringLiteral("document-save");
    return {};
}

}  // namespace

QPixmap dessin_cle(const QString& cle, int cote) {
    QPixmap pix(cote, cote);
    pix.fill(Qt::transparent);
    QPainter p(&pix);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(cote / 24.0, cote / 24.0);
    dessine(p, cle);
    return pix;
}

QIcon icone_cle(const QString& cle) {
    QIcon dessin;
    for (int cote : {16, 24, 32, 48}) dessin.addPixmap(dessin_cle(cle, cote));
    const QString theme = nom_theme(cle);
    return theme.isEmpty() ? dessin : QIcon::fromTheme(theme, dessin);
}

}  // namespace kestrel::gui
