// The program's calendar: day counts since 1950-01-01 00:00. Every year whose
// offset from 1900 is a multiple of 4 is a leap year (1900 and 2100 too).
#pragma once
#include <cstdint>
#include <string>

namespace kestrel {

struct Date {
    int16_t an = 1950;       // four digits
    int16_t mois = 1;        // 1..12
    int16_t jour_sem = 0;    // present, unused
    int16_t jour = 1;        // 1..31
    int16_t heure = 0;       // 0..23
    int16_t minute = 0;
    int16_t seconde = 0;
    int32_t ms = 0;          // milliseconds
};

// Date record to day count (1950-01-01 00:00:00 gives 0).
double date_vers_jour(const Date& d);
// Day count to date record.
void jour_vers_date(double j, Date& d);
// "dd/mm/yyyy hh:mm:ss".
std::string date_vers_texte(const Date& d);

}  // namespace kestrel
