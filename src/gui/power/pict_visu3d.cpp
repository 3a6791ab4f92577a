#include "power/pict_visu3d.h"

#include <QImage>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QSurfaceFormat>
#include <algorithm>
#include <cmath>

#include <GL/gl.h>
#include <GL/glu.h>

#include "core/shell/types.h"

namespace kestrel::gui {

namespace {

// TX_TERRE512, TX_FACEPX, TX_FACEMX, TX_FACEPY, TX_FACEMY, TX_FACEPZ, TX_FACEMZ.
constexpr const char* fichiers_textures[7] = {"terre_512x256.png", "face_px.png", "face_mx.png",
                                              "face_py.png", "face_my.png", "face_pz.png",
                                              "face_mz.png"};

constexpr double distance_oeil = 50.0;  // Earth radii: in front of the Sun's sphere (23.5)
constexpr double demi_cote = 0.12;      // Earth radii, half side of the drawn body
constexpr double envergure = 0.45;      // Earth radii, length of one drawn panel
constexpr double demi_largeur = 0.09;   // Earth radii, half width of a panel

// H_MOVE: the drag cursor, the four-way move arrow.
QCursor H_MOVE() { return QCursor(Qt::SizeAllCursor); }

// One face of the body: its texture slot, its normal and the two edge
// directions of the quad (right-handed with the normal).
struct Face {
    int texture;  // 1..6 into textures_ (texture numbers 2..7)
    float n[3], u[3], v[3];
};
// Textures 4, 5 on +-x, 6, 7 on +-y, 2, 3 on +-z (numbers from 1 for the Earth).
constexpr Face faces[6] = {
    {3, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}},    {4, {-1, 0, 0}, {0, 0, 1}, {0, 1, 0}},
    {5, {0, 1, 0}, {0, 0, 1}, {1, 0, 0}},    {6, {0, -1, 0}, {1, 0, 0}, {0, 0, 1}},
    {1, {0, 0, 1}, {1, 0, 0}, {0, 1, 0}},    {2, {0, 0, -1}, {0, 1, 0}, {1, 0, 0}},
};

void quad_face(const Face& f, double h) {
    glBegin(GL_QUADS);
    glNormal3fv(f.n);
    const int coins[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    for (const auto& c : coins) {
        glTexCoord2f(c[0] > 0 ? 1.0f : 0.0f, c[1] > 0 ? 1.0f : 0.0f);
        glVertex3d(h * (f.n[0] + c[0] * f.u[0] + c[1] * f.v[0]), h * (f.n[1] + c[0] * f.u[1] + c[1] * f.v[1]),
                   h * (f.n[2] + c[0] * f.u[2] + c[1] * f.v[2]));
    }
    glEnd();
}

}  // namespace

Pict_visu3d::Pict_visu3d(const QString& dossier, QWidget* parent) : QOpenGLWidget(parent), dossier_(dossier) {
    setObjectName(QStringLiteral("Pict_visu3d"));
    setFormat(SetupPixelFormat());
    setMinimumSize(240, 240);
}

Pict_visu3d::~Pict_visu3d() {
    // The textures belong to the context: free them while it is current. The
    // base class destroys the context after this body: its aboutToBeDestroyed
    // must no longer reach this object, already half gone by then.
    if (context()) {
        disconnect(context(), nullptr, this, nullptr);
        makeCurrent();
        libere();
        doneCurrent();
    }
}

QSurfaceFormat Pict_visu3d::SetupPixelFormat() {
    QSurfaceFormat f;
    f.setRenderableType(QSurfaceFormat::OpenGL);
    f.setProfile(QSurfaceFormat::CompatibilityProfile);
    f.setVersion(2, 1);
    f.setSwapBehavior(QSurfaceFormat::DoubleBuffer);
    f.setRedBufferSize(8);
    f.setGreenBufferSize(8);
    f.setBlueBufferSize(8);
    // No alpha buffer: the view is opaque, whatever the clear colour's alpha.
    f.setAlphaBufferSize(0);
    f.setDepthBufferSize(24);
    return f;
}

void Pict_visu3d::set_geometrie(const GeometrieVue& g, bool panneaux, double pan_angle) {
    geo_ = g;
    panneaux_ = panneaux;
    pan_angle_ = pan_angle;
}

void Pict_visu3d::libere() {
    if (pret_) glDeleteTextures(7, textures_.data());
    pret_ = false;
}

void Pict_visu3d::initializeGL() {
    renderer_ = QString::fromLatin1(reinterpret_cast<const char*>(glGetString(GL_RENDERER)));
    qInfo("Pict_visu3d: %s", qPrintable(renderer_));
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, [this] {
        makeCurrent();
        libere();
        doneCurrent();
    });
    gl_initialize();
}

