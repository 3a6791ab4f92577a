#include "core/project/catalogues.h"

#include <cstring>

namespace kestrel {

void catalogue_cellules(PowerRecord& p, int type) {
    if (type == 0) {  // AsGa
        p.cel_isc = 0.53f;
        p.cel_imp = 0.5f;
        p.cel_voc = 1.0f;
        p.cel_vmp = 0.86f;
        p.cel_disc = 0.0003f;
        p.cel_dimp = 0.00025f;
        p.cel_dvoc = -0.002f;
        p.cel_dvmp = -0.002f;
        p.cel_surface = 16.0f;
        p.cel_rendement = 4300.0f / 1368.0f / 16.0f;
    } else if (type == 1) {  // Silicium
        p.cel_isc = 1.0f;
        p.cel_imp = 0.95f;
        p.cel_voc = 0.54f;
        p.cel_vmp = 0.45f;
        p.cel_disc = 0.0012f;
        p.cel_dimp = 0.0009f;
        p.cel_dvoc = -0.002f;
        p.cel_dvmp = -0.002f;
        p.cel_surface = 20.0f;
        p.cel_rendement = 4275.0f / 1368.0f / 20.0f;
    }
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
