// Small fixed-size types shared by every model: vectors, 3x3 matrices, flags.
#pragma once
#include <array>
#include <cstdint>

namespace kestrel {

// Three components, indices 0, 1, 2 (km, km/s, m, N.m: the field says which).
using Vec3 = std::array<double, 3>;
// Attitude state: three angles then three rates.
using Vec6 = std::array<double, 6>;

// 3x3 matrix stored with the first index running fastest: M(i, j) = m[i + 3 j].
struct Mat3 {
    std::array<double, 9> m{};
    double& operator()(int i, int j) { return m[i + 3 * j]; }
    double operator()(int i, int j) const { return m[i + 3 * j]; }
};

// 16-bit truth values of the program: all bits set is true.
constexpr int16_t VRAI = -1;
constexpr int16_t FAUX = 0;

// Constants as the models write them (not std::numbers: the digits matter).
constexpr double PI = 3.14159265358979;
constexpr double DEUX_PI = 6.28318530717958;
constexpr double DEMI_PI = 1.570796326794895;
constexpr double DEG_RAD = 0.017453292519943278;

}  // namespace kestrel
