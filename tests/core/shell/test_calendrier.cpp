// Calendar: day counts worked out by hand from 1950-01-01 (0), four-year blocks
// from 1900 with every fourth year a leap year (no century rule).
#include <gtest/gtest.h>

#include <tuple>

#include "core/shell/calendrier.h"

using namespace kestrel;

namespace {
Date fait(int an, int mois, int jour, int h = 0, int mi = 0, int s = 0, int ms = 0) {
    using I = int16_t;
    return Date{I(an), I(mois), 0, I(jour), I(h), I(mi), I(s), ms};
}
std::tuple<int, int, int> amj(const Date& d) { return {d.an, d.mois, d.jour}; }
}  // namespace

TEST(Calendrier, JoursConnus) {
    struct Cas { Date d; double jour; };
    const Cas cas[] = {
        {fait(1950, 1, 1), 0.0},
        {fait(1999, 1, 1), 17897.0},           // 49 years of which 12 leap years (1952..1996): 49*365 + 12
        {fait(2000, 1, 1), 18262.0},           // 50*365 + 12 leap days (1952..1996)
        {fait(2000, 3, 1), 18262.0 + 60.0},    // 2000 is a leap year: 31 + 29 days after 1 January
        {fait(2001, 1, 1), 18262.0 + 366.0},
        {fait(1950, 1, 1, 12), 0.5},           // noon adds half a day
    };
    for (const Cas& c : cas) EXPECT_EQ(date_vers_jour(c.d), c.jour) << c.d.an << "-" << c.d.mois;
    // No century rule: 29 February 2100 is one day before 1 March 2100, and 2100 has 366 days.
    EXPECT_EQ(date_vers_jour(fait(2100, 3, 1)) - date_vers_jour(fait(2100, 2, 29)), 1.0);
    EXPECT_EQ(date_vers_jour(fait(2101, 1, 1)) - date_vers_jour(fait(2100, 1, 1)), 366.0);
}

TEST(Calendrier, AllerRetour) {
    Date d;
    for (auto [an, mois, jour] : {std::tuple{2000, 2, 29}, {2000, 3, 1}, {2000, 2, 28}, {2001, 2, 28},
                                  {2001, 3, 1}, {2003, 12, 31}, {2004, 1, 1}, {1950, 1, 1}, {2100, 2, 29}}) {
        jour_vers_date(date_vers_jour(fait(an, mois, jour)), d);
        EXPECT_EQ(amj(d), std::tuple(an, mois, jour));
    }
    // hour, minute, second and the fraction of the second (to within the round trip)
    jour_vers_date(date_vers_jour(fait(2001, 3, 21, 13, 12, 7, 250)), d);
    EXPECT_EQ(amj(d), std::tuple(2001, 3, 21));
    EXPECT_EQ(std::tuple(d.heure, d.minute, d.seconde), std::tuple(13, 12, 7));
    EXPECT_NEAR(d.ms, 250, 1);
}

TEST(Calendrier, AvantMilNeufCent) {
    // j = -18628: D = -18628 + 18264 = -364, an = Int(-365 / 365.25) + 1900 =
    // 1899, k = -1 (quotient 0, remainder -1): r = -364 + 365 - 1 = 0. The
    // month walk leaves month 1, and the day is Int(0 - 0) = 0.
    // A day later r = 1: 1 January 1899.
    Date d;
    jour_vers_date(-18628.0, d);
    EXPECT_EQ(amj(d), std::tuple(1899, 1, 0));
    jour_vers_date(-18627.0, d);
    EXPECT_EQ(amj(d), std::tuple(1899, 1, 1));
}
