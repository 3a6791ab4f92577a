// A widget showing one Dessin of the core (a trace_graph picture) with its
// labels, at its own size; empty until given one.
#pragma once
#include <QWidget>
#include <optional>

#include "core/project/dessin.h"

namespace kestrel::gui {

class ImageDessin : public QWidget {
    Q_OBJECT
public:
    explicit ImageDessin(QWidget* parent = nullptr);

    void montre(std::optional<Dessin> d);
    const std::optional<Dessin>& dessin() const { return dessin_; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evt) override;

private:
    std::optional<Dessin> dessin_;
};

}  // namespace kestrel::gui
