#include "power/image_dessin.h"

#include <QPainter>

#include "core/project/trace_graph.h"
#include "rendu/peintre.h"

namespace kestrel::gui {

ImageDessin::ImageDessin(QWidget* parent, rendu::Cadre cadre) : QWidget(parent), cadre_(cadre) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ImageDessin::montre(std::optional<Dessin> d) {
    dessin_ = std::move(d);
    updateGeometry();
    update();
}

QSize ImageDessin::sizeHint() const {
    if (dessin_) return rendu::taille(*dessin_, cadre_);
    if (cadre_ == rendu::Cadre::image) return {graphe::largeur, graphe::hauteur};
    return {graphe::largeur + 100, graphe::hauteur + 60};
}

void ImageDessin::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (dessin_)
        rendu::peint(p, *dessin_, cadre_);
    else
        p.fillRect(rect(), Qt::white);
}

}  // namespace kestrel::gui
