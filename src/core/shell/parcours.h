// How every run walks the period: the start date, then date += step / 86400
// while the date has not passed the end by more than 0.1 s.
#pragma once

namespace kestrel {

// f(date) returns false to stop early. Returns the number of dates visited.
template <class F>
long parcours_dates(double debut, double fin, double pas_s, F&& f) {
    long n = 0;
    double j = debut;
    const double limite = fin + 0.1 / 86400.0;
    while (j <= limite) {
        ++n;
        if (!f(j)) break;
        if (pas_s <= 0) break;  // a zero step would never leave the period
        j += pas_s / 86400.0;
    }
    return n;
}

}  // namespace kestrel
