// kestrel sweep on the built binary: each case equals the same run alone, the
// rows keep case order on any number of threads, slices concatenate into the
// whole table, and bad fields or values are refused before any case runs.
#include <gtest/gtest.h>

#include <cstdlib>

#include <fmt/format.h>
#include <fstream>
#include <string>

#include "cli/outils_cli.h"

using namespace kestrel::test;

namespace {

const std::string exemple = KESTREL_SOURCE_DIR "/examples/quatre_faces.pwr";
const std::string periode = " --end 18707.6";  // 72 steps of 60 s

// The project text with the value in front of the line labelled `label` replaced.
std::string change_valeur(std::string texte, const std::string& label, const std::string& valeur) {
    const auto l = texte.find(label);
    const auto debut = texte.rfind('\n', l) + 1;
    const auto v = texte.find_first_not_of(' ', debut);
    const auto fin = texte.find(' ', v);
    return texte.replace(v, fin - v, valeur);
}

// The numbers of a --summary text, in order, as printed.
std::vector<std::string> figures_resume(const std::string& texte) {
    std::vector<std::string> v;
    const std::string chiffres = "-.0123456789";
    for (std::size_t p = 0; (p = texte.find_first_of("0123456789", p)) != std::string::npos;) {
        const std::size_t d = p > 0 && texte[p - 1] == '-' ? p - 1 : p;
        const std::size_t f = texte.find_first_not_of(chiffres, p);
        v.push_back(texte.substr(d, f - d));
        p = f;
    }
    return v;
}

}  // namespace

TEST(CliSweep, EachPowerCaseEqualsItsOwnSummaryRun) {
    const Resultat r = lance("sweep power --pwr \"" + exemple + "\"" + periode +
                             " --quiet --set cel_np=20,40 --set bat_c=10,20 --jobs 2");
    ASSERT_EQ(r.code, 0) << r.err;
    const auto l = lignes(r.out);
    ASSERT_EQ(l.size(), 5u);
    EXPECT_EQ(l[0], "case,cel_np,bat_c,steps,eclipse_fraction,soc_min,soc_max,t_bat_min,t_bat_max,"
                    "gen_power_min,gen_power_max,gen_power_mean,energy_balance,fault");
    const std::string base = lit_fichier(exemple);
    for (std::size_t i = 1; i < l.size(); ++i) {
        const auto c = champs(l[i]);
        ASSERT_EQ(c.size(), 13u) << l[i];  // 14 columns, the last (fault) empty and not split off
        EXPECT_EQ(l[i].back(), ',');
        EXPECT_EQ(c[0], std::to_string(i));
        // cel_np 20, 20, 40, 40; bat_c 10, 20, 10, 20
        EXPECT_EQ(c[1], i <= 2 ? "20" : "40");
        EXPECT_EQ(c[2], i % 2 ? "10" : "20");
        // The same case alone: a copy of the project with those two lines changed.
        const auto chemin = dossier_vide("cas") / "cas.pwr";
        std::ofstream(chemin, std::ios::binary)
            << change_valeur(change_valeur(base, "Nb parall", c[1]), "nominale par accu", c[2]);
        const Resultat s = lance("power --summary --pwr \"" + chemin.string() + "\"" + periode);
        ASSERT_EQ(s.code, 0) << s.err;
        // The summary prints: steps, step, eclipse %, SOC min, max (%), battery temperature
        // min, max, generator power min, max, mean, energy balance; each rounded as printed.
        const auto f = figures_resume(s.out);
        ASSERT_EQ(f.size(), 11u) << s.out;
        // The sweep's full figures, printed as the summary prints them, give the same bytes.
        auto x = [&](int k) { return std::strtod(c[static_cast<std::size_t>(k)].c_str(), nullptr); };
        EXPECT_EQ(c[3], f[0]);
        EXPECT_EQ(fmt::format("{:.1f}", 100 * x(4)), f[2]);
        EXPECT_EQ(fmt::format("{:.1f}", 100 * x(5)), f[3]);
        EXPECT_EQ(fmt::format("{:.1f}", 100 * x(6)), f[4]);
        for (int k = 7; k <= 12; ++k) EXPECT_EQ(fmt::format("{:.2f}", x(k)), f[static_cast<std::size_t>(k - 2)]) << k;
    }
}

