#include "core/attitude/att_run.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "core/attitude/atmosphere.h"
#include "core/attitude/attitude_init.h"
#include "core/attitude/attitude_step.h"
#include "core/shell/dossiers.h"
#include "core/shell/ligne_finie.h"
#include "core/etat/etat.h"

namespace kestrel {

namespace {

namespace fs = std::filesystem;

constexpr const char* EN_TETE[25] = {
    "j_courant",           "omega(0) * (180 / pi)", "omega(1) * (180 / pi)", "omega(2) * (180 / pi)",
    "omega(3) * (180 / pi)", "omega(4) * (180 / pi)", "omega(5) * (180 / pi)", "yd(0) * (180 / pi)",
    "yd(2) * (180 / pi)",  "yd(1) * (180 / pi)",    "yd(3) * (30 / pi)",     "yd(4) * (30 / pi)",
    "yd(5) * (30 / pi)",   "yi(0) * (180 / pi)",    "yi(1) * (180 / pi)",    "yi(2) * (180 / pi)",
    "yi(3) * (30 / pi)",   "yi(4) * (30 / pi)",     "yi(5) * (30 / pi)",     "om(0) * (180 / pi)",
    "om(1) * (180 / pi)",  "om(2) * (180 / pi)",    "ctot(0)",               "ctot(1)",
    "ctot(2)"};

// Owns the FILE and its large buffer. A line is built in a fixed array, each
// number through to_chars, and goes to the file in one write: a record
// allocates nothing and takes the stream's lock once.
class Ecrivain {
public:
    explicit Ecrivain(const std::string& chemin) {
        f_ = std::fopen(chemin.c_str(), "wb");
        if (f_) std::setvbuf(f_, tampon_.get(), _IOFBF, TAILLE);
    }
    ~Ecrivain() { ferme(); }
    Ecrivain(const Ecrivain&) = delete;
    Ecrivain& operator=(const Ecrivain&) = delete;

    bool ouvert() const { return f_ != nullptr; }
    bool ferme() {
        if (!f_) return ok_;
        ok_ = (std::fclose(f_) == 0) && ok_;
        f_ = nullptr;
        return ok_;
    }
    bool ok() const { return ok_ && f_ && !std::ferror(f_); }

    void texte(const char* s) {
        place(1);
        ligne_[n_++] = '"';
        for (; *s; ++s) {
            place(2);
            ligne_[n_++] = *s;
        }
        ligne_[n_++] = '"';
    }
    void nombre(double x) {
        place(32);
        auto r = std::to_chars(ligne_ + n_, ligne_ + n_ + 32, x);
        n_ = static_cast<std::size_t>(r.ptr - ligne_);
    }
    void virgule() {
        place(1);
        ligne_[n_++] = ',';
    }
    void fin_ligne() {
        place(2);
        ligne_[n_++] = '\r';
        ligne_[n_++] = '\n';
        vide();
    }

private:
    // room for k more characters in the line, writing out what it holds if needed
    void place(std::size_t k) {
        if (n_ + k > sizeof ligne_) vide();
    }
    void vide() {
        std::fwrite(ligne_, 1, n_, f_);
        n_ = 0;
    }

