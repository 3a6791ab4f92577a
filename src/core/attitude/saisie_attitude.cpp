#include "core/attitude/saisie_attitude.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "core/attitude/bilan_masses.h"
#include "core/shell/validateurs.h"

namespace kestrel {

namespace {

constexpr CaseAttitude fixe(const char* nom, Champ c, int i, double min, double max, bool bilan) {
    return {nom, c, i, Plage::fixe, min, max, false, bilan};
}
constexpr CaseAttitude coeff(const char* nom, Champ c, int face) { return fixe(nom, c, face, 0, 10, false); }
constexpr CaseAttitude dipole(const char* nom, Champ c, int axe) { return fixe(nom, c, axe, -10, 10, false); }
// Mass and moments accept negative values too: a negative entry can take a
// part away from a body described as a whole.
constexpr CaseAttitude masse(const char* nom, Champ c, int i) { return fixe(nom, c, i, -100, 100, true); }
constexpr CaseAttitude libre(const char* nom, Champ c, int axe) {
    return {nom, c, axe, Plage::libre, 0, 0, c == Champ::OM_init, true};
}

}  // namespace

// Faces run +x, +y, +z, -x, -y, -z, as in the record.
const std::array<CaseAttitude, nb_cases_attitude> cases_attitude{{
    masse("Masse", Champ::Masse, 0),
    {"cmx", Champ::cm, 0, Plage::demi_dimension, 0, 0, false, true},
    {"cmy", Champ::cm, 1, Plage::demi_dimension, 0, 0, false, true},
    {"cmz", Champ::cm, 2, Plage::demi_dimension, 0, 0, false, true},
    fixe("dimens1", Champ::dim, 0, 0, 90, true),
    fixe("dimens2", Champ::dim, 1, 0, 90, true),
    fixe("dimens3", Champ::dim, 2, 0, 90, true),
    masse("I_xx", Champ::I_corps, 0),
    masse("I_yy", Champ::I_corps, 4),
    masse("I_zz", Champ::I_corps, 8),
    masse("I_xy", Champ::I_corps, 3),
    masse("I_xz", Champ::I_corps, 6),
    masse("I_yz", Champ::I_corps, 7),
    coeff("sx_pos", Champ::sn, 0), coeff("sy_pos", Champ::sn, 1), coeff("sz_pos", Champ::sn, 2),
    coeff("sx_neg", Champ::sn, 3), coeff("sy_neg", Champ::sn, 4), coeff("sz_neg", Champ::sn, 5),
    coeff("sxt_pos", Champ::st, 0), coeff("syt_pos", Champ::st, 1), coeff("szt_pos", Champ::st, 2),
    coeff("sxt_neg", Champ::st, 3), coeff("syt_neg", Champ::st, 4), coeff("szt_neg", Champ::st, 5),
    coeff("crx_pos", Champ::cr, 0), coeff("cry_pos", Champ::cr, 1), coeff("crz_pos", Champ::cr, 2),
    coeff("crx_neg", Champ::cr, 3), coeff("cry_neg", Champ::cr, 4), coeff("crz_neg", Champ::cr, 5),
    coeff("cdx_pos", Champ::cd, 0), coeff("cdy_pos", Champ::cd, 1), coeff("cdz_pos", Champ::cd, 2),
    coeff("cdx_neg", Champ::cd, 3), coeff("cdy_neg", Champ::cd, 4), coeff("cdz_neg", Champ::cd, 5),
    dipole("dip_x", Champ::dip_res, 0), dipole("dip_y", Champ::dip_res, 1), dipole("dip_z", Champ::dip_res, 2),
    dipole("dip_x_act", Champ::dip_act, 0), dipole("dip_y_act", Champ::dip_act, 1),
    dipole("dip_z_act", Champ::dip_act, 2),
    dipole("txt_jets_x", Champ::jets, 0), dipole("txt_jets_y", Champ::jets, 1),
    dipole("txt_jets_z", Champ::jets, 2),
    libre("txt_JR1", Champ::JR, 0), libre("txt_JR2", Champ::JR, 1), libre("txt_JR3", Champ::JR, 2),
    libre("txt_OM1", Champ::OM_init, 0), libre("txt_OM2", Champ::OM_init, 1),
    libre("txt_OM3", Champ::OM_init, 2),
    libre("txt_md1", Champ::md, 0), libre("txt_md2", Champ::md, 1), libre("txt_md3", Champ::md, 2),
    libre("txt_ld1", Champ::ld, 0), libre("txt_ld2", Champ::ld, 1), libre("txt_ld3", Champ::ld, 2),
    libre("txt_c1", Champ::c, 0), libre("txt_c2", Champ::c, 1), libre("txt_c3", Champ::c, 2),
    libre("txt_k1", Champ::k, 0), libre("txt_k2", Champ::k, 1), libre("txt_k3", Champ::k, 2),
}};

namespace {

double& champ(AttitudeRecord& a, Champ c, int i) {
    switch (c) {
        case Champ::Masse: return a.Masse;
        case Champ::dim: return a.dim[i];
        case Champ::cm: return a.cm[i];
        case Champ::I_corps: return a.I_corps.m[i];
        case Champ::sn: return a.sn[i];
        case Champ::st: return a.st[i];
        case Champ::cr: return a.cr[i];
        case Champ::cd: return a.cd[i];
        case Champ::dip_res: return a.dip_res[i];
        case Champ::dip_act: return a.dip_act[i];
        case Champ::jets: return a.jets[i];
        case Champ::JR: return a.JR[i];
        case Champ::OM_init: return a.OM_init[i];
        case Champ::md: return a.md[i];
        case Champ::ld: return a.ld[i];
        case Champ::c: return a.c[i];
        case Champ::k: return a.k[i];
    }
    return a.Masse;  // not reached: every field is listed
}

// The centre of mass inside the body on axis j.
void borne_centre(AttitudeRecord& a, int j) { a.cm[j] = borne(a.cm[j], -a.dim[j] / 2, a.dim[j] / 2); }

bool un_non_nul(const Vec3& v) {
    return std::any_of(v.begin(), v.end(), [](double x) { return x != 0.0; });
}

}  // namespace

std::size_t case_attitude(std::string_view nom) {
    for (std::size_t i = 0; i < cases_attitude.size(); ++i)
        if (nom == cases_attitude[i].nom) return i;
    return nb_cases_attitude;
}

double valeur_case(const AttitudeRecord& a, std::size_t i) {
    const CaseAttitude& k = cases_attitude[i];
    // Reading only: the accessor serves both ways.
    const double v = champ(const_cast<AttitudeRecord&>(a), k.champ, k.indice);
    return k.degres ? v * 180 / PI : v;
}

std::string texte_case(const AttitudeRecord& a, std::size_t i) {
    const double v = valeur_case(a, i);
    return fmt::format("{:.15g}", v == 0.0 ? 0.0 : v);  // no "-0"
}

void saisit_attitude(AttitudeRecord& a, std::size_t i, double valeur) {
    const CaseAttitude& k = cases_attitude[i];
    double v = valeur;
    if (k.plage == Plage::fixe) v = borne(v, k.min, k.max);
    if (k.plage == Plage::demi_dimension) v = borne(v, -a.dim[k.indice] / 2, a.dim[k.indice] / 2);
    if (k.degres) v = v * PI / 180;
    champ(a, k.champ, k.indice) = v;
    // A product of inertia is one value of a symmetric tensor.
    if (k.champ == Champ::I_corps) a.I_corps(k.indice / 3, k.indice % 3) = v;
    if (k.champ == Champ::dim) borne_centre(a, k.indice);
    if (k.bilan) bilan_masses(a);
}

// --- external mass ------------------------------------------------------------------

int position_masse_externe(const AttitudeRecord& a) {
    for (int j = 0; j < 3; ++j)
        if (a.mext[j] != 0.0 || a.dext[j] != 0.0) return 2 * j + (a.dext[j] < 0.0 ? 1 : 0);
    return 0;
}

int position_du_texte(std::string_view texte) {
    for (int p = 0; p < 6; ++p)
        if (texte == axes_masse_externe[p]) return p;
    return -1;
}

MasseExterne masse_externe(const AttitudeRecord& a, int position) {
    const int j = position / 2;
    return {a.mext[j], std::fabs(a.dext[j])};
}

void place_masse_externe(AttitudeRecord& a, int position, MasseExterne m) {
    const int axe = position / 2;
    const double signe = position % 2 == 0 ? 1.0 : -1.0;
    for (int j = 0; j < 3; ++j) {
        a.mext[j] = j == axe ? m.masse : 0.0;
        a.dext[j] = j == axe ? signe * m.distance : 0.0;
    }
    bilan_masses(a);
}

void saisit_masse_externe(AttitudeRecord& a, int position, double masse) {
    MasseExterne m = masse_externe(a, position);
    m.masse = borne(masse, 0, masse_externe_max);
    place_masse_externe(a, position, m);
}

void saisit_distance_externe(AttitudeRecord& a, int position, double distance) {
    MasseExterne m = masse_externe(a, position);
    m.distance = borne(distance, 0, distance_externe_max);
    place_masse_externe(a, position, m);
}

std::array<bool, 6> masses_externes_visibles(const AttitudeRecord& a) {
    std::array<bool, 6> v{};
    for (int j = 0; j < 3; ++j)
        if (a.mext[j] != 0.0) v[2 * j + (a.dext[j] < 0.0 ? 1 : 0)] = true;
    return v;
}

// --- check boxes --------------------------------------------------------------------

bool dipole_residuel_present(const AttitudeRecord& a) { return un_non_nul(a.dip_res); }
bool roues_presentes(const AttitudeRecord& a) { return un_non_nul(a.JR) || un_non_nul(a.OM_init); }
bool amortisseurs_presents(const AttitudeRecord& a) {
    return un_non_nul(a.md) || un_non_nul(a.ld) || un_non_nul(a.c) || un_non_nul(a.k);
}

void retire_dipole_residuel(AttitudeRecord& a) {
    a.dip_res = {};
    bilan_masses(a);
}

void retire_roues(AttitudeRecord& a) {
    a.JR = {};
    a.OM_init = {};
    bilan_masses(a);
}

void retire_amortisseurs(AttitudeRecord& a) {
    a.md = {};
    a.ld = {};
    a.c = {};
    a.k = {};
    bilan_masses(a);
}

}  // namespace kestrel
