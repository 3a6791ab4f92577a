// The node layout of each configuration against what the thermal models
// really touch: a node outside the layout keeps its value through a step.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "core/power/thermal_cylinder.h"
#include "core/power/thermal_ext_panels.h"
#include "core/power/thermal_faces.h"
#include "core/power/thermique.h"
#include "outils_power.h"

namespace kestrel {
namespace {

constexpr double MARQUE = -1.0;  // K, a value no model would produce

// Every node filled with the mark, then the nodes `vivants` set to 290 K and
// one step run: those change (the sun at the zenith and 30 W inside reach
// each of them), the others keep the mark.
template <class Modele>
void seuls_les_noeuds(Etat e, const std::set<int>& vivants, Modele&& modele, const char* nom) {
    PowerRecord& p = e.pwr;
    e.session.j_courant = p.date_cell;
    e.session.pas_sim = 60;
    p.p_heat = 30;
    p.node_t.fill(MARQUE);
    for (int i : vivants) p.node_t[i] = 290.0;
    modele(e);
    for (int i = 0; i < static_cast<int>(p.node_t.size()); ++i) {
        if (vivants.count(i))
            EXPECT_TRUE(std::isfinite(p.node_t[i]) && p.node_t[i] != 290.0) << nom << " node " << i;
        else
            EXPECT_EQ(p.node_t[i], MARQUE) << nom << " node " << i;
    }
}

TEST(NoeudsThermiques, EachModelTouchesExactlyItsLayout) {
    // Cylinder: 36 strips, top 36, bottom 37, internal 38.
    std::set<int> cylindre;
    for (int i = 0; i < 39; ++i) cylindre.insert(i);
    Etat c = essai::etat_soleil_zenith(1000.0);
    essai::pose_faces(c.pwr, 2);
    seuls_les_noeuds(c, cylindre, thermal_cylinder, "cylinder");

    // Four faces: 0..3, then 8 top, 9 bottom, 10 internal; 4..7 stay empty.
    Etat f = essai::etat_soleil_zenith(1000.0);
    essai::pose_faces(f.pwr, 0);
    seuls_les_noeuds(f, {0, 1, 2, 3, 8, 9, 10}, thermal_faces, "4 faces");

    // External panels: the panel 0, faces 2..7, internal 8; node 1 empty.
    Etat x = essai::etat_soleil_zenith(1000.0);
    x.pwr.opt_panel_ext = VRAI;
    x.pwr.pan_angle = PI / 2;
    seuls_les_noeuds(x, {0, 2, 3, 4, 5, 6, 7, 8}, thermal_ext_panels, "external panels");
}

}  // namespace
}  // namespace kestrel
