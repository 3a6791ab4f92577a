#include "core/project/saisie_energie.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

#include <fmt/format.h>

#include "core/project/energie.h"
#include "core/shell/format_image.h"

namespace kestrel {

namespace {

// Where a box's value lives: exactly one pointer is set.
struct Cible {
    float* f = nullptr;
    int32_t* i = nullptr;
    uint8_t* o = nullptr;  // battery counts, one byte in the record and the file
};

enum class Forme { simple, capacite };  // capacities show "#0.00"

struct Entree {
    std::string_view nom;
    Bornes bornes;
    Cible (*cible)(PowerRecord& p, int k);
    Forme forme = Forme::simple;
};

constexpr Bornes libre{};
constexpr Bornes entre(double a, double b) { return {a, b}; }
constexpr Bornes positif{0.0, std::nullopt};
constexpr Bornes au_moins_un{1.0, std::nullopt};
// A byte holds 255 at most: above it the count would wrap. Each side keeps
// its own message, as for a field with one limit.
constexpr Bornes compte{0.0, 255.0, true, true, true};

// Element k of an array, kept inside it whatever k the caller passes.
template <class T, std::size_t N>
T* elt(std::array<T, N>& a, int k) {
    return &a[static_cast<std::size_t>(std::clamp(k, 0, static_cast<int>(N) - 1))];
}
int coef(int k) { return std::clamp(k, 0, 5); }

#define CF(expr) [](PowerRecord& p, int k) { (void)k; return Cible{&(expr)}; }
#define CI(expr) [](PowerRecord& p, int k) { (void)k; return Cible{nullptr, &(expr)}; }
#define CO(expr) [](PowerRecord& p, int k) { (void)k; return Cible{nullptr, nullptr, &(expr)}; }

// Thermal boxes of the external model: panel front (0) and rear (1), the face
// chosen in the list (k = 0..5 is element k + 2), the internal node (8).
const Entree entrees[] = {
    // panels and body
    {"pan_txt_h", positif, CF(p.body_height)},
    {"pan_txt_s", positif, CF(p.body_width)},
    {"pan_txt_ext_ang", entre(-180, 180), CF(p.pan_angle_init)},
    {"pan_txt_ext_gap", positif, CF(p.pan_tolerance)},
    {"pan_txt_ext_lag", positif, CI(p.pan_delay)},
    {"pan_txt_ext_omega", positif, CF(p.pan_speed)},
    // cells
    {"cel_txt_isc", entre(0, 10), CF(p.cel_isc)},
    {"cel_txt_imp", entre(0, 10), CF(p.cel_imp)},
    {"cel_txt_voc", entre(0, 10), CF(p.cel_voc)},
    {"cel_txt_vmp", entre(0, 10), CF(p.cel_vmp)},
    {"cel_txt_disc", entre(-0.05, 0.05), CF(p.cel_disc)},
    {"cel_txt_dimp", entre(-0.05, 0.05), CF(p.cel_dimp)},
    {"cel_txt_dvoc", entre(-0.05, 0.05), CF(p.cel_dvoc)},
    {"cel_txt_dvmp", entre(-0.05, 0.05), CF(p.cel_dvmp)},
    {"cel_txt_tref", libre, CF(p.cel_tref)},
    {"cel_txt_ns", entre(0, 100), CF(p.cel_ns)},
    {"cel_txt_np", entre(0, 100), CF(p.cel_np)},
    {"cel_txt_surf", entre(0, 100), CF(p.cel_surface)},
    {"cel_txt_tetad", entre(0, 90), CF(p.inc_div)},
    {"cel_txt_tetam", entre(0, 90), CF(p.inc_max)},
    {"cel_txt_radisc", entre(0, 1.02), CF(p.cel_radisc)},
    {"cel_txt_radimp", entre(0, 1.02), CF(p.cel_radimp)},
    {"cel_txt_radvoc", entre(0, 1.02), CF(p.cel_radvoc)},
    {"cel_txt_radvmp", entre(0, 1.02), CF(p.cel_radvmp)},
    // thermal, external panels
    {"thex_txt_aire_pan", positif, CF(p.ext_area)},
    {"thex_txt_aire_face", positif, CF(p.body_face_area)},
    {"thex_txt_alpha0_av", entre(0, 1), CF(p.ext_alpha0[0])},
    {"thex_txt_alim_av", entre(0, 1), CF(p.ext_alpha_lim[0])},
    {"thex_txt_eps_av", entre(0, 1), CF(p.ext_eps[0])},
    {"thex_txt_t99_av", positif, CI(p.ext_t99[0])},
    {"thex_txt_alpha0_ar", entre(0, 1), CF(p.ext_alpha0[1])},
    {"thex_txt_alim_ar", entre(0, 1), CF(p.ext_alpha_lim[1])},
    {"thex_txt_eps_ar", entre(0, 1), CF(p.ext_eps[1])},
    {"thex_txt_t99_ar", positif, CI(p.ext_t99[1])},
    {"thex_txt_masse_pan", positif, CF(p.ext_mass[0])},
    {"thex_txt_cp_pan", positif, CF(p.ext_cp[0])},
    {"thex_txt_tinit_pan", libre, CF(p.ext_t_init[0])},
    {"thex_txt_alpha0_face", entre(0, 1), CF(*elt(p.ext_alpha0, k + 2))},
    {"thex_txt_alim_face", entre(0, 1), CF(*elt(p.ext_alpha_lim, k + 2))},
    {"thex_txt_eps_face", entre(0, 1), CF(*elt(p.ext_eps, k + 2))},
    {"thex_txt_t99_face", positif, CI(*elt(p.ext_t99, k + 2))},
    {"thex_txt_cond", positif, CF(*elt(p.ext_cond, k))},
    {"thex_txt_rad", positif, CF(*elt(p.ext_rad, k))},
    {"thex_txt_masse_face", positif, CF(*elt(p.ext_mass, k + 2))},
    {"thex_txt_cp_face", positif, CF(*elt(p.ext_cp, k + 2))},
    {"thex_txt_tinit_face", libre, CF(*elt(p.ext_t_init, k + 2))},
    {"thex_txt_masse_int", positif, CF(p.ext_mass[8])},
    {"thex_txt_cp_int", positif, CF(p.ext_cp[8])},
    {"thex_txt_tinit_int", libre, CF(p.ext_t_init[8])},
    // thermal, panels on the faces (k: 0 panels, 1 upper face, 2 lower face)
    {"thbd_txt_cond", positif, CF(*elt(p.fac_cond, k))},
    {"thbd_txt_tinit", libre, CF(*elt(p.fac_t_init, k))},
    {"thbd_txt_alpha0", entre(0, 1), CF(*elt(p.fac_alpha0, k))},
    {"thbd_txt_alim", entre(0, 1), CF(*elt(p.fac_alpha_lim, k))},
    {"thbd_txt_t99", positif, CI(*elt(p.fac_t99, k))},
    {"thbd_txt_eps", entre(0, 1), CF(*elt(p.fac_eps, k))},
    {"thbd_txt_cp", positif, CF(*elt(p.fac_cp, k))},
    {"thbd_txt_masse", positif, CF(*elt(p.fac_mass, k))},
    {"thbd_txt_rad", positif, CF(*elt(p.fac_rad, k))},
    {"thbd_txt_masse_int", positif, CF(p.int_mass)},
    {"thbd_txt_cp_int", positif, CF(p.int_cp)},
    {"thbd_txt_tinit_int", libre, CF(p.int_t_init)},
    {"thbd_txt_condcyl", positif, CF(p.cyl_cond)},
    // management (k: 0 day, 1 eclipse)
    {"gst_txt_chini", entre(0, 100), CF(p.gst_charge_init)},
    {"gst_txt_chvmax", au_moins_un, CF(p.gst_vch_max)},
    {"gst_txt_cour_ent", entre(0, 100), CF(p.gst_i_maint)},
    {"gst_txt_ichmax", positif, CF(p.gst_ich_max)},
    {"gst_txt_kcharge", au_moins_un, CF(p.gst_k_recharge)},
    {"gst_txt_Vregul", entre(0.1, 100), CF(p.gst_vregul)},
    {"gst_txt_rendbat", entre(0, 100), CF(p.gst_rend_bat)},
    {"gst_txt_rendgs", entre(0, 100), CF(p.gst_rend_gs)},
    {"gst_txt_pdem", positif, CF(*elt(p.p_demand, k))},
    {"gst_txt_diss", entre(0, 100), CF(*elt(p.p_dissip, k))},
    // battery (curve points: k is the coefficient 0..5)
    {"bat_txt_ns", compte, CO(p.bat_ns)},
    {"bat_txt_np", compte, CO(p.bat_np)},
    {"bat_txt_c", positif, CF(p.bat_c), Forme::capacite},
    {"bat_txt_0", libre, CF(p.ch_pt[0][coef(k)])},
    {"bat_txt_1", libre, CF(p.ch_pt[1][coef(k)])},
    {"bat_txt_2", libre, CF(p.ch_pt[2][coef(k)])},
    {"bat_txt_och", libre, CF(p.ch_pt[3][coef(k)])},
    {"bat_txt_d0", libre, CF(p.de_pt[0][coef(k)])},
    {"bat_txt_d1", libre, CF(p.de_pt[1][coef(k)])},
    {"bat_txt_d2", libre, CF(p.de_pt[2][coef(k)])},
    {"bat_txt_d100", libre, CF(p.de_pt[3][coef(k)])},
    {"bat_txt_cmax", entre(1, 2), CF(p.bat_cmax), Forme::capacite},
    {"bat_txt_c10", entre(0, 1), CF(p.bat_c10), Forme::capacite},
    {"bat_txt_cmin", entre(0, 100), CF(p.bat_cmin_pct), Forme::capacite},
    {"bat_txt_t99", libre, CF(p.bat_t999)},
    {"bat_txt_tmin", libre, CF(p.bat_tmin)},
    {"bat_txt_tc0", libre, CF(p.bat_tau0)},
    {"bat_txt_tc50", libre, CF(p.bat_tau50)},
};

#undef CF
#undef CI
#undef CO

// A float as the decimal number it is shown as ("0.77", not 0.7699999809):
// entries and limits held in floats compare and print as the user reads them.
double decimal(float f) { return std::strtod(fmt::format("{}", f).c_str(), nullptr); }

const Entree* trouve(std::string_view nom) {
    for (const Entree& e : entrees)
        if (e.nom == nom) return &e;
    return nullptr;
}

double lit(const Cible& c) { return c.f ? *c.f : (c.i ? *c.i : static_cast<double>(*c.o)); }

// The absorptivity pair that a box belongs to: its initial and limit values.
struct Paire {
    const float* initiale;
    const float* limite;
    bool est_initiale;
};
std::optional<Paire> paire_absorptivite(PowerRecord& p, std::string_view nom, int k) {
    struct Nom {
        std::string_view alpha0, alim;
    };
    constexpr Nom paires[] = {{"thex_txt_alpha0_av", "thex_txt_alim_av"},
                              {"thex_txt_alpha0_ar", "thex_txt_alim_ar"},
                              {"thex_txt_alpha0_face", "thex_txt_alim_face"},
                              {"thbd_txt_alpha0", "thbd_txt_alim"}};
    for (const Nom& n : paires) {
        if (nom != n.alpha0 && nom != n.alim) continue;
        return Paire{trouve(n.alpha0)->cible(p, k).f, trouve(n.alim)->cible(p, k).f, nom == n.alpha0};
    }
    return std::nullopt;
}

// Isc above Imp, Voc above Vmp, and the same at end of life, repaired on the
// side that was not just typed (2 % apart).
void repare(PowerRecord& p, std::string_view nom) {
    // Worked on the values as shown, so that 0.52 - 0.02 gives 0.5 exactly.
    auto paire = [&](float& haut, float& bas, float& r_haut, float& r_bas, std::string_view n_haut,
                     std::string_view n_bas, std::string_view n_rhaut, std::string_view n_rbas) {
        if (nom == n_haut && !(decimal(haut) > decimal(bas))) haut = static_cast<float>(decimal(bas) + 0.02);
        if (nom == n_bas && !(decimal(bas) < decimal(haut))) bas = static_cast<float>(decimal(haut) - 0.02);
        const double h = decimal(haut), b = decimal(bas), rh = decimal(r_haut), rb = decimal(r_bas);
        const bool fin_ok = h * rh > b * rb;
        if (nom == n_rhaut && !fin_ok) r_bas = static_cast<float>(rh * 0.98 * h / b);
        if (nom == n_rbas && !fin_ok) r_haut = static_cast<float>(rb * 1.02 * b / h);
    };
    paire(p.cel_isc, p.cel_imp, p.cel_radisc, p.cel_radimp, "cel_txt_isc", "cel_txt_imp", "cel_txt_radisc",
          "cel_txt_radimp");
    paire(p.cel_voc, p.cel_vmp, p.cel_radvoc, p.cel_radvmp, "cel_txt_voc", "cel_txt_vmp", "cel_txt_radvoc",
          "cel_txt_radvmp");
}

}  // namespace

std::optional<Bornes> bornes_energie(const PowerRecord& p, std::string_view champ, int k) {
    const Entree* e = trouve(champ);
    if (!e) return std::nullopt;
    Bornes b = e->bornes;
    // Limits that follow another field.
    if (champ == "cel_txt_tetad") b.max = std::min(90.0, decimal(p.inc_max));
    if (champ == "cel_txt_tetam") b.min = std::max(0.0, decimal(p.inc_div));
    if (champ == "bat_txt_tc0") b = Bornes{decimal(p.bat_tau50), std::nullopt, false};
    if (champ == "bat_txt_tc50") b = Bornes{0.0, decimal(p.bat_tau0), true, false};
    PowerRecord& q = const_cast<PowerRecord&>(p);  // read only: the pair's pointers
    if (const auto a = paire_absorptivite(q, champ, k)) {
        if (a->est_initiale)
            b.max = std::min(*b.max, decimal(*a->limite));
        else
            b.min = std::max(*b.min, decimal(*a->initiale));
    }
    return b;
}

std::optional<CaseEnergie> case_energie(std::size_t decalage) {
    PowerRecord q;
    const auto* base = reinterpret_cast<const unsigned char*>(&q);
    for (const Entree& e : entrees) {
        // no group a box indexes is longer than 36; a smaller k comes first,
        // so a box of one element answers with k = 0
        for (int k = 0; k < 36; ++k) {
            const Cible c = e.cible(q, k);
            const void* a = c.f ? static_cast<const void*>(c.f)
                                : c.i ? static_cast<const void*>(c.i) : static_cast<const void*>(c.o);
            if (static_cast<std::size_t>(reinterpret_cast<const unsigned char*>(a) - base) == decalage)
                return CaseEnergie{e.nom, k};
        }
    }
    return std::nullopt;
}

bool champ_entier(std::string_view champ) {
    const Entree* e = trouve(champ);
    if (!e) return false;
    PowerRecord essai;
    return e->cible(essai, 0).f == nullptr;
}

Verdict saisie_energie(PowerRecord& p, std::string_view champ, int k, const std::string& texte) {
    const Entree* e = trouve(champ);
    if (!e) return Verdict{false, "", Icone::aucune};
    const Cible c = e->cible(p, k);
    double x = 0;
    Verdict v;
    if (c.f) {
        float f = 0;
        v = verif_simple(texte, f);
        x = decimal(f);
    } else {
        int32_t n = 0;
        v = verif_entier(texte, n);
        x = n;
    }
    if (!v.ok) return v;
    const Bornes b = *bornes_energie(p, champ, k);
    if (b.separees) {
        v = verif_min(x, *b.min, b.min_inclus);
        if (v.ok) v = verif_max(x, *b.max, b.max_inclus);
    } else if (b.min && b.max)
        v = verif_bornes(x, *b.min, *b.max, b.min_inclus, b.max_inclus);
    else if (b.max)
        v = verif_max(x, *b.max, b.max_inclus);
    else if (b.min)
        v = verif_min(x, *b.min, b.min_inclus);
    if (!v.ok) return v;
    if (c.f) *c.f = static_cast<float>(x);
    if (c.i) *c.i = static_cast<int32_t>(x);
    if (c.o) *c.o = static_cast<uint8_t>(x);
    repare(p, champ);
    return v;
}

double valeur_energie(const PowerRecord& p, std::string_view champ, int k) {
    const Entree* e = trouve(champ);
    if (!e) return 0;
    return lit(e->cible(const_cast<PowerRecord&>(p), k));
}

std::string texte_energie(const PowerRecord& p, std::string_view champ, int k) {
    const Entree* e = trouve(champ);
    if (!e) return {};
    const Cible c = e->cible(const_cast<PowerRecord&>(p), k);
    if (e->forme == Forme::capacite) return format_image(lit(c), "#0.00");
    if (c.f) return fmt::format("{}", *c.f);  // shortest text that reads back as the float
    return fmt::format("{}", lit(c));
}

double rendement_cellules(const PowerRecord& p, bool fin_de_vie) {
    double imp = p.cel_imp, vmp = p.cel_vmp;
    if (fin_de_vie) {
        imp *= p.cel_radimp;
        vmp *= p.cel_radvmp;
    }
    return imp * vmp * 10000 / 1368 / p.cel_surface;
}

bool choix_corps(PowerRecord& p, int entree) {
    if (p.opt_panel_ext != 0) return false;
    p.opt_faces = static_cast<int16_t>(entree);
    tableau_faces(p);
    return true;
}

}  // namespace kestrel
