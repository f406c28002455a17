#include "programs/Formats.h"

#include <array>

namespace gatewise::programs {

// The writers, each in the file of its name.
Writer xPlane, flightSimulatorX, msfs2020, msfs2024, flightGear, littleNavmap, garmin, gpx, kml, geoJson,
    routeText;

namespace {

constexpr const char* kXPlanePlans = "Output/FMS plans";
constexpr Place kXPlane[] = {
    {Base::Listed, kXPlanePlans, ".x-plane/x-plane_install_12.txt"},
    {Base::Listed, kXPlanePlans, "x-plane_install_12.txt"},
    {Base::Listed, kXPlanePlans, ".x-plane/x-plane_install_11.txt"},
    {Base::Listed, kXPlanePlans, "x-plane_install_11.txt"},
    {Base::Home, "X-Plane 12/Output/FMS plans"},
    {Base::Home, "X-Plane 11/Output/FMS plans"},
};
constexpr Place kFlightSimulatorX[] = {{Base::Documents, "Prepar3D v6 Files"},
                                       {Base::Documents, "Prepar3D v5 Files"},
                                       {Base::Documents, "Prepar3D v4 Files"},
                                       {Base::Documents, "Prepar3D v3 Files"},
                                       {Base::Documents, "Flight Simulator X Files"}};
constexpr Place kFlightGear[] = {
    {Base::Home, ".fgfs/Export"}, {Base::Settings, "flightgear.org/Export"}, {Base::Home, ".fgfs"}};
constexpr Place kLittleNavmap[] = {{Base::Documents, "Little Navmap Files/Flight Plans"},
                                   {Base::Documents, "Little Navmap Files"},
                                   {Base::Documents, "Little Navmap"}};
constexpr std::span<const Place> kNowhere;

// clang-format off
constexpr std::array<Format, kFormatCount> kFormats = {{
    // name                    key             extension   tail          computed  clipboard  writer       folders
    {"X-Plane 11 and 12",      "XPlane",       ".fms",     "",           true,  false, xPlane,           kXPlane},
    {"FSX and Prepar3D",       "FSX",          ".pln",     "",           true,  false, flightSimulatorX, kFlightSimulatorX},
    {"MSFS 2020",              "MSFS2020",     ".pln",     " MSFS 2020", true,  false, msfs2020,         kNowhere},
    {"MSFS 2024",              "MSFS2024",     ".pln",     " MSFS 2024", true,  false, msfs2024,         kNowhere},
    {"FlightGear",             "FlightGear",   ".fgfp",    "",           true,  false, flightGear,       kFlightGear},
    {"Little Navmap",          "LittleNavmap", ".lnmpln",  "",           true,  false, littleNavmap,     kLittleNavmap},
    {"Garmin GTN, GNS, G1000", "Garmin",       ".fpl",     "",           true,  false, garmin,           kNowhere},
    {"GPX",                    "GPX",          ".gpx",     "",           true,  false, gpx,              kNowhere},
    {"KML",                    "KML",          ".kml",     "",           true,  false, kml,              kNowhere},
    {"GeoJSON",                "GeoJSON",      ".geojson", "",           true,  false, geoJson,          kNowhere},
    {"Route text",             "RouteText",    ".txt",     "",           false, true,  routeText,        kNowhere},
}};
// clang-format on

} // namespace

std::span<const Format> formats() {
    return kFormats;
}

} // namespace gatewise::programs
