// Reader of the line-oriented power project: one token per call. A token
// starts after the leading blanks and runs to the first comma or the end of
// the line ("..." runs to the closing quote). A token starting with "!"
// consumes its line and stores nothing, so a value line replaced by a "!"
// line keeps that field. Otherwise the token's first 14 characters are
// converted to the destination's type; unreadable text is a failure.
#pragma once
#include <cstdint>
#include <string>

#include "core/shell/erreur.h"

namespace kestrel {

class LecteurLignes {
public:
    // texte: the whole file in UTF-8; lines end in LF or CR LF.
    explicit LecteurLignes(std::string texte);

    // Each call reads one token; false on failure (then erreur() tells the
    // line and the text, and every later call fails at once).
    bool lecture_ligne();                          // no destination: a comment position
    bool lecture_ligne(int16_t& v);                // 16-bit integer
    bool lecture_ligne(int32_t& v);                // 32-bit integer
    bool lecture_ligne(uint8_t& v);                // byte, 0..255
    bool lecture_ligne_octet(int16_t& v);          // byte value held in a 16-bit field
    bool lecture_ligne_booleen(int16_t& v);        // any non-zero number is true (-1)
    bool lecture_ligne(float& v);
    bool lecture_ligne(double& v);
    // The whole token (not 14 characters) as a double, for the two dates of
    // the period; a "!" there is a failure.
    bool lecture_jeton_reel(double& v);

    const Erreur& erreur() const { return erreur_; }

private:
    struct Jeton {
        std::string texte;
        long ligne = 0;
        bool commentaire = false;
    };
    bool lit_jeton(Jeton& j);
    // The 14 characters kept for conversion, trimmed; empty when absent.
    static std::string quatorze(const std::string& t);
    bool echec(long ligne, const std::string& texte);
    bool echec_jeton(const Jeton& j);
    // One token's 14 characters into x; x untouched for a "!" line.
    template <class T>
    bool nombre(T& x, Jeton& j);
    template <class T>
    bool entier(T& v, double min, double max);

    std::string texte_;
    std::size_t pos_ = 0;
    long ligne_ = 1;
    Erreur erreur_;
};

// Strict number syntax: [+-] digits [. digits] | [+-] . digits, then an
// optional exponent [eE][+-]digits, blanks around allowed. False otherwise.
bool lit_nombre(const std::string& texte, double& v);
bool lit_nombre(const std::string& texte, float& v);

}  // namespace kestrel
