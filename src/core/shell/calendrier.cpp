// Day counts and calendar dates, in blocks of four years from 1900.
#include "core/shell/calendrier.h"

#include <cmath>

#include <fmt/format.h>

namespace kestrel {

namespace {
// Cumulative days before month m (1..13) of a common year; table(13) = 365.
double table_mois(int m) {
    static constexpr double cumul[13] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};
    return cumul[m - 1];
}
double ent(double x) { return std::floor(x); }
double fr(double x) { return x - std::floor(x); }
}  // namespace

double date_vers_jour(const Date& d) {
    const int k = d.an - 1900;
    double t = static_cast<double>(k / 4) * 1461.0;
    t = t + table_mois(d.mois) + d.jour - 1.0 - 18263.0;
    if (k % 4 != 0) {
        t += (k % 4) * 365 + 1.0;
    } else if (d.mois >= 3) {
        t += 1.0;
    }
    t += (((d.ms / 1000.0 + d.seconde) / 60.0 + d.minute) / 60.0 + d.heure) / 24.0;
    return t;
}

void jour_vers_date(double j, Date& d) {
    const double D = ent(j) + 18263.0 + 1.0;
    d.heure = static_cast<int16_t>(ent(fr(j) * 24));
    d.minute = static_cast<int16_t>(ent(fr(fr(j) * 24) * 60));
    d.seconde = static_cast<int16_t>(ent(fr(fr(fr(j) * 24) * 60) * 60));
    d.ms = static_cast<int32_t>(ent(fr(fr(j) * 86400.0) * 1000.0));
    d.an = static_cast<int16_t>(ent((D - 1.0) / 365.25) + 1900);

    const int k = d.an - 1900;
    const double q = static_cast<double>(k / 4) * 4;
    double r;
    if (k % 4 == 0) {
        r = D - q * 365.25;
    } else {
        r = D - q * 365.25 - (k % 4) * 365 - 1.0;
    }
    // The walk steps before it tests: before 1900 r can be exactly 0 on the
    // first day of a block, and month 1 must still come out of it.
    int mois = 1;
    do {
        ++mois;
    } while (!(r - table_mois(mois) <= 0 || mois == 13));
    --mois;
    int jour = static_cast<int>(ent(r - table_mois(mois)));
    if (k % 4 == 0 && mois >= 3) {
        --jour;
        if (jour == 0) {
            --mois;
            if (mois == 2) {
                jour = static_cast<int>(ent(r - table_mois(2)));
            } else {
                jour = static_cast<int>(ent(r - table_mois(mois) - 1.0));
            }
        }
    }
    d.mois = static_cast<int16_t>(mois);
    d.jour = static_cast<int16_t>(jour);
}

std::string date_vers_texte(const Date& d) {
    return fmt::format("{:02}/{:02}/{:04} {:02}:{:02}:{:02}", d.jour, d.mois, d.an, d.heure,
                       d.minute, d.seconde);
}

}  // namespace kestrel
