// Sun ephemeris, Greenwich sidereal angle, Earth-fixed frame and ground point.
#pragma once
#include "core/shell/erreur.h"
#include "core/shell/types.h"

namespace kestrel {

// Earth centre to Sun at date j, km, inertial 1950 frame (pure).
Vec3 soleil_vecteur(double j);
// Greenwich sidereal angle, rad, in [0, 2 pi).
double temps_sideral(double j);
void vers_terrestre(double j, const Vec3& v, Vec3& r);  // inertial -> Earth-fixed
void vers_inertiel(double j, const Vec3& v, Vec3& r);   // Earth-fixed -> inertial
// Earth-fixed km -> lon, lat (rad), alt (km) on the ellipsoid. Returns false
// when the loop passes its safety cap (the outputs then hold the last pass).
bool cart_vers_geodesique(const Vec3& X, double& lon, double& lat, double& alt);
// Inertial position -> ground point; a cap fault goes to `faute` (first kept).
void sous_point(double j, const Vec3& pos, double& lon, double& lat, double& alt, Erreur& faute);

}  // namespace kestrel
