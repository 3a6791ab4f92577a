// Scalar helpers that keep their quadrant and never divide by zero, and the
// real-number modulo. Angles in radians.
#pragma once

namespace kestrel {

double frac(double x);                 // x - floor(x)
double carre(double x);                // x * x
double atan_quad(double y, double x);  // range (-pi/2, 3pi/2); 3pi/2 at (y <= 0, x = 0)
double atan2_v(double y, double x);    // pi/2 when |x| <= 1e-10
double arccos_p(double x);             // fails at |x| = 1
double arccos_v(double x);             // 0 at 1, pi at -1, margin 1.0000000001
double arcsin_v(double x);             // +-pi/2 at +-1
double modulo(double x, double m);     // x > 0: x - Int(|x|/m) m; x < 0: x + Int(|x|/m) m + m; 0 -> 0
inline double signe(double x) { return (x > 0) - (x < 0); }  // -1, 0 or 1

// Second Kepler solver (at most 10 passes): eccentric anomaly for m, e.
double kepler_inverse(double m, double e);
// Keeps x away from the reduced value 0 (in place), see euler_taux.
void angle_garde(double& x);

}  // namespace kestrel
