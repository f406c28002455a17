#include "AllFormats.h"
#include "Plans.h"
#include "XmlTree.h"

#include "platform/Files.h"
#include "programs/Xml.h"

#include <array>
#include <gtest/gtest.h>
#include <set>

namespace gatewise::test {
namespace {

using programs::Format;
using programs::formats;

Plan planNamed(const std::string& name) {
    return name == "mixed" ? mixedPlan() : name == "pacific" ? pacificPlan() : directPlan();
}

std::string golden(const std::string& name) {
    const auto bytes =
        files::readAll(std::string(GATEWISE_TEST_SOURCE_DIR) + "/tests/programs/golden/" + name);
    return bytes ? std::string(bytes->begin(), bytes->end()) : "(no such file)";
}

/// Of a format and a plan: "mixed.fms", "mixed MSFS 2020.pln".
std::string goldenName(const Format& format, const std::string& plan) {
    return plan + format.tail + format.extension;
}

class EveryPlan : public testing::TestWithParam<std::string> {};

TEST_P(EveryPlan, IsWrittenAsReviewed) {
    for (const Format& format : formats())
        EXPECT_EQ(format.write(routeOfPlan(planNamed(GetParam()), format.takesComputed)),
                  golden(goldenName(format, GetParam())))
            << format.name;
}

TEST_P(EveryPlan, IsReadBackByEveryFormat) {
    for (const bool computed : {false, true}) {
        const auto route = routeOfPlan(planNamed(GetParam()), computed);
        for (const Format& format : formats()) {
            if (computed && !format.takesComputed) continue;
            EXPECT_EQ(faultsOf(format, format.write(route), route), "");
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Plans, EveryPlan, testing::Values("mixed", "pacific", "direct"),
                         [](const auto& plan) { return plan.param; });

/// Formats that have room for regions write them where they are known, the others the same bytes as ever.
TEST(Writers, RegionsStandWhereAFormatHasRoom) {
    for (const Format& format : formats()) {
        const auto route = routeOfPlan(mixedPlan(), format.takesComputed, mixedRegions());
        const std::string bytes = format.write(route);
        const std::string name = testOf(format).regions ? "regions" : "mixed";
        EXPECT_EQ(bytes, golden(goldenName(format, name))) << format.name;
        EXPECT_EQ(faultsOf(format, bytes, route), "");
    }
}

TEST(Writers, FileNamesDiffer) {
    std::set<std::string> names;
    std::set<std::string> keys;
    for (const Format& format : formats()) {
        EXPECT_TRUE(names.insert(std::string(format.tail) + format.extension).second) << format.name;
        EXPECT_TRUE(keys.insert(format.key).second) << format.name;
    }
}

TEST(Writers, SecondsNeverComeToSixty) {
    Plan plan = directPlan();
    plan.departureAirport.Latitude = 53.9999999F; // 59 minutes 59.99... seconds
    plan.departureAirport.Longitude = -0.016666F; // 59.9976 seconds
    plan.destinationAirport.Longitude = 179.999999F;
    const auto route = routeOfPlan(plan);
    for (const char* key : {"FSX", "MSFS2020"}) {
        const std::string bytes = formatOf(key).write(route);
        EXPECT_EQ(faultsOf(formatOf(key), bytes, route), "");
        EXPECT_EQ(bytes.find("60.00"), std::string::npos);
        EXPECT_NE(bytes.find("N54\xC2\xB0 0' 0.00\",W0\xC2\xB0 1' 0.00\""), std::string::npos) << bytes;
    }
}

TEST(Writers, RouteTextIsItem15) {
    EXPECT_EQ(formatOf("RouteText").write(routeOfPlan(mixedPlan())),
              "N0434F350 ATL J8 ICBOD Q9 FAGAN Q9 GNV J55 ORL DCT 2730N08100W V3 2700N08045W\n");
    Plan plan =
        planOf(airportOf("KATL", "", 33, -84, 0), airportOf("KMIA", "", 25, -80, 0),
               {{"HI", "LLAKE", "", 27.35F, -81.3F, "", 0}, {"HV", "DHP", "", 25.8F, -80.3F, "J55", 0}});
    plan.speedSchedule[3] = 266.6;
    EXPECT_EQ(formatOf("RouteText").write(routeOfPlan(plan)), "N0450F350 LLAKE J55 DHP\n");
    EXPECT_EQ(formatOf("RouteText").write(routeOfPlan(directPlan())), "N0434F350 DCT\n");
}

/// A reader that took everything would prove nothing.
TEST(Readers, TakeNoFileThatIsWrong) {
    const struct {
        const char *key, *from, *to;
    } kFaults[] = {
        {"XPlane", "NUMENR 12", "NUMENR 11"},
        {"XPlane", " DRCT ", "  J1-J2 "},
        {"XPlane", "CYCLE 0206\n", ""},
        {"XPlane", "33.636700", "33.6367"},
        {"XPlane", "11 FAGAN Q9", "28 FAGAN Q9"},
        {"FSX", "<ATCAirway>Q9</ATCAirway>", "<ATCAirway>J90</ATCAirway>"},
        {"FSX", "1,0", "1.0"},
        {"FSX", "<Title>", "<!-- --><FPType>IFR</FPType><Title>"},
        {"MSFS2020", "+001026.00", "+1026.00"},
        {"MSFS2020", ">11<", ">10<"},
        {"MSFS2024", "<ATCWaypoint>", "<ATCWaypoint id=\"X\">"},
        {"FlightGear", "<version type=\"int\">2", "<version type=\"int\">1"},
        {"FlightGear", "n=\"1\"", "n=\"2\""},
        {"LittleNavmap", "<FileVersion>1.2</FileVersion>", ""},
        {"LittleNavmap", "Alt=\"1026.00\"", "Alt=\"1026\""},
        {"Garmin", "<waypoint-identifier>ORL<", "<waypoint-identifier>ORK<"},
        {"Garmin", "05:00Z", "05:00+00:00"},
        {"Garmin", "<flight-plan-index>1<", "<flight-plan-index>99<"},
        {"FSX", "<ICAOIdent>ATL", "<ICAORegion>K</ICAORegion><ICAOIdent>ATL"},
        {"MSFS2024", "<ICAOIdent>WP1", "<ICAORegion>K7</ICAORegion><ICAOIdent>WP1"},
        {"LittleNavmap", "<Airway>J8", "<Region>K7</Region><Airway>J8"},
        {"Garmin", "<waypoint-country-code></waypoint-country-code>",
         "<waypoint-country-code>K7</waypoint-country-code>"},
        {"GPX", "lon=\"-84.4281\"", "lon=\"-184.4281\""},
        {"GPX", "<name>ORL</name>", "<name>ORL</name><ele>1</ele>"},
        {"KML", "<altitudeMode>", "<altitudeMode>x"},
        {"KML", "-81.335,28.5427", "-81.335,28.5428"},
        {"GeoJSON", "\"airway\": \"Q9\"", "\"airway\": \"Q8\""},
        {"GeoJSON", "\n  ]", ",\n  ]"},
        {"RouteText", "N0434", "N434"},
        {"RouteText", " DCT", ""},
    };
    for (const auto& fault : kFaults) {
        const Format& format = formatOf(fault.key);
        const auto route = routeOfPlan(mixedPlan(), format.takesComputed);
        std::string bytes = format.write(route);
        const auto at = bytes.find(fault.from);
        ASSERT_NE(at, std::string::npos) << fault.key << " " << fault.from;
        bytes.replace(at, std::string(fault.from).size(), fault.to);
        EXPECT_NE(faultsOf(format, bytes, route), "") << fault.key << " " << fault.to;
    }
}

TEST(Xml, EscapesWhatItMust) {
    programs::Xml xml;
    xml.open("a", {{"b", "<\"&'>"}});
    xml.leaf("c", "<\"&'>\n\x01 \xE9");
    EXPECT_EQ(xml.take(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a b=\"&lt;&quot;&amp;'&gt;\">\n"
                          "    <c>&lt;\"&amp;'&gt; \xC3\xA9</c>\n</a>\n");
}

/// A plan of this many points on one airway.
Plan longPlan(int points) {
    std::vector<std::string> names;
    for (int i = 0; i < points; ++i) names.push_back("F" + std::to_string(1000 + i));
    std::vector<PointRow> rows;
    for (int i = 0; i < points; ++i)
        rows.push_back({"HI", names[static_cast<std::size_t>(i)].c_str(), "Intersection",
                        10 + 0.31F * static_cast<float>(i), -120 + 0.7F * static_cast<float>(i), "J80",
                        33000});
    return planOf(airportOf("KATL", "", 33, -84, 0), airportOf("KMIA", "", 25, -80, 0), rows);
}

// The bench measures the time; here each point must add its share and no more.
TEST(Writers, AHundredPointsAddALikeShareEach) {
    for (const Format& format : formats()) {
        std::array<std::size_t, 3> sizes{};
        for (std::size_t i = 0; i < sizes.size(); ++i)
            sizes.at(i) = format.write(routeOfPlan(longPlan(30 + 35 * static_cast<int>(i)))).size();
        EXPECT_GT(sizes[1], sizes[0]) << format.name;
        const double first = static_cast<double>(sizes[1] - sizes[0]);
        EXPECT_NEAR(static_cast<double>(sizes[2] - sizes[1]) / first, 1, 0.1) << format.name;
    }
}

} // namespace
} // namespace gatewise::test
