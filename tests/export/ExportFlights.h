#pragma once

#include "export/ExportCommon.h"
#include "plan/Geometry.h"
#include "schedule/Records.h"

#include <string>
#include <vector>

// Flights with plans written by hand, so that what the writers make of them can be checked line by line.

namespace gatewise::test {

struct ExportCase {
    std::string name; // also of its golden files
    Plan plan;
    FlightRecord flight;
    bool HaveAlternate = false;

    /// What the writers take besides the plan.
    [[nodiscard]] ExportFlight exportFlight() const;
};

/// "west": every kind of point, western coordinates, an alternate.
/// "south": southern and eastern, step points, a point of blank type, no alternate.
/// "andes": southern and western, no top of descent, an alternate.
/// "direct": no point between the airports, positions below one degree.
/// "long29" and "long30": as many checkpoints, a fix near the departure and the tops between them.
const std::vector<ExportCase>& exportCases();
const ExportCase& exportCase(std::string_view name);

/// Airline GW with a callsign, QZ without; aircraft 733 with names for ProFlight, SH6 without.
const Tables& exportTables();

/// A table of variation: 5.5 degrees east for western longitudes, 11 degrees west for eastern ones.
const MagneticTable& exportMagnetic();

/// A plan of two airports and nothing else; `rows` go between them.
struct PointRow {
    const char* type;
    const char* id;
    const char* name;
    const char* description;
    float latitude, longitude;
    const char* frequency;
    const char* airway;
    std::int32_t altitude;
    float heading;
};
Plan planOf(const PlanAirport& from, const PlanAirport& to, const std::vector<PointRow>& rows,
            float lastHeading);
PlanAirport airportOf(const char* icao, const char* name, float latitude, float longitude,
                      std::int32_t elevation);

} // namespace gatewise::test
