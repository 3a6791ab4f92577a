// Vectors and 3x3 matrices (M(i, j) = m[i + 3 j]). Every routine writes its
// result through a local first, so a result argument may be the same object
// as an input.
#include "core/math/vecteurs.h"

#include <cmath>

namespace kestrel {

void mat_produit(const Mat3& A, const Mat3& B, Mat3& C) {
    Mat3 R;  // cleared
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            for (int k = 0; k < 3; ++k) R(i, j) += A(i, k) * B(k, j);
    C = R;
}

void mat_vecteur(const Mat3& M, const Vec3& v, Vec3& r, double lignes, double colonnes) {
    Vec3 s{};
    const int n = static_cast<int>(lignes);
    const int p = static_cast<int>(colonnes);
    for (int i = 0; i < n && i < 3; ++i)
        for (int j = 0; j < p && j < 3; ++j) s[i] += M(i, j) * v[j];
    r = s;
}

double vec_scalaire(const Vec3& a, const Vec3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

void vec_vectoriel(const Vec3& a, const Vec3& b, Vec3& c) {
    const Vec3 s{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
    c = s;
}

double vec_norme(const Vec3& v) { return std::sqrt(vec_scalaire(v, v)); }

void vec_echelle(double s, const Vec3& v, Vec3& r) {
    r = Vec3{s * v[0], s * v[1], s * v[2]};
}

void vec_somme(const Vec3& a, const Vec3& b, Vec3& r) {
    r = Vec3{a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

}  // namespace kestrel
