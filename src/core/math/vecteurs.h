// Vectors and 3x3 matrices: products, dot and cross products, norm, scale, sum.
#pragma once
#include "core/shell/types.h"

namespace kestrel {

void mat_produit(const Mat3& A, const Mat3& B, Mat3& C);            // C = A B
void mat_vecteur(const Mat3& M, const Vec3& v, Vec3& r,
                 double lignes = 3.0, double colonnes = 3.0);        // r = M v
double vec_scalaire(const Vec3& a, const Vec3& b);
void vec_vectoriel(const Vec3& a, const Vec3& b, Vec3& c);          // c = a x b
double vec_norme(const Vec3& v);
void vec_echelle(double s, const Vec3& v, Vec3& r);
void vec_somme(const Vec3& a, const Vec3& b, Vec3& r);

}  // namespace kestrel