void Pict_visu3d::gl_initialize() {
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_TEXTURE_2D);
    glMatrixMode(GL_PROJECTION);
    glMatrixMode(GL_MODELVIEW);

    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glEnable(GL_LINE_SMOOTH);

    glGenTextures(7, textures_.data());
    for (int i = 0; i < 7; ++i) {
        QImage img(dossier_ + QLatin1Char('/') + QLatin1String(fichiers_textures[i]));
        if (img.isNull()) {
            img = QImage(2, 2, QImage::Format_RGBA8888);
            img.fill(Qt::gray);
        }
        img = img.convertToFormat(QImage::Format_RGBA8888);
        // The quadric puts t = 0 at the south pole: first row up is the south.
        if (i == 0) img = img.mirrored(false, true);
        glBindTexture(GL_TEXTURE_2D, textures_[i]);
        glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
        glTexImage2D(GL_TEXTURE_2D, 0, 4, img.width(), img.height(), 0, GL_RGBA, GL_UNSIGNED_BYTE,
                     img.constBits());
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    }
    pret_ = true;

    glClearColor(0.0f, 0.0f, 0.2f, 0.0f);

    glLightf(GL_LIGHT0, GL_CONSTANT_ATTENUATION, 0.1f);
    glEnable(GL_LIGHT0);
    glEnable(GL_LIGHTING);

    const GLfloat ambiante[4] = {0.35f, 0.35f, 0.35f, 1.0f};
    const GLfloat diffuse[4] = {0.8f, 0.8f, 0.8f, 1.0f};
    glMaterialfv(GL_FRONT, GL_AMBIENT, ambiante);
    glMaterialfv(GL_FRONT, GL_DIFFUSE, diffuse);
    // A point light at the viewer's upper left, fixed to the eye; the
    // attenuation of 0.1 makes it ten times as bright, so lit faces show
    // their textures at full colour.
    const GLfloat position[4] = {-20.0f, 25.0f, 60.0f, 1.0f};
    glLightfv(GL_LIGHT0, GL_POSITION, position);

    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-4, 4, -4, 4, 1, 25000);
    glMatrixMode(GL_MODELVIEW);
}

