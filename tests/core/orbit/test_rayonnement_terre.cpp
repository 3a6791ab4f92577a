// Environment page arithmetic: solar constant over the year, the isothermal
// Earth, the entries of the flux, albedo and infrared, and the sine albedo.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "core/power/albedo_sinus.h"
#include "core/power/rayonnement_terre.h"
#include "core/etat/power_record.h"

using namespace kestrel;

namespace {
// L / (4 pi d^2), d in km then m.
double flux_main(double L, double d_km) { return L / (4.0 * M_PI * d_km * d_km * 1e6); }
}  // namespace

TEST(RayonnementTerre, FluxEtTerreIsotherme) {
    // 3.8e26 W at the perihelion 147090267 km: 1397.67 W/m²; at the aphelion 1307.09.
    EXPECT_NEAR(flux_solaire(3.8e26, distance_soleil_min), 1397.674, 1e-3);
    EXPECT_NEAR(flux_solaire(3.8e26, distance_soleil_max), 1307.091, 1e-3);

    // Default albedo 0.38: ir = 0.62 flux / 4, 216.50 in January, 202.70 in July,
    // each kept to two decimals.
    PowerRecord p;
    modele_isotherme(p);
    EXPECT_NEAR(p.earth_ir[0], 216.50f, 1e-4);
    EXPECT_NEAR(p.earth_ir[6], 202.70f, 1e-4);
    for (int m = 0; m < 12; ++m) {
        EXPECT_NEAR(p.earth_ir[m], 0.62 * flux_main(3.8e26, distance_soleil_mois[m]) / 4.0, 0.006) << m;
    }
    // A white Earth sends nothing back; a black one a quarter of the flux.
    p.albedo.fill(1.0f);
    p.albedo[3] = 0.0f;
    modele_isotherme(p);
    EXPECT_EQ(p.earth_ir[0], 0.0f);
    EXPECT_NEAR(p.earth_ir[3], flux_main(3.8e26, distance_soleil_mois[3]) / 4.0, 0.006);
}

TEST(RayonnementTerre, SaisiesDuFluxDeLAlbedoEtDeLInfrarouge) {
    PowerRecord p;
    // A maximum of 1400 sets L = 1400 * 4 pi dmin^2; the minimum follows as
    // 1400 (dmin / dmax)^2 = 1309.27.
    EXPECT_TRUE(saisit_flux(p, 1, "1400").ok);
    EXPECT_NEAR(p.sun_power, 1400.0 * 4 * M_PI * std::pow(distance_soleil_min * 1e3, 2), 1e17);
    EXPECT_NEAR(flux_solaire(p.sun_power, distance_soleil_max), 1309.266, 1e-3);
    // The minimum cannot pass the maximum, the maximum not go under the minimum.
    const double L = p.sun_power;
    const Verdict trop = saisit_flux(p, 0, "1401");
    EXPECT_FALSE(trop.ok);
    EXPECT_EQ(trop.message.rfind("Valeur excessive !! Saisissez une valeur <= 1400", 0), 0u) << trop.message;
    const Verdict peu = saisit_flux(p, 1, "1300");
    EXPECT_FALSE(peu.ok);
    EXPECT_EQ(peu.message.rfind("Valeur insuffisante! Saisissez une valeur >= 1309.2", 0), 0u) << peu.message;
    EXPECT_FALSE(saisit_flux(p, 0, "mille").ok);
    EXPECT_EQ(p.sun_power, L);
    // A minimum of 1300 at the aphelion: L = 1300 * 4 pi dmax^2.
    EXPECT_TRUE(saisit_flux(p, 0, "1300").ok);
    EXPECT_NEAR(p.sun_power, 1300.0 * 4 * M_PI * std::pow(distance_soleil_max * 1e3, 2), 1e17);

    // month, text, accepted, stored value
    const struct { bool albedo; int mois; const char* texte; bool ok; float valeur; } cas[] = {
        {true, 2, "0.5", true, 0.5f},  {true, 2, "1.2", false, 0.5f}, {true, 2, "-0.1", false, 0.5f},
        {true, 4, "1", true, 1.0f},    {true, 4, "x", false, 1.0f},   {false, 7, "240", true, 240.0f},
        {false, 7, "-1", false, 240.0f}, {false, 7, "0", true, 0.0f}};
    for (const auto& c : cas) {
        const Verdict v = c.albedo ? saisit_albedo(p, c.mois, c.texte) : saisit_ir(p, c.mois, c.texte);
        EXPECT_EQ(v.ok, c.ok) << c.texte;
        EXPECT_EQ(c.albedo ? p.albedo[c.mois] : p.earth_ir[c.mois], c.valeur) << c.texte;
    }
    EXPECT_EQ(p.albedo[0], 0.38f);  // other months untouched
}

TEST(AlbedoSinus, LimitesDAmplitude) {
    // base, amplitude, accepted
    const struct { const char* b; const char* v; bool ok; } cas[] = {
        {"0.6", "0.41", false}, {"0.6", "0.4", true},  {"0.3", "0.31", false}, {"0.3", "0.3", true},
        {"0.5", "0.5", true},   {"0.5", "0.51", false}, {"0.6", "-0.41", false}, {"0.6", "deux", false}};
    for (const auto& c : cas) {
        PowerRecord p;
        const Verdict v = modele_sinus(p, c.b, c.v, 0);
        EXPECT_EQ(v.ok, c.ok) << c.b << " " << c.v;
        if (!c.ok) {
            EXPECT_EQ(p.albedo[0], 0.38f) << "a refusal changes nothing";
        }
    }
    PowerRecord p;
    EXPECT_EQ(modele_sinus(p, "0.6", "0.41", 0).message, "Valeur excessive !! Saisissez une valeur <= 0.4");
}

TEST(AlbedoSinus, DouzeMois) {
    // b + v sin((m - s) 30 deg): base on the chosen month, the peak three months later.
    PowerRecord p;
    ASSERT_TRUE(modele_sinus(p, "0.3", "0.2", 0).ok);
    const float janvier[12] = {0.3f, 0.4f, 0.47f, 0.5f, 0.47f, 0.4f, 0.3f, 0.2f, 0.13f, 0.1f, 0.13f, 0.2f};
    for (int m = 0; m < 12; ++m) EXPECT_EQ(p.albedo[m], janvier[m]) << m;  // 0.2 sin 60 = 0.173 -> 0.47
    ASSERT_TRUE(modele_sinus(p, "0.3", "0.2", 3).ok);  // from April
    EXPECT_EQ(p.albedo[3], 0.3f);
    EXPECT_EQ(p.albedo[6], 0.5f);
    EXPECT_EQ(p.albedo[0], 0.1f);
    // zero amplitude: twelve equal months
    ASSERT_TRUE(modele_sinus(p, "0.45", "0", 7).ok);
    for (float a : p.albedo) EXPECT_EQ(a, 0.45f);
}
