// The general linear solver.
#pragma once

namespace kestrel {

// Solves A x = b, n x n, A(i, j) = A[i + n j] (first index fastest); A and b
// unchanged. Crout LU with scaled partial pivoting (Euclidean row norms).
// Returns 0, or -1 for a singular system with x left as it was. No heap use
// for n <= 16.
int resout_lineaire(int n, const double* A, const double* b, double* x);

}  // namespace kestrel
