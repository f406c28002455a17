#include "ExportFlights.h"

#include "schedule/FlightTexts.h"
#include "support/Schedule.h"
#include "support/TempFolder.h"

#include <stdexcept>

namespace gatewise::test {

namespace {

RunwayRecord runway(const char* id, float latitude, float longitude, float course,
                    const char* ils = "NO ILS ", const char* frequency = "") {
    RunwayRecord record;
    record.runwayId = id;
    record.runwayLatitude = latitude;
    record.runwayLongitude = longitude;
    record.runwayHeading = course + 1;
    record.runwayCourse = course;
    record.ilsId = ils;
    record.ilsFrequency = frequency;
    return record;
}

RadioRecord radio(const char* approach, const char* delivery, const char* departure, const char* ground,
                  const char* tower) {
    RadioRecord record;
    record.approachFreq = approach;
    record.deliveryFreq = delivery;
    record.departureFreq = departure;
    record.groundFreq = ground;
    record.radioFreq5 = "199.05";
    record.towerFreq = tower;
    record.radioFreq7 = "199.07";
    return record;
}

void setRates(Plan& plan, std::int32_t peak, float climb, float descent, double cruise) {
    plan.peakAltitude = plan.cruiseAltitude = peak;
    plan.climbRate = climb;
    plan.descentRate = descent;
    const double low = std::min(0.8 * cruise, 240.0);
    plan.speedSchedule = {low, 0.9 * cruise, 0.95 * cruise, cruise, 0.95 * cruise, 0.9 * cruise, low};
}

FlightRecord exportedFlight(const char* airline, int number, int departs, const char* from, const char* to,
                            const char* aircraft) {
    FlightRecord record = flight(airline, number, departs, 1200);
    record.OriginIata = from;
    record.DestinationIata = to;
    record.AircraftCode = aircraft;
    return record;
}

ExportCase west() {
    PlanAirport from = airportOf("KSEA", "Seattle Tacoma Intl", 47.449F, -122.3093F, 429);
    from.runways = {runway("16L", 47.46379F, -122.3079F, 162.9F, "I-SNQ  ", "110.30"),
                    runway("34R", 47.43112F, -122.308F, 342.6F)};
    from.radio = radio("120.10", "128.00", "120.40", "121.70", "119.90");
    PlanAirport to = airportOf("KLAX", "Los Angeles Intl", 33.94254F, -118.4081F, 126);
    to.runways = {runway("24R", 33.95211F, -118.4019F, 248.6F, "I-OSS  ", "108.50"),
                  runway("06C", 33.9491F, -118.4311F, 68.4F), runway("7", 33.9358F, -118.419F, 68.5F)};
    to.radio = radio("124.50", "121.40", "125.20", "121.65", "133.90");
    ExportCase out{
        "west",
        planOf(
            from, to,
            {{"V ", "OLM", "OLM", "OLYMPIA", 46.97158F, -122.9021F, "113.40", "", 9800, 220.4F},
             {"TC", "*TOC*", "*TOC*", "Top of Climb", 46.125F, -122.75F, "000.00", "", 33000, 174.2F},
             {"HV", "BTGJ5", "BTG", "BATTLE GROUND", 45.7478F, -122.5915F, "116.60", "J5", 33000, 174.2F},
             {"I ", "K1JOBOE", "JOBOE", "Intersection - JOBOE", 43.5F, -122.0167F, "", "J5", 33000, 190.25F},
             {"SU", "STEPC", "STEPC", "Step Climb Point", 43.1F, -121.95F, "000.00", "", 35000, 171.5F},
             {"HN", "LMTN", "LMT", "KLAMATH FALLS", 42.15306F, -121.7275F, "332.5", "J189", 35000, 171.5F},
             {"HI", "KREBRG", "REBRG", "", 40.02F, -121.2F, "", "J189", 35000, 358.9F},
             {"N ", "AVE", "AVE", "AVENAL", 35.64695F, -119.9787F, "370.00", "", 35000, 160},
             {"TD", "*TOD*", "*TOD*", "Top of Descent", 35.2F, -119.4F, "000.00", "", 35000, 133.3F},
             {"V ", "FIM", "FIM", "FILLMORE", 34.35673F, -118.8813F, "112.50", "V23", 10000, 2.4F}},
            137.8F),
        exportedFlight("GW", 123, 1435, "SEA", "LAX", "733"), true};
    setRates(out.plan, 35000, 2400, -1800.5F, 319);
    out.plan.totalDistance = 864.3271F;
    out.plan.alternateAirport = airportOf("KONT", "Ontario Intl", 34.056F, -117.6012F, 944);
    return out;
}

ExportCase south() {
    PlanAirport from = airportOf("YSSY", "Sydney/Kingsford Smith", -33.94611F, 151.1772F, 21);
    from.runways = {runway("16R", -33.93F, 151.1714F, 168)};
    from.radio = radio("124.40", "126.10", "123.00", "126.50", "120.50");
    PlanAirport to = airportOf("YMML", "Melbourne Intl", -37.67333F, 144.8433F, 434);
    to.runways = {runway("27", -37.6633F, 144.8617F, 263.4F, "I-MW   ", "109.30")};
    ExportCase out{
        "south",
        planOf(from, to,
               {{"  ", "", "", "", -34.2F, 150.6F, "000.00", "", 12000, 240},
                {"HI", "YWOLLY", "WOL", "", -34.55823F, 150.7917F, "      ", "H65", 25000, 200},
                {"TC", "*TOC*", "*TOC*", "Top of Climb", -34.9F, 149.9F, "000.00", "", 25000, 250.1F},
                {"SU", "STEPC", "STEPC", "Step Climb Point", -35, 149.5F, "000.00", "", 27000, 251},
                {"SD", "STEPD", "STEPD", "Step Descent Point", -35.5F, 148, "000.00", "", 25001, 249.6F},
                {"TD", "*TOD*", "*TOD*", "Top of Descent", -36.5F, 146.5F, "000.00", "", 25001, 245},
                {"N ", "CWS", "CWS", "COWES", -36.9F, 145.75F, "275.00", "V169", 5500, 236.7F},
                {"  ", "", "NOKIN", "", -37.2F, 145.25F, "", "", 3000, 222.2F}},
               231.4F),
        exportedFlight("QZ", 7, 5, "SYD", "MEL", "SH6"), false};
    setRates(out.plan, 27050, 1500, -1500, 250);
    out.plan.totalDistance = 385.8F;
    // The alternate of the flight before must not shine through.
    out.plan.alternateAirport = airportOf("KONT", "Ontario Intl", 34.056F, -117.6012F, 944);
    return out;
}

ExportCase andes() {
    PlanAirport from = airportOf("SCEL", "Arturo Merino Benitez", -33.39297F, -70.78579F, 1555);
    from.runways = {runway("17L", -33.377F, -70.7914F, 175.2F), runway("35R", -33.4089F, -70.7875F, 355.2F)};
    from.radio = radio("129.10", "121.30", "128.10", "121.90", "118.10");
    PlanAirport to = airportOf("SAEZ", "Ministro Pistarini", -34.82222F, -58.53583F, 67);
    to.runways = {runway("11", -34.8169F, -58.5547F, 104.3F, "I-EZE  ", "110.10")};
    to.radio = radio("119.90", "121.65", "120.45", "121.75", "118.60");
    ExportCase out{
        "andes",
        planOf(
            from, to,
            {{"I ", "SCUMKAL", "UMKAL", "Intersection - UMKAL", -33.04F, -70.045F, "", "A306", 24000, 75.5F},
             {"TC", "*TOC*", "*TOC*", "Top of Climb", -32.99F, -69.5F, "000.00", "", 24000, 83.6F},
             {"V ", "DOZ", "DOZ", "MENDOZA", -32.82833F, -68.79667F, "114.90", "A306", 24000, 83.6F}},
            101.9F),
        exportedFlight("GW", 2045, 2359, "SCL", "EZE", "733"), true};
    setRates(out.plan, 24000, 2750.25F, -2000, 301.5);
    out.plan.totalDistance = 620;
    out.plan.alternateAirport = airportOf("SUMU", "Carrasco Intl", -34.83842F, -56.03081F, 105);
    return out;
}

ExportCase direct() {
    PlanAirport from = airportOf("EGLC", "London City", 51.50528F, 0.05527778F, 19);
    from.runways = {runway("10", 51.5058F, 0.0458333F, 93)};
    from.radio = radio("132.70", "", "121.77", "121.82", "118.07");
    PlanAirport to = airportOf("DGAA", "Kotoka Intl", 0.5F, -0.1667F, -3);
    ExportCase out{"direct", planOf(from, to, {}, 180.3F), exportedFlight("GW", 9, 45, "LCY", "ACC", "733"),
                   false};
    setRates(out.plan, 9000, 1200, 0, 200);
    out.plan.totalDistance = 3060.317F;
    return out;
}

ExportCase longPlan(const char* name, int checkpoints) {
    PlanAirport from = airportOf("KDEN", "Denver Intl", 39.86167F, -104.6732F, 5431);
    from.runways = {runway("34L", 39.8F, -104.7F, 353.4F)};
    from.radio = radio("119.30", "118.75", "128.25", "121.85", "124.30");
    PlanAirport to = airportOf("KJFK", "Kennedy Intl", 40.63975F, -73.77893F, 13);
    to.runways = {runway("04R", 40.62542F, -73.77035F, 44, "I-JFK  ", "109.50")};
    to.radio = radio("127.40", "135.05", "135.90", "121.90", "119.10");
    std::vector<PointRow> rows = {
        {"V ", "DVV", "DVV", "MILE HIGH", 39.94333F, -104.6732F, "114.70", "", 6000, 5}, // 4.9 miles away
        {"TC", "*TOC*", "*TOC*", "Top of Climb", 39.9F, -104, "000.00", "", 37000, 80}};
    static std::vector<std::string> names; // the rows point into it
    names.reserve(200);
    for (int i = 1; i <= checkpoints; ++i) {
        names.push_back("F" + formatInteger("0000", 100 * checkpoints + i));
        const char* id = names.back().c_str();
        const auto step = static_cast<float>(i);
        rows.push_back({i % 3 == 0 ? "V " : "I ", id, id, "WAYPOINT", 39.9F + step * 0.02F, -104 + step,
                        i % 3 == 0 ? "115.30" : "", "J80", 37000, 85 + step});
    }
    rows.push_back({"TD", "*TOD*", "*TOD*", "Top of Descent", 40.61F, -73.9F, "000.00", "", 37000, 90});
    ExportCase out{name, planOf(from, to, rows, 92.5F), exportedFlight("GW", 1500, 1000, "DEN", "JFK", "733"),
                   false};
    setRates(out.plan, 37000, 2400, -1800, 319);
    out.plan.totalDistance = 1412.5F;
    return out;
}

} // namespace

ExportFlight ExportCase::exportFlight() const {
    return {flightStem(exportTables(), flight), HaveAlternate};
}

const std::vector<ExportCase>& exportCases() {
    static const std::vector<ExportCase> cases = {
        west(), south(), andes(), direct(), longPlan("long29", 29), longPlan("long30", 30)};
    return cases;
}

const ExportCase& exportCase(std::string_view name) {
    for (const auto& row : exportCases()) {
        if (row.name == name) return row;
    }
    throw std::out_of_range("no such flight");
}

const Tables& exportTables() {
    static const Tables tables = [] {
        Tables out;
        out.airlines = {airline("GW", "Gatewise Air Lines", "GATEWISE"), airline("QZ", "Quartz Regional")};
        out.aircraft = {aircraft("733", "Boeing 737-300", "Boeing", "737-300"),
                        aircraft("SH6", "Shorts 360")};
        return out;
    }();
    return tables;
}

const MagneticTable& exportMagnetic() {
    static const MagneticTable table = [] {
        TempFolder folder;
        Bytes bytes(136);
        for (int column = 0; column < 360; ++column) {
            for (int row = 0; row < 181; ++row)
                appendField(bytes, static_cast<std::int16_t>(column >= 180 ? 1000 : -2000));
        }
        folder.write("/SCENERY/magdec.bgl", bytes);
        return MagneticTable(folder.path());
    }();
    return table;
}

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

Plan planOf(const PlanAirport& from, const PlanAirport& to, const std::vector<PointRow>& rows,
            float lastHeading) {
    Plan plan;
    plan.departureAirport = from;
    plan.destinationAirport = to;
    plan.planLast = static_cast<std::int16_t>(rows.size() + 1);
    const auto setEnd = [](PlanPoint& point, const PlanAirport& airport) {
        point.pointName = airport.Icao.view();
        point.pointDescription = airport.Name.view();
        point.pointLatitude = airport.Latitude;
        point.pointLongitude = airport.Longitude;
        point.pointAltitude = airport.Elevation;
        point.pointFrequency = "000.00";
    };
    setEnd(plan.at(0), from);
    setEnd(plan.at(plan.planLast), to);
    plan.at(plan.planLast).pointHeading = lastHeading;
    int i = 0;
    for (const auto& row : rows) {
        PlanPoint& point = plan.at(++i);
        point.pointType = row.type;
        point.pointId = row.id;
        point.pointName = row.name;
        point.pointDescription = row.description;
        point.pointLatitude = row.latitude;
        point.pointLongitude = row.longitude;
        point.pointFrequency = row.frequency;
        point.pointAirway = row.airway;
        point.pointAltitude = row.altitude;
        point.pointHeading = row.heading;
    }
    return plan;
}

} // namespace gatewise::test
