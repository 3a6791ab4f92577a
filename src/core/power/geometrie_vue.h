// Where the three-dimensional view puts the Earth, the satellite and the Sun
// for the geometry of the last environment_update. The view frame is the
// inertial frame turned by -90 degrees about x, so that north is up (+y):
// inertial (x, y, z) -> view (x, z, -y). Lengths in Earth radii.
#pragma once
#include <array>

#include "core/shell/types.h"

namespace kestrel {

struct Etat;

struct GeometrieVue {
    double angle_terre = 0;  // deg, turn of the textured Earth about its pole
    Vec3 sat{};              // satellite, Earth radii, view frame
    Vec3 soleil{};           // Sun vector km / 1000 / 6378.137, view frame
    // Body axes x, y, z of the satellite in the view frame, column-major 4x4
    // (no translation), ready for glMultMatrixd.
    std::array<double, 16> axes{};
};

// From etat.orb (sat_pos, soleil_pos), the pointing and the orbit, at `date`
// (day count) for the Earth's sidereal angle.
GeometrieVue geometrie_vue(const Etat& etat, double date);

// Inertial vector to the view frame.
Vec3 vers_vue(const Vec3& v);

}  // namespace kestrel
