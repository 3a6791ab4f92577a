// The boxes of the attitude settings window as data: the field each one
// edits, the range borne keeps it in silently, how it is shown, and whether
// the totals of mass and inertia follow. The window reads the text, calls
// saisit_attitude and shows the record back; the external mass and the three
// check boxes have their own operations below.
#pragma once
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/etat/attitude_record.h"

namespace kestrel {

// Fields a box can edit; the index tells the element.
enum class Champ : unsigned char { Masse, dim, cm, I_corps, sn, st, cr, cd, dip_res, dip_act, jets,
                                   JR, OM_init, md, ld, c, k };

enum class Plage : unsigned char {
    libre,           // read and shown back as entered
    fixe,            // [min, max]
    demi_dimension,  // [-dim/2, dim/2] on the box's own axis: the centre of mass stays in the body
};

struct CaseAttitude {
    const char* nom;   // object name of the box
    Champ champ;
    int indice;        // element; I_corps: i + 3 j (the product's mirror is written too)
    Plage plage;
    double min, max;   // Plage::fixe only
    bool degres;       // stored in rad/s, shown in deg/s
    bool bilan;        // bilan_masses follows (masses, inertias, geometry, wheels, dampers)
};

inline constexpr std::size_t nb_cases_attitude = 64;
extern const std::array<CaseAttitude, nb_cases_attitude> cases_attitude;

// Index of the box of that name in cases_attitude, nb_cases_attitude if none.
std::size_t case_attitude(std::string_view nom);

// Value shown by box i (deg/s for the wheel speeds).
double valeur_case(const AttitudeRecord& a, std::size_t i);
// Text of box i: 15 significant digits, as it reads back.
std::string texte_case(const AttitudeRecord& a, std::size_t i);
// An entry in box i, in the unit shown: clamped, converted, stored. A new
// dimension clamps the centre of mass on its axis again. The totals and the
// face table follow when the box asks for them.
void saisit_attitude(AttitudeRecord& a, std::size_t i, double valeur);

// --- the external mass (gravity-gradient boom): one axis at a time -------------------
// Captions of scroll_axe_grad's positions 0..5.
inline constexpr std::array<const char*, 6> axes_masse_externe{"+X", "-X", "+Y", "-Y", "+Z", "-Z"};
inline constexpr double masse_externe_max = 100.0;     // kg
inline constexpr double distance_externe_max = 500.0;  // m

struct MasseExterne {
    double masse;     // kg
    double distance;  // m, >= 0: the position gives the sign
};

// Position 0..5 of the first axis holding a mass or a distance (negative
// distance: the "-" side); 0 when there is none.
int position_masse_externe(const AttitudeRecord& a);
// Position of a caption of axes_masse_externe, -1 when it is none of them.
int position_du_texte(std::string_view texte);
// Mass and distance held on the axis of a position.
MasseExterne masse_externe(const AttitudeRecord& a, int position);
// The mass on that position alone (the two other axes cleared), then the totals.
void place_masse_externe(AttitudeRecord& a, int position, MasseExterne m);
// Entries of txt_masse_grad and txt_dist_grad, clamped to [0, max], placed at the position.
void saisit_masse_externe(AttitudeRecord& a, int position, double masse);
void saisit_distance_externe(AttitudeRecord& a, int position, double distance);
// Which of the six positions shows a mass (Pict_masxp .. Pict_maszm).
std::array<bool, 6> masses_externes_visibles(const AttitudeRecord& a);

// --- the three check boxes: ticked at load when their fields are in use --------------
bool dipole_residuel_present(const AttitudeRecord& a);  // any dip_res
bool roues_presentes(const AttitudeRecord& a);          // any JR or OM_init
bool amortisseurs_presents(const AttitudeRecord& a);    // any md, ld, c or k
// Unticking clears the feature's fields (dip_act stays: it is an actuator),
// then the totals follow.
void retire_dipole_residuel(AttitudeRecord& a);
void retire_roues(AttitudeRecord& a);
void retire_amortisseurs(AttitudeRecord& a);

}  // namespace kestrel