    static constexpr std::size_t TAILLE = 1 << 16;
    std::unique_ptr<char[]> tampon_{new char[TAILLE]};
    std::FILE* f_ = nullptr;
    bool ok_ = true;
    char ligne_[1024];
    std::size_t n_ = 0;
};

// The 25 values of the record at date j, each scaled as its column's name says.
void valeurs_record(const AttitudeRecord& a, double j, bool roues_actives, double (&v)[25]) {
    const double k180 = 180.0 / 3.14159265358979;
    const double k30 = 30.0 / 3.14159265358979;
    const double r[25] = {j,
                          a.omega[0] * k180, a.omega[1] * k180, a.omega[2] * k180,
                          a.omega[3] * k180, a.omega[4] * k180, a.omega[5] * k180,
                          a.yd[0] * k180, a.yd[2] * k180, a.yd[1] * k180,
                          a.yd[3] * k30, a.yd[4] * k30, a.yd[5] * k30,
                          a.yi[0] * k180, a.yi[1] * k180, a.yi[2] * k180,
                          a.yi[3] * k30, a.yi[4] * k30, a.yi[5] * k30,
                          roues_actives ? a.om[0] * k180 : 0.0,
                          roues_actives ? a.om[1] * k180 : 0.0,
                          roues_actives ? a.om[2] * k180 : 0.0,
                          a.ctot[0], a.ctot[1], a.ctot[2]};
    std::copy(std::begin(r), std::end(r), v);
}

// The record of the state at date j, checked before anything is written:
// every column finite, and the body turning by at most 2 rad in a step of dt s
// (beyond that, a third of a turn a step, the explicit integration no longer
// means anything). False, with the fault in etat.faute, when it fails.
bool record_valide(Etat& etat, double j, bool roues_actives, double dt, double (&v)[25]) {
    valeurs_record(etat.att, j, roues_actives, v);
    if (!ligne_finie(etat.faute, j, v, EN_TETE)) return false;
    const double taux = vitesse_corps(etat.att);
    if (taux * dt > 2.0) {
        signale_faute(etat, CodeErreur::rotation_trop_rapide, j, "omega", taux);
        etat.faute.pas = dt;
        return false;
    }
    return true;
}

void ecrit_record(Ecrivain& w, const double (&v)[25]) {
    for (int i = 0; i < 25; ++i) {
        if (i) w.virgule();
        w.nombre(v[i]);
    }
    w.fin_ligne();
}

bool dossier_inscriptible(const fs::path& d) {
    std::error_code ec;
    fs::create_directories(d, ec);
    if (!fs::is_directory(d, ec)) return false;
    fs::path essai = d / ".kestrel_essai";
    std::FILE* f = std::fopen(essai.c_str(), "wb");
    if (!f) return false;
    std::fclose(f);
    fs::remove(essai, ec);
    return true;
}

}  // namespace

std::string chemin_resultats(const std::string& dossier_depart) {
    fs::path d = fs::path(dossier_depart.empty() ? "." : dossier_depart) / "temp";
    if (!dossier_installe(dossier_depart) && dossier_inscriptible(d)) return (d / "temp.tmp").string();
    fs::path base;
    if (const char* x = std::getenv("XDG_DATA_HOME"); x && *x)
        base = x;
    else if (const char* h = std::getenv("HOME"); h && *h)
        base = fs::path(h) / ".local" / "share";
    else
        return {};
    d = base / "kestrel" / "temp";
    if (dossier_inscriptible(d)) return (d / "temp.tmp").string();
    return {};
}

void pas_run(Etat& etat, double dt, double date, double& date_orbite, const TablesAtmosphere& tables) {
    if (std::bit_cast<uint64_t>(date) != std::bit_cast<uint64_t>(date_orbite)) orbite_a_date(etat, date);
    date_orbite = attitude_step(etat, dt, date, tables) ? dt / 86400.0 + date : date;
}

double vitesse_corps(const AttitudeRecord& a) { return std::hypot(a.omega[0], a.omega[1], a.omega[2]); }

BilanRun att_run(Etat& etat, const ParametresRun& p) {
    BilanRun bilan;
    AttitudeRecord& a = etat.att;

    // the third test reads the run copy OM, not OM_init
    bool roues_actives = std::fabs(a.OM_init[0]) >= 0.0001 || std::fabs(a.OM_init[1]) >= 0.0001 ||
                         std::fabs(a.OM[2]) >= 0.0001;
    attitude_init(etat);
    vide_canal(etat);

    // the tables are read before the file is opened, so a missing one costs nothing
    TablesAtmosphere tables;
    if (Erreur e = charge_tables_atmosphere(etat.session.dossier_depart, tables)) {
        etat.faute = e;
        return bilan;
    }

    bilan.fichier = p.fichier.empty() ? chemin_resultats(etat.session.dossier_depart) : p.fichier;
    Ecrivain w(bilan.fichier);
    if (bilan.fichier.empty() || !w.ouvert()) {
        etat.faute.code = CodeErreur::ecriture_resultats;
        etat.faute.detail = bilan.fichier.empty() ? std::string("temp/temp.tmp") : bilan.fichier;
        return bilan;
    }

    const double debut = etat.session.j_debut;
    const double fin = etat.session.j_fin;
    const double pas = etat.session.pas_sim / 86400.0;  // days
    const double dt = pas * 86400;

    const char* const TETE[3] = {"#BeginTime(JulianDays)", "#EndTime(JulianDays)", "#TimeStep(s)"};
    const double tete[3] = {debut, fin, dt};
    double v[25];
    // the head, checked, then the initial record, checked: a bad one leaves the lines before it
    if (ligne_finie(etat.faute, debut, tete, TETE)) {
        for (int i = 0; i < 3; ++i) w.texte(TETE[i]), w.virgule(), w.nombre(tete[i]), w.fin_ligne();
        w.fin_ligne();
        for (int i = 0; i < 25; ++i) {
            if (i) w.virgule();
            w.texte(EN_TETE[i]);
        }
        w.fin_ligne();
    }
    if (!etat.faute && record_valide(etat, debut, roues_actives, dt, v)) {
        ecrit_record(w, v);
        bilan.enregistrements = 1;
    }

    // 16-bit counter as the run has it; it wraps rather than trap past 32767
    const double tous = std::nearbyint(p.pas_ecriture);
    int16_t compteur = 0;
    double date_orbite = std::nan("");
    double j = debut;
    while (!etat.faute && j <= fin) {
        pas_run(etat, dt, j, date_orbite, tables);
        ++bilan.pas;
        // every step's record is checked, written or not: a run stops at its first bad state
        if (etat.faute || !record_valide(etat, j, roues_actives, dt, v)) break;

        if (p.apres_pas) p.apres_pas(etat);
        compteur = static_cast<int16_t>(compteur + 1);
        if (compteur == tous) {
            compteur = 0;
            ecrit_record(w, v);
            ++bilan.enregistrements;
        }
        if (p.progression) {
            float pc = (fin > debut) ? static_cast<float>(100 * (j - debut) / (fin - debut)) : 100.0f;
            p.progression(pc);
        }
        j = j + pas;
    }

    if (!w.ok() || !w.ferme()) {
        if (!etat.faute) {
            etat.faute.code = CodeErreur::ecriture_resultats;
            etat.faute.detail = bilan.fichier;
        }
    }
    return bilan;
}

}  // namespace kestrel
