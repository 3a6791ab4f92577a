#include "core/project/textes_generateur.h"

#include <cmath>
#include <string_view>
#include <vector>

#include "core/shell/format_image.h"

namespace kestrel {

TableTextes textes_generateur(const ResultatGenerateur& r, VueGenerateur vue, double pas_s) {
    const TableGenerateur& g = r.table(vue);
    const char* image = image_vue(vue);
    TableTextes t(static_cast<int>(g.colonnes()) + 1);
    t.reserve(g.lignes(), 20 + 9 * g.colonnes());
    std::vector<std::string> cellules(g.colonnes() + 1);
    std::vector<std::string_view> vues(cellules.size());
    const double debut = r.dates.empty() ? 0 : r.dates.front();
    for (std::size_t l = 0; l < g.lignes(); ++l) {
        cellules[0] = date_ligne(debut, static_cast<long>(l), pas_s);
        for (std::size_t c = 0; c < g.colonnes(); ++c) {
            const double x = g.valeur(l, c);
            cellules[c + 1] = std::isnan(x) ? std::string() : format_image(x, image);
        }
        for (std::size_t c = 0; c < cellules.size(); ++c) vues[c] = cellules[c];
        t.ajoute(vues, r.eclipses[l] != 0);
    }
    return t;
}

std::string entete_colonne(const TableGenerateur& t, std::size_t col) {
    return t.titres[col] + " (" + t.unites[col] + ")";
}

Echelle echelle_colonnes(const TableTextes& t, int premiere, int n) {
    Echelle e;
    for (std::size_t l = 0; l < t.lignes(); ++l)
        for (int c = premiere; c < premiere + n && c < t.colonnes(); ++c)
            if (!t.cellule(l, c).empty()) e.ajoute(t.valeur(l, c));
    e.arrondit();
    return e;
}

void ecrit_texte_generateur(std::ostream& out, const ResultatGenerateur& r, VueGenerateur vue,
                            const TableTextes& t) {
    const TableGenerateur& g = r.table(vue);
    out << "Date";
    for (std::size_t c = 0; c < g.colonnes(); ++c) out << '\t' << entete_colonne(g, c);
    out << '\n';
    for (std::size_t l = 0; l < t.lignes(); ++l) {
        for (int c = 0; c < t.colonnes(); ++c) out << (c ? "\t" : "") << t.cellule(l, c);
        out << '\n';
    }
}

}  // namespace kestrel
