// Calendar: day counts worked out by hand from 1950-01-01 (0), four-year blocks
// from 1900 with every fourth year a leap year (no century rule).
#include <gtest/gtest.h>

#include "core/shell/calendrier.h"

using kestrel::Date;
using kestrel::date_vers_jour;
using kestrel::jour_vers_date;

namespace {
Date fait(int an, int mois, int jour, int h = 0, int mi = 0, int s = 0, int ms = 0) {
    Date d;
    d.an = static_cast<int16_t>(an);
    d.mois = static_cast<int16_t>(mois);
    d.jour = static_cast<int16_t>(jour);
    d.heure = static_cast<int16_t>(h);
    d.minute = static_cast<int16_t>(mi);
    d.seconde = static_cast<int16_t>(s);
    d.ms = ms;
    return d;
}
void attend_date(const Date& d, int an, int mois, int jour) {
    EXPECT_EQ(d.an, an);
    EXPECT_EQ(d.mois, mois);
    EXPECT_EQ(d.jour, jour);
}
}  // namespace

TEST(Calendrier, OrigineEtJoursConnus) {
    EXPECT_EQ(date_vers_jour(fait(1950, 1, 1)), 0.0);
    // 49 years of which 12 leap years (1952..1996): 49*365 + 12
    EXPECT_EQ(date_vers_jour(fait(1999, 1, 1)), 17897.0);
    // 2000-01-01: 50*365 + 12 leap days (1952..1996)
    EXPECT_EQ(date_vers_jour(fait(2000, 1, 1)), 18262.0);
    // 2000 is a leap year: 1 March is 31 + 29 days after 1 January
    EXPECT_EQ(date_vers_jour(fait(2000, 3, 1)), 18262.0 + 60.0);
    EXPECT_EQ(date_vers_jour(fait(2001, 1, 1)), 18262.0 + 366.0);
    // noon adds half a day
    EXPECT_DOUBLE_EQ(date_vers_jour(fait(1950, 1, 1, 12)), 0.5);
}

TEST(Calendrier, AllerRetourAutourDuBissextile) {
    for (auto [an, mois, jour] : {std::tuple{2000, 2, 29}, {2000, 3, 1}, {2000, 2, 28}, {2001, 2, 28},
                                  {2001, 3, 1}, {2003, 12, 31}, {2004, 1, 1}, {1950, 1, 1}, {2100, 2, 29}}) {
        Date d;
        jour_vers_date(date_vers_jour(fait(an, mois, jour)), d);
        SCOPED_TRACE(testing::Message() << an << "-" << mois << "-" << jour);
        attend_date(d, an, mois, jour);
    }
}

TEST(Calendrier, AvantMilNeufCent) {
    // j = -18628: D = -18628 + 18264 = -364, an = Int(-365 / 365.25) + 1900 =
    // 1899, k = -1 (quotient 0, remainder -1): r = -364 + 365 - 1 = 0. The
    // month walk leaves month 1, and the day is Int(0 - 0) = 0.
    Date d;
    jour_vers_date(-18628.0, d);
    attend_date(d, 1899, 1, 0);
    // a day later r = 1: 1 January 1899
    jour_vers_date(-18627.0, d);
    attend_date(d, 1899, 1, 1);
}

TEST(Calendrier, Siecle2100EstBissextile) {
    // No century rule: 29 February 2100 is one day before 1 March 2100.
    EXPECT_EQ(date_vers_jour(fait(2100, 3, 1)) - date_vers_jour(fait(2100, 2, 29)), 1.0);
    EXPECT_EQ(date_vers_jour(fait(2101, 1, 1)) - date_vers_jour(fait(2100, 1, 1)), 366.0);
}

TEST(Calendrier, HeureEtMillisecondesAuRetour) {
    Date d;
    jour_vers_date(date_vers_jour(fait(2001, 3, 21, 13, 12, 7, 250)), d);
    attend_date(d, 2001, 3, 21);
    EXPECT_EQ(d.heure, 13);
    EXPECT_EQ(d.minute, 12);
    EXPECT_EQ(d.seconde, 7);
    EXPECT_NEAR(d.ms, 250, 1);  // the fraction of the second, to within the round trip
}

TEST(Calendrier, Texte) {
    EXPECT_EQ(kestrel::date_vers_texte(fait(2001, 3, 5, 7, 8, 9)), "05/03/2001 07:08:09");
}
