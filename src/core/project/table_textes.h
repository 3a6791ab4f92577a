// The rows of an exploitation table as the texts shown in its cells: the store
// that the grid shows, the text file saves and the graph reads back as numbers.
// All cells sit end to end in one character buffer, so a year of one-minute
// rows (525 600 rows of 7 cells) takes some 60 MB and no allocation per cell.
#pragma once
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

class TableTextes {
public:
    // `colonnes` cells a row, the first one being the date.
    explicit TableTextes(int colonnes = 7) : colonnes_(colonnes) {}

    int colonnes() const { return colonnes_; }
    std::size_t lignes() const { return eclipse_.size(); }
    void vide();
    // Room for n rows of about `octets` characters each.
    void reserve(std::size_t n, std::size_t octets);

    // One row: exactly colonnes() cells.
    void ajoute(std::span<const std::string_view> cellules, bool eclipse);
    void ajoute(std::initializer_list<std::string_view> cellules, bool eclipse) {
        ajoute(std::span<const std::string_view>(cellules.begin(), cellules.size()), eclipse);
    }

    std::string_view cellule(std::size_t ligne, int colonne) const;
    // The row was computed in eclipse (its cells are shaded grey).
    bool eclipse(std::size_t ligne) const { return eclipse_[ligne]; }
    // The cell read back as a number (0 when it holds none).
    double valeur(std::size_t ligne, int colonne) const { return lit_valeur(cellule(ligne, colonne)); }

    // A cell's text as a number: leading blanks skipped, then as many
    // characters as make a number; 0 when none do.
    static double lit_valeur(std::string_view texte);

private:
    int colonnes_;
    std::string texte_;
    std::vector<uint64_t> fins_;  // end of each cell in texte_, row after row
    std::vector<bool> eclipse_;
};

// First cell of row n (0-based) of a period starting at `debut` (day count)
// by `pas_s` seconds: "dd/mm/yyyy hh:mm:ss" of (debut·86400 + n·pas + 0.1)/86400,
// the 0.1 s keeping a whole second from being cut to the one before.
std::string date_ligne(double debut, long n, double pas_s);

}  // namespace kestrel
