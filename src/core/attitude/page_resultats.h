// The attitude results file read back a page of 1000 records at a time, for
// the charts of the simulation window: the 13 first fields of each record
// (the date, omega(0..5) in deg/s, yd(0), yd(2), yd(1) in deg, yd(3..5) in rpm).
#pragma once
#include <array>
#include <string>

namespace kestrel {

struct PageResultats {
    static constexpr int lignes = 1000, colonnes = 13;
    std::array<std::array<double, colonnes>, lignes> v{};  // zero past the last record
    int n = 0;                                             // records read
};

// Records 1000 page .. 1000 page + 999, after the five head lines. False when
// the file cannot be opened (the page is then all zeros).
bool lit_page_resultats(const std::string& chemin, int page, PageResultats& p);

// Pages of a run of (fin - debut) / pas steps: Round(steps / 1000 + 1); and the
// maximum of the page scroll bar: Round(steps / 1000 / pages). Round to even.
int pages_resultats(double debut, double fin, double pas_j);
int max_defilement(double debut, double fin, double pas_j, int pages);

}  // namespace kestrel
