// Figures that sum up an attitude run, for parameter sweeps: the largest body
// rate met and the attitude the run ended in.
#pragma once
#include "core/etat.h"

namespace kestrel {

struct ResumeAttitude {
    long pas = 0;                // steps that ran cleanly
    double vitesse_max = 0;      // deg/s, largest norm of the body rate omega(0..2)
    double roulis = 0, tangage = 0, lacet = 0;  // deg, local-orbital angles after the last step

    // After each clean step of the run.
    void ajoute(const Etat& etat);
};

}  // namespace kestrel
