// The drawing of the attitude configuration. Pict_config draws the central
// body in an axonometric view (x to the lower left, y to the lower right, z up) with
// its axes; the pieces Pict_mag, Pict_masxp .. Pict_maszm, Pict_roues and
// Pict_damp are children laid over it, each shown only while its feature is
// in use (att_conf::montre_config decides). Nothing here computes physics:
// the pieces only read the record.
#pragma once
#include <QPointF>
#include <QWidget>

namespace kestrel {
struct AttitudeRecord;
}

namespace kestrel::gui {

// Screen placing of the body: its centre, pixels per drawing unit, and the
// half sizes of the box drawn (the largest 1; the proportions of dim).
struct VueConfig {
    QPointF centre;
    double echelle = 1.0;
    double demi[3] = {0.5, 0.5, 0.5};
    QPointF point(double x, double y, double z) const;
};

class dessin_config : public QWidget {
    Q_OBJECT
public:
    dessin_config(const AttitudeRecord& a, QWidget* parent = nullptr);

    // Shows or hides the piece of that object name.
    void montre(const QString& piece, bool visible);
    VueConfig vue() const;
    const AttitudeRecord& att() const { return att_; }
    QSize sizeHint() const override { return {400, 460}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    const AttitudeRecord& att_;
};

}  // namespace kestrel::gui
