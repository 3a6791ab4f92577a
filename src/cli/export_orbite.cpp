#include "cli/export_orbite.h"

#include <cmath>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "core/orbit/orb_projection.h"
#include "core/shell/calendrier.h"

namespace kestrel::cli {

std::string date_iso(double j) {
    double jour = std::floor(j);
    long long ms = std::llround((j - jour) * 86400000.0);
    if (ms >= 86400000LL) {
        ms -= 86400000LL;
        jour += 1.0;
    }
    Date d;
    jour_vers_date(jour, d);
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}.{:03}", d.an, d.mois, d.jour, ms / 3600000,
                       ms / 60000 % 60, ms / 1000 % 60, ms % 1000);
}

void ecrit_oem(std::ostream& out, const std::string& objet, const std::vector<PointOrbite>& points,
               const std::string& creation) {
    out << "CCSDS_OEM_VERS = 2.0\n"
        << "CREATION_DATE = " << creation << "\n"
        << "ORIGINATOR = KESTREL\n\n"
        << "META_START\n"
        << "COMMENT Keplerian orbit computed by KESTREL. REF_FRAME EME1950: inertial frame of the mean\n"
        << "COMMENT equator and equinox of 1950 (B1950), the frame of the program's orbit model; not EME2000.\n"
        << "OBJECT_NAME = " << objet << "\n"
        << "OBJECT_ID = UNKNOWN\n"
        << "CENTER_NAME = EARTH\n"
        << "REF_FRAME = EME1950\n"
        << "TIME_SYSTEM = UTC\n";
    if (!points.empty())
        out << "START_TIME = " << date_iso(points.front().j) << "\n"
            << "STOP_TIME = " << date_iso(points.back().j) << "\n";
    out << "META_STOP\n\n";
    for (const PointOrbite& p : points)
        out << fmt::format("{} {:.6f} {:.6f} {:.6f} {:.9f} {:.9f} {:.9f}\n", date_iso(p.j), p.pos[0], p.pos[1],
                           p.pos[2], p.vit[0], p.vit[1], p.vit[2]);
}

void ecrit_czml(std::ostream& out, const std::string& objet, const std::vector<PointOrbite>& points,
                double periode_s, double pas_s) {
    // Keys in the order written: "id" first, as the readers' examples show it.
    using json = nlohmann::ordered_json;
    const std::string debut = points.empty() ? std::string() : date_iso(points.front().j) + "Z";
    const std::string fin = points.empty() ? std::string() : date_iso(points.back().j) + "Z";
    const std::string intervalle = debut + "/" + fin;

    json document = {{"id", "document"},
                     {"name", objet},
                     {"version", "1.0"},
                     {"clock",
                      {{"interval", intervalle},
                       {"currentTime", debut},
                       {"multiplier", 60},
                       {"range", "LOOP_STOP"},
                       {"step", "SYSTEM_CLOCK_MULTIPLIER"}}}};

    json cartesien = json::array();
    for (const PointOrbite& p : points) {
        Vec3 terre{};
        vers_terrestre(p.j, p.pos, terre);
        // seconds after the first date, to the millisecond of the dates
        cartesien.push_back(std::round((p.j - points.front().j) * 86400000.0) / 1000.0);
        for (double x : terre) cartesien.push_back(x * 1000.0);  // km -> m
    }
    json couleur_chemin = {{"rgba", {255, 160, 0, 255}}};
    json chemin = {{"width", 2},
                   {"leadTime", 0},
                   {"trailTime", periode_s},
                   {"resolution", pas_s},
                   {"material", {{"solidColor", {{"color", couleur_chemin}}}}}};
    json satellite = {
        {"id", "satellite"},
        {"name", objet},
        {"availability", intervalle},
        {"position",
         {{"epoch", debut},
          {"referenceFrame", "FIXED"},
          {"interpolationAlgorithm", "LAGRANGE"},
          {"interpolationDegree", 5},
          {"cartesian", cartesien}}},
        {"point", {{"pixelSize", 8}, {"color", {{"rgba", {255, 220, 0, 255}}}}}},
        {"label", {{"text", objet}, {"font", "12pt sans-serif"}, {"pixelOffset", {{"cartesian2", {12, 0}}}}}},
        {"path", chemin}};
    // One packet a line: short enough to read, and a valid JSON array.
    out << "[\n" << document.dump() << ",\n" << satellite.dump() << "\n]\n";
}

}  // namespace kestrel::cli
