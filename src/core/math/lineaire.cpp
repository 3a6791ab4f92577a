#include "core/math/lineaire.h"

#include <cmath>
#include <utility>
#include <vector>

namespace kestrel {

// Crout LU with scaled partial pivoting. Work arrays sit on the stack up to
// n = 16 (the attitude system is far below that); larger systems use the heap.
int resout_lineaire(int n, const double* A, const double* b, double* x) {
    if (n < 0) return -1;
    constexpr int N_PILE = 16;
    double a_pile[N_PILE * N_PILE], y_pile[N_PILE], ech_pile[N_PILE];
    int perm_pile[N_PILE];
    std::vector<double> a_tas, y_tas, ech_tas;
    std::vector<int> perm_tas;
    double *a = a_pile, *y = y_pile, *ech = ech_pile;
    int* perm = perm_pile;
    if (n > N_PILE) {
        a_tas.resize(static_cast<size_t>(n) * n);
        y_tas.resize(n);
        ech_tas.resize(n);
        perm_tas.resize(n);
        a = a_tas.data();
        y = y_tas.data();
        ech = ech_tas.data();
        perm = perm_tas.data();
    }
    auto el = [a, n](int i, int j) -> double& { return a[i + n * j]; };

    for (int k = 0; k < n * n; ++k) a[k] = A[k];
    for (int i = 0; i < n; ++i) y[i] = b[i];

    // Row scale by the Euclidean norm; an all-zero row keeps the factor 1.
    for (int i = 0; i < n; ++i) {
        double s = 0.0;
        for (int j = 0; j < n; ++j) s += el(i, j) * el(i, j);
        ech[i] = s == 0.0 ? 1.0 : 1.0 / std::sqrt(s);
        perm[i] = i;
    }

    double det = 1.0;
    int colonnes = n;  // columns actually eliminated
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < j; ++i) {
            double s = el(i, j);
            for (int k = 0; k < i; ++k) s -= el(i, k) * el(k, j);
            el(i, j) = s;
        }
        double grand = 0.0;
        int ipiv = j;
        for (int i = j; i < n; ++i) {
            double s = el(i, j);
            for (int k = 0; k < j; ++k) s -= el(i, k) * el(k, j);
            el(i, j) = s;
            const double t = std::fabs(s) * ech[i];
            if (t > grand) {
                grand = t;
                ipiv = i;
            }
        }
        if (ipiv != j) {
            for (int k = 0; k < n; ++k) std::swap(el(ipiv, k), el(j, k));
            std::swap(ech[ipiv], ech[j]);
            det = -det;
        }
        perm[j] = ipiv;
        const double pivot = el(j, j);
        det *= pivot;
        if (std::fabs(pivot) < 1e-21) {
            colonnes = j + 1;
            break;
        }
        for (int i = j + 1; i < n; ++i) el(i, j) /= pivot;
    }
    if (std::fabs(det) < 1e-21) return -1;

    // Forward substitution (unit lower factor) with the row exchanges applied
    // to the right-hand side in the order they were made, then back substitution.
    for (int i = 0; i < colonnes; ++i) std::swap(y[perm[i]], y[i]);
    for (int i = 0; i < n; ++i) {
        double s = y[i];
        for (int k = 0; k < i; ++k) s -= el(i, k) * y[k];
        y[i] = s;
    }
    for (int i = n - 1; i >= 0; --i) {
        double s = y[i];
        for (int k = i + 1; k < n; ++k) s -= el(i, k) * y[k];
        y[i] = s / el(i, i);
    }
    for (int i = 0; i < n; ++i) x[i] = y[i];
    return 0;
}

}  // namespace kestrel
