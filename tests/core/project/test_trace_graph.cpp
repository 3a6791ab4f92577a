// trace_graph on small tables whose primitives are worked out by hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "core/project/trace_graph.h"

using namespace kestrel;

namespace {

constexpr double AN2000 = 18262.0;  // 01/01/2000 00:00:00
constexpr Couleur NOIR{0, 0, 0};

// A table of the given column-1 and column-2 values, one row a minute.
TableTextes table(std::initializer_list<std::pair<const char*, bool>> lignes) {
    TableTextes t(7);
    for (auto [v, ecl] : lignes) t.ajoute({"date", v, "1.00", "", "", "", ""}, ecl);
    return t;
}

// Traits of a given colour and width.
std::vector<Trait> traits(const Dessin& d, Couleur c, int largeur) {
    std::vector<Trait> r;
    for (const Trait& t : d.traits)
        if (t.couleur == c && t.largeur == largeur) r.push_back(t);
    return r;
}

}  // namespace

TEST(TraceGraph, TroisLignes) {
    // n = 3 rows: grid rows 1..3, spacing over n - 1 = 2:
    // x = Int(700 r / 2) + 50 -> 400, 750, 1100.  y = 235 - 220 v / 10 = 235 - 22 v.
    TableTextes t = table({{"0.00", true}, {"5.00", true}, {"10.00", true}});
    EntreeGraphe e{&t, {1, 0, 0, 0, 0, 0}, 10, 0, AN2000, AN2000 + 120.0 / 86400};
    const auto d = trace_graph(e);
    ASSERT_TRUE(d);
    EXPECT_EQ(d->largeur, 800);
    EXPECT_EQ(d->hauteur, 250);

    // rows 1 and 2 (the last row is never tested) shaded, merged into one box
    ASSERT_EQ(d->boites.size(), 1u);
    EXPECT_EQ(d->boites[0], (Boite{400, 15, 1100, 235, {224, 224, 224}}));

    const auto courbes = traits(*d, {0, 0, 255}, 1);
    ASSERT_EQ(courbes.size(), 1u);
    EXPECT_EQ(courbes[0].points, (std::vector<Point>{{400, 235}, {750, 125}, {1100, 15}}));

    // axes width 2, then 11 ticks of 10 px under the axis at 50, 120, ..., 750
    const auto axes = traits(*d, NOIR, 2);
    ASSERT_EQ(axes.size(), 2u);
    EXPECT_EQ(axes[0].points, (std::vector<Point>{{50, 5}, {50, 235}}));
    EXPECT_EQ(axes[1].points, (std::vector<Point>{{50, 235}, {750, 235}}));
    const auto ticks = traits(*d, NOIR, 1);
    ASSERT_EQ(ticks.size(), 11u);
    for (int i = 0; i <= 10; ++i)
        EXPECT_EQ(ticks[i].points, (std::vector<Point>{{70.0 * i + 50, 235}, {70.0 * i + 50, 245}}));
    // five value lines at 235 - 55 i
    const auto lignes = traits(*d, graphe::gris_lignes, 1);
    ASSERT_EQ(lignes.size(), 5u);
    EXPECT_EQ(lignes[4].points, (std::vector<Point>{{50, 15}, {750, 15}}));

    // labels: values min + i (10 / 4), dates every (120 s / 10) = 12 s
    std::vector<std::string> textes;
    for (const Texte& x : d->textes) textes.push_back(x.texte);
    const std::vector<std::string> attendus{
        "0.0e+00", "2.5e+00", "5.0e+00", "7.5e+00", "1.0e+01",
        "00:00:00\n01/01/2000", "00:00:12", "00:00:24", "00:00:36", "00:00:48", "00:01:00",
        "00:01:12", "00:01:24", "00:01:36", "00:01:48", "00:02:00"};
    EXPECT_EQ(textes, attendus);
}

