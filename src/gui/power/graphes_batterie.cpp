#include "power/graphes_batterie.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "core/shell/graduations.h"

namespace kestrel::gui {

namespace {

constexpr int MARGE_G = 64, MARGE_D = 24, MARGE_H = 26, MARGE_B = 44, ECART = 34;
constexpr int LARGEUR_MAX = 30000;  // px; a longer study keeps its extremes per column

double soc_pct(const EchantillonBatterie& e) { return e.s * 100; }
double tension(const EchantillonBatterie& e) { return e.v; }

QString nombre(double x, double pas) {
    const int decimales = pas >= 1 ? 0 : static_cast<int>(std::ceil(-std::log10(pas) - 1e-9));
    return QString::number(x, 'f', decimales);
}

}  // namespace

// One plot: its frame in pixels, the value range and the time range (s).
struct GraphesBatterie::Zone {
    QRect cadre;
    double vmin, vmax, tmin, tmax;
    int x(double t) const { return cadre.left() + static_cast<int>(std::lround((t - tmin) / (tmax - tmin) * cadre.width())); }
    int y(double v) const { return cadre.bottom() - static_cast<int>(std::lround((v - vmin) / (vmax - vmin) * cadre.height())); }
};

GraphesBatterie::GraphesBatterie(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("pict_graphs"));
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Qt::white);
    setPalette(pal);
}

void GraphesBatterie::montre(std::vector<EchantillonBatterie> echantillons, QSize visible) {
    ech_ = std::move(echantillons);
    ajuste(visible);
}

void GraphesBatterie::ajuste(QSize visible) {
    const int utile = visible.width() - MARGE_G - MARGE_D;
    const int largeur = std::max(utile, std::min(static_cast<int>(ech_.size()), LARGEUR_MAX));
    resize(largeur + MARGE_G + MARGE_D, std::max(visible.height(), 300));
    update();
}

void GraphesBatterie::trace(QPainter& p, const Zone& z, double (*valeur)(const EchantillonBatterie&)) const {
    // Grid and value ticks
    const double pas = pas_graduation(z.vmax - z.vmin, 5);
    p.setPen(QColor(200, 200, 200));
    for (double v = premiere_graduation(z.vmin, pas); v <= z.vmax + pas * 1e-6; v += pas) {
        const int y = z.y(v);
        p.setPen(QColor(205, 205, 205));
        p.drawLine(z.cadre.left(), y, z.cadre.right(), y);
        p.setPen(Qt::black);
        p.drawText(QRect(0, y - 8, MARGE_G - 6, 16), Qt::AlignRight | Qt::AlignVCenter, nombre(v, pas));
    }
    // Curve: every sample while they fit, else the extremes of each pixel column.
    QPolygon ligne;
    int colonne = INT32_MIN, lo = 0, hi = 0;
    auto ferme = [&] {
        if (colonne == INT32_MIN) return;
        ligne << QPoint(colonne, hi);
        if (lo != hi) ligne << QPoint(colonne, lo);
    };
    for (const EchantillonBatterie& e : ech_) {
        const int x = z.x(static_cast<double>(e.t)), y = z.y(valeur(e));
        if (x != colonne) {
            ferme();
            colonne = x;
            lo = hi = y;
        } else {
            lo = std::max(lo, y);
            hi = std::min(hi, y);
        }
    }
    ferme();
    p.setPen(QPen(QColor(0, 0, 255), 1.5));
    p.drawPolyline(ligne);
    p.setPen(QPen(Qt::black, 2));
    p.drawLine(z.cadre.bottomLeft(), z.cadre.topLeft());
    p.drawLine(z.cadre.bottomLeft(), z.cadre.bottomRight());
}

void GraphesBatterie::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const int haut = (height() - MARGE_H - MARGE_B - ECART) / 2;
    const QRect c1(MARGE_G, MARGE_H, width() - MARGE_G - MARGE_D, haut);
    const QRect c2(MARGE_G, MARGE_H + haut + ECART, c1.width(), haut);
    p.setPen(Qt::black);
    p.drawText(QPoint(MARGE_G, MARGE_H - 8), QStringLiteral("Taux de charge (%)"));
    p.drawText(QPoint(MARGE_G, c2.top() - 8), QStringLiteral("Tension (V)"));
    // At the left end: a long study scrolls, its start is where one looks first.
    p.drawText(QRect(c2.left(), c2.bottom() + 22, 200, 18), Qt::AlignLeft, QStringLiteral("Temps (mn)"));
    if (ech_.empty()) return;

    const double tmin = 0, tmax = std::max<double>(static_cast<double>(ech_.back().t), 10.0);
    double vlo = ech_.front().v, vhi = vlo;
    for (const auto& e : ech_) {
        vlo = std::min(vlo, e.v);
        vhi = std::max(vhi, e.v);
    }
    const double marge_v = std::max(0.02, (vhi - vlo) * 0.05);
    const Zone z1{c1, 0, 100, tmin, tmax};
    const Zone z2{c2, std::max(0.0, vlo - marge_v), vhi + marge_v, tmin, tmax};

    // The discharge on a grey ground, in both plots.
    long fin_decharge = 0;
    for (const auto& e : ech_)
        if (e.phase == PhaseBatterie::decharge) fin_decharge = e.t;
    for (const Zone* z : {&z1, &z2})
        p.fillRect(QRect(QPoint(z->cadre.left(), z->cadre.top()), QPoint(z->x(fin_decharge), z->cadre.bottom())),
                   QColor(224, 224, 224));
    p.setPen(QColor(90, 90, 90));
    // Phase names above the top plot, right of its title.
    const int y_phase = MARGE_H - 22;
    p.drawText(QRect(c1.left() + 150, y_phase, 220, 16), Qt::AlignLeft, QStringLiteral("Décharge (fond gris)"));

    trace(p, z1, soc_pct);
    trace(p, z2, tension);

    // Time ticks in minutes, about one every 80 px, under both plots.
    const double pas_mn = pas_graduation((tmax - tmin) / 60, std::max(1, c1.width() / 80));
    for (double m = 0; m * 60 <= tmax + 1e-6; m += pas_mn) {
        for (const Zone* z : {&z1, &z2}) {
            const int x = z->x(m * 60);
            p.setPen(QPen(Qt::black, 1));
            p.drawLine(x, z->cadre.bottom(), x, z->cadre.bottom() + 5);
            if (z == &z2)
                p.drawText(QRect(x - 40, z->cadre.bottom() + 6, 80, 16), Qt::AlignHCenter, nombre(m, pas_mn));
        }
    }
}

}  // namespace kestrel::gui
