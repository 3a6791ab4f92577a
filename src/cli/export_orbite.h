// The orbit in the formats other orbit tools read: a CCSDS Orbit Ephemeris
// Message (KVN text) and a CZML document for CesiumJS.
#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "core/shell/types.h"

namespace kestrel::cli {

// One date of the run: day count, inertial 1950 position (km) and velocity (km/s).
struct PointOrbite {
    double j;
    Vec3 pos, vit;
};

// "2008-09-20T12:25:40.104": the day count as a UTC date to the millisecond.
std::string date_iso(double j);

// OEM 2.0 in KVN: header, metadata (centre EARTH, the program's inertial frame
// of 1950 named EME1950 and explained in a comment, UTC), then one line per date.
void ecrit_oem(std::ostream& out, const std::string& objet, const std::vector<PointOrbite>& points,
               const std::string& creation);

// A document packet and one satellite packet: positions in the Earth-fixed
// frame (the program's own sidereal turn), in metres, seconds after the first
// date; availability over the run and a path one period long.
void ecrit_czml(std::ostream& out, const std::string& objet, const std::vector<PointOrbite>& points,
                double periode_s, double pas_s);

}  // namespace kestrel::cli
