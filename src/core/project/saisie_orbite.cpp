#include "core/project/saisie_orbite.h"

#include <cmath>

#include "core/attitude/pointage_soleil.h"
#include "core/etat/etat.h"
#include "core/orbit/elements_orbite.h"
#include "core/orbit/matrices.h"
#include "core/orbit/orb_trajecto.h"
#include "core/shell/validateurs.h"

namespace kestrel {

const std::array<CaseSaisie, nb_cases_orbite> cases_orbite{{
    {"norad_inclinaison", -180, 180, "#0.0000000000"},
    {"norad_ascension", 0, 360, "##0.0000000000"},
    {"norad_excentricite", 0, 1, "0.0000000000"},
    {"norad_argument", 0, 360, "##0.0000000000"},
    {"norad_anomalie", 0, 360, "##0.0000000000"},
    {"norad_moy_mvt", 0.1, 18, "#0.0000000000"},
    {"norad_an", 0, 9999, "###0"},
    {"norad_jour", 0, 366, "###0.0000"},
    {"norad_demi", 3200, 300000, "#0.0000000000"},
}};

const std::array<CaseSaisie, nb_cases_pointage> cases_pointage{{
    {"txt_attx", -180, 180, "#0.00"},
    {"txt_atty", -90, 90, "#0.00"},
    {"txt_attz", 0, 360, "#0.00"},
    {"txt_inerx", -360, 360, "#0.00"},
    {"txt_inery", -360, 360, "#0.00"},
    {"txt_inerz", -360, 360, "#0.00"},
    {"txt_vspin", -100, 100, "#0.000"},
}};

namespace {

constexpr double RAD_PAR_DEG = 3.14159265358979 / 180.0;
constexpr double DEG_PAR_RAD = 180.0 / 3.14159265358979;

double* champ_reel(Orbite& o, std::size_t i) {
    switch (i) {
        case inclinaison: return &o.orb_inclinaison;
        case ascension: return &o.orb_ascension;
        case excentricite: return &o.orb_excentricite;
        case argument: return &o.orb_argument;
        case anomalie: return &o.orb_anomalie;
        case moy_mvt: return &o.orb_moy_mvt;
        case jour: return &o.orb_jour;
        case demi: return &o.orb_demi;
        default: return nullptr;  // the year is a 16-bit integer
    }
}

double* angle_orbital(Pointage& p, std::size_t i) {
    return i == attx ? &p.att_roulis : i == atty ? &p.att_tangage : &p.att_lacet;
}

}  // namespace

double valeur_orbite(const Orbite& o, std::size_t i) {
    if (i == an) return o.orb_an;
    return *champ_reel(const_cast<Orbite&>(o), i);
}

void saisit_orbite(Orbite& o, std::size_t i, double valeur) {
    const CaseSaisie& c = cases_orbite.at(i);
    const double x = borne(valeur, c.min, c.max);
    if (i == an) {
        o.orb_an = static_cast<int16_t>(std::trunc(x));
        return;
    }
    *champ_reel(o, i) = x;
    if (i == demi) o.orb_moy_mvt = moy_mvt_depuis_demi(x);
    if (i == moy_mvt) o.orb_demi = demi_depuis_moy_mvt(x);
}

void place_a_epoque(Etat& etat) {
    const Erreur avant = etat.faute;
    orb_position(etat, epoque_orbite(etat.orbite));
    etat.faute = avant;
}

double valeur_pointage(const Etat& etat, std::size_t i) {
    const Pointage& p = etat.pointage;
    if (i <= attz) return *angle_orbital(const_cast<Pointage&>(p), i);
    if (i <= inerz) return p.att_inertiel[i - inerx] * DEG_PAR_RAD;
    return p.vitesse_spin;
}

void saisit_pointage(Etat& etat, std::size_t i, double valeur) {
    const CaseSaisie& c = cases_pointage.at(i);
    const double x = borne(valeur, c.min, c.max);
    Pointage& p = etat.pointage;
    if (i <= attz) {
        *angle_orbital(p, i) = x;
    } else if (i <= inerz) {
        p.att_inertiel[i - inerx] = x * RAD_PAR_DEG;
        place_a_epoque(etat);
        Vec3 b{}, b2{};
        euler_vers_inertiel(etat, p.att_inertiel, b, b2);
        // The solution is shown as it stands: those boxes are not being typed in.
        p.att_roulis = b[0] * DEG_PAR_RAD;
        p.att_tangage = b[2] * DEG_PAR_RAD;
        p.att_lacet = b[1] * DEG_PAR_RAD;
    } else {
        p.vitesse_spin = x;
    }
}

Erreur saisit_pointage_soleil(Etat& etat) {
    place_a_epoque(etat);
    const double j = epoque_orbite(etat.orbite);
    const Vec6 avant = etat.att.yd;
    if (Erreur e = pointage_soleil(etat, j)) {
        etat.att.yd = avant;
        return e;
    }
    const Vec6 yd = etat.att.yd;  // degrees
    saisit_pointage(etat, attx, yd[0]);
    saisit_pointage(etat, atty, yd[2]);
    saisit_pointage(etat, attz, yd[1]);
    return {};
}

}  // namespace kestrel