void Pict_visu3d::paintGL() {
    // The widget sets the whole surface as viewport before each frame: a
    // square in the middle keeps the sphere round.
    const double r = devicePixelRatio();
    const int w = static_cast<int>(width() * r), h = static_cast<int>(height() * r);
    const int c = std::min(w, h);
    glViewport((w - c) / 2, (h - c) / 2, c, c);

    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);

    glMatrixMode(GL_MODELVIEW);
    GLUquadric* q = gluNewQuadric();
    glLoadIdentity();

    // Eye on a sphere around the origin; the up vector stays square to the
    // line of sight, so the poles of the drag range are no special case.
    const double c1 = std::cos(angle1_), s1 = std::sin(angle1_);
    const double c2 = std::cos(angle2_), s2 = std::sin(angle2_);
    gluLookAt(distance_oeil * c1 * s2, distance_oeil * s1, distance_oeil * c1 * c2, 0, 0, 0, -s1 * s2, c1,
              -s1 * c2);

    glEnable(GL_TEXTURE_2D);

    glPushMatrix();
    glRotated(-90.0, 1, 0, 0);
    glPushMatrix();
    glRotated(geo_.angle_terre, 0, 0, 1);

    glBindTexture(GL_TEXTURE_2D, textures_[0]);
    glColor3f(1, 1, 1);
    gluQuadricTexture(q, GL_TRUE);
    gluSphere(q, 1.0, 30, 30);

    // Polar axis: untextured and unlit so it stays white.
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_LIGHTING);
    glBegin(GL_LINES);
    glVertex3d(0, 0, 1.5);
    glVertex3d(0, 0, -1.5);
    glEnd();
    glEnable(GL_LIGHTING);
    glEnable(GL_TEXTURE_2D);

    glPopMatrix();
    glPopMatrix();

    const GLfloat blanc[4] = {1, 1, 1, 1};
    glMaterialfv(GL_FRONT, GL_AMBIENT_AND_DIFFUSE, blanc);
    glPushMatrix();
    glTranslated(geo_.sat[0], geo_.sat[1], geo_.sat[2]);
    glMultMatrixd(geo_.axes.data());
    for (const Face& f : faces) {
        glBindTexture(GL_TEXTURE_2D, textures_[f.texture]);
        quad_face(f, demi_cote);
    }
    glPopMatrix();

    glDisable(GL_LIGHTING);
    glBindTexture(GL_TEXTURE_2D, 0);
    glPushMatrix();
    glColor3ub(255, 255, 0);
    glTranslated(geo_.soleil[0], geo_.soleil[1], geo_.soleil[2]);
    gluSphere(q, 0.1, 10, 10);
    glPopMatrix();

    glEnable(GL_LIGHTING);
    glEnable(GL_TEXTURE_2D);
    glMatrixMode(GL_MODELVIEW);
    gluDeleteQuadric(q);
    update_panels();
}

void Pict_visu3d::update_panels() {
    if (!panneaux_) return;
    // The panels turn about the body's y axis; at angle 0 their cells face -x.
    // They wear the cell grid of texture 2, on both sides.
    glBindTexture(GL_TEXTURE_2D, textures_[1]);
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, GL_TRUE);
    glPushMatrix();
    glTranslated(geo_.sat[0], geo_.sat[1], geo_.sat[2]);
    glMultMatrixd(geo_.axes.data());
    glRotated(pan_angle_ / DEG_RAD, 0, 1, 0);
    for (const double cote : {1.0, -1.0}) {
        const double y0 = cote * demi_cote, y1 = cote * (demi_cote + envergure);
        glBegin(GL_QUADS);
        glNormal3f(-1, 0, 0);
        glTexCoord2f(0, 0);
        glVertex3d(0, y0, -demi_largeur);
        glTexCoord2f(1, 0);
        glVertex3d(0, y1, -demi_largeur);
        glTexCoord2f(1, 1);
        glVertex3d(0, y1, demi_largeur);
        glTexCoord2f(0, 1);
        glVertex3d(0, y0, demi_largeur);
        glEnd();
    }
    glPopMatrix();
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, GL_FALSE);
}

void Pict_visu3d::mousePressEvent(QMouseEvent* e) {
    setCursor(H_MOVE());
    precedent_ = e->position().toPoint();
}

void Pict_visu3d::mouseMoveEvent(QMouseEvent* e) {
    if (!(e->buttons() & Qt::LeftButton)) return;
    const QPoint p = e->position().toPoint();
    angle1_ = std::clamp(angle1_ + (precedent_.y() - p.y()) / 50.0, -DEMI_PI, DEMI_PI);
    angle2_ += (p.x() - precedent_.x()) / 50.0;
    precedent_ = p;
    update();
}

void Pict_visu3d::mouseReleaseEvent(QMouseEvent*) { unsetCursor(); }

}  // namespace kestrel::gui
