#include "core/project/tle.h"

#include <cstdlib>
#include <span>
#include <sstream>
#include <vector>

#include <fmt/format.h>

#include "core/project/saisie_orbite.h"
#include "core/shell/lecture_fichier.h"

namespace kestrel {

namespace {

constexpr std::size_t LONGUEUR = 69;

std::string sans_blancs(const std::string& s) {
    const auto a = s.find_first_not_of(" \t");
    if (a == std::string::npos) return {};
    return s.substr(a, s.find_last_not_of(" \t") - a + 1);
}

// Digits count for their value, '-' for 1, anything else for 0; modulo 10.
int somme_controle(const std::string& l) {
    int s = 0;
    for (std::size_t i = 0; i + 1 < LONGUEUR; ++i) {
        if (l[i] >= '0' && l[i] <= '9') s += l[i] - '0';
        if (l[i] == '-') s += 1;
    }
    return s % 10;
}

struct Lecteur {
    const std::string& l;
    int ligne;
    FauteTle faute;

    FauteTle refus(int col, std::string raison) { return FauteTle{ligne, col, std::move(raison)}; }

    // Columns a..b (from 1) as a decimal number; implied: "0006703" is 0.0006703.
    bool nombre(int a, int b, const char* champ, double& x, bool implicite = false) {
        std::string t = sans_blancs(l.substr(a - 1, b - a + 1));
        if (implicite) t = "0." + t;
        char* fin = nullptr;
        const double v = t.empty() ? 0.0 : std::strtod(t.c_str(), &fin);
        bool ok = !t.empty() && fin && *fin == '\0';
        for (char c : t) ok = ok && ((c >= '0' && c <= '9') || c == '.' || c == '-' || c == '+');
        if (!ok) {
            faute = refus(a, fmt::format("{} illisible « {} »", champ, l.substr(a - 1, b - a + 1)));
            return false;
        }
        x = v;
        return true;
    }
    bool dans(int col, const char* champ, double x, std::size_t i) {
        const CaseSaisie& c = cases_orbite[i];
        if (x >= c.min && x <= c.max) return true;
        faute = refus(col, fmt::format("{} {} hors de [{}, {}]", champ, x, c.min, c.max));
        return false;
    }
};

FauteTle verifie_ligne(const std::string& l, int numero) {
    if (l.size() < LONGUEUR)
        return {numero, static_cast<int>(l.size()) + 1,
                fmt::format("ligne trop courte ({} caractères au lieu de 69)", l.size())};
    if (l[0] != static_cast<char>('0' + numero) || l[1] != ' ')
        return {numero, 1, fmt::format("la ligne devrait commencer par « {} »", numero)};
    // The blanks between the fields: a field moved by a column lands on one.
    static constexpr int blancs1[] = {2, 9, 18, 33, 44, 53, 62, 64};
    static constexpr int blancs2[] = {2, 8, 17, 26, 34, 43, 52};
    for (int c : numero == 1 ? std::span<const int>(blancs1) : std::span<const int>(blancs2))
        if (l[c - 1] != ' ') return {numero, c, fmt::format("espace attendu, « {} » trouvé", l[c - 1])};
    if (l[68] < '0' || l[68] > '9') return {numero, 69, "somme de contrôle absente"};
    const int s = somme_controle(l);
    if (s != l[68] - '0') return {numero, 69, fmt::format("somme de contrôle {} au lieu de {}", l[68] - '0', s)};
    return {};
}

}  // namespace

std::string texte_faute_tle(const FauteTle& f) {
    if (f.colonne == 0) return fmt::format("Erreur de lecture du TLE : {}", f.raison);  // the file itself
    return fmt::format("Erreur de lecture du TLE, ligne {}, colonne {} : {}", f.ligne, f.colonne, f.raison);
}

FauteTle lit_tle(const std::string& texte, Orbite& o, std::string& nom) {
    std::vector<std::string> lignes;
    std::istringstream in(texte);
    for (std::string l; std::getline(in, l);) {
        while (!l.empty() && (l.back() == '\r' || l.back() == ' ' || l.back() == '\t')) l.pop_back();
        if (!sans_blancs(l).empty()) lignes.push_back(l);
    }
    if (lignes.size() < 2 || lignes.size() > 3)
        return {0, 1, fmt::format("{} lignes non vides au lieu de 2 ou 3", lignes.size())};
    const bool avec_nom = lignes.size() == 3;
    std::string lu_nom = avec_nom ? sans_blancs(lignes[0]) : std::string();
    if (lu_nom.rfind("0 ", 0) == 0) lu_nom = sans_blancs(lu_nom.substr(2));  // "0 NAME" form
    const std::string& l1 = lignes[avec_nom ? 1 : 0];
    const std::string& l2 = lignes[avec_nom ? 2 : 1];
    if (FauteTle f = verifie_ligne(l1, 1)) return f;
    if (FauteTle f = verifie_ligne(l2, 2)) return f;
    if (l1.substr(2, 5) != l2.substr(2, 5))
        return {2, 3, fmt::format("numéro de satellite {} différent de celui de la ligne 1 ({})", l2.substr(2, 5),
                                  l1.substr(2, 5))};

    double an = 0, jour = 0, i = 0, om = 0, e = 0, w = 0, m = 0, n = 0;
    Lecteur a{l1, 1, {}};
    if (!a.nombre(19, 20, "année", an) || !a.nombre(21, 32, "jour", jour) ||
        !a.dans(21, "jour", jour, CaseOrbite::jour))
        return a.faute;
    Lecteur b{l2, 2, {}};
    if (!b.nombre(9, 16, "inclinaison", i) || !b.dans(9, "inclinaison", i, inclinaison) ||
        !b.nombre(18, 25, "ascension droite", om) || !b.dans(18, "ascension droite", om, ascension) ||
        !b.nombre(27, 33, "excentricité", e, true) || !b.dans(27, "excentricité", e, excentricite) ||
        !b.nombre(35, 42, "argument du périgée", w) || !b.dans(35, "argument du périgée", w, argument) ||
        !b.nombre(44, 51, "anomalie moyenne", m) || !b.dans(44, "anomalie moyenne", m, anomalie) ||
        !b.nombre(53, 63, "moyen mouvement", n) || !b.dans(53, "moyen mouvement", n, moy_mvt))
        return b.faute;
    if (an != static_cast<int>(an) || an < 0) return {1, 19, "année illisible"};

    // The same steps as typing the boxes; the mean motion last sets the axis.
    Orbite r = o;
    saisit_orbite(r, inclinaison, i);
    saisit_orbite(r, ascension, om);
    saisit_orbite(r, excentricite, e);
    saisit_orbite(r, argument, w);
    saisit_orbite(r, anomalie, m);
    saisit_orbite(r, CaseOrbite::an, an >= 57 ? 1900 + an : 2000 + an);
    saisit_orbite(r, CaseOrbite::jour, jour);
    saisit_orbite(r, moy_mvt, n);
    r.nom = Orbite::blancs();
    for (std::size_t k = 0; k < lu_nom.size() && k < r.nom.size(); ++k) r.nom[k] = lu_nom[k];
    o = r;
    nom = lu_nom;
    return {};
}

FauteTle charge_tle(const std::string& chemin, Orbite& o, std::string& nom) {
    std::string texte;
    if (const Erreur e = lit_fichier_projet(chemin, texte))
        return {0, 0, fmt::format("fichier « {} » : {}", texte_lisible(chemin, 300), texte_erreur(e))};
    return lit_tle(texte, o, nom);
}

}  // namespace kestrel
