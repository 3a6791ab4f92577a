#include "rendu/peintre.h"

#include <QFileInfo>
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QStringList>
#include <QSvgGenerator>

namespace kestrel::rendu {

namespace {

QColor qcouleur(Couleur c) { return QColor(c.r, c.g, c.b); }

void peint_texte(QPainter& p, const Texte& t) {
    const QStringList lignes = QString::fromStdString(t.texte).split(QLatin1Char('\n'));
    const QFontMetrics fm(p.font());
    const int h = fm.height();
    double y = t.y;
    if (t.ancrage == Ancrage::droite_milieu) y -= h * lignes.size() / 2.0;
    for (const QString& l : lignes) {
        const int w = fm.horizontalAdvance(l);
        const double x = t.ancrage == Ancrage::haut_centre ? t.x - w / 2.0 : t.x - w;
        p.drawText(QPointF(x, y + fm.ascent()), l);
        y += h;
    }
}

}  // namespace

QSize taille(const Dessin& d, Cadre cadre) {
    if (cadre == Cadre::image) return {d.largeur, d.hauteur};
    return {d.largeur + d.marges.gauche + d.marges.droite, d.hauteur + d.marges.haut + d.marges.bas};
}

void peint(QPainter& p, const Dessin& d, Cadre cadre) {
    p.save();
    p.fillRect(QRect(QPoint(0, 0), taille(d, cadre)), Qt::white);
    if (cadre == Cadre::avec_textes) p.translate(d.marges.gauche, d.marges.haut);
    p.setClipRect(QRect(0, 0, d.largeur, d.hauteur));
    for (const Boite& b : d.boites)
        p.fillRect(QRectF(QPointF(b.x0, b.y0), QPointF(b.x1, b.y1)), qcouleur(b.couleur));
    for (const Trait& t : d.traits) {
        QPen pen(qcouleur(t.couleur));
        pen.setWidth(t.largeur);
        pen.setCapStyle(Qt::FlatCap);
        p.setPen(pen);
        QPolygonF poly;
        poly.reserve(static_cast<qsizetype>(t.points.size()));
        for (const Point& q : t.points) poly << QPointF(q.x, q.y);
        p.drawPolyline(poly);
    }
    if (cadre == Cadre::avec_textes) {
        p.setClipping(false);
        QFont f = p.font();
        f.setPixelSize(taille_police);
        p.setFont(f);
        p.setPen(Qt::black);
        for (const Texte& t : d.textes) peint_texte(p, t);
    }
    p.restore();
}

QImage image(const Dessin& d, Cadre cadre) {
    QImage img(taille(d, cadre), QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    peint(p, d, cadre);
    return img;
}

bool enregistre(const Dessin& d, const QString& chemin, Cadre cadre) {
    if (QFileInfo(chemin).suffix().compare(QLatin1String("svg"), Qt::CaseInsensitive) == 0) {
        QSvgGenerator svg;
        svg.setFileName(chemin);
        svg.setSize(taille(d, cadre));
        svg.setViewBox(QRect(QPoint(0, 0), taille(d, cadre)));
        svg.setTitle(QStringLiteral("KESTREL"));
        QPainter p;
        if (!p.begin(&svg)) return false;
        peint(p, d, cadre);
        return p.end();
    }
    return image(d, cadre).save(chemin);
}

std::unique_ptr<QGuiApplication> application_hors_ecran() {
    if (QGuiApplication::instance()) return nullptr;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a desktop session Qt warns about its runtime folder, which a
    // program writing a picture never uses: that warning alone is dropped.
    static QtMessageHandler precedent = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext& ctx, const QString& m) {
            if (!m.startsWith(QLatin1String("QStandardPaths:")) && precedent) precedent(type, ctx, m);
        });
    static int argc = 1;
    static char nom[] = "kestrel";
    static char* argv[] = {nom, nullptr};
    return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace kestrel::rendu
