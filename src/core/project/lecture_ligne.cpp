#include "core/project/lecture_ligne.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <utility>

#include "core/shell/types.h"

namespace kestrel {

namespace {

bool blanc(char c) { return c == ' ' || c == '\t'; }

// Trims blanks, checks the syntax and leaves the text ready for from_chars
// (which takes no leading '+'). Empty when the syntax is wrong.
std::string nettoie(const std::string& t) {
    std::size_t a = 0, b = t.size();
    while (a < b && blanc(t[a])) ++a;
    while (b > a && blanc(t[b - 1])) --b;
    std::string s = t.substr(a, b - a);
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    std::size_t avant = 0, apres = 0;
    while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) ++i, ++avant;
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) ++i, ++apres;
    }
    if (avant + apres == 0) return {};
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        ++i;
        if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
        std::size_t n = 0;
        while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) ++i, ++n;
        if (n == 0) return {};
    }
    if (i != s.size()) return {};
    if (s[0] == '+') s.erase(0, 1);
    return s;
}

template <class T>
bool convertit(const std::string& texte, T& v) {
    const std::string s = nettoie(texte);
    if (s.empty()) return false;
    T x{};
    auto [fin, ec] = std::from_chars(s.data(), s.data() + s.size(), x);
    if (ec != std::errc() || fin != s.data() + s.size() || !std::isfinite(x)) return false;
    v = x;
    return true;
}

}  // namespace

bool lit_nombre(const std::string& texte, double& v) { return convertit(texte, v); }
bool lit_nombre(const std::string& texte, float& v) { return convertit(texte, v); }

LecteurLignes::LecteurLignes(std::string texte) : texte_(std::move(texte)) {}

bool LecteurLignes::echec(long ligne, const std::string& texte) {
    if (!erreur_) {
        erreur_.code = CodeErreur::lecture_energie;
        erreur_.ligne = ligne;
        erreur_.detail = texte;
    }
    return false;
}

bool LecteurLignes::echec_jeton(const Jeton& j) {
    // An empty text stands for the end of the file; an empty value says so.
    return echec(j.ligne, j.texte.empty() ? "(valeur absente)" : j.texte);
}

bool LecteurLignes::lit_jeton(Jeton& j) {
    if (erreur_) return false;
    while (pos_ < texte_.size() && blanc(texte_[pos_])) ++pos_;
    j.ligne = ligne_;
    if (pos_ >= texte_.size()) return echec(ligne_, "");  // past the end of the file

    auto fin_de_ligne = [&] {
        while (pos_ < texte_.size() && texte_[pos_] != '\n') ++pos_;
        if (pos_ < texte_.size()) {
            ++pos_;
            ++ligne_;
        }
    };
    // After a token: past its comma, or past the end of its line.
    auto apres_jeton = [&] {
        while (pos_ < texte_.size() && texte_[pos_] != ',' && texte_[pos_] != '\n') ++pos_;
        if (pos_ < texte_.size() && texte_[pos_] == ',')
            ++pos_;
        else
            fin_de_ligne();
    };

    j.texte.clear();
    if (texte_[pos_] == '"') {
        ++pos_;
        while (pos_ < texte_.size() && texte_[pos_] != '"' && texte_[pos_] != '\n' && texte_[pos_] != '\r')
            j.texte += texte_[pos_++];
        if (pos_ < texte_.size() && texte_[pos_] == '"') ++pos_;
        j.commentaire = false;
        apres_jeton();
        return true;
    }
    while (pos_ < texte_.size() && texte_[pos_] != ',' && texte_[pos_] != '\n' && texte_[pos_] != '\r')
        j.texte += texte_[pos_++];
    j.commentaire = !j.texte.empty() && j.texte[0] == '!';
    if (j.commentaire)
        fin_de_ligne();
    else
        apres_jeton();
    return true;
}

std::string LecteurLignes::quatorze(const std::string& t) { return t.substr(0, 14); }

bool LecteurLignes::lecture_ligne() {
    Jeton j;
    return lit_jeton(j);
}

template <class T>
bool LecteurLignes::nombre(T& x, Jeton& j) {
    if (!lit_jeton(j)) return false;
    if (j.commentaire) return true;
    if (!convertit(quatorze(j.texte), x)) return echec_jeton(j);
    return true;
}

template <class T>
bool LecteurLignes::entier(T& v, double min, double max) {
    Jeton j;
    double x = 0;
    if (!nombre(x, j)) return false;
    if (j.commentaire) return true;
    // A real in an integer line rounds to the nearest, ties to even.
    x = std::nearbyint(x);
    if (x < min || x > max) return echec_jeton(j);
    v = static_cast<T>(x);
    return true;
}

bool LecteurLignes::lecture_ligne(int16_t& v) { return entier(v, -32768.0, 32767.0); }
bool LecteurLignes::lecture_ligne(int32_t& v) { return entier(v, -2147483648.0, 2147483647.0); }
bool LecteurLignes::lecture_ligne(uint8_t& v) { return entier(v, 0.0, 255.0); }
bool LecteurLignes::lecture_ligne_octet(int16_t& v) { return entier(v, 0.0, 255.0); }

bool LecteurLignes::lecture_ligne_booleen(int16_t& v) {
    Jeton j;
    double x = 0;
    if (!nombre(x, j)) return false;
    if (!j.commentaire) v = (x != 0.0) ? VRAI : FAUX;
    return true;
}

bool LecteurLignes::lecture_ligne(float& v) {
    Jeton j;
    return nombre(v, j);
}

bool LecteurLignes::lecture_ligne(double& v) {
    Jeton j;
    return nombre(v, j);
}

bool LecteurLignes::lecture_jeton_reel(double& v) {
    Jeton j;
    if (!lit_jeton(j)) return false;
    if (j.commentaire || !convertit(j.texte, v)) return echec_jeton(j);
    return true;
}

}  // namespace kestrel
