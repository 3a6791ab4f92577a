// Round axis steps: 1, 2 or 5 times a power of ten, at most n parts.
#include <gtest/gtest.h>

#include "core/shell/graduations.h"

namespace kestrel {
namespace {

TEST(Graduations, RoundStepsAndFirstTick) {
    struct Cas {
        double etendue;
        int n;
        double pas;
    };
    // 30 / 8 = 3.75 -> 5; 100 / 5 = 20 -> 20; 0.35 / 5 = 0.07 -> 0.1;
    // 1 / 10 = 0.1 -> 0.1 (an exact fit keeps its step); 7200 / 9 = 800 -> 1000;
    // degenerate ranges -> 1.
    const Cas cas[] = {{30, 8, 5},     {100, 5, 20}, {0.35, 5, 0.1}, {1, 10, 0.1},
                       {7200, 9, 1000}, {0, 5, 1},    {-3, 5, 1},     {12, 0, 1}};
    for (const Cas& c : cas) EXPECT_NEAR(pas_graduation(c.etendue, c.n), c.pas, c.pas * 1e-12) << c.etendue;
    // 1.23 by 0.1 -> 1.3; -0.45 by 0.2 -> -0.4; a tick on the start stays.
    EXPECT_NEAR(premiere_graduation(1.23, 0.1), 1.3, 1e-12);
    EXPECT_NEAR(premiere_graduation(-0.45, 0.2), -0.4, 1e-12);
    EXPECT_NEAR(premiere_graduation(1.2, 0.1), 1.2, 1e-12);
}

}  // namespace
}  // namespace kestrel
