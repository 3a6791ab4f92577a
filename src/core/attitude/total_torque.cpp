#include "core/attitude/couple_aero.h"
#include "core/attitude/couple_gravite.h"
#include "core/attitude/couple_magnetique.h"
#include "core/attitude/couple_solaire.h"
#include "core/attitude/total_torque.h"
#include "core/etat/etat.h"

namespace kestrel {

void total_torque(Etat& etat, double date, const TablesAtmosphere& tables) {
    couple_gravite(etat);
    couple_aero(etat, date, tables);
    couple_solaire(etat, date);
    couple_magnetique(etat, date);
    AttitudeRecord& a = etat.att;
    a.ctot = {};
    for (int i = 0; i < 3; ++i) {
        a.ctot[i] = a.c_magnetique[i] + a.c_aero[i];
        a.ctot[i] += a.c_solaire[i];
        a.ctot[i] += a.c_gravite[i];
    }
}

void total_torque_a_date(Etat& etat, double date, const TablesAtmosphere& tables) {
    orbite_a_date(etat, date);
    AttitudeRecord& a = etat.att;
    a.ctot = {};
    couple_gravite(etat);
    couple_aero(etat, date, tables);
    couple_solaire(etat, date);
    couple_magnetique(etat, date);
    for (int i = 0; i < 3; ++i) {
        a.ctot[i] += a.c_aero[i];
        a.ctot[i] += a.c_magnetique[i];
        a.ctot[i] += a.c_solaire[i];
        a.ctot[i] += a.c_gravite[i];
    }
}

}  // namespace kestrel
