// Pict_visu3d: Earth, Sun and satellite in fixed-function OpenGL, in a
// compatibility-profile context (Mesa's software renderer will do). The
// owner sets the geometry then calls update(); the frame only draws.
#pragma once
#include <QOpenGLWidget>
#include <QPoint>
#include <array>

#include "core/power/geometrie_vue.h"

class QLabel;

namespace kestrel::gui {

class Pict_visu3d : public QOpenGLWidget {
    Q_OBJECT
public:
    // dossier: where the textures are (dossier_depart).
    explicit Pict_visu3d(const QString& dossier, QWidget* parent = nullptr);
    ~Pict_visu3d() override;

    // Geometry of the next frame; panneaux: the external panels are drawn,
    // turned to pan_angle (rad).
    void set_geometrie(const GeometrieVue& g, bool panneaux, double pan_angle);

    // View angles, rad: elevation (held in -pi/2..pi/2) and azimuth.
    double angle_elevation() const { return angle1_; }
    double angle_azimut() const { return angle2_; }

    // Renderer named by the driver once the context exists ("" before).
    QString renderer() const { return renderer_; }
    // Whether a context was made and the textures were uploaded.
    bool pret() const { return pret_; }

    // The surface format of the view: RGB(A) 8 bits, depth, double buffer,
    // compatibility profile so that the fixed-function calls exist.
    static QSurfaceFormat SetupPixelFormat();

protected:
    void initializeGL() override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    void gl_initialize();
    void update_panels();
    void libere();

    QString dossier_;
    std::array<unsigned, 7> textures_{};
    bool pret_ = false;
    QString renderer_;
    GeometrieVue geo_{};
    bool panneaux_ = false;
    double pan_angle_ = 0;
    double angle1_ = 0.3, angle2_ = 0.6;  // rad
    QPoint precedent_;
};

}  // namespace kestrel::gui
