// The 279 lines of the power project, top to bottom, in one place: the
// writer, the reader and the field listing walk the same sequence, so they
// cannot drift apart. A visitor V receives, line by line:
//   v.commentaire(texte)                        a comment line, written as is
//   v.valeur(champ, label, nom)                 i16 / i32 / u8 / f32 value line;
//                                               label nullptr: bare value
//   v.octet(champ16, label, nom)                byte value held in a 16-bit field
//   v.booleen(champ16, label, nom)              truth value, 255 / 0 on disk
//   v.flux(champ64, label, nom)                 f64 through the "0.0000E+00" picture
//   v.date(champ64, nom)                        bare f64 read as a whole token
//   v.faces()                                   right after the body option line
// P is PowerRecord or const PowerRecord, S Session or const Session.
#pragma once
#include <string>

namespace kestrel {

template <class V, class A>
void lignes_tableau(V& v, A& tableau, const char* nom) {
    for (std::size_t i = 0; i < tableau.size(); ++i)
        v.valeur(tableau[i], nullptr, std::string(nom) + "(" + std::to_string(i) + ")");
}

// Battery curve: coefficient by coefficient, the four points of each.
template <class V, class C>
void lignes_courbe(V& v, C& pt, const char* nom) {
    for (int c = 0; c < 6; ++c)
        for (int j = 0; j < 4; ++j)
            v.valeur(pt[j][c], nullptr,
                     std::string(nom) + "(" + std::to_string(j) + "," + std::to_string(c) + ")");
}

template <class V, class P, class S>
void lignes_energie(V& v, P& p, S& s) {
    v.commentaire("! ---------------");
    v.commentaire("! Système énergie");
    v.commentaire("! ---------------");
    v.commentaire("!");
    v.commentaire("! Panneaux solaires");
    v.commentaire("! -----------------");
    v.valeur(p.cel_type, "Type cellules", "cel_type");
    v.valeur(p.cel_isc, "Isc", "cel_isc");
    v.valeur(p.cel_imp, "Imp", "cel_imp");
    v.valeur(p.cel_voc, "Voc", "cel_voc");
    v.valeur(p.cel_vmp, "Vmp", "cel_vmp");
    v.valeur(p.cel_disc, "dIsc/dT", "cel_disc");
    v.valeur(p.cel_dimp, "dImp/dT", "cel_dimp");
    v.valeur(p.cel_dvoc, "dVoc/dT", "cel_dvoc");
    v.valeur(p.cel_dvmp, "dVmp/dT", "cel_dvmp");
    v.valeur(p.cel_radisc, "Isc/Isc0", "cel_radisc");
    v.valeur(p.cel_radimp, "Imp/Imp0", "cel_radimp");
    v.valeur(p.cel_radvoc, "Voc/Voc0", "cel_radvoc");
    v.valeur(p.cel_radvmp, "Vmp/Vmp0", "cel_radvmp");
    v.valeur(p.cel_ns, "Nb série", "cel_ns");
    v.valeur(p.cel_np, "Nb parallèle", "cel_np");
    v.valeur(p.cel_surface, "Surface cellules", "cel_surface");
    v.valeur(p.cel_tref, "Température de référence", "cel_tref");
    v.valeur(p.inc_div, "Incidence divergence", "inc_div");
    v.valeur(p.inc_max, "Incidence max", "inc_max");
    v.commentaire("!");

    v.commentaire("! Thermique modèle panneaux externes");
    v.commentaire("! ----------------------------------");
    v.valeur(p.ext_area, "Aire panneau externe", "ext_area");
    v.valeur(p.body_face_area, "Aire face corps central", "body_face_area");
    v.valeur(p.date_cell, "Date initiale cellules", "date_cell");
    v.commentaire("! Absorptivités initiales");
    lignes_tableau(v, p.ext_alpha0, "ext_alpha0");
    v.commentaire("! Absorptivités limites");
    lignes_tableau(v, p.ext_alpha_lim, "ext_alpha_lim");
    v.commentaire("! Emissivités");
    lignes_tableau(v, p.ext_eps, "ext_eps");
    v.commentaire("! Temps 99%");
    lignes_tableau(v, p.ext_t99, "ext_t99");
    v.commentaire("! Couplages conductifs");
    lignes_tableau(v, p.ext_cond, "ext_cond");
    v.commentaire("! Couplages radiatifs");
    lignes_tableau(v, p.ext_rad, "ext_rad");
    v.commentaire("! Masses panneaux et faces");
    lignes_tableau(v, p.ext_mass, "ext_mass");
    v.commentaire("! Chaleurs spécifiques");
    lignes_tableau(v, p.ext_cp, "ext_cp");
    v.commentaire("! Températures initiales");
    lignes_tableau(v, p.ext_t_init, "ext_t_init");
    v.commentaire("!");

    v.commentaire("! Thermique modèle panneaux sur faces");
    v.commentaire("! -----------------------------------");
    v.commentaire("! Conductivités");
    lignes_tableau(v, p.fac_cond, "fac_cond");
    v.commentaire("! Températures initiales faces");
    lignes_tableau(v, p.fac_t_init, "fac_t_init");
    v.commentaire("! Absorptivités initiales faces");
    lignes_tableau(v, p.fac_alpha0, "fac_alpha0");
    v.commentaire("! Absorptivités limites faces");
    lignes_tableau(v, p.fac_alpha_lim, "fac_alpha_lim");
    v.commentaire("! Temps 99%");
    lignes_tableau(v, p.fac_t99, "fac_t99");
    v.commentaire("! Emissivités");
    lignes_tableau(v, p.fac_eps, "fac_eps");
    v.commentaire("! Chaleurs spécifiques faces");
    lignes_tableau(v, p.fac_cp, "fac_cp");
    v.commentaire("! Masses faces");
    lignes_tableau(v, p.fac_mass, "fac_mass");
    lignes_tableau(v, p.fac_rad, "fac_rad");  // no comment line before these three
    v.valeur(p.int_mass, "Masse noeud interne", "int_mass");
    v.valeur(p.int_cp, "Chaleur spécifique noeud interne", "int_cp");
    v.valeur(p.int_t_init, "Température initiale noeud interne", "int_t_init");
    v.valeur(p.cyl_cond, "", "cyl_cond");  // empty label: value padded to column 16
    v.commentaire("!");

    v.commentaire("! Environnement");
    v.commentaire("! -------------");
    v.commentaire("! Albedo");
    lignes_tableau(v, p.albedo, "albedo");
    v.commentaire("! Infrarouge terre");
    lignes_tableau(v, p.earth_ir, "earth_ir");
    v.flux(p.sun_power, "Flux solaire", "sun_power");
    v.commentaire("!");

    v.commentaire("! Gestion énergie");
    v.commentaire("! ---------------");
    v.valeur(p.gst_charge_init, "Charge initiale batterie", "gst_charge_init");
    v.valeur(p.gst_vch_max, "Tension de charge max", "gst_vch_max");
    v.valeur(p.gst_i_maint, "Courant d'entretien", "gst_i_maint");
    v.valeur(p.gst_ich_max, "Courant de charge max", "gst_ich_max");
    v.valeur(p.gst_k_recharge, "Coefficient de recharge", "gst_k_recharge");
    v.valeur(p.gst_rend_bat, "Rendement batterie/CU", "gst_rend_bat");
    v.valeur(p.gst_rend_gs, "Rendement GS/CU", "gst_rend_gs");
    v.valeur(p.gst_vregul, "Tension régulée", "gst_vregul");
    v.valeur(p.p_demand[0], "Puissance demandée jour", "p_demand(0)");
    v.valeur(p.p_dissip[0], "Puissance dissipée jour", "p_dissip(0)");
    v.valeur(p.p_demand[1], "Puissance demandée nuit", "p_demand(1)");
    v.valeur(p.p_dissip[1], "Puissance dissipée nuit", "p_dissip(1)");
    v.valeur(p.gst_regulated, "Gestion régulée (1) ou non régulée (0)", "gst_regulated");

    v.commentaire("! Batterie");
    v.commentaire("! --------");
    v.octet(p.bat_type, "Type batterie", "bat_type");
    v.valeur(p.bat_ns, "Nombre de cellules série", "bat_ns");
    v.valeur(p.bat_np, "Nombre de cellules parallèle", "bat_np");
    v.valeur(p.bat_c, "Capacité nominale par accu", "bat_c");
    v.commentaire("! Donnée pour tracé courbes de charge");
    lignes_courbe(v, p.ch_pt, "ch_pt");
    v.commentaire("! Donnée pour tracé courbes de décharge");
    lignes_courbe(v, p.de_pt, "de_pt");
    v.valeur(p.bat_cmax, "Influence courant de décharge : Cmax/Cnom", "bat_cmax");
    v.valeur(p.bat_c10, "Influence courant de décharge : C10/Cnom à courant 10C", "bat_c10");
    v.valeur(p.bat_cmin_pct, "Influence température : Cmin % à Tref", "bat_cmin_pct");
    v.valeur(p.bat_t999, "Influence température : Température 99.9%", "bat_t999");
    v.valeur(p.bat_tmin, "Influence température : Température min", "bat_tmin");
    v.valeur(p.bat_tau0, "Autodécharge : constante de temps à 0° jours", "bat_tau0");
    v.valeur(p.bat_tau50, "Autodécharge : constante de temps à 50° jours", "bat_tau50");

    v.commentaire("! Géométrie");
    v.commentaire("! ---------");
    v.booleen(p.opt_panel_ext, "Option panneaux externes", "opt_panel_ext");
    v.valeur(p.opt_faces, "Option 4/6 faces ou cylindre", "opt_faces");
    v.faces();
    v.valeur(p.body_height, "Hauteur", "body_height");
    v.valeur(p.body_width, "Largeur", "body_width");
    v.booleen(p.pan_fixed, "Panneaux externes : Liberté de basculement", "pan_fixed");
    v.valeur(p.pan_angle_init, "Panneaux externes : Orientation initiale", "pan_angle_init");
    // The two labels stand crosswise: this line holds the angle, the next the delay.
    v.valeur(p.pan_tolerance, "Panneaux externes : Retard réponse", "pan_tolerance");
    v.valeur(p.pan_delay, "Panneaux externes : Décalage admissible", "pan_delay");
    v.valeur(p.pan_speed, "Panneaux externes : Vitesse angulaire", "pan_speed");
    v.commentaire("!");

    v.commentaire("! Données de simulation");
    v.commentaire("! ---------------------");
    v.date(s.j_debut, "j_debut");
    v.date(s.j_fin, "j_fin");
    v.valeur(s.pas_sim, nullptr, "pas_sim");
}

}  // namespace kestrel
