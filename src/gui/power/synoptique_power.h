// The synoptic of the complete simulation: panels, conditioning unit (bus),
// payload, battery and shunt joined by the paths of power, with the values
// of the last step beside each path and the arrows fl_gs, fl_charge,
// fl_decharge, fl_shunt on the paths that carry power.
#pragma once
#include <QWidget>

#include "core/power/affichage_sim.h"

class QLabel;

namespace kestrel::gui {

// One arrow of the synoptic, drawn pointing along its path.
class Fleche : public QWidget {
    Q_OBJECT
public:
    enum class Sens { droite, gauche, haut, bas };
    Fleche(const QString& nom, Sens sens, QColor couleur, QWidget* parent);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    Sens sens_;
    QColor couleur_;
};

class synoptique_power : public QWidget {
    Q_OBJECT
public:
    explicit synoptique_power(QWidget* parent = nullptr);

    // Values and arrows of one step.
    void affiche(const AffichageSim& a);

    QSize sizeHint() const override { return {680, 430}; }
    QSize minimumSizeHint() const override { return {560, 380}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    // A caption over its value label, both children of one small box.
    QWidget* valeur(const char* nom, const char* legende);
    void place();

    // Blocks and paths in widget coordinates, from the present size.
    struct Plan {
        QRectF panneaux, cu, charge_utile, batterie, shunt;
        QLineF gs, utile, vers_shunt, charge, decharge;
    };
    Plan plan() const;

    QLabel* lab(const char* nom) const;
    AffichageSim dernier_{};
};

}  // namespace kestrel::gui
