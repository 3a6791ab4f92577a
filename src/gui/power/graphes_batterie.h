// pict_graphs of the battery study: state of charge (%) above, voltage (V)
// below, against time (min), the discharge on a grey ground. One pixel per
// plotted sample (10 s) once the samples outnumber the visible width, so the
// scroll area around it scrolls; extremes kept per pixel column.
#pragma once
#include <QWidget>
#include <vector>

#include "core/power/etude_batterie.h"

namespace kestrel::gui {

class GraphesBatterie : public QWidget {
    Q_OBJECT
public:
    explicit GraphesBatterie(QWidget* parent = nullptr);

    // New samples; `visible` is the size of the scroll area's viewport.
    void montre(std::vector<EchantillonBatterie> echantillons, QSize visible);
    // Same samples, sized again for a new viewport.
    void ajuste(QSize visible);
    const std::vector<EchantillonBatterie>& echantillons() const { return ech_; }

protected:
    void paintEvent(QPaintEvent* evt) override;

private:
    struct Zone;
    void trace(class QPainter& p, const Zone& z, double (*valeur)(const EchantillonBatterie&)) const;

    std::vector<EchantillonBatterie> ech_;
};

}  // namespace kestrel::gui
