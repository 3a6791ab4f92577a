// Paints a Dessin (core/project/dessin.h) with Qt: on any QPainter (a widget's
// paintEvent), or into a file whose extension picks the form (.png, .bmp, .svg).
//
//   rendu::peint(painter, dessin);                         // picture only
//   rendu::peint(painter, dessin, rendu::Cadre::avec_textes);
//   rendu::enregistre(dessin, "graphe.svg");               // picture and labels
//
// A program without a window (the command line) calls
// rendu::application_hors_ecran() once before painting texts: Qt needs an
// application object for its fonts.
#pragma once
#include <QImage>
#include <QSize>
#include <QString>
#include <memory>

#include "core/project/dessin.h"

class QPainter;
class QGuiApplication;

namespace kestrel::rendu {

// picture: the Dessin's largeur x hauteur only, texts left out;
// avec_textes: the margins around it too, with every text.
enum class Cadre { image, avec_textes };

// Size in pixels of what peint() covers.
QSize taille(const Dessin& d, Cadre cadre);

// Paints on a white background from the painter's origin (the top-left corner
// of the margins with avec_textes).
void peint(QPainter& p, const Dessin& d, Cadre cadre = Cadre::image);

QImage image(const Dessin& d, Cadre cadre);

// .svg through QSvgGenerator, any other extension through QImage's writer
// (.png, .bmp). False when the file could not be written.
bool enregistre(const Dessin& d, const QString& chemin, Cadre cadre = Cadre::avec_textes);

// A QGuiApplication on the offscreen platform when none exists yet; the caller
// keeps the returned object alive while painting (null when one existed).
std::unique_ptr<QGuiApplication> application_hors_ecran();

// Pixel size of the texts, the same on every output.
inline constexpr int taille_police = 11;

}  // namespace kestrel::rendu
