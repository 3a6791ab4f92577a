// Keplerian propagation from the mean elements of the orbit: only the mean
// anomaly advances, linearly from the epoch, so each call depends on the date
// alone. Inertial frame of 1950, km, km/s; the shadow is a cone test against
// an Earth of 6428 km with a point Sun.
#include "core/orbit/orb_trajecto.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "core/math/math.h"
#include "core/orbit/orb_projection.h"

namespace kestrel {

namespace {

constexpr double MU_TERRE = 398601.3;     // km^3/s^2
constexpr double SECONDES_JOUR = 86400.0;
constexpr double RAYON_OMBRE = 6428.0;    // km, larger than the Earth on purpose
constexpr int PASSES_MAX = 100000;        // safety cap of the Newton loop

uint64_t bits(double x) { return std::bit_cast<uint64_t>(x); }

// Element by element: the library's array comparison goes through memcmp,
// which costs more than these few words.
template <std::size_t N>
bool memes_cles(const std::array<uint64_t, N>& a, const std::array<uint64_t, N>& b) {
    bool egal = true;
    for (std::size_t k = 0; k < N; ++k) egal &= a[k] == b[k];
    return egal;
}

// Kepler's equation by Newton from E = m, then position and velocity. Returns
// false when the loop passed its cap (the vectors then come from the last pass).
bool cartesien(SortiesOrbite& sortie, Erreur& faute, double j, double a, double e, double i, double w,
               double om, double& m) {
    m = m - 2.0 * std::floor(m / DEUX_PI) * PI;

    double E = m;
    bool converge = false;
    for (int passe = 0; passe < PASSES_MAX; ++passe) {
        const double E2 = E - (E - e * std::sin(E) - m) / (1.0 - e * std::cos(E));
        const bool fini = std::fabs(E2 - E) < 1e-12;
        E = E2;
        if (fini) {
            converge = true;
            break;
        }
    }
    if (!converge) signale_faute(faute, CodeErreur::non_convergence, j, "équation de Kepler");
    m = E;

    MemoireOrbite& mem = sortie.memoire;
    const std::array<uint64_t, 5> cle{bits(a), bits(e), bits(i), bits(w), bits(om)};
    if (!mem.plan_valide || !memes_cles(mem.cle_plan, cle)) {
        const double cw = std::cos(w), sw = std::sin(w), co = std::cos(om), so = std::sin(om);
        const double ci = std::cos(i), si = std::sin(i);
        mem.P = Vec3{cw * co - so * sw * ci, cw * so + co * sw * ci, si * sw};
        mem.Q = Vec3{-sw * co - so * cw * ci, -sw * so + co * cw * ci, cw * si};
        mem.s = std::sqrt(1.0 - e * e);
        // The rate is taken again from a alone, in this form.
        mem.n_plan = std::sqrt(MU_TERRE / (a * a * a));
        mem.cle_plan = cle;
        mem.plan_valide = true;
    }
    const double Px = mem.P[0], Py = mem.P[1], Pz = mem.P[2];
    const double Qx = mem.Q[0], Qy = mem.Q[1], Qz = mem.Q[2];
    const double s = mem.s;
    const double cE = std::cos(E), sE = std::sin(E);
    Vec3& p = sortie.sat_pos;
    p[0] = a * ((cE - e) * Px + s * sE * Qx);
    p[1] = a * ((cE - e) * Py + s * sE * Qy);
    p[2] = a * ((cE - e) * Pz + s * sE * Qz);

    const double Ep = mem.n_plan / (1.0 - e * cE);
    Vec3& v = sortie.sat_vit;
    v[0] = a * Ep * (s * cE * Qx - sE * Px);
    v[1] = a * Ep * (s * cE * Qy - sE * Py);
    v[2] = a * Ep * (s * cE * Qz - sE * Pz);
    return converge;
}

}  // namespace

double ascension_1950(const Orbite& o, double om) {
    const double d = o.orb_jour - 1.0;
    double r = om - (((o.orb_an - 1950) * 365.25 + d) * 12.81161661111) / 365250.0;
    if (r < 0.0) r += 360.0;
    return r;
}

void orb_cartesien(SortiesOrbite& s, Erreur& faute, double j, double a, double e, double i, double w,
                   double om, double& m) {
    cartesien(s, faute, j, a, e, i, w, om, m);
}

void orb_kepler(SortiesOrbite& s, Erreur& faute, double j, double a, double e, double i, double w,
                double om, double m0, double d, int an) {
    i *= DEG_RAD;
    w *= DEG_RAD;
    om *= DEG_RAD;
    m0 *= DEG_RAD;

    MemoireOrbite& mem = s.memoire;
    const std::array<uint64_t, 3> cle{bits(a), bits(d), static_cast<uint64_t>(static_cast<int64_t>(an))};
    if (!mem.kepler_valide || !memes_cles(mem.cle_kepler, cle)) {
        // Epoch as a day count, by four-year blocks from 1900 (every fourth
        // year a leap year, no century rule). Integer division and remainder
        // truncate.
        const int k = an - 1900;
        const double q = (k / 4) * 4;
        if (k % 4 == 0)
            mem.t0 = q * 365.25 + d - 18263.0;
        else
            mem.t0 = q * 365.25 + (k % 4) * 365 + 1.0 + d - 18263.0;
        mem.n = std::sqrt(MU_TERRE / a) / a;  // rad/s
        mem.cle_kepler = cle;
        mem.kepler_valide = true;
    }
    double m = mem.n * (j - mem.t0) * SECONDES_JOUR + m0;
    m = modulo(m, DEUX_PI);
    s.anomalie_moy = m;
    cartesien(s, faute, j, a, e, i, w, om, m);
}

void orb_position(const Orbite& o, double j, SortiesOrbite& s, Erreur& faute) {
    s.soleil_pos = soleil_vecteur(j);

    // Copies only: a circular equatorial orbit still gets a defined node and perigee.
    const double i = o.orb_inclinaison == 0.0 ? 5e-06 : o.orb_inclinaison;
    const double e = o.orb_excentricite == 0.0 ? 1e-07 : o.orb_excentricite;
    const double d = o.orb_jour - 1.0;
    const double om = ascension_1950(o, o.orb_ascension);
    orb_kepler(s, faute, j, o.orb_demi, e, i, o.orb_argument, om, o.orb_anomalie, d, o.orb_an);

    const Vec3& p = s.sat_pos;
    const double r2 = p[0] * p[0] + p[1] * p[1] + p[2] * p[2];
    const double r = std::sqrt(r2);
    s.vec_nadir = Vec3{-p[0] / r, -p[1] / r, -p[2] / r};

    const Vec3 vs{s.soleil_pos[0] - p[0], s.soleil_pos[1] - p[1], s.soleil_pos[2] - p[2]};
    const double ns = std::sqrt(vs[0] * vs[0] + vs[1] * vs[1] + vs[2] * vs[2]);
    s.vec_soleil = Vec3{vs[0] / ns, vs[1] / ns, vs[2] / ns};

    // Cosine of the angle at the satellite between the Earth's centre and the Sun,
    // against the cosine of the Earth's apparent half-angle.
    const double c = s.vec_nadir[0] * s.vec_soleil[0] + s.vec_nadir[1] * s.vec_soleil[1] +
                     s.vec_nadir[2] * s.vec_soleil[2];
    const double sous = r2 - RAYON_OMBRE * RAYON_OMBRE;
    if (!(sous >= 0.0)) {
        // Inside the shadow radius (or no position at all): no cone to test.
        s.eclipse = FAUX;
        signale_faute(faute, CodeErreur::sous_rayon_ombre, j, "");
        return;
    }
    const double k = std::sqrt(sous) / r;
    s.eclipse = k < c ? VRAI : FAUX;
}

void orbite_a_date(const Orbite& o, double j, SortiesOrbite& s, Erreur& faute) {
    orb_position(o, j, s, faute);
    const Vec3 pos = s.sat_pos;
    sous_point(j, pos, s.sat_lon, s.sat_lat, s.sat_alt, faute);
}

}  // namespace kestrel
