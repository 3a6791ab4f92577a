#include "core/project/trace_graph.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/shell/calendrier.h"
#include "core/shell/format_image.h"

namespace kestrel {

namespace {

using namespace graphe;

Trait segment(double x0, double y0, double x1, double y1, int largeur, Couleur c) {
    return Trait{{{x0, y0}, {x1, y1}}, largeur, c};
}

// Adds a point to a curve, folding runs of points on one pixel column into
// their first, lowest, highest and last points (y grows downwards).
class Courbe {
public:
    explicit Courbe(Trait& t) : t_(t) {}
    void ajoute(Point p) {
        if (!run_.empty() && p.x != run_.front().x) vide();
        run_.push_back(p);
        if (run_.size() > 4) {
            // keep first, top, bottom, last of the run so far
            auto [haut, bas] = std::minmax_element(run_.begin() + 1, run_.end(),
                                                   [](Point a, Point b) { return a.y < b.y; });
            const Point h = *haut, b = *bas, premier = run_.front(), dernier = run_.back();
            run_ = {premier, h, b, dernier};
        }
    }
    void vide() {
        if (run_.empty()) return;
        const Point premier = run_.front(), dernier = run_.back();
        double haut = premier.y, bas = premier.y;
        for (const Point& p : run_) haut = std::min(haut, p.y), bas = std::max(bas, p.y);
        pousse(premier);
        // the extreme met first after the first point, then the other
        if (haut != premier.y || bas != premier.y) {
            pousse({premier.x, haut});
            pousse({premier.x, bas});
        }
        pousse(dernier);
        run_.clear();
    }

private:
    void pousse(Point p) {
        if (t_.points.empty() || !(t_.points.back() == p)) t_.points.push_back(p);
    }
    Trait& t_;
    std::vector<Point> run_;
};

// The label's date carries the rows' 0.1 s, so that a whole second is not
// shown as the one before.
std::string texte_date(double j) {
    Date d;
    jour_vers_date(j + 0.1 / 86400.0, d);
    return date_vers_texte(d);
}

}  // namespace

std::optional<Dessin> trace_graph(const EntreeGraphe& e) {
    double max = e.lim_max, min = e.lim_min;
    if (min > max) std::swap(min, max);
    if (max == min) return std::nullopt;

    Dessin d;
    d.largeur = largeur;
    d.hauteur = hauteur;
    d.marges.gauche = 20;
    d.marges.haut = 4;
    d.marges.droite = 10;
    d.marges.bas = 30;

    const double pas_y = (max - min) / 4;
    const double pas_date = (e.fin - e.debut) / 10;

    // Grid rows 1 .. n of a table of n rows; the spacing is over n - 1.
    const long n = e.table ? static_cast<long>(e.table->lignes()) : 0;
    const long intervalles = n - 1;  // rows - 2 of the grid, header row included
    auto x_ligne = [intervalles](long r) { return std::floor(700.0 * r / intervalles) + x_gauche; };
    auto y_valeur = [max, min](double v) { return y_bas - (v - min) * (y_bas - y_max) / (max - min); };

    // Eclipses: rows 1 .. n - 1 with the grey background, adjacent boxes merged.
    for (long r = 1; r <= intervalles; ++r) {
        if (!e.table->eclipse(static_cast<std::size_t>(r - 1))) continue;
        const double x0 = x_ligne(r), x1 = x_ligne(r + 1);
        if (!d.boites.empty() && d.boites.back().x1 == x0)
            d.boites.back().x1 = x1;
        else
            d.boites.push_back({x0, y_max, x1, y_bas, gris_eclipse});
    }

    // The value lines go under the axes so that the bottom one keeps the axis black.
    for (int i = 0; i <= 4; ++i) {
        const double y = y_bas - 55 * i;
        d.traits.push_back(segment(x_gauche, y, x_droite, y, 1, gris_lignes));
        d.textes.push_back({x_gauche - 4, y, format_image(min + i * pas_y, "0.0e+00"), Ancrage::droite_milieu});
    }
    d.traits.push_back(segment(x_gauche, y_haut, x_gauche, y_bas, 2, noir));
    d.traits.push_back(segment(x_gauche, y_bas, x_droite, y_bas, 2, noir));

    for (int i = 0; i <= 10; ++i) {
        const double x = 70 * i + x_gauche;
        d.traits.push_back(segment(x, y_bas, x, y_bas + 10, 1, noir));
        const std::string date = texte_date(e.debut + i * pas_date);
        std::string t = date.substr(date.size() - 8);
        if (i == 0) t += "\n" + date.substr(0, 10);
        d.textes.push_back({x, y_bas + 12, std::move(t), Ancrage::haut_centre});
    }

    for (int k = 0; k < 6; ++k) {
        const int col = e.colonnes[k];
        if (col <= 0 || intervalles <= 0 || col >= e.table->colonnes()) continue;
        Trait t{{}, 1, couleurs[k]};
        Courbe courbe(t);
        for (long r = 1; r <= n; ++r)
            courbe.ajoute({x_ligne(r), y_valeur(e.table->valeur(static_cast<std::size_t>(r - 1), col))});
        courbe.vide();
        d.traits.push_back(std::move(t));
    }
    return d;
}

}  // namespace kestrel
