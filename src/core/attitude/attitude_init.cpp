#include "core/attitude/attitude_init.h"

#include <cmath>

#include "core/etat/etat.h"
#include "core/orbit/matrices.h"

namespace kestrel {

void attitude_init(Etat& etat) {
    AttitudeRecord& a = etat.att;
    a.etat_att = 3;
    a.omega = a.omega_init;

    a.yi = a.yi_init;
    euler_taux(a.omega, a.yi);

    // yd is stored roll, yaw, pitch; the Euler sequence wants roll, pitch, yaw
    a.yd = a.yd_init;
    Vec6 L{a.yd[0], a.yd[2], a.yd[1], a.yd[3], a.yd[4], a.yd[5]};
    euler_taux(a.omega, L);
    a.yd[0] = L[0];
    a.yd[2] = L[1];
    a.yd[1] = L[2];
    a.yd[3] = L[3];
    a.yd[4] = L[4];
    a.yd[5] = L[5];

    quat_refresh(etat);

    a.OM = a.OM_init;
    for (int i = 0; i < 3; ++i) a.om[i] = a.OM[i] - a.omega[i];
    a.omd[0] = -a.omega[3];
    a.omd[1] = -a.omega[4];
    a.omd[1] = -a.omega[5];  // element 1 written twice, element 2 left: as the step does

    a.z = {};
    a.zd = {};
    a.zdd = {};
    a.dip_cmd = {};
    a.jet_cmd = {};
    a.dip_tot = a.dip_res;
}

void quat_refresh(Etat& etat) {
    AttitudeRecord& a = etat.att;
    double lacet = a.yd[1] * DEG_RAD;
    double roulis = a.yd[0] * DEG_RAD;
    double tangage = a.yd[2] * DEG_RAD;
    double cl = std::cos(lacet / 2), sl = std::sin(lacet / 2);
    double cr = std::cos(roulis / 2), sr = std::sin(roulis / 2);
    double ct = std::cos(tangage / 2), st = std::sin(tangage / 2);
    // yaw, then pitch, then roll
    a.quat[0] = cr * ct * cl + sr * st * sl;
    a.quat[1] = sr * ct * cl - cr * st * sl;
    a.quat[2] = cr * st * cl + sr * ct * sl;
    a.quat[3] = cr * ct * sl - sr * st * cl;
}

void decode_pointage(const std::string& texte, int16_t& mode) {
    if (texte == "+X")
        mode = 1;
    else if (texte == "+Y")
        mode = 2;
    else if (texte == "+Z")
        mode = 3;
    else if (texte == "-X")
        mode = 4;
    else if (texte == "-Z")
        mode = 5;
    else if (texte == "-Z")  // compared with "-Z" again: 6 cannot come out, "-Y" matches nothing
        mode = 6;
}

}  // namespace kestrel
