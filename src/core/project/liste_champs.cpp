#include "core/project/liste_champs.h"

#include <fmt/format.h>

#include "core/project/enregistrements.h"
#include "core/project/lignes_energie.h"

namespace kestrel {

namespace {

struct Liste {
    std::vector<ChampTexte> champs;
    template <class T>
    void ajoute(const std::string& nom, const T& v) {
        champs.push_back({nom, fmt::format("{}", v)});
    }
    // power project lines
    void commentaire(const char*) {}
    void valeur(const uint8_t& x, const char*, const std::string& n) { ajoute(n, static_cast<int>(x)); }
    template <class T>
    void valeur(const T& x, const char*, const std::string& n) {
        ajoute(n, x);
    }
    void octet(const int16_t& x, const char*, const std::string& n) { ajoute(n, x); }
    void booleen(const int16_t& x, const char*, const std::string& n) { ajoute(n, x); }
    void flux(const double& x, const char*, const std::string& n) { ajoute(n, x); }
    void date(const double& x, const std::string& n) { ajoute(n, x); }
    void faces() {}
    // binary records
    void reel(const double& x, std::size_t, const std::string& n) { ajoute(n, x); }
    void entier(const int16_t& x, std::size_t, const std::string& n) { ajoute(n, x); }
    void texte(const std::array<char, 24>& x, std::size_t, const std::string& n) {
        std::string t(1, '"');
        t.append(x.begin(), x.end());
        t += '"';
        champs.push_back({n, t});
    }
};

}  // namespace

std::vector<ChampTexte> champs_energie(const PowerRecord& p, const Session& s) {
    Liste l;
    lignes_energie(l, p, s);
    return l.champs;
}

std::vector<ChampTexte> champs_attitude(const AttitudeRecord& a) {
    Liste l;
    champs_attitude(l, a);
    return l.champs;
}

std::vector<ChampTexte> champs_orbite(const Orbite& o) {
    Liste l;
    champs_orbite(l, o);
    return l.champs;
}

}  // namespace kestrel
