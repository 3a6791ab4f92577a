// The results file read back a page of 1000 records at a time.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "core/attitude/page_resultats.h"

using namespace kestrel;

TEST(PageResultats, PagesDeMilleEnregistrements) {
    const auto chemin = std::filesystem::temp_directory_path() / ("kestrel_page_" + std::to_string(::getpid()) + ".tmp");
    {
        std::ofstream f(chemin, std::ios::binary);
        f << "\"#BeginTime(JulianDays)\",100\r\n\"#EndTime(JulianDays)\",101\r\n\"#TimeStep(s)\",1\r\n\r\n\"j_courant\"\r\n";
        // record i: date 100 + i, field k = 1000 i + k, 25 fields
        for (int i = 0; i < 2501; ++i) {
            f << 100 + i;
            for (int k = 1; k < 25; ++k) f << ',' << 1000 * i + k;
            f << "\r\n";
        }
    }
    PageResultats p;
    ASSERT_TRUE(lit_page_resultats(chemin.string(), 0, p));
    EXPECT_EQ(p.n, 1000);
    EXPECT_EQ(p.v[0][0], 100);
    EXPECT_EQ(p.v[999][12], 999012);
    ASSERT_TRUE(lit_page_resultats(chemin.string(), 2, p));
    EXPECT_EQ(p.n, 501);  // records 2000..2500
    EXPECT_EQ(p.v[0][1], 2000001);
    EXPECT_EQ(p.v[500][0], 2600);
    EXPECT_EQ(p.v[501][0], 0);  // past the last record: zeros
    ASSERT_TRUE(lit_page_resultats(chemin.string(), 3, p));
    EXPECT_EQ(p.n, 0);
    std::filesystem::remove(chemin);
    EXPECT_FALSE(lit_page_resultats(chemin.string(), 0, p));

    // pages Round(N / 1000 + 1) and scroll maximum Round(N / 1000 / pages), to even
    const double jour = 1.0;
    EXPECT_EQ(pages_resultats(0, 2500 / 86400.0, 1 / 86400.0), 4);     // Round(3.5) = 4
    EXPECT_EQ(max_defilement(0, 2500 / 86400.0, 1 / 86400.0, 4), 1);   // Round(0.625)
    EXPECT_EQ(pages_resultats(0, 1500 / 86400.0, 1 / 86400.0), 2);     // Round(2.5) = 2
    EXPECT_EQ(max_defilement(0, 1500 / 86400.0, 1 / 86400.0, 2), 1);   // Round(0.75)
    EXPECT_EQ(pages_resultats(0, jour, 10 / 86400.0), 10);             // 8640 steps: Round(9.64)
    EXPECT_EQ(max_defilement(0, jour, 10 / 86400.0, 10), 1);           // Round(0.864)
}
