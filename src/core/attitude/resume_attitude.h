// Figures that sum up an attitude run, for parameter sweeps: the largest body
// rate met and the attitude the run ended in.
#pragma once
#include <array>

#include "core/etat/etat.h"

namespace kestrel {

struct ResumeAttitude {
    long pas = 0;                // steps that ran cleanly
    double vitesse_max = 0;      // deg/s, largest norm of the body rate omega(0..2)
    double roulis = 0, tangage = 0, lacet = 0;  // deg, local-orbital angles after the last step

    // After each clean step of the run.
    void ajoute(const Etat& etat);
};

// The figures in the order of their names.
inline constexpr const char* FIGURES_ATTITUDE[4] = {"max_rate", "roll", "pitch", "yaw"};
inline constexpr const char* UNITES_FIGURES_ATTITUDE[4] = {"°/s", "°", "°", "°"};
std::array<double, 4> figures(const ResumeAttitude& r);

// An attitude run over the session's period for its figures alone (no
// results file kept); the figures are checked finite at the end of a run that
// went through, like every row. Faults in etat.faute.
ResumeAttitude run_resume_attitude(Etat& etat);

}  // namespace kestrel
