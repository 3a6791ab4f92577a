#include "core/project/reglage_champs.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>

#include <fmt/format.h>

#include "core/attitude/saisie_attitude.h"
#include "core/project/energie.h"
#include "core/project/saisie_energie.h"
#include "core/project/enregistrements.h"
#include "core/project/lignes_energie.h"
#include "core/project/liste_champs.h"
#include "core/project/saisie_orbite.h"
#include "core/shell/types.h"

namespace kestrel {

namespace {

// Walks one record and, at the field called `nom`, checks or stores `valeur`.
struct Reglage {
    const std::string& nom;
    double v;
    bool ecrit;  // false: check only
    bool trouve = false;
    std::string refus;
    const PowerRecord* pwr = nullptr;  // the power record walked, to place its fields
    std::optional<std::size_t> decalage;  // bytes into *pwr of the field found there


    template <class T>
    void champ(T& x, const std::string& n) {
        if (trouve || n != nom) return;
        trouve = true;
        const auto* a = reinterpret_cast<const unsigned char*>(&x);
        const auto* b = reinterpret_cast<const unsigned char*>(pwr);
        if (pwr && a >= b && a < b + sizeof(PowerRecord)) decalage = static_cast<std::size_t>(a - b);
        if constexpr (std::is_integral_v<T>) {
            if (v != std::trunc(v)) {
                refus = fmt::format("{} attend un nombre entier", nom);
                return;
            }
            if (v < static_cast<double>(std::numeric_limits<T>::min()) ||
                v > static_cast<double>(std::numeric_limits<T>::max())) {
                refus = fmt::format("{} : {} sort des valeurs possibles", nom, v);
                return;
            }
        }
        if constexpr (!std::is_const_v<T>)
            if (ecrit) x = static_cast<T>(v);
    }
    // power project lines
    void commentaire(const char*) {}
    template <class T>
    void valeur(T& x, const char*, const std::string& n) { champ(x, n); }
    template <class T>
    void octet(T& x, const char*, const std::string& n) { champ(x, n); }
    template <class T>
    void booleen(T& x, const char*, const std::string& n) { champ(x, n); }
    template <class T>
    void flux(T& x, const char*, const std::string& n) { champ(x, n); }
    template <class T>
    void date(T& x, const std::string& n) { champ(x, n); }
    void faces() {}
    // binary records
    template <class T>
    void reel(T& x, std::size_t, const std::string& n) { champ(x, n); }
    template <class T>
    void entier(T& x, std::size_t, const std::string& n) { champ(x, n); }
    template <class T>
    void texte(T&, std::size_t, const std::string& n) {
        if (trouve || n != nom) return;
        trouve = true;
        refus = fmt::format("{} est un texte, pas un nombre", nom);
    }
};

// Record field behind each Champ of the attitude boxes, in the enum's order.
constexpr std::array<const char*, 17> noms_champ_attitude{
    "Masse", "dim", "cm", "I_corps", "sn", "st", "cr", "cd", "dip_res",
    "dip_act", "jets", "JR", "OM_init", "md", "ld", "c", "k"};

std::string nom_case_attitude(const CaseAttitude& c) {
    const char* base = noms_champ_attitude[static_cast<std::size_t>(c.champ)];
    if (c.champ == Champ::Masse) return base;
    if (c.champ == Champ::I_corps) return fmt::format("{}({},{})", base, c.indice % 3, c.indice / 3);
    return fmt::format("{}({})", base, c.indice);
}

// Box of the attitude settings window that edits field `nom`, nb_cases_attitude if none.
std::size_t case_du_champ(const std::string& nom) {
    for (std::size_t i = 0; i < nb_cases_attitude; ++i)
        if (nom_case_attitude(cases_attitude[i]) == nom) return i;
    return nb_cases_attitude;
}

// Box of the orbit page editing `nom` ("orb_x" for box "norad_x"), nb_cases_orbite if none.
std::size_t case_orbite_du_champ(const std::string& nom) {
    for (std::size_t i = 0; i < nb_cases_orbite; ++i)
        if (std::string("orb_") + (cases_orbite[i].nom + 6) == nom) return i;
    return nb_cases_orbite;
}

std::string hors_limites(const std::string& nom, double v, double min, double max) {
    return fmt::format("{} : {} hors des limites [{}, {}]", nom, v, min, max);
}

// Limits of the box behind the field, if it has one.
std::string verifie_limites(const Etat& etat, const std::string& nom, double v) {
    if (const std::size_t i = case_du_champ(nom); i < nb_cases_attitude) {
        const CaseAttitude& c = cases_attitude[i];
        const double k = c.degres ? PI / 180.0 : 1.0;  // boxes in deg/s, fields in rad/s
        if (c.plage == Plage::fixe && (v < c.min * k || v > c.max * k))
            return hors_limites(nom, v, c.min * k, c.max * k);
        if (c.plage == Plage::demi_dimension) {
            const double d = etat.att.dim[static_cast<std::size_t>(c.indice)] / 2;
            if (v < -d || v > d) return hors_limites(nom, v, -d, d);
        }
    }
    if (const std::size_t i = case_orbite_du_champ(nom); i < nb_cases_orbite) {
        const CaseSaisie& c = cases_orbite[i];
        if (v < c.min || v > c.max) return hors_limites(nom, v, c.min, c.max);
    }
    return {};
}

// The power settings box behind a field found by the walk, if it has one.
std::optional<CaseEnergie> case_du_champ_energie(const Reglage& r) {
    return r.decalage ? case_energie(*r.decalage) : std::nullopt;
}

// A value as a user types it: the shortest text that reads back the same.
std::string texte_saisi(double v) { return fmt::format("{}", v); }

template <class E>
Reglage parcourt(E& etat, const std::string& nom, double valeur, bool ecrit) {
    Reglage r{nom, valeur, ecrit, false, {}, &etat.pwr, {}};
    lignes_energie(r, etat.pwr, etat.session);
    if (!r.trouve) champs_attitude(r, etat.att);
    if (!r.trouve) champs_orbite(r, etat.orbite);
    return r;
}

}  // namespace

std::vector<std::string> noms_reglables() {
    const Etat etat;
    std::vector<std::string> noms;
    for (const auto& liste : {champs_energie(etat.pwr, etat.session), champs_attitude(etat.att),
                              champs_orbite(etat.orbite)})
        for (const ChampTexte& c : liste) noms.push_back(c.nom);
    return noms;
}

std::string verifie_champ(const Etat& etat, const std::string& nom, double valeur) {
    if (!std::isfinite(valeur)) return fmt::format("{} : valeur non finie", nom);
    const Reglage r = parcourt(etat, nom, valeur, false);
    if (!r.trouve) return fmt::format("champ inconnu « {} »", nom);
    if (!r.refus.empty()) return r.refus;
    if (const auto c = case_du_champ_energie(r)) {
        // the box's own check, on a copy: limits, including those that follow another field
        PowerRecord essai = etat.pwr;
        const Verdict v = saisie_energie(essai, c->nom, c->k, texte_saisi(valeur));
        if (!v.ok) return fmt::format("{} = {} : {}", nom, valeur, v.message);
    }
    return verifie_limites(etat, nom, valeur);
}

void regle_champ(Etat& etat, const std::string& nom, double valeur) {
    if (const std::size_t i = case_du_champ(nom); i < nb_cases_attitude) {
        saisit_attitude(etat.att, i, cases_attitude[i].degres ? valeur * 180.0 / PI : valeur);
        return;
    }
    if (const std::size_t i = case_orbite_du_champ(nom); i < nb_cases_orbite) {
        saisit_orbite(etat.orbite, i, valeur);
        return;
    }
    const Reglage r = parcourt(etat, nom, valeur, false);
    if (const auto c = case_du_champ_energie(r)) {
        // stored as typed in its box, so totals and linked fields follow
        saisie_energie(etat.pwr, c->nom, c->k, texte_saisi(valeur));
        return;
    }
    parcourt(etat, nom, valeur, true);
    if (nom == "opt_faces") tableau_faces(etat.pwr);
}

}  // namespace kestrel
