#include "core/power/courbes_conf.h"

#include <cmath>

#include <fmt/format.h>

#include "core/etat/etat.h"
#include "core/power/bat_curves.h"
#include "core/power/cell_efficiency.h"

namespace kestrel {

namespace {

// "-25°C", "0.5C": the shortest text of the number.
std::string etiquette(double x, const char* unite) { return fmt::format("{}{}", x, unite); }

Serie serie_cellule(const PowerRecord& p, double t, std::string nom, bool puissance) {
    const CelluleT c = cellule_a(p, t);
    Serie s{std::move(nom), {}};
    constexpr int n = 50;
    for (int k = 0; k <= n; ++k) {
        const double v = c.voc * k / n;
        const double i = courant_chaine(c, v, 1.0);
        s.points.push_back({v, puissance ? v * i : i});
    }
    return s;
}

}  // namespace

std::vector<Serie> courbes_cellule(const PowerRecord& p, bool puissance) {
    std::vector<Serie> r;
    r.push_back(serie_cellule(p, p.cel_tref, "Tréf", puissance));
    for (double e : ecarts_cellule) {
        const double t = p.cel_tref + e;
        r.push_back(serie_cellule(p, t, etiquette(t, "°C"), puissance));
    }
    return r;
}

std::vector<Serie> courbes_batterie(const PowerRecord& p, bool charge, bool par_courant) {
    // bat_v_charge reports its failure on a run state: a scratch one here, so
    // that drawing never raises the run's alert.
    Etat brouillon;
    brouillon.pwr = p;
    std::vector<Serie> r;
    auto trace = [&](double i, double t, std::string nom) {
        Serie s{std::move(nom), {}};
        for (int k = 0; k <= (charge ? 100 : 99); ++k) {
            const double x = k / 100.0;
            const double v = charge ? bat_v_charge(brouillon, i, t, x) : bat_v_discharge(p, i, t, 1 - x);
            s.points.push_back({100.0 * x, v});
        }
        r.push_back(std::move(s));
    };
    if (par_courant)
        for (double i : courants_batterie) trace(i, 25, etiquette(i, "C"));
    else
        for (double t : temperatures_batterie) trace(1, t, etiquette(t, "°C"));
    return r;
}

}  // namespace kestrel
