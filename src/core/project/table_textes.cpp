#include "core/project/table_textes.h"

#include <cassert>
#include <charconv>

#include "core/shell/calendrier.h"

namespace kestrel {

void TableTextes::vide() {
    texte_.clear();
    fins_.clear();
    eclipse_.clear();
}

void TableTextes::reserve(std::size_t n, std::size_t octets) {
    texte_.reserve(n * octets);
    fins_.reserve(n * static_cast<std::size_t>(colonnes_));
    eclipse_.reserve(n);
}

void TableTextes::ajoute(std::span<const std::string_view> cellules, bool eclipse) {
    assert(cellules.size() == static_cast<std::size_t>(colonnes_));
    for (std::string_view c : cellules) {
        texte_.append(c);
        fins_.push_back(texte_.size());
    }
    eclipse_.push_back(eclipse);
}

std::string_view TableTextes::cellule(std::size_t ligne, int colonne) const {
    const std::size_t k = ligne * static_cast<std::size_t>(colonnes_) + static_cast<std::size_t>(colonne);
    const std::size_t debut = k ? fins_[k - 1] : 0;
    return std::string_view(texte_).substr(debut, fins_[k] - debut);
}

double TableTextes::lit_valeur(std::string_view t) {
    std::size_t i = 0;
    while (i < t.size() && (t[i] == ' ' || t[i] == '\t')) ++i;
    if (i < t.size() && t[i] == '+') ++i;
    double x = 0;
    const auto r = std::from_chars(t.data() + i, t.data() + t.size(), x);
    return r.ec == std::errc() ? x : 0.0;
}

std::string date_ligne(double debut, long n, double pas_s) {
    Date d;
    jour_vers_date((debut * 86400.0 + static_cast<double>(n) * pas_s + 0.1) / 86400.0, d);
    return date_vers_texte(d);
}

}  // namespace kestrel
