// Scalar helpers: the special points where they must not divide by zero, the
// real modulo, the second Kepler solver and the angle guard.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

#include "core/math/math.h"
#include "core/shell/types.h"

using namespace kestrel;

// the program's pi has 15 digits: 1.6e-15 off the true half-turn, plus rounding
constexpr double ARRONDI = 4e-15;
static double garde(double x) { angle_garde(x); return x; }

TEST(Scalaires, QuadrantsBornesEtModulo) {
    EXPECT_EQ(frac(2.5), 0.5);
    EXPECT_EQ(frac(-0.25), 0.75);  // floor(-0.25) = -1
    // atan_quad, x = 0: 9.42477796076937 / 2 for y <= 0, pi/2 for y > 0
    EXPECT_EQ(atan_quad(0.0, 0.0), 4.712388980384685);
    EXPECT_EQ(atan_quad(-2.0, 0.0), 4.712388980384685);
    EXPECT_EQ(atan_quad(2.0, 0.0), DEMI_PI);
    EXPECT_NEAR(atan_quad(1.0, 1.0), 0.7853981633974483, ARRONDI);
    // second and third quadrants go through +pi: atan(1) + pi and atan(-1) + pi
    EXPECT_NEAR(atan_quad(-1.0, -1.0), 0.7853981633974483 + PI, ARRONDI);
    EXPECT_NEAR(atan_quad(1.0, -1.0), -0.7853981633974483 + PI, ARRONDI);
    // atan2_v, |x| not above 1e-10: pi/2 whatever the sign of y
    for (auto [y, x] : {std::pair{5.0, 0.0}, std::pair{-5.0, 1e-10}, std::pair{-5.0, -1e-11}})
        EXPECT_EQ(atan2_v(y, x), 1.570796326794895) << x;
    EXPECT_NEAR(atan2_v(1.0, 1.0), 0.7853981633974483, ARRONDI);
    EXPECT_NEAR(atan2_v(1.0, -1.0), -0.7853981633974483 + PI, ARRONDI);   // y >= 0: + pi
    EXPECT_NEAR(atan2_v(-1.0, -1.0), 0.7853981633974483 - PI, ARRONDI);   // y < 0: - pi
    EXPECT_NEAR(atan2_v(0.0, -1.0), PI, ARRONDI);
    EXPECT_EQ(arccos_v(1.0), 0.0);
    EXPECT_EQ(arccos_v(-1.0), PI);
    EXPECT_EQ(arccos_v(0.0), DEMI_PI);
    // the 1e-10 margin under the root moves acos(0.5) = pi/3 by ~4e-11
    EXPECT_NEAR(arccos_v(0.5), 1.0471975511965976, 1e-10);
    EXPECT_NEAR(arccos_p(0.5), 1.0471975511965976, ARRONDI);
    EXPECT_EQ(arcsin_v(1.0), DEMI_PI);
    EXPECT_EQ(arcsin_v(-1.0), -DEMI_PI);
    EXPECT_NEAR(arcsin_v(0.5), 0.5235987755982988, ARRONDI);  // pi/6
    EXPECT_EQ(modulo(0.0, DEUX_PI), 0.0);
    EXPECT_EQ(modulo(-0.0, DEUX_PI), 0.0);
    // -1 + 0 * m + m
    EXPECT_DOUBLE_EQ(modulo(-1.0, 6.28318530717958), 5.28318530717958);
    // 7 - 1 * m ; -7 + 1 * m + m
    EXPECT_DOUBLE_EQ(modulo(7.0, DEUX_PI), 0.71681469282042);
    EXPECT_DOUBLE_EQ(modulo(-7.0, DEUX_PI), 5.56637061435916);
    EXPECT_TRUE(std::isnan(modulo(std::nan(""), DEUX_PI)));
}

TEST(KeplerInverse, RetoursDirectsEtEquation) {
    EXPECT_EQ(kepler_inverse(1.0, 0.0), 1.0);      // circular: E = m
    EXPECT_EQ(kepler_inverse(4.0, 0.3), 4.0);      // sin 4 < 0: m returned
    EXPECT_EQ(kepler_inverse(0.0, 0.5), 0.0);      // sin 0 < 1e-11
    // E - e sin E = m by definition of the eccentric anomaly
    for (double e : {0.01, 0.1, 0.5})
        for (double m : {0.3, 1.0, 2.0, 3.0}) {
            const double E = kepler_inverse(m, e);
            EXPECT_NEAR(E - e * std::sin(E), m, 1e-10) << "e=" << e << " m=" << m;
        }
}

TEST(AngleGarde, EcarteDuDemiTourSansBoucleSansFin) {
    EXPECT_EQ(garde(1.0), 1.0);  // reduced value far from 0: untouched
    // pi + 5e-13 reduces to ~+5e-13: x becomes +(|x| - 1e-11)
    EXPECT_NEAR(garde(PI + 5e-13), PI + 5e-13 - 1e-11, 1e-15);
    EXPECT_NEAR(garde(-PI - 5e-13), -(PI + 5e-13 - 1e-11), 1e-15);
    // a whole turn plus a little: two half-turns off
    EXPECT_NEAR(garde(2.0 * PI + 2e-13), 2.0 * PI + 2e-13 - 1e-11, 1e-14);
    EXPECT_TRUE(std::isinf(garde(std::numeric_limits<double>::infinity())));
    EXPECT_TRUE(std::isfinite(garde(1e12)));  // far past the pass cap; finishes and stays finite
}
