// A widget showing one Dessin of the core (a trace_graph picture) with its
// labels, at its own size; empty until given one.
#pragma once
#include <QWidget>
#include <optional>

#include "core/project/dessin.h"
#include "rendu/peintre.h"

namespace kestrel::gui {

class ImageDessin : public QWidget {
    Q_OBJECT
public:
    // avec_textes: the picture in its margins with its labels; image: the
    // picture alone, its labels being shown by the window's own controls.
    explicit ImageDessin(QWidget* parent = nullptr, rendu::Cadre cadre = rendu::Cadre::avec_textes);

    void montre(std::optional<Dessin> d);
    const std::optional<Dessin>& dessin() const { return dessin_; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evt) override;

private:
    std::optional<Dessin> dessin_;
    rendu::Cadre cadre_;
};

}  // namespace kestrel::gui
