#include "core/project/catalogues.h"

#include <cstring>

namespace kestrel {

namespace {

struct Cellule {
    float isc, imp, voc, vmp;      // A, A, V, V at the reference temperature
    float disc, dimp, dvoc, dvmp;  // their slopes per °C
    float surface;                 // cm²
    float rendement;               // stored efficiency
};

constexpr Cellule ASGA{0.53f, 0.5f, 1.0f, 0.86f, 0.0003f, 0.00025f, -0.002f, -0.002f, 16.0f,
                       4300.0f / 1368.0f / 16.0f};
constexpr Cellule SILICIUM{1.0f, 0.95f, 0.54f, 0.45f, 0.0012f, 0.0009f, -0.002f, -0.002f, 20.0f,
                           4275.0f / 1368.0f / 20.0f};

}  // namespace

void catalogue_cellules(PowerRecord& p, int type) {
    const Cellule* c = type == 0 ? &ASGA : (type == 1 ? &SILICIUM : nullptr);
    if (!c) return;
    p.cel_isc = c->isc;
    p.cel_imp = c->imp;
    p.cel_voc = c->voc;
    p.cel_vmp = c->vmp;
    p.cel_disc = c->disc;
    p.cel_dimp = c->dimp;
    p.cel_dvoc = c->dvoc;
    p.cel_dvmp = c->dvmp;
    p.cel_surface = c->surface;
    p.cel_rendement = c->rendement;
}

namespace {

struct Batterie {
    float ch[4][6];  // charge points 0, 1, 2, overcharge: state %, current, temperature, V, dV/dT, dV/dI
    float de[4][6];  // discharge points 0, 1, 2, 100 %
    float cmax, c10, tmin, cmin_pct, t999, tau0, tau50, k_recharge, vch_max;
};

constexpr Batterie NICKEL{
    {{0, 0, 0, 1.3f, 0, 0},
     {15, 0.1f, -5, 1.4f, -0.001f, 0.01f},
     {65, 0.5f, -5, 1.41f, -0.001f, 0.01f},
     {120, 0.1f, -5, 1.59f, -0.002f, 0.02f}},
    {{0, 0, 0, 1.3f, 0, 0},
     {15, 0.1f, -5, 1.21f, 0.001f, -0.01f},
     {95, 0.1f, -2, 1.2f, 0.001f, -0.01f},
     {100, 0, 0, 1.0f, 0, 0}},
    1.2f, 0.6f, -50, 30, 50, 100, 15, 1.05f, 1.55f};

constexpr Batterie LITHIUM{
    {{0, 0, 0, 3.3f, 0, 0},
     {20, 0, -5, 4.15f, -0.001f, 0.4f},
     {80, 0, -5, 4.15f, -0.001f, 0.15f},
     {100, 0, -5, 4.15f, -0.001f, 0.15f}},
    {{0, 0, 0, 4.1f, 0, 0},
     {20, 0.1f, -5, 3.6f, 0.002f, -0.4f},
     {80, 0.1f, -2, 3.4f, 0.002f, -0.4f},
     {100, 0, 0, 2.8f, 0, 0}},
    1.0f, 0.8f, -50, 30, 50, 500, 300, 1.0f, 4.0f};

}  // namespace

void catalogue_batterie(PowerRecord& p, int type) {
    const Batterie* b = (type == 0 || type == 1) ? &NICKEL : (type == 2 ? &LITHIUM : nullptr);
    if (!b) return;
    std::memcpy(p.ch_pt, b->ch, sizeof p.ch_pt);
    std::memcpy(p.de_pt, b->de, sizeof p.de_pt);
    p.bat_cmax = b->cmax;
    p.bat_c10 = b->c10;
    p.bat_tmin = b->tmin;
    p.bat_cmin_pct = b->cmin_pct;
    p.bat_t999 = b->t999;
    p.bat_tau0 = b->tau0;
    p.bat_tau50 = b->tau50;
    p.gst_k_recharge = b->k_recharge;
    p.gst_vch_max = b->vch_max;
}

bool batterie_modifiable(int type) { return type == 3; }

}  // namespace kestrel