TEST(TraceGraph, LimitesEtCasLimites) {
    TableTextes t = table({{"0.00", false}, {"5.00", false}, {"10.00", false}});
    EntreeGraphe e{&t, {0, 1, 0, 0, 0, 0}, 10, 0, AN2000, AN2000 + 120.0 / 86400};

    // Equal limits draw nothing at all.
    EntreeGraphe egales = e;
    egales.lim_min = egales.lim_max = 3;
    EXPECT_FALSE(trace_graph(egales));

    // Swapped limits give the same picture; column 1 in the second slot is red.
    EntreeGraphe inverse = e;
    std::swap(inverse.lim_max, inverse.lim_min);
    const auto a = trace_graph(e), b = trace_graph(inverse);
    ASSERT_TRUE(a && b);
    const auto rouge = traits(*b, {255, 0, 0}, 1);
    ASSERT_EQ(rouge.size(), 1u);
    EXPECT_EQ(rouge[0].points, traits(*a, {255, 0, 0}, 1)[0].points);
    EXPECT_TRUE(a->boites.empty());

    // Negative limits: 5 sits at the top of a [-5, 5] scale, 0 in the middle.
    EntreeGraphe negatif = e;
    negatif.lim_max = 5, negatif.lim_min = -5;
    EXPECT_EQ(traits(*trace_graph(negatif), {255, 0, 0}, 1)[0].points,
              (std::vector<Point>{{400, 125}, {750, 15}, {1100, -95}}));

    // One row: rows - 2 = 0 in the grid, axes, ticks and value lines only.
    TableTextes une = table({{"4.00", true}});
    EntreeGraphe seule{&une, {1, 1, 1, 1, 1, 1}, 10, 0, AN2000, AN2000};
    const auto d = trace_graph(seule);
    ASSERT_TRUE(d);
    EXPECT_TRUE(d->boites.empty());
    EXPECT_EQ(d->traits.size(), 5u + 2u + 11u);

    // No table at all: the same.
    EntreeGraphe vide{nullptr, {1, 0, 0, 0, 0, 0}, 1, 0, AN2000, AN2000};
    EXPECT_EQ(trace_graph(vide)->traits.size(), 18u);
}

TEST(TraceGraph, UnPointParColonneDePixel) {
    // 2801 rows alternating 0 and 10 over 2800 intervals: x = Int(r / 4) + 50,
    // four rows on each pixel column, each column holding both extremes.
    TableTextes t(7);
    for (int r = 0; r < 2801; ++r) t.ajoute({"d", r % 2 ? "10" : "0", "", "", "", "", ""}, r % 8 < 4);
    EntreeGraphe e{&t, {1, 0, 0, 0, 0, 0}, 10, 0, AN2000, AN2000 + 1};
    const auto d = trace_graph(e);
    ASSERT_TRUE(d);
    const Trait c = traits(*d, {0, 0, 255}, 1).at(0);
    EXPECT_LE(c.points.size(), 4u * 702);
    std::set<double> hauts, bas;
    for (const Point& p : c.points) {
        EXPECT_EQ(p.x, std::floor(p.x));
        (p.y == 15 ? hauts : bas).insert(p.x);
    }
    // grid rows 1..2801 -> x from Int(1/4)+50 = 50 to Int(2801/4)+50 = 750
    EXPECT_EQ(*hauts.begin(), 50);
    EXPECT_EQ(*hauts.rbegin(), 750);
    EXPECT_EQ(hauts.size(), 701u);
    EXPECT_EQ(bas.size(), 701u);
    // shaded rows come in fours, r = 8k+1..8k+4: one box from Int((8k+1)/4) + 50
    // to Int((8k+5)/4) + 50, i.e. 50..51, 52..53, ...: 2800 / 8 = 350 boxes
    ASSERT_EQ(d->boites.size(), 350u);
    EXPECT_EQ(d->boites[0], (Boite{50, 15, 51, 235, graphe::gris_eclipse}));
    EXPECT_EQ(d->boites[1], (Boite{52, 15, 53, 235, graphe::gris_eclipse}));
    EXPECT_EQ(d->boites[349].x1, 749);  // rows 2793..2796, to Int(2797 / 4) + 50
}
