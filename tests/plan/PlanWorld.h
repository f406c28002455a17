#pragma once

#include "plan/Build.h"
#include "plan/GetFlightPlan.h"
#include "plan/Performance.h"

#include "support/Schedule.h"
#include "support/TempFolder.h"

#include <string_view>
#include <vector>

// A small world of airports, one aircraft and navigation files in a folder of its own.

namespace gatewise::test {

inline RouteEntry entry(std::string_view kind, std::int32_t record, std::string_view airway = {}) {
    RouteEntry out;
    out.entryKind = kind;
    out.entryRecord = record;
    out.entryAirway = airway;
    return out;
}

inline NavaidRecord navaid(std::string_view id, std::string_view name, float latitude, float longitude,
                           std::string_view frequency) {
    NavaidRecord out;
    out.navaidId = id;
    out.navaidName = name;
    out.latitude = latitude;
    out.longitude = longitude;
    out.frequency = frequency;
    return out;
}

inline FixRecord fix(std::string_view name, std::string_view id, float latitude, float longitude) {
    FixRecord out;
    out.fixName = name;
    out.fixId = id;
    out.latitude = latitude;
    out.longitude = longitude;
    return out;
}

inline JetRecord jet(std::string_view id, std::string_view name, std::string_view description, float latitude,
                     float longitude, std::string_view kind, std::string_view frequency) {
    JetRecord out;
    out.jetId = id;
    out.jetName = name;
    out.jetDescription = description;
    out.latitude = latitude;
    out.longitude = longitude;
    out.jetKind = kind;
    out.frequency = frequency;
    return out;
}

/// Departure, destination and aircraft of a flight; the points go straight into the table.
struct FlightWorld {
    Tables tables;
    FlightRecord flight;
    Plan plan;

    FlightWorld() {
        tables.airports = {airport("DEP", "KDEP", "Departure Field", "Depart", 40, -100),
                           airport("DST", "KDST", "Destination Field", "Arrive", 40, -80),
                           airport("ALT", "KALT", "Alternate Field", "Other", 41, -81), AirportRecord()};
        flight.OriginIata = std::string_view("DEP");
        flight.DestinationIata = std::string_view("DST");
        flight.AircraftCode = std::string_view("733");
        AircraftRecord record = aircraft("733", "Twin");
        record.CruiseAltitude = 37000;
        record.ClimbRate = 2400;
        record.DescentRate = 2000;
        record.CruiseSpeedTAS = 420;
        tables.aircraft = {record};
        plan.planLast = 1;
    }

    [[nodiscard]] AirportRecord& departure() { return tables.airports[0]; }
    [[nodiscard]] AirportRecord& destination() { return tables.airports[1]; }
    [[nodiscard]] AircraftRecord& type() { return tables.aircraft[0]; }

    void add(std::string_view name, float latitude, float longitude, std::string_view airway = {}) {
        PlanPoint& point = plan.at(plan.planLast++);
        point.pointId = name;
        point.pointName = name;
        point.pointType = std::string_view("V ");
        point.pointFrequency = std::string_view("113.00");
        point.pointAirway = airway;
        point.pointLatitude = latitude;
        point.pointLongitude = longitude;
    }

    [[nodiscard]] PlanInput input() const { return {tables, flight, false, 0, {}}; }

    /// The plan of the points so far.
    Plan& build() {
        loadAircraftPerformance(plan, tables.aircraft, flight.AircraftCode.view());
        buildPlan(plan, input());
        return plan;
    }
};

/// The same with files, as a retrieval reads them.
struct FileWorld : FlightWorld {
    TempFolder folder;
    PlanFiles files = planFiles(folder.path(), "\\Data");

    FileWorld() { std::filesystem::create_directories(folder.path("/Data")); }

    template<class Record> void write(std::string_view name, const std::vector<Record>& records) const {
        Bytes bytes;
        for (const Record& record : records) appendRecord(bytes, record);
        folder.write("/Data/" + std::string(name), bytes);
    }

    /// Plans.gt1 with the routes as plans 1, 2, 3 ...
    void writePlans(const std::vector<std::vector<RouteEntry>>& routes) const {
        folder.write("/Data/Plans.gt1", plansBytes(routes));
    }

    static Bytes plansBytes(const std::vector<std::vector<RouteEntry>>& routes) {
        Bytes bytes;
        auto position = static_cast<std::int32_t>(routes.size() * 4 + 1);
        for (const auto& route : routes) {
            appendField(bytes, position);
            position += static_cast<std::int32_t>(2 + 10 * route.size());
        }
        for (const auto& route : routes) {
            appendField(bytes, static_cast<std::int16_t>(route.size()));
            for (const RouteEntry& e : route) appendRecord(bytes, e);
        }
        return bytes;
    }

    /// Files with two records each, so that first and second can be told apart.
    void writeNavaids() const {
        write<NavaidRecord>("VOR.gt1", {navaid("AAA", "First Vor", 40, -98, "113.30"),
                                        navaid("BBB", "Second Vor", 40.5F, -96, "114.9")});
        write<NavaidRecord>("NDB.gt1", {navaid("NA", "First Ndb", 40, -94, "362.00"),
                                        navaid("NB", "Second Ndb", 40.5F, -93, "245")});
        write<FixRecord>("ISC.gt1", {fix("FIXON", "FIXON1", 40, -91), fix("FIXTW", "FIXTW2", 40.5F, -90)});
        write<JetRecord>("JRT.gt1", {jet("JETONE1", "JONE", "First Jet", 40, -88, "V", "115.00"),
                                     jet("JETTWO2", "JTWO", "Second Jet", 40.5F, -86, " ", "      "),
                                     jet("JETTRE3", "JTRE", "Third Jet", 40.5F, -85, "N", "300.00"),
                                     jet("JETFOR4", "JFOR", "Fourth Jet", 40.5F, -84, "I", "000.00")});
    }

    Plan& load(std::int32_t planNumber) {
        PlanInput in = input();
        in.files = files;
        loadFlightPlan(plan, planNumber, in);
        return plan;
    }
};

/// Names of all points, for a look at their order.
inline std::vector<std::string> namesOf(const Plan& plan) {
    std::vector<std::string> names;
    for (int i = 0; i <= plan.planLast; ++i) names.emplace_back(plan.at(i).pointName.trimmed());
    return names;
}

/// The first point of a name, planLast + 1 when there is none.
inline int indexOf(const Plan& plan, std::string_view name) {
    int i = 0;
    while (i <= plan.planLast && plan.at(i).pointName.trimmed() != name) ++i;
    return i;
}

} // namespace gatewise::test
