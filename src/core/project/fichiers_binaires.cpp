// The two binary records: .att (820 bytes) and .orb (114 bytes in 128).
// Both are read into a scratch copy and handed over only after a good read;
// a short file reads as zeros past its end.
#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <vector>

#include "core/attitude/bilan_masses.h"
#include "core/etat/etat.h"
#include "core/project/chemins.h"
#include "core/project/enregistrements.h"
#include "core/project/fichiers_binaires.h"
#include "core/shell/lecture_fichier.h"

namespace kestrel {

namespace {

struct Encodeur {
    std::vector<unsigned char>& o;
    void reel(const double& x, std::size_t off, const std::string&) {
        const auto b = std::bit_cast<uint64_t>(x);
        for (int i = 0; i < 8; ++i) o[off + i] = static_cast<unsigned char>(b >> (8 * i));
    }
    void entier(const int16_t& x, std::size_t off, const std::string&) {
        const auto b = static_cast<uint16_t>(x);
        o[off] = static_cast<unsigned char>(b);
        o[off + 1] = static_cast<unsigned char>(b >> 8);
    }
    void texte(const std::array<char, 24>& x, std::size_t off, const std::string&) {
        std::memcpy(&o[off], x.data(), x.size());
    }
};

struct Decodeur {
    const std::vector<unsigned char>& o;
    void reel(double& x, std::size_t off, const std::string&) {
        uint64_t b = 0;
        for (int i = 0; i < 8; ++i) b |= static_cast<uint64_t>(o[off + i]) << (8 * i);
        x = std::bit_cast<double>(b);
    }
    void entier(int16_t& x, std::size_t off, const std::string&) {
        x = static_cast<int16_t>(static_cast<uint16_t>(o[off] | (o[off + 1] << 8)));
    }
    void texte(std::array<char, 24>& x, std::size_t off, const std::string&) {
        std::memcpy(x.data(), &o[off], x.size());
    }
};

// The first n bytes of the file's contents; zeros past its end.
std::vector<unsigned char> debut(const std::string& octets, std::size_t n) {
    std::vector<unsigned char> o(n, 0);
    std::memcpy(o.data(), octets.data(), std::min(n, octets.size()));
    return o;
}

// Replaces the first bytes of the file (creating it when absent); a longer
// file keeps its tail, as a record written in place would.
bool ecrit_debut(const std::string& chemin, const std::vector<unsigned char>& o) {
    std::fstream f;
    if (fichier_existe(chemin)) f.open(chemin, std::ios::binary | std::ios::in | std::ios::out);
    if (!f.is_open()) f.open(chemin, std::ios::binary | std::ios::out | std::ios::trunc);
    if (!f) return false;
    f.seekp(0);
    f.write(reinterpret_cast<const char*>(o.data()), static_cast<std::streamsize>(o.size()));
    f.close();
    return !f.fail();
}

Erreur erreur_systeme(CodeErreur code, const std::string& chemin) {
    Erreur e;
    e.code = code;
    const int n = errno;
    e.detail = chemin + " : " + cause_systeme(n ? n : EIO);
    return e;
}

// The record through its layout into a zeroed block of n bytes, then to disk.
template <class R, class Champs>
Erreur ecrit_enregistrement(const R& r, Champs champs, std::size_t n, CodeErreur code,
                            const std::string& chemin) {
    std::vector<unsigned char> o(n, 0);
    Encodeur enc{o};
    champs(enc, r);
    errno = 0;
    if (!ecrit_debut(chemin, o)) return erreur_systeme(code, chemin);
    return {};
}

// The record decoded from the file's bytes into a copy of r, handed over whole.
template <class R, class Champs>
void decode_enregistrement(R& r, Champs champs, std::size_t n, const std::string& octets) {
    const std::vector<unsigned char> o = debut(octets, n);
    R copie = r;
    Decodeur dec{o};
    champs(dec, copie);
    r = copie;
}

const auto disposition_attitude = [](auto& v, auto& r) { champs_attitude(v, r); };
const auto disposition_orbite = [](auto& v, auto& r) { champs_orbite(v, r); };

}  // namespace

Erreur sauve_attitude(const Etat& etat, const std::string& chemin) {
    return ecrit_enregistrement(etat.att, disposition_attitude, TAILLE_ATTITUDE, CodeErreur::ecriture_attitude,
                                chemin);
}

Erreur lit_attitude(AttitudeRecord& a, const std::string& chemin) {
    std::string octets;
    if (Erreur e = lit_fichier_projet(chemin, octets)) {
        if (refus_fichier(e)) return e;
        e.code = CodeErreur::lecture_attitude;
        return e;
    }
    decode_enregistrement(a, disposition_attitude, TAILLE_ATTITUDE, octets);
    return {};
}

Erreur charge_attitude(Etat& etat, const std::string& chemin) {
    Erreur e = lit_attitude(etat.att, chemin);
    // Only the face table is rebuilt: Mt, I, cm_total and the run states
    // stay as the file held them.
    if (!e) faces_recalcul(etat.att);
    return e;
}

void charge_attitude_octets(Etat& etat, const std::string& octets) {
    decode_enregistrement(etat.att, disposition_attitude, TAILLE_ATTITUDE, octets);
    faces_recalcul(etat.att);
}

Erreur sauve_orbite(const Etat& etat, const std::string& chemin) {
    return ecrit_enregistrement(etat.orbite, disposition_orbite, CASE_ORBITE, CodeErreur::fichier_orbite, chemin);
}

void charge_orbite_octets(Etat& etat, const std::string& octets) {
    decode_enregistrement(etat.orbite, disposition_orbite, TAILLE_ORBITE, octets);
}

Erreur charge_orbite(Etat& etat, const std::string& chemin) {
    std::string octets;
    if (Erreur e = lit_fichier_projet(chemin, octets)) {
        if (refus_fichier(e)) return e;
        errno = static_cast<int>(e.valeur);
        return erreur_systeme(CodeErreur::fichier_orbite, chemin);
    }
    charge_orbite_octets(etat, octets);
    return {};
}

}  // namespace kestrel
