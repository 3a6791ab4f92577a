// Thermosphere: exospheric temperature from the date, the place, the Sun and
// the solar flux, then density from a table of altitude by temperature. The
// two tables are read once when a run is prepared, into a TablesAtmosphere
// that the caller owns and passes, read-only, to the models.
#pragma once
#include <array>
#include <string>
#include <vector>

#include "core/shell/erreur.h"
#include "core/shell/types.h"

namespace kestrel {

struct TablesAtmosphere {
    static constexpr int premiere_annee = 1991;  // record 1 is January 1991
    static constexpr int derniere_annee = 2007;
    static constexpr int nb_mois = 12 * (derniere_annee - premiere_annee + 1);  // 204
    std::array<double, nb_mois> flux{};  // monthly mean F10.7, sfu

    struct Ligne {
        double alt;    // km
        double d500;   // kg/m³ at 500 K
        double d1000;  // kg/m³ at 1000 K
        double d2000;  // kg/m³ at 2000 K
    };
    std::vector<Ligne> lignes;  // rising altitude, at least two lines
};

// Reads flux_solaire.txt and densite.txt from `dossier`. A missing or bad file
// gives CodeErreur::fichier_donnees with the file's path in detail.
Erreur charge_tables_atmosphere(const std::string& dossier, TablesAtmosphere& t);

// F10.7 (sfu) for the month of `date`: the table from 1991 to 2007, the sine
// 135 + 65 sin(2 pi (date - 17712) / 36525) elsewhere.
double flux_solaire(const TablesAtmosphere& t, double date);
double flux_solaire_sinus(double date);

// K. date: days since 1950; lon, lat: rad (geodetic); alt: km.
double temperature_exo(const TablesAtmosphere& t, double date, double lon, double lat, double alt);
// The same with the Sun (km, inertial) already placed at `date`.
double temperature_exo(const TablesAtmosphere& t, double date, double lon, double lat, double alt,
                       const Vec3& soleil);

// kg/m³ for exospheric temperature T (K) at altitude alt (km).
double densite(const TablesAtmosphere& t, double T, double alt);

}  // namespace kestrel