TEST(CliSweep, RowsInCaseOrderOnOneOrSeveralThreadsAndSlicesConcatenate) {
    const std::string commande = "sweep power --pwr \"" + exemple + "\"" + periode +
                                 " --quiet --set bat_c=8:20:4 --set cel_np=10,30";
    const Resultat un = lance(commande + " --jobs 1");
    ASSERT_EQ(un.code, 0) << un.err;
    ASSERT_EQ(lignes(un.out).size(), 1u + 8u);
    // bat_c 8, 12, 16, 20 (step (20 - 8) / 3 = 4), cel_np fastest
    const char* debuts[] = {"1,8,10,", "2,8,30,", "3,12,10,", "4,12,30,",
                            "5,16,10,", "6,16,30,", "7,20,10,", "8,20,30,"};
    for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(lignes(un.out)[i + 1].rfind(debuts[i], 0), 0u) << i;
    for (const char* jobs : {" --jobs 2", " --jobs 3", ""}) EXPECT_EQ(lance(commande + jobs).out, un.out) << jobs;
    std::string bout_a_bout;
    for (const char* k : {"1:3", "2:3", "3:3"}) {
        const Resultat t = lance(commande + " --cases " + k);
        ASSERT_EQ(t.code, 0) << t.err;
        bout_a_bout += t.out;
    }
    EXPECT_EQ(bout_a_bout, un.out);
}

TEST(CliSweep, BadFieldsValuesAndSlicesRefusedBeforeAnyCase) {
    struct Cas { std::string arguments, morceau; };
    const Cas cas[] = {
        {"--set cel_nq=1,2", "champ inconnu « cel_nq »"},
        {"--set cel_np=10 --set orb_inclinaison=0,181", "hors des limites [-180, 180]"},
        {"--set cel_np", "CHAMP=valeurs"},
        {"--set cel_np=1:2", "début:fin:nombre"},
        {"--set cel_np=1 --cases 4:3", "--cases"},
    };
    for (const Cas& c : cas) {
        const Resultat r = lance("sweep power --quiet --pwr \"" + exemple + "\"" + periode + " " + c.arguments);
        EXPECT_EQ(r.code, 2) << c.arguments;
        EXPECT_TRUE(r.out.empty()) << c.arguments;  // not even the header
        EXPECT_NE(r.err.find(c.morceau), std::string::npos) << c.arguments << ": " << r.err;
    }
    // the valid names follow an unknown one
    const Resultat r = lance("sweep attitude --set mdd=1 --quiet");
    EXPECT_NE(r.err.find(" md(0) "), std::string::npos);
    EXPECT_NE(r.err.find(" cel_np "), std::string::npos);
}

TEST(CliSweep, AttitudeCasesWithDampers) {
    // One hour at 10 s; the damper masses change the motion, the body mass alone does not.
    const Resultat r = lance("sweep attitude --end 18707.591 --quiet --set 'md(0)=0,0.1' --set Masse=40,60");
    ASSERT_EQ(r.code, 0) << r.err;
    const auto l = lignes(r.out);
    ASSERT_EQ(l.size(), 5u);
    EXPECT_EQ(l[0], "case,md(0),Masse,steps,max_rate,roll,pitch,yaw,fault");
    for (std::size_t i = 1; i < 5; ++i) EXPECT_EQ(champs(l[i]).size(), 8u) << l[i];  // fault empty
    const auto figures = [&](std::size_t i) { return l[i].substr(l[i].find(',', l[i].find(',') + 1)); };
    EXPECT_NE(figures(1), figures(3));
}
