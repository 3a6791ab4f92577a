#include "core/attitude/bilan_masses.h"

namespace kestrel {

void bilan_masses(AttitudeRecord& a) {
    const Vec3& m = a.mext;
    const Vec3& d = a.dext;
    const Vec3& cm = a.cm;
    const Vec3& md = a.md;
    const Vec3& ld = a.ld;
    auto carre = [](double x) { return x * x; };

    a.Mt = m[0] + m[1] + m[2] + a.Masse + 2 * md[0] + 2 * md[1] + 2 * md[2];
    const double A = 2 * m[1] + a.Masse + 2 * m[2] + 2 * m[0];

    a.I(0, 0) = A * (carre(cm[2]) + carre(cm[1])) + 2 * carre(d[1]) * m[1] + a.I_corps(0, 0) +
                2 * carre(d[2]) * m[2] + 2 * carre(ld[1]) * md[1] + 2 * carre(ld[2]) * md[2];
    a.I(1, 1) = A * (carre(cm[0]) + carre(cm[2])) + 2 * carre(d[0]) * m[0] + a.I_corps(1, 1) +
                2 * carre(d[2]) * m[2] + 2 * carre(ld[0]) * md[0] + 2 * carre(ld[2]) * md[2];
    a.I(2, 2) = A * (carre(cm[0]) + carre(cm[1])) + 2 * carre(d[0]) * m[0] + a.I_corps(2, 2) +
                2 * carre(d[1]) * m[1] + 2 * carre(ld[0]) * md[0] + 2 * carre(ld[1]) * md[1];

    // Products of inertia: the central body at cm plus the three external
    // masses, each counted twice, all placed at cm.
    auto produit = [&](int i, int j) {
        const double p = cm[i] * cm[j];
        return p * a.Masse + a.I_corps(i, j) + 2 * m[0] * p + 2 * m[1] * p + 2 * m[2] * p;
    };
    a.I(0, 1) = produit(0, 1);
    a.I(0, 2) = produit(0, 2);
    a.I(1, 2) = produit(1, 2);
    a.I(1, 0) = a.I(0, 1);
    a.I(2, 0) = a.I(0, 2);
    a.I(2, 1) = a.I(1, 2);

    a.cm_total = a.cm;
    faces_recalcul(a);
}

void faces_recalcul(AttitudeRecord& a) {
    for (auto& face : a.face_c)
        for (int j = 0; j < 3; ++j) face[j] = -a.cm[j];
    for (int j = 0; j < 3; ++j) {
        a.face_c[j][j] += a.dim[j] / 2;      // +x, +y, +z
        a.face_c[j + 3][j] -= a.dim[j] / 2;  // -x, -y, -z
    }
}

}  // namespace kestrel
