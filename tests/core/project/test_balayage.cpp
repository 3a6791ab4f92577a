// Sweeps: reading the values, numbering the product, slicing it, and the
// thread pool handing results back in case order.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "core/project/balayage.h"

using namespace kestrel;

TEST(Balayage, ValuesListedOrSpaced) {
    struct Cas { const char* texte; std::vector<double> attendu; };
    // 0:1:5 -> step 1/4; 10:20:1 -> only the start; 2:-2:3 -> 2, 0, -2
    const Cas cas[] = {{"20,30,40", {20, 30, 40}},
                       {"1.5", {1.5}},
                       {"0:1:5", {0, 0.25, 0.5, 0.75, 1}},
                       {"10:20:1", {10}},
                       {"2:-2:3", {2, 0, -2}},
                       {"-1e-3,2E2", {-0.001, 200}}};
    for (const Cas& c : cas) {
        std::string e;
        EXPECT_EQ(lit_valeurs(c.texte, e), c.attendu) << c.texte;
        EXPECT_TRUE(e.empty()) << c.texte;
    }
    for (const char* faux : {"", "a", "1,,2", "1,2x", "0:1", "0:1:0", "0:1:2.5", "0:1:2:3", "1:a:3"}) {
        std::string e;
        EXPECT_TRUE(lit_valeurs(faux, e).empty()) << faux;
        EXPECT_FALSE(e.empty()) << faux;
    }
}

TEST(Balayage, ProductInCaseOrderLastFieldFastest) {
    const std::vector<Balayage> b{{"a", {1, 2, 3}}, {"b", {10, 20}}};
    ASSERT_EQ(nb_cas(b), 6u);
    const std::vector<std::vector<double>> attendu{{1, 10}, {1, 20}, {2, 10}, {2, 20}, {3, 10}, {3, 20}};
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(valeurs_du_cas(b, i), attendu[i]) << i;
    EXPECT_EQ(nb_cas({}), 1u);
}

TEST(Balayage, SlicesCoverEveryCaseOnceInOrder) {
    // 7 cases in 3 slices: [0,2) [2,4) [4,7); 2 cases in 3: [0,0) [0,1) [1,2)
    const std::pair<std::size_t, std::vector<std::size_t>> cas[] = {{7, {0, 2, 4, 7}}, {2, {0, 0, 1, 2}},
                                                                    {6, {0, 2, 4, 6}}};
    for (const auto& [total, bornes] : cas)
        for (std::size_t k = 1; k <= 3; ++k) {
            const Tranche t = tranche(total, k, 3);
            EXPECT_EQ(t.debut, bornes[k - 1]) << total << " " << k;
            EXPECT_EQ(t.fin, bornes[k]) << total << " " << k;
        }
    EXPECT_EQ(tranche(5, 1, 1).fin, 5u);
}

TEST(Balayage, ResultsComeBackInCaseOrderWhateverTheTiming) {
    for (unsigned jobs : {1u, 2u, 5u}) {
        std::vector<std::size_t> vus;
        std::atomic<int> en_meme_temps{0}, pic{0};
        lance_cas(
            {3, 11}, jobs,
            [&](std::size_t i) {
                const int n = ++en_meme_temps;
                for (int p = pic; n > p && !pic.compare_exchange_weak(p, n);) {}
                // early cases take longest, so later ones finish first
                std::this_thread::sleep_for(std::chrono::milliseconds(2 * (11 - i)));
                --en_meme_temps;
                return std::to_string(i * i);
            },
            [&](std::size_t i, const std::string& r) {
                EXPECT_EQ(r, std::to_string(i * i));
                vus.push_back(i);
            });
        EXPECT_EQ(vus, (std::vector<std::size_t>{3, 4, 5, 6, 7, 8, 9, 10})) << jobs;
        EXPECT_LE(pic, static_cast<int>(jobs));
        if (jobs > 1) {
            EXPECT_GT(pic, 1) << "cases ran one at a time";
        }
    }
}
