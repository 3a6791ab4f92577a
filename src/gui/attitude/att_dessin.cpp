#include "attitude/att_dessin.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "core/etat/attitude_record.h"
#include "core/shell/format_image.h"

namespace kestrel::gui {

namespace {

QString u(const char* texte) { return QString::fromUtf8(texte); }

// Length of the rods carrying the axes and the external masses, drawing units.
constexpr double longueur_tige = 1.0;

const QColor encre(40, 40, 48);
const QColor couleur_masse(214, 110, 20);
const QColor couleur_roue(30, 130, 70);
const QColor couleur_amortisseur(120, 60, 160);

// Unit vector of axis j, signed.
void axe(int j, double signe, double v[3]) {
    v[0] = v[1] = v[2] = 0;
    v[j] = signe;
}

QPointF point_v(const VueConfig& vue, const double p[3]) { return vue.point(p[0], p[1], p[2]); }

// The face of axis j on the side the viewer sees (+x, +y, +z) as a polygon.
QPolygonF face_visible(const VueConfig& v, int j) {
    const int a = (j + 1) % 3, b = (j + 2) % 3;
    QPolygonF poly;
    for (const auto& [sa, sb] : {std::pair{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}) {
        double p[3];
        p[j] = v.demi[j];
        p[a] = sa * v.demi[a];
        p[b] = sb * v.demi[b];
        poly << point_v(v, p);
    }
    return poly;
}

QPainterPath silhouette(const VueConfig& v) {
    QPainterPath s;
    for (int j = 0; j < 3; ++j) s.addPolygon(face_visible(v, j));
    return s.simplified();
}

// An arrow from a to b with its head at b.
void fleche(QPainter& p, QPointF a, QPointF b) {
    p.drawLine(a, b);
    const QPointF d = b - a;
    const double l = std::hypot(d.x(), d.y());
    if (l < 1) return;
    const QPointF e = d / l, n(-e.y(), e.x());
    p.drawPolygon(QPolygonF{b, b - 9 * e + 4 * n, b - 9 * e - 4 * n});
}

// One piece laid over the body; which one is told by its kind and position.
class piece_config : public QWidget {
public:
    enum class Genre { aimant, masse, roues, amortisseurs };
    piece_config(dessin_config* dessin, const char* nom, Genre genre, int position = 0)
        : QWidget(dessin), dessin_(dessin), genre_(genre), position_(position) {
        setObjectName(u(nom));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const VueConfig v = dessin_->vue();
        switch (genre_) {
            case Genre::aimant: return aimant(p);
            case Genre::masse: return masse(p, v);
            case Genre::roues: return roues(p, v);
            case Genre::amortisseurs: return amortisseurs(p, v);
        }
    }

private:
    // A bar magnet in the top left corner, turned as the residual dipole
    // looks in the view (upwards when the dipole is zero).
    void aimant(QPainter& p) {
        const auto& d = dessin_->att().dip_res;
        VueConfig direction;
        direction.centre = QPointF(0, 0);
        QPointF e = direction.point(d[0], d[1], d[2]);
        const double l = std::hypot(e.x(), e.y());
        e = l > 1e-12 ? e / l : QPointF(0, -1);
        const QPointF c(42, 44), n(-e.y(), e.x());
        const auto moitie = [&](double s0, double s1) {
            return QPolygonF{c + s0 * 20 * e + 6 * n, c + s1 * 20 * e + 6 * n, c + s1 * 20 * e - 6 * n,
                             c + s0 * 20 * e - 6 * n};
        };
        p.setPen(QPen(encre, 1));
        p.setBrush(QColor(200, 40, 40));
        p.drawPolygon(moitie(0, 1));  // north, where the dipole points
        p.setBrush(QColor(40, 80, 200));
        p.drawPolygon(moitie(-1, 0));
        p.setPen(Qt::white);
        p.drawText(QRectF(c + 10 * e - QPointF(6, 7), QSizeF(12, 14)), Qt::AlignCenter, u("N"));
        p.drawText(QRectF(c - 10 * e - QPointF(6, 7), QSizeF(12, 14)), Qt::AlignCenter, u("S"));
        p.setPen(encre);
        p.drawText(QPointF(8, 84), u("Dipôle résiduel"));
    }

    // The mass on its rod; a rod behind the body is hidden by it.
    void masse(QPainter& p, const VueConfig& v) {
        const int j = position_ / 2;
        const double signe = position_ % 2 == 0 ? 1.0 : -1.0;
        double e[3], base[3], bout[3];
        axe(j, signe, e);
        for (int i = 0; i < 3; ++i) {
            base[i] = e[i] * v.demi[j];
            bout[i] = e[i] * (v.demi[j] + longueur_tige);
        }
        if (signe < 0) {
            QPainterPath devant;
            devant.addRect(rect());
            p.setClipPath(devant.subtracted(silhouette(v)));
        }
        const QPointF a = point_v(v, base), b = point_v(v, bout);
        p.setPen(QPen(encre, 2));
        p.drawLine(a, b);
        p.setClipping(false);
        p.setPen(QPen(encre, 1));
        p.setBrush(couleur_masse);
        p.drawEllipse(b, 8, 8);
        // Mass and distance beyond the ball, away from the body.
        const auto& att = dessin_->att();
        const QPointF d = b - a;
        const QPointF dehors = d / std::max(1.0, std::hypot(d.x(), d.y()));
        const QPointF c = b + QPointF(dehors.x() * 48, dehors.y() * 26);
        // Kept inside the picture when the ball is near its edge.
        QRectF cadre(c - QPointF(40, 16), QSizeF(80, 32));
        cadre.moveLeft(std::clamp(cadre.left(), 2.0, width() - cadre.width() - 2));
        cadre.moveTop(std::clamp(cadre.top(), 2.0, height() - cadre.height() - 2));
        p.setPen(couleur_masse.darker(130));
        p.drawText(cadre, Qt::AlignCenter,
                   QString::fromStdString(format_image(att.mext[j], "#0.00")) + u(" kg\n") +
                       QString::fromStdString(format_image(std::fabs(att.dext[j]), "#0.00")) + u(" m"));
    }

    // A wheel turns about each axis: a disc on the face that axis crosses.
    void roues(QPainter& p, const VueConfig& v) {
        for (int j = 0; j < 3; ++j) {
            const int a = (j + 1) % 3, b = (j + 2) % 3;
            const double r = 0.5 * std::min(v.demi[a], v.demi[b]);
            QPolygonF disque;
            for (int k = 0; k < 48; ++k) {
                const double t = k * 2 * M_PI / 48;
                double q[3];
                q[j] = v.demi[j];
                q[a] = r * std::cos(t);
                q[b] = r * std::sin(t);
                disque << point_v(v, q);
            }
            p.setPen(QPen(couleur_roue.darker(140), 2));
            p.setBrush(QColor(couleur_roue.red(), couleur_roue.green(), couleur_roue.blue(), 120));
            p.drawPolygon(disque);
            double moyeu[3] = {0, 0, 0};
            moyeu[j] = v.demi[j];
            p.setBrush(couleur_roue.darker(140));
            p.drawEllipse(point_v(v, moyeu), 2.5, 2.5);
            p.setPen(Qt::white);
            p.drawText(disque.boundingRect(), Qt::AlignCenter, u("\nR%1").arg(j + 1));
        }
    }

    // A damper on each axis: a spring and its mass drawn flat on the face
    // that axis crosses, below the wheel.
    void amortisseurs(QPainter& p, const VueConfig& v) {
        for (int j = 0; j < 3; ++j) {
            const int a = (j + 1) % 3, b = (j + 2) % 3;
            QPolygonF ressort;
            const int n = 10;
            for (int k = 0; k <= n; ++k) {
                double q[3];
                q[j] = v.demi[j];
                q[a] = v.demi[a] * (-0.85 + 1.1 * k / n);
                // Zigzag across the spring, in the face's own plane.
                const double ecart = (k == 0 || k == n) ? 0.0 : (k % 2 ? 0.07 : -0.07);
                q[b] = v.demi[b] * (-0.78 + ecart);
                ressort << point_v(v, q);
            }
            p.setPen(QPen(couleur_amortisseur, 1.6));
            p.setBrush(Qt::NoBrush);
            p.drawPolyline(ressort);
            p.setPen(QPen(encre, 1));
            p.setBrush(couleur_amortisseur);
            p.drawEllipse(ressort.last(), 4.5, 4.5);
            p.setPen(couleur_amortisseur.darker(140));
            // The name beyond the mass, along the spring.
            const QPointF d = ressort.last() - ressort.first();
            const QPointF c = ressort.last() + 16 * d / std::max(1.0, std::hypot(d.x(), d.y()));
            p.drawText(QRectF(c - QPointF(12, 7), QSizeF(24, 14)), Qt::AlignCenter, u("A%1").arg(j + 1));
        }
    }

    dessin_config* dessin_;
    Genre genre_;
    int position_;
};

}  // namespace

QPointF VueConfig::point(double x, double y, double z) const {
    // x to the lower left, y to the lower right, z up: the three visible faces
    // are +x, +y and +z.
    return centre + echelle * QPointF(-0.7 * x + 0.8 * y, 0.38 * x + 0.3 * y - z);
}

dessin_config::dessin_config(const AttitudeRecord& a, QWidget* parent) : QWidget(parent), att_(a) {
    setObjectName(QStringLiteral("Pict_config"));
    setMinimumSize(380, 420);
    using G = piece_config::Genre;
    static constexpr const char* masses[6] = {"Pict_masxp", "Pict_masxm", "Pict_masyp",
                                              "pict_masym", "pict_maszp", "Pict_maszm"};
    for (int k = 0; k < 6; ++k) new piece_config(this, masses[k], G::masse, k);
    new piece_config(this, "Pict_roues", G::roues);
    new piece_config(this, "Pict_damp", G::amortisseurs);
    new piece_config(this, "Pict_mag", G::aimant);
}

void dessin_config::montre(const QString& piece, bool visible) {
    if (auto* w = findChild<QWidget*>(piece)) {
        w->setVisible(visible);
        w->update();
    }
}

VueConfig dessin_config::vue() const {
    VueConfig v;
    v.centre = QPointF(width() * 0.5, height() * 0.48);
    v.echelle = std::min(width() / 4.6, height() / 4.6);
    const double plus_grand = std::max({att_.dim[0], att_.dim[1], att_.dim[2]});
    // A flat or empty body stays visible: no side under a third of the largest.
    if (plus_grand > 0)
        for (int j = 0; j < 3; ++j) v.demi[j] = 0.7 * std::max(att_.dim[j] / plus_grand, 0.33);
    return v;
}

void dessin_config::resizeEvent(QResizeEvent*) {
    for (auto* piece : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) piece->setGeometry(rect());
}

void dessin_config::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), Qt::white);
    p.setPen(QColor(170, 170, 180));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    const VueConfig v = vue();

    // The three visible faces, the top lightest.
    const QColor teintes[3] = {QColor(176, 190, 214), QColor(140, 158, 190), QColor(206, 216, 234)};
    p.setPen(QPen(encre, 1.4));
    for (int j = 0; j < 3; ++j) {
        p.setBrush(teintes[j]);
        p.drawPolygon(face_visible(v, j));
    }
    // Body axes out of the visible faces.
    const char* noms[3] = {"X", "Y", "Z"};
    p.setPen(QPen(QColor(90, 90, 100), 1.2, Qt::DashLine));
    p.setBrush(QColor(90, 90, 100));
    for (int j = 0; j < 3; ++j) {
        double a[3], b[3], e[3];
        axe(j, 1.0, e);
        for (int i = 0; i < 3; ++i) {
            a[i] = e[i] * v.demi[j];
            b[i] = e[i] * (v.demi[j] + longueur_tige * 0.75);
        }
        fleche(p, point_v(v, a), point_v(v, b));
        // The axis name just beyond the arrow's head.
        const QPointF d = point_v(v, b) - point_v(v, a);
        const QPointF bout = point_v(v, b) + 12 * d / std::max(1.0, std::hypot(d.x(), d.y()));
        p.drawText(QRectF(bout - QPointF(9, 9), QSizeF(18, 18)), Qt::AlignCenter, u(noms[j]));
    }
    p.setPen(encre);
    const QString taille = QString::fromStdString(format_image(att_.dim[0], "#0.00")) + u(" × ") +
                           QString::fromStdString(format_image(att_.dim[1], "#0.00")) + u(" × ") +
                           QString::fromStdString(format_image(att_.dim[2], "#0.00")) + u(" m");
    p.drawText(QRectF(0, height() - 26, width(), 20), Qt::AlignCenter, u("Corps central : ") + taille);
}

}  // namespace kestrel::gui
