#include "Plans.h"

namespace gatewise::test {

PlanAirport airportOf(const char* icao, const char* name, float latitude, float longitude,
                      std::int32_t elevation) {
    PlanAirport airport;
    airport.Icao = icao;
    airport.Name = name;
    airport.Latitude = latitude;
    airport.Longitude = longitude;
    airport.Elevation = elevation;
    return airport;
}

Plan planOf(const PlanAirport& from, const PlanAirport& to, const std::vector<PointRow>& rows) {
    Plan plan;
    plan.departureAirport = from;
    plan.destinationAirport = to;
    int i = 0;
    for (const PointRow& row : rows) {
        PlanPoint& point = plan.at(++i);
        point.pointType = row.type;
        point.pointName = row.name;
        point.pointId = row.name;
        point.pointDescription = row.description;
        point.pointLatitude = row.latitude;
        point.pointLongitude = row.longitude;
        point.pointAirway = row.airway;
        point.pointAltitude = row.altitude;
        point.pointMinutes = 10 * i;
    }
    plan.planLast = static_cast<std::int16_t>(i + 1);
    plan.at(i + 1).pointMinutes = 10 * i + 25;
    plan.peakAltitude = plan.cruiseAltitude = 35000;
    plan.speedSchedule = {206, 231, 244, 257, 244, 231, 206};
    return plan;
}

Plan mixedPlan() {
    return planOf(airportOf("KATL", "Hartsfield & \"Jackson\" Intl", 33.6367F, -84.428101F, 1026),
                  airportOf("KMIA", "Peque\xF1o <Norte>", 25.793301F, -80.2906F, -8),
                  {{"HV", "ATL", "ATLANTA", 33.629074F, -84.43504F, "", 9800},
                   {"TC", "*TOC*", "Top of Climb", 33.01F, -84.1F, "J8", 35000},
                   {"HI", "ICBOD", "Intersection - ICBOD", 32.635F, -83.95F, "J8", 35000},
                   {"I ", "FAGAN", "Intersection - FAGAN", 30.5F, -82.75F, "J8-Q9", 35000},
                   {"HN", "GNV", "Gainesville D\xFCne", 29.69F, -82.27F, "Q9", 35000},
                   {"SD", "STEPD", "Step Descent Point", 28.8F, -81.9F, "J55", 24000},
                   {"V ", "ORL", "", 28.5427F, -81.335F, "J55", 18000},
                   {"  ", "", "", 27.5F, -81, "", 12000},
                   {"N ", "GNV", "another of the name", 27, -80.75F, "V3", 8000},
                   {"TD", "*TOD*", "Top of Descent", 26.5F, -80.5F, "", 8000}});
}

Plan pacificPlan() {
    Plan plan = planOf(airportOf("NFFN", "Nadi Intl", -17.7554F, 177.443F, 59),
                       airportOf("NSFA", "Faleolo Intl", -13.8299F, -172.008F, 58),
                       {{"V ", "NN", "NANDI", -17.66F, 177.39F, "", 3000},
                        {"HI", "EDGE", "", -16.5F, 180, "B581", 20000},
                        {"HI", "BASTE", "", -16, -179.99999F, "B581", 20000}});
    plan.peakAltitude = 9000;
    return plan;
}

Plan directPlan() {
    return planOf(airportOf("PHNL", "Honolulu Intl", 21.3187F, -157.922F, 13),
                  airportOf("PHOG", "Kahului", 20.8986F, -156.43F, 54), {});
}

DateTime testMoment() {
    DateTime moment;
    moment.year = 2002;
    moment.month = 6;
    moment.day = 17;
    moment.hour = 11;
    moment.minute = 5;
    return moment;
}

programs::Route routeOfPlan(const Plan& plan, bool withComputed, const Regions& regions) {
    return programs::routeOf(plan, "Orrery Airways Flight 421 ATL to MIA", testMoment(), withComputed,
                             regions);
}

Regions mixedRegions() {
    Regions regions;
    regions.add({'V', "ATL", 33.629074F, -84.43504F, "K7"});
    regions.add({'I', "ICBOD", 47.5F, 8, "LS"});
    regions.add({'I', "ICBOD", 32.6354F, -83.9502F, "K7"});
    regions.add({'I', "GNV", 29.69F, -82.27F, "XX"});
    regions.add({'N', "GNV", 29.69F, -82.27F, "K7"});
    regions.add({'N', "GNV", 27, -80.75F, "MU"});
    regions.add({'V', "ORL", 28.5427F, -81.335F, "K7"});
    return regions;
}

} // namespace gatewise::test
