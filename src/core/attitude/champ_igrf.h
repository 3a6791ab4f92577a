// Geomagnetic main field: spherical harmonics to degree and order 6 with the
// 1995 coefficients and their linear (one quadratic) drift.
#pragma once
#include <array>

#include "core/shell/types.h"

namespace kestrel {

constexpr int IGRF_DEGRE = 6;
constexpr double IGRF_RAYON = 6371.2;  // km, reference radius of the expansion

// Schmidt semi-normalised coefficients, nT, index [n][m]; t = date/365 - 45.
struct CoefficientsIgrf {
    std::array<std::array<double, IGRF_DEGRE + 1>, IGRF_DEGRE + 1> g{}, h{};
};
CoefficientsIgrf coefficients_igrf(double date);

// Field at geocentric distance r (km), colatitude and east longitude (rad),
// nT: B[0] radial outward, B[1] along increasing colatitude (south), B[2] east.
Vec3 champ_igrf(double date, double r, double colatitude, double longitude);

}  // namespace kestrel
