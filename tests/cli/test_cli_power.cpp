// kestrel power on the built binary: the CSV header and one row per date, the
// summary, the cells' date check and the option checks.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "cli/outils_cli.h"

using namespace kestrel::test;

TEST(CliPower, HeaderAndOneRowPerDate) {
    // One hour at 600 s: dates at 0, 600, ..., 3600 s: 7 rows.
    const Resultat r = lance("power --start 18707.55001 --end 18707.591676666667 --step 600");
    ASSERT_EQ(r.code, 0) << r.err;
    const auto l = lignes(r.out);
    ASSERT_EQ(l.size(), 1u + 7u);
    const auto entete = champs(l[0]);
    // 22 scalar columns, 39 nodes, 36 panel powers, 36 efficiencies
    ASSERT_EQ(entete.size(), 22u + 39u + 36u + 36u);
    for (auto [i, nom] : {std::pair{0, "date"}, {1, "eclipse"}, {7, "gen_power"}, {21, "t_discharge"},
                          {22, "node_t_0"}, {60, "node_t_38"}, {61, "pan_power_0"}, {97, "cell_eff_0"},
                          {132, "cell_eff_35"}})
        EXPECT_EQ(entete[i], nom) << i;
    for (std::size_t i = 1; i < l.size(); ++i) EXPECT_EQ(champs(l[i]).size(), entete.size()) << i;
    // the start as typed: the shortest text of its double (17 digits would be 18707.550009999999)
    EXPECT_EQ(champs(l[1])[0], "18707.55001");
    // The new project gives no generator power: 600 s of discharge a step, 1200 s at the second.
    EXPECT_EQ(champs(l[2])[21], "1200");
}

// --units: each header name followed by its unit as the record holds it; the
// rows stay the same. Without it the header is the names alone (above).
TEST(CliUnites, PowerAndOrbitHeaders) {
    const std::string periode = " --start 18707.55001 --end 18707.56 --step 600";
    const Resultat p = lance("power --units" + periode), q = lance("power" + periode);
    ASSERT_EQ(p.code, 0) << p.err;
    const auto lp = lignes(p.out), lq = lignes(q.out);
    const auto e = champs(lp[0]);
    ASSERT_EQ(e.size(), 133u);
    for (auto [i, nom] : {std::pair{0, "date [j]"}, {1, "eclipse [-]"}, {2, "flux_sun [W/m²]"},
                          {5, "pan_angle [rad]"}, {8, "bat_soc [-]"}, {9, "bat_v [V]"}, {10, "bat_i [A]"},
                          {19, "t_bat [°C]"}, {21, "t_discharge [s]"}, {22, "node_t_0 [K]"}, {60, "node_t_38 [K]"},
                          {61, "pan_power_0 [W]"}, {132, "cell_eff_35 [-]"}})
        EXPECT_EQ(e[i], nom) << i;
    EXPECT_EQ(std::vector(lp.begin() + 1, lp.end()), std::vector(lq.begin() + 1, lq.end()));

    const Resultat o = lance("orbit --units" + periode);
    ASSERT_EQ(o.code, 0) << o.err;
    EXPECT_EQ(lignes(o.out)[0], "j [j],sat_x [km],sat_y [km],sat_z [km],vit_x [km/s],vit_y [km/s],vit_z [km/s],"
                                "sun_x [km],sun_y [km],sun_z [km],eclipse [-],anomalie_moy [rad],lon [rad],"
                                "lat [rad],alt [km]");
}

// The later CSV sub-commands take --units too; their rows do not change.
TEST(CliUnites, StudyAndSweepHeaders) {
    const Resultat b = lance("study battery --tecl 1 --units"), b0 = lance("study battery --tecl 1");
    ASSERT_EQ(b.code, 0) << b.err;
    const auto lb = lignes(b.out), lb0 = lignes(b0.out);
    // seconds, phase letter, state of charge as a fraction, volts per accumulator, current in C
    EXPECT_EQ(lb[2], "t [s],phase [-],s [-],v [V],i [C]");
    EXPECT_EQ(std::vector(lb.begin() + 3, lb.end()), std::vector(lb0.begin() + 3, lb0.end()));

    const Resultat g = lance("study generator --units --end 18707.56");
    ASSERT_EQ(g.code, 0) << g.err;
    EXPECT_EQ(lignes(g.out)[0], "date [j],eclipse [-],Panneau 1 [°C],Maximum [°C],Minimum [°C]");

    // Swept fields: capacity per accumulator in Ah, inclination in degrees, damper mass in kg.
    const Resultat p = lance("sweep power --quiet --units --end 18707.56 --set bat_c=10 --set orb_inclinaison=98");
    ASSERT_EQ(p.code, 0) << p.err;
    EXPECT_EQ(lignes(p.out)[0], "case [-],bat_c [Ah],orb_inclinaison [°],steps [-],eclipse_fraction [-],"
                                "soc_min [-],soc_max [-],t_bat_min [°C],t_bat_max [°C],gen_power_min [W],"
                                "gen_power_max [W],gen_power_mean [W],energy_balance [Wh],fault [-]");
    // An element of a two-index array is one quoted cell, with and without units.
    const Resultat a = lance("sweep attitude --quiet --units --end 18707.56 --set 'md(0)=1' --set 'I_corps(0,0)=2'");
    ASSERT_EQ(a.code, 0) << a.err;
    EXPECT_EQ(lignes(a.out)[0], "case [-],md(0) [kg],\"I_corps(0,0) [kg m²]\",steps [-],max_rate [°/s],roll [°],"
                                "pitch [°],yaw [°],fault [-]");
    const Resultat a0 = lance("sweep attitude --quiet --end 18707.56 --set 'I_corps(0,0)=2'");
    EXPECT_EQ(lignes(a0.out)[0], "case,\"I_corps(0,0)\",steps,max_rate,roll,pitch,yaw,fault");
}

TEST(CliPower, CellsDateAndArgumentsRefused) {
    // "Date initiale cellules" of a new project: day 17897
    const Resultat r = lance("power --start 17897 --end 17898");
    EXPECT_EQ(r.code, 1);
    EXPECT_NE(r.err.find("Attention, la date initiale des panneaux (données thermiques) est postérieure à la "
                         "date courante"), std::string::npos) << r.err;
    EXPECT_TRUE(r.out.empty());
    EXPECT_EQ(lance("power --pointing 1,2").code, 2);
    EXPECT_EQ(lance("power --spin abc").code, 2);
}
