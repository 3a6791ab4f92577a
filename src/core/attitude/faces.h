// Face areas of the central box, m², shared by the aerodynamic and solar models.
#pragma once
#include "core/etat/attitude_record.h"

namespace kestrel {

// Faces 0/3 (x) dim2 dim1, 1/4 (y) dim2 dim0, 2/5 (z) dim1 dim0.
inline double aire_face(const AttitudeRecord& a, int k) {
    switch (k % 3) {
        case 0:
            return a.dim[2] * a.dim[1];
        case 1:
            return a.dim[2] * a.dim[0];
        default:
            return a.dim[1] * a.dim[0];
    }
}

}  // namespace kestrel
