// A drawing as a list of primitives, with no toolkit behind it: the core
// computes it (trace_graph), a painter (src/rendu) puts it on a screen, an
// image or an SVG file. Coordinates in pixels of the picture, y downwards.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace kestrel {

struct Couleur {
    uint8_t r = 0, g = 0, b = 0;
    bool operator==(const Couleur&) const = default;
};

struct Point {
    double x = 0, y = 0;
    bool operator==(const Point&) const = default;
};

// Filled rectangle, no outline, corners (x0, y0) and (x1, y1).
struct Boite {
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    Couleur couleur;
    bool operator==(const Boite&) const = default;
};

// Open line through the points in order (two points: one segment).
struct Trait {
    std::vector<Point> points;
    int largeur = 1;  // px
    Couleur couleur;
    bool operator==(const Trait&) const = default;
};

// Where (x, y) stands on the text's box.
enum class Ancrage { haut_centre, droite_milieu };

// Text, possibly of several lines split by '\n'.
struct Texte {
    double x = 0, y = 0;
    std::string texte;
    Ancrage ancrage = Ancrage::haut_centre;
    bool operator==(const Texte&) const = default;
};

// Painted in this order: boxes, lines, texts. The texts may stand outside
// the picture (axis labels left of and under it): `marges` says how much room
// a full picture with its labels adds on each side.
struct Dessin {
    int largeur = 0, hauteur = 0;  // the picture, px
    struct {
        int gauche = 0, haut = 0, droite = 0, bas = 0;
    } marges;
    std::vector<Boite> boites;
    std::vector<Trait> traits;
    std::vector<Texte> textes;
};

}  // namespace kestrel
