#include "plan/GetFlightPlan.h"
#include "plan/PrintPlan.h"

#include "PlanWorld.h"

#include <cstdarg>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

// Whole plans as readable tables, as the program made them. A golden file changes only after a review of its
// new lines; a run that differs leaves what it made in the folder for temporary files. What holds for a plan
// whatever its numbers are is asked of the same plans beside it.

namespace gatewise {
namespace {

struct Place {
    const char* name;
    float latitude;
    float longitude;
    const char* airway;
};

struct Field {
    const char* icao;
    float latitude;
    float longitude;
    std::int32_t elevation;
};

struct Flight {
    const char* name; // of the golden file
    Field from;
    Field to;
    std::int32_t ceiling;
    std::int16_t climb;
    std::int16_t descent;
    std::int16_t speed;
    std::vector<Place> fixes;
};

// The 100-mile hop; an eastbound and a westbound long haul with step points; over the pole; over the date
// line.
const std::vector<Flight> kFlights = {
    {"hop",
     {"KDCA", 38.8521F, -77.0377F, 15},
     {"KPHL", 39.8719F, -75.2411F, 36},
     41000,
     2400,
     2000,
     420,
     {{"BAL", 39.1711F, -76.6613F, "V44"}, {"DQO", 39.6781F, -75.6071F, "V44"}}},
    {"eastbound",
     {"KSEA", 47.449F, -122.3093F, 433},
     {"KBOS", 42.3643F, -71.0052F, 20},
     41000,
     2800,
     1800,
     460,
     {{"EPH", 47.3779F, -119.4239F, "J90"},
      {"MLP", 47.4569F, -115.6456F, "J90"},
      {"GTF", 47.4501F, -111.4122F, "J90"},
      {"DIK", 46.86F, -102.7735F, "J34"},
      {"GEP", 45.1456F, -93.3732F, ""},
      {"ECK", 43.256F, -82.7178F, "J38"},
      {"SYR", 43.1606F, -76.2045F, "J63"},
      {"GDM", 42.546F, -72.0581F, ""}}},
    {"westbound",
     {"EGLL", 51.4775F, -0.4614F, 83},
     {"KJFK", 40.6398F, -73.7789F, 13},
     35000,
     2000,
     -2500,
     480,
     {{"MALOT", 53.0F, -15.0F, "UN523"},
      {"5320N", 53.0F, -20.0F, ""},
      {"5230N", 52.0F, -30.0F, ""},
      {"5140N", 51.0F, -40.0F, ""},
      {"5050N", 50.0F, -50.0F, ""},
      {"YYT", 47.4833F, -52.85F, ""},
      {"YQI", 43.8256F, -66.0872F, "J581"},
      {"ENE", 43.4257F, -70.6135F, "J581"}}},
    {"polar",
     {"KJFK", 40.6398F, -73.7789F, 13},
     {"VHHH", 22.3089F, 113.9146F, 28},
     39000,
     2000,
     2000,
     480,
     {{"YYZFX", 60.0F, -75.0F, "NCA1"},
      {"8575N", 85.0F, -75.0F, ""},
      {"89POL", 89.0F, -75.0F, ""},
      {"8810E", 88.0F, 100.0F, ""},
      {"NIKIN", 75.0F, 108.0F, "G490"},
      {"SERNA", 52.0F, 110.0F, "G490"},
      {"WXI", 36.0F, 112.0F, "B208"}}},
    {"dateline",
     {"RJAA", 35.7647F, 140.3864F, 141},
     {"KSFO", 37.619F, -122.3749F, 13},
     33000,
     2200,
     2200,
     470,
     {{"CVC", 35.7F, 140.86F, "OTR9"},
      {"4260E", 42.0F, 160.0F, ""},
      {"4580E", 45.0F, 180.0F, ""},
      {"4660W", 46.0F, -160.0F, ""},
      {"4240W", 42.0F, -140.0F, ""},
      {"PYE", 38.0798F, -122.8679F, "C1316"}}},
};

std::string row(const char* format, ...) {
    char buffer[256];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(buffer, sizeof buffer, format, arguments);
    va_end(arguments);
    std::string line(buffer);
    line.resize(line.find_last_not_of(' ') + 1);
    return line + "\n";
}

std::string table(const Flight& flight, const Plan& plan) {
    std::string out = row("%s to %s, ceiling %d, climb %g, descent %g, cruise speed %g", flight.from.icao,
                          flight.to.icao, plan.ceilingAltitude, static_cast<double>(plan.climbRate),
                          static_cast<double>(plan.descentRate), plan.speedSchedule[3]);
    out += row("level %d, peak %d, direct course %.2f, %.1f miles, %s", plan.cruiseAltitude,
               plan.peakAltitude, static_cast<double>(plan.directCourse),
               static_cast<double>(plan.totalDistance), plan.totalTime.str().c_str());
    out += plan.routeString + "\n\n";
    out +=
        row(" #  name   type  airway    latitude   longitude  altitude  heading     leg    total  minutes");
    for (int i = 0; i <= plan.planLast; ++i) {
        const PlanPoint& p = plan.at(i);
        out +=
            row("%2d  %s  %s    %s  %10.4f  %10.4f  %8d  %7.2f  %6.1f  %7.1f  %7d", i,
                p.pointName.str().c_str(), p.pointType.str().c_str(), p.pointAirway.str().c_str(),
                static_cast<double>(p.pointLatitude), static_cast<double>(p.pointLongitude), p.pointAltitude,
                static_cast<double>(p.pointHeading), static_cast<double>(p.pointLegDistance),
                static_cast<double>(p.pointTotalDistance), p.pointMinutes);
    }
    return out;
}

void setField(AirportRecord& record, const Field& field) {
    record.Icao = std::string_view(field.icao);
    record.Latitude = field.latitude;
    record.Longitude = field.longitude;
    record.Elevation = field.elevation;
}

Plan planOf(const Flight& flight) {
    test::FlightWorld world;
    setField(world.departure(), flight.from);
    setField(world.destination(), flight.to);
    world.type().CruiseAltitude = flight.ceiling;
    world.type().ClimbRate = flight.climb;
    world.type().DescentRate = flight.descent;
    world.type().CruiseSpeedTAS = flight.speed;
    for (const Place& fix : flight.fixes) world.add(fix.name, fix.latitude, fix.longitude, fix.airway);
    return world.build();
}

std::string listingOf(const Flight& flight) {
    const Plan plan = planOf(flight);
    FlightRecord record;
    record.AirlineCode = std::string_view("GW");
    record.FlightNumber = 100;
    record.DepartureTime = 2345;
    DateTime date;
    date.day = 15;
    date.month = 11;
    return table(flight, plan) + "\n" +
           printFlightPlan(plan, record, date, "11/15/2002", MagneticTable(), NumberLocale()) + "\n";
}

class GoldenPlan : public testing::TestWithParam<std::size_t> {};

TEST_P(GoldenPlan, IsTheReviewedOne) {
    const Flight& flight = kFlights[GetParam()];
    const std::string made = listingOf(flight);
    const std::string name = std::string(flight.name) + ".txt";
    std::ifstream file(std::string(GATEWISE_TEST_SOURCE_DIR) + "/tests/plan/golden/" + name,
                       std::ios::binary);
    std::stringstream golden;
    golden << file.rdbuf();
    if (made == golden.str()) return;
    const auto left = std::filesystem::temp_directory_path() / ("plan-" + name);
    std::ofstream(left, std::ios::binary) << made;
    ADD_FAILURE() << name << " differs; the plan that was made is in " << left << "\n" << made;
}

TEST_P(GoldenPlan, LegsAddUpToTheTotals) {
    constexpr double kRounding = 0.01; // miles; the totals are summed in single precision
    const Plan plan = planOf(kFlights[GetParam()]);
    double flown = 0;
    for (int i = 0; i <= plan.planLast; ++i) {
        const PlanPoint& point = plan.at(i);
        EXPECT_GE(point.pointLegDistance, 0) << i;
        flown += static_cast<double>(point.pointLegDistance);
        EXPECT_NEAR(point.pointTotalDistance, flown, kRounding) << i;
    }
    EXPECT_GT(flown, 0);
    EXPECT_NEAR(plan.totalDistance, flown, kRounding);
}

TEST_P(GoldenPlan, TimeNeverRunsBackwards) {
    const Plan plan = planOf(kFlights[GetParam()]);
    EXPECT_EQ(plan.at(0).pointMinutes, 0);
    for (int i = 1; i <= plan.planLast; ++i)
        EXPECT_GE(plan.at(i).pointMinutes, plan.at(i - 1).pointMinutes) << i;
    EXPECT_GT(plan.at(plan.planLast).pointMinutes, 0);
}

TEST_P(GoldenPlan, ClimbsCruisesAndDescends) {
    const Flight& flight = kFlights[GetParam()];
    const Plan plan = planOf(flight);
    const int climb = test::indexOf(plan, "*TOC*");
    const int descent = test::indexOf(plan, "*TOD*");
    ASSERT_LT(climb, descent);
    ASSERT_LT(descent, plan.planLast);
    EXPECT_LE(plan.peakAltitude, plan.ceilingAltitude);
    for (int i = 0; i <= plan.planLast; ++i) {
        const std::int32_t altitude = plan.at(i).pointAltitude;
        EXPECT_GE(altitude, i < descent ? flight.from.elevation : flight.to.elevation) << i;
        EXPECT_LE(altitude, plan.peakAltitude) << i;
        if (i >= climb && i <= descent) {
            EXPECT_EQ(altitude, plan.peakAltitude) << i;
        } else if (i > 0 && i < climb) {
            EXPECT_GE(altitude, plan.at(i - 1).pointAltitude) << i;
        } else if (i > descent) {
            EXPECT_LE(altitude, plan.at(i - 1).pointAltitude) << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Flights, GoldenPlan, testing::Range<std::size_t>(0, 5),
                         [](const auto& info) { return kFlights[info.param].name; });

} // namespace
} // namespace gatewise
