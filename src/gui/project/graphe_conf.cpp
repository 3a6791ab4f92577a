#include "project/graphe_conf.h"

#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

namespace kestrel::gui {

void trace_series(QChartView* vue, const std::vector<Serie>& series, const QString& titre,
                  const QString& titre_x, const QString& titre_y) {
    auto* graphe = new QChart;
    graphe->setTitle(titre);
    graphe->legend()->setAlignment(Qt::AlignRight);
    graphe->setMargins(QMargins(2, 2, 2, 2));
    auto* axe_x = new QValueAxis;
    auto* axe_y = new QValueAxis;
    axe_x->setTitleText(titre_x);
    axe_y->setTitleText(titre_y);
    graphe->addAxis(axe_x, Qt::AlignBottom);
    graphe->addAxis(axe_y, Qt::AlignLeft);
    double xmin = 0, xmax = 0, ymin = 0, ymax = 0;
    bool premier = true;
    for (const Serie& s : series) {
        auto* ligne = new QLineSeries;
        ligne->setName(QString::fromStdString(s.nom));
        for (const PointXY& p : s.points) {
            if (!std::isfinite(p.x) || !std::isfinite(p.y)) continue;  // a broken curve shows its good part
            ligne->append(p.x, p.y);
            xmin = premier ? p.x : std::min(xmin, p.x);
            xmax = premier ? p.x : std::max(xmax, p.x);
            ymin = premier ? p.y : std::min(ymin, p.y);
            ymax = premier ? p.y : std::max(ymax, p.y);
            premier = false;
        }
        graphe->addSeries(ligne);
        ligne->attachAxis(axe_x);
        ligne->attachAxis(axe_y);
    }
    if (xmax <= xmin) xmax = xmin + 1;
    if (ymax <= ymin) ymax = ymin + 1;
    axe_x->setRange(xmin, xmax);
    axe_y->setRange(ymin, ymax);
    axe_x->applyNiceNumbers();
    axe_y->applyNiceNumbers();
    QChart* ancien = vue->chart();
    vue->setChart(graphe);
    vue->setRenderHint(QPainter::Antialiasing);
    delete ancien;
}

}  // namespace kestrel::gui
