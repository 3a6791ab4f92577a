// trace_graph: the curves of up to six columns of a result table over the
// period, on a fixed 800 x 250 picture. Everything is read back from the
// table's texts (the table is the store); the result is a Dessin that
// src/rendu paints. How to use it:
//
//   TableTextes table(7);                  // date + six value columns
//   ... table.ajoute({date, v1, ..., v6}, eclipse) per step ...
//   EntreeGraphe e{&table, {1, 2, 0, 0, 0, 0}, lim_max, lim_min, debut, fin};
//   if (auto d = trace_graph(e))          // nullopt: equal limits, keep the old picture
//       rendu::enregistre_image(*d, "graphe.png");   // or rendu::peint(painter, *d)
//
// Geometry: the drawing area runs from x = 50 to 750 and from y = 5 (top) to
// 235 (bottom). The rows are those of a grid with a header row, so a table of
// n rows is a grid of n + 1 rows; grid row r (1-based) sits at
// x = Int(700 r / (n - 1)) + 50 and a value v at y = 235 - 220 (v - min)/(max - min),
// the minimum on the bottom axis and the maximum at y = 15.
#pragma once
#include <array>
#include <optional>

#include "core/project/dessin.h"
#include "core/project/table_textes.h"

namespace kestrel {

namespace graphe {
inline constexpr int largeur = 800, hauteur = 250;  // the picture pict_graph
inline constexpr int x_gauche = 50, x_droite = 750;
inline constexpr int y_haut = 5, y_bas = 235, y_max = 15;
inline constexpr Couleur noir{0, 0, 0};
inline constexpr Couleur gris_eclipse{224, 224, 224};
inline constexpr Couleur gris_lignes{176, 176, 176};
// Curve colours of columns 1 to 6.
inline constexpr std::array<Couleur, 6> couleurs{
    {{0, 0, 255}, {255, 0, 0}, {0, 0, 128}, {255, 128, 0}, {128, 0, 128}, {0, 128, 0}}};
}  // namespace graphe

struct EntreeGraphe {
    const TableTextes* table = nullptr;  // column 0 the date text, then values
    // Table column drawn in colour i (0: none). The exploitation windows draw
    // their six columns 1..6 in order, each only when a variable is chosen.
    std::array<int, 6> colonnes{};
    double lim_max = 0, lim_min = 0;  // as read from the limit boxes
    double debut = 0, fin = 0;        // the period, day counts
};

// The picture, with its labels as texts: eleven dates under the x ticks (the
// first one with its day under the time), five values left of the y lines.
// Limits given the wrong way round are swapped for the drawing; equal limits
// draw nothing at all (nullopt), so a window keeps the picture it had. A
// table of fewer than two rows draws the axes only. Eclipse boxes of adjacent
// rows are merged and a curve keeps, per pixel column, only its first,
// lowest, highest and last points: the same pixels, whatever the row count.
std::optional<Dessin> trace_graph(const EntreeGraphe& e);

}  // namespace kestrel
