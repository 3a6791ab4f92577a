#include "core/attitude/resume_attitude.h"

#include <algorithm>
#include <cmath>

#include "core/attitude/att_run.h"
#include "core/shell/ligne_finie.h"

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

std::array<double, 4> figures(const ResumeAttitude& r) { return {r.vitesse_max, r.roulis, r.tangage, r.lacet}; }

ResumeAttitude run_resume_attitude(Etat& etat) {
    ResumeAttitude r;
    ParametresRun p;
    p.pas_ecriture = 32767;
    p.fichier = "/dev/null";
    p.apres_pas = [&r](const Etat& e) { r.ajoute(e); };
    att_run(etat, p);
    if (!etat.faute) ligne_finie(etat.faute, etat.session.j_fin, figures(r), FIGURES_ATTITUDE);
    return r;
}

}  // namespace kestrel
