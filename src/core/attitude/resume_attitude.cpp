#include "core/attitude/resume_attitude.h"

#include <algorithm>
#include <cmath>

namespace kestrel {

void ResumeAttitude::ajoute(const Etat& etat) {
    const AttitudeRecord& a = etat.att;
    // same degree factor as the results file
    const double k180 = 180.0 / 3.14159265358979;
    ++pas;
    vitesse_max = std::max(vitesse_max, std::hypot(a.omega[0], a.omega[1], a.omega[2]) * k180);
    // yd holds roll, yaw, pitch
    roulis = a.yd[0] * k180;
    tangage = a.yd[2] * k180;
    lacet = a.yd[1] * k180;
}

}  // namespace kestrel
