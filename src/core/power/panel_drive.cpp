// The panels' servo: wait pan_delay seconds once the misalignment passes the
// dead band, then turn at pan_speed until the target is reached.
#include <algorithm>
#include <cmath>

#include "core/etat/etat.h"
#include "core/math/math.h"
#include "core/power/panel_drive.h"
#include "core/power/panel_target.h"

namespace kestrel {

void panel_drive_update(Etat& etat, int pas) {
    PowerRecord& p = etat.pwr;
    if (p.pan_target == PAS_DE_CIBLE || p.pan_fixed == VRAI) return;
    double delta = p.pan_target - p.pan_angle;
    if (delta == 0) return;

    const double tolerance = p.pan_tolerance * DEG_RAD;  // rad
    int n;  // s of this step left for turning
    if (std::fabs(delta) > tolerance && p.pan_moving == FAUX && p.pan_wait < 0) {
        p.pan_wait = p.pan_delay;
        n = pas - p.pan_wait;
    } else {
        n = pas - p.pan_wait;
        if (p.pan_wait >= 0)
            p.pan_wait -= pas;
        else
            p.pan_wait = -1;
    }
    n = std::clamp(n, 0, std::max(pas, 0));

    double sens;
    if (std::fabs(delta) <= PI) {
        sens = signe(delta);
    } else {
        // The sense already takes the short way; this correction makes |delta|
        // larger, and the servo is known to behave so.
        sens = -signe(delta);
        delta = delta - 2 * PI * sens;
    }
    if ((std::fabs(delta) <= tolerance || n < 1) && p.pan_moving != VRAI) return;

    const double vitesse = p.pan_speed * DEG_RAD;  // rad/s
    if (vitesse * n < std::fabs(delta)) {
        p.pan_moving = VRAI;
        p.pan_angle += vitesse * n * sens;
    } else {
        p.pan_angle = p.pan_target;
        p.pan_moving = FAUX;
    }
    if (std::fabs(p.pan_angle) > PI) p.pan_angle -= 2 * PI * signe(p.pan_angle);
}

}  // namespace kestrel
