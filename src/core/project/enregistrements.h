// Byte layouts of the two binary records, little-endian, no padding:
// the attitude project (820 bytes) and the orbit (114 bytes in a 128-byte
// slot). A visitor V receives each field with its byte offset:
//   v.reel(double&, offset, nom)      f64
//   v.entier(int16_t&, offset, nom)   i16
//   v.texte(std::array<char, 24>&, offset, nom)   24 single-byte characters
// R is the record, const or not.
#pragma once
#include <cstddef>
#include <string>

namespace kestrel {

constexpr std::size_t TAILLE_ATTITUDE = 820;
constexpr std::size_t TAILLE_ORBITE = 114;
constexpr std::size_t CASE_ORBITE = 128;

namespace detail {
inline std::string indice(const char* nom, int i) { return std::string(nom) + "(" + std::to_string(i) + ")"; }
inline std::string indice(const char* nom, int i, int j) {
    return std::string(nom) + "(" + std::to_string(i) + "," + std::to_string(j) + ")";
}
template <class V, class A>
void suite(V& v, A& a, std::size_t offset, const char* nom) {
    for (std::size_t i = 0; i < a.size(); ++i) v.reel(a[i], offset + 8 * i, indice(nom, static_cast<int>(i)));
}
// Element (i, j) at position 3 j + i, as the matrices are held in memory.
template <class V, class M>
void matrice(V& v, M& m, std::size_t offset, const char* nom) {
    for (int k = 0; k < 9; ++k) v.reel(m.m[k], offset + 8 * k, indice(nom, k % 3, k / 3));
}
}  // namespace detail

template <class V, class R>
void champs_attitude(V& v, R& a) {
    using detail::indice;
    using detail::suite;
    detail::matrice(v, a.I_corps, 0, "I_corps");
    suite(v, a.dim, 72, "dim");
    v.reel(a.Masse, 96, "Masse");
    suite(v, a.cm, 104, "cm");
    suite(v, a.dext, 128, "dext");
    suite(v, a.mext, 152, "mext");
    // Initial body rates of the simulation window, rad/s, stored theta, phi,
    // psi: txt_psi feeds omega_init(0), txt_theta (1), txt_fi (2).
    v.reel(a.omega_init[1], 176, "omega_init(1)");
    v.reel(a.omega_init[2], 184, "omega_init(2)");
    v.reel(a.omega_init[0], 192, "omega_init(0)");
    suite(v, a.dip_tot, 200, "dip_tot");
    suite(v, a.dip_res, 224, "dip_res");
    suite(v, a.dip_act, 248, "dip_act");
    for (int i = 0; i < 3; ++i) v.entier(a.dip_cmd[i], 272 + 2 * i, indice("dip_cmd", i));
    suite(v, a.jets, 278, "jets");
    for (int i = 0; i < 3; ++i) v.entier(a.jet_cmd[i], 302 + 2 * i, indice("jet_cmd", i));
    suite(v, a.JR, 308, "JR");
    suite(v, a.OM_init, 332, "OM_init");  // rad/s (the window shows deg/s)
    suite(v, a.md, 356, "md");
    suite(v, a.ld, 380, "ld");
    suite(v, a.c, 404, "c");
    suite(v, a.k, 428, "k");
    v.reel(a.Mt, 452, "Mt");
    suite(v, a.cm_total, 460, "cm_total");
    detail::matrice(v, a.I, 484, "I");
    // Centres of faces +x, +y, +z: coordinate j of face i at 3 j + i.
    for (int j = 0; j < 3; ++j)
        for (int i = 0; i < 3; ++i) v.reel(a.face_c[i][j], 556 + 8 * (3 * j + i), indice("face_c", i, j));
    suite(v, a.sn, 628, "sn");
    suite(v, a.st, 676, "st");
    suite(v, a.cr, 724, "cr");
    suite(v, a.cd, 772, "cd");
}

template <class V, class R>
void champs_orbite(V& v, R& o) {
    v.texte(o.nom, 0, "nom");
    v.reel(o.orb_inclinaison, 24, "orb_inclinaison");
    v.reel(o.orb_ascension, 32, "orb_ascension");
    v.reel(o.orb_excentricite, 40, "orb_excentricite");
    v.reel(o.orb_argument, 48, "orb_argument");
    v.reel(o.orb_anomalie, 56, "orb_anomalie");
    v.reel(o.orb_moy_mvt, 64, "orb_moy_mvt");
    v.entier(o.orb_an, 72, "orb_an");
    v.reel(o.orb_jour, 74, "orb_jour");
    v.reel(o.orb_demi, 82, "orb_demi");
    detail::suite(v, o.reserve, 90, "reserve");
}

}  // namespace kestrel
