// The power project (.pwr): 279 positional lines, CR LF, Windows-1252 on disk.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "core/etat/etat.h"
#include "core/project/chemins.h"
#include "core/project/encodage.h"
#include "core/project/energie.h"
#include "core/project/lecture_ligne.h"
#include "core/project/lignes_energie.h"
#include "core/shell/lecture_fichier.h"
#include "core/shell/nombre_fichier.h"

namespace kestrel {

namespace {

// Value, blanks up to column 16, label; a bare value when label is nullptr.
std::string avec_label(std::string valeur, const char* label) {
    if (!label) return valeur;
    if (valeur.size() < 15) valeur.resize(15, ' ');
    return valeur + label;
}

struct Ecrivain {
    std::string texte;  // UTF-8, CR LF line ends
    void ligne(const std::string& s) {
        texte += s;
        texte += "\r\n";
    }
    void commentaire(const char* c) { ligne(c); }
    void valeur(const int16_t& x, const char* l, const std::string&) { ligne(avec_label(texte_entier(x), l)); }
    void valeur(const int32_t& x, const char* l, const std::string&) { ligne(avec_label(texte_entier(x), l)); }
    void valeur(const uint8_t& x, const char* l, const std::string&) { ligne(avec_label(texte_entier(x), l)); }
    void valeur(const float& x, const char* l, const std::string&) { ligne(avec_label(texte_reel(x), l)); }
    void octet(const int16_t& x, const char* l, const std::string&) { ligne(avec_label(texte_entier(x), l)); }
    void booleen(const int16_t& x, const char* l, const std::string&) { ligne(avec_label(texte_booleen(x), l)); }
    void flux(const double& x, const char* l, const std::string&) { ligne(avec_label(texte_flux_solaire(x), l)); }
    void date(const double& x, const std::string&) { ligne(texte_reel(x)); }
    void faces() {}
};

struct Lecteur {
    LecteurLignes& l;
    PowerRecord& p;
    void commentaire(const char*) { l.lecture_ligne(); }
    template <class T>
    void valeur(T& x, const char*, const std::string&) {
        l.lecture_ligne(x);
    }
    void octet(int16_t& x, const char*, const std::string&) { l.lecture_ligne_octet(x); }
    void booleen(int16_t& x, const char*, const std::string&) { l.lecture_ligne_booleen(x); }
    void flux(double& x, const char*, const std::string&) { l.lecture_ligne(x); }
    void date(double& x, const std::string&) { l.lecture_jeton_reel(x); }
    void faces() {
        if (!l.erreur()) tableau_faces(p);
    }
};

}  // namespace

void tableau_faces(PowerRecord& p) {
    p.nb_faces = p.opt_faces == 0 ? 4 : (p.opt_faces == 1 ? 6 : 0);
    for (int i = 0; i < p.nb_faces; ++i) {
        // 361 \ 4 = 90 and 361 \ 6 = 60 degrees between the normals.
        p.face_azim[i] = (i * (361 / p.nb_faces)) * DEG_RAD;
        p.face_elev[i] = 0.0;
    }
}

std::string texte_energie(const Etat& etat) {
    Ecrivain e;
    lignes_energie(e, etat.pwr, etat.session);
    return e.texte;
}

Erreur sauve_energie(const Etat& etat, const std::string& chemin) {
    Erreur e;
    e.code = CodeErreur::ecriture_energie;
    e.detail = chemin;
    const auto octets = vers_cp1252(texte_energie(etat));
    if (!octets) return e;
    // The previous file goes first, so a failed write leaves no old project
    // behind; only a plain file: a device named as the project stays.
    std::error_code ec;
    if (fichier_existe(chemin) && std::filesystem::is_regular_file(chemin, ec)) std::remove(chemin.c_str());
    std::ofstream f(chemin, std::ios::binary | std::ios::trunc);
    if (!f) return e;
    f.write(octets->data(), static_cast<std::streamsize>(octets->size()));
    f.close();
    if (!f) return e;
    return {};
}

Erreur charge_energie(Etat& etat, const std::string& chemin) {
    std::string brut;
    if (Erreur e = lit_fichier_projet(chemin, brut)) {
        if (refus_fichier(e)) return e;
        e.code = CodeErreur::lecture_energie;
        e.ligne = 0;  // nothing could be read at all
        return e;
    }
    return charge_energie_octets(etat, brut);
}

Erreur charge_energie_octets(Etat& etat, const std::string& octets) {
    LecteurLignes l(depuis_cp1252(octets));
    // Read into copies: the caller's project stays whole if a line fails.
    PowerRecord p = etat.pwr;
    Session s = etat.session;
    Lecteur lecteur{l, p};
    lignes_energie(lecteur, p, s);
    if (l.erreur()) return l.erreur();

    etat.pwr = p;
    etat.session.j_debut = s.j_debut;
    etat.session.j_fin = s.j_fin;
    etat.session.pas_sim = s.pas_sim;
    return {};
}

}  // namespace kestrel
