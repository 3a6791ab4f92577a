#include "orbit/env_graph1.h"

#include <QBarCategoryAxis>
#include <QChart>
#include <QLineSeries>
#include <QValueAxis>

#include "core/power/rayonnement_terre.h"
#include "core/etat/power_record.h"

namespace kestrel::gui {

const std::array<const char*, 12> noms_mois{"Janvier", "Février", "Mars",      "Avril",   "Mai",      "Juin",
                                            "Juillet", "Août",    "Septembre", "Octobre", "Novembre", "Décembre"};

namespace {

// The usual French abbreviations keep the twelve labels level on a small chart.
constexpr const char* mois_courts[] = {"Janv.", "Févr.", "Mars", "Avr.",  "Mai",  "Juin",
                                       "Juil.", "Août",  "Sept.", "Oct.", "Nov.", "Déc."};

QLineSeries* courbe(QChart* c, const char* nom, QColor couleur, QAbstractAxis* x, QAbstractAxis* y) {
    auto* s = new QLineSeries(c);
    s->setName(QString::fromUtf8(nom));
    s->setPen(QPen(couleur, 2));
    s->setPointsVisible(true);
    c->addSeries(s);
    s->attachAxis(x);
    s->attachAxis(y);
    return s;
}

}  // namespace

env_graph1::env_graph1(QWidget* parent) : QChartView(parent) {
    setObjectName(QStringLiteral("env_graph1"));
    setRenderHint(QPainter::Antialiasing);
    setMinimumSize(660, 400);

    auto* c = new QChart();
    c->setTitle(QStringLiteral("Environnement au cours de l'année"));
    c->legend()->setAlignment(Qt::AlignBottom);

    auto* mois = new QBarCategoryAxis(c);
    for (const char* m : mois_courts) mois->append(QString::fromUtf8(m));
    QFont petit = mois->labelsFont();
    petit.setPointSizeF(petit.pointSizeF() * 0.85);
    mois->setLabelsFont(petit);
    auto* wm2 = new QValueAxis(c);
    wm2->setRange(0, 1500);
    wm2->setTickCount(6);  // same grid lines as the albedo axis
    wm2->setLabelFormat(QStringLiteral("%.0f"));
    wm2->setTitleText(QStringLiteral("Flux (W/m²)"));
    auto* sans_unite = new QValueAxis(c);
    sans_unite->setRange(0, 1);
    sans_unite->setTickCount(6);
    sans_unite->setLabelFormat(QStringLiteral("%.1f"));
    sans_unite->setTitleText(QStringLiteral("Albédo"));
    c->addAxis(mois, Qt::AlignBottom);
    c->addAxis(wm2, Qt::AlignLeft);
    c->addAxis(sans_unite, Qt::AlignRight);

    flux_ = courbe(c, "Constante solaire (W/m²)", QColor(230, 150, 0), mois, wm2);
    ir_ = courbe(c, "Infrarouge (W/m²)", QColor(200, 30, 30), mois, wm2);
    albedo_ = courbe(c, "Albédo", QColor(30, 90, 200), mois, sans_unite);
    setChart(c);
}

void env_graph1::trace(const PowerRecord& p) {
    QList<QPointF> a, ir, f;
    for (int m = 0; m < 12; ++m) {
        a << QPointF(m, p.albedo[m]);
        ir << QPointF(m, p.earth_ir[m]);
        f << QPointF(m, flux_solaire(p.sun_power, distance_soleil_mois[m]));
    }
    albedo_->replace(a);
    ir_->replace(ir);
    flux_->replace(f);
}

}  // namespace kestrel::gui
