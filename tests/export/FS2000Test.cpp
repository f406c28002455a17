#include "ExportFlights.h"

#include "export/ExportFS2000.h"
#include "platform/Profile.h"

#include <gtest/gtest.h>

namespace gatewise::test {

namespace {

const PlanAirport kFrom = airportOf("KSEA", "Seattle", 47.5F, -122.5F, 429);
const PlanAirport kTo = airportOf("KLAX", "Los Angeles", 33.5F, -118.5F, 126);

PointRow point(const char* type, const char* id, std::int32_t altitude = 12000) {
    return {type, id, id, id, 40.0F, -120.0F, "113.40", "", altitude, 170};
}

class Written {
public:
    explicit Written(const Plan& plan, bool HaveAlternate = false)
        : profile_(fs2000Plan(plan, {"Gatewise Flight 1 SEA to LAX", HaveAlternate}, {})) {}
    [[nodiscard]] std::string key(const char* name) const {
        return profile_.find("flightplan", name).value_or("(no such key)");
    }

private:
    Profile profile_;
};

TEST(FS2000, WithoutAPointBetweenTheDestinationIsWaypointOne) {
    const Written written(planOf(kFrom, kTo, {}, 170));
    EXPECT_EQ(written.key("waypoint.0"), "KSEA, A, N47* 30.00', W122* 30.00', +000429.00,");
    EXPECT_EQ(written.key("waypoint.1"), "KLAX, A, N33* 30.00', W118* 30.00', +000126.00,");
    EXPECT_EQ(written.key("waypoint.2"), "(no such key)");
}

TEST(FS2000, ComputedPointsTakeNoNumber) {
    const Written with(planOf(kFrom, kTo,
                              {point("TC", "*TOC*"), point("V ", "OLM"), point("SU", "STEPC"),
                               point("SD", "STEPD"), point("I ", "JOBOE"), point("TD", "*TOD*")},
                              170));
    const Written without(planOf(kFrom, kTo, {point("V ", "OLM"), point("I ", "JOBOE")}, 170));
    for (const char* key : {"waypoint.0", "waypoint.1", "waypoint.2", "waypoint.3", "waypoint.4"}) {
        EXPECT_EQ(with.key(key), without.key(key));
    }
    EXPECT_TRUE(with.key("waypoint.3").starts_with("KLAX, A"));
}

TEST(FS2000, WithoutAnAlternateThereIsNoIdButAnEmptyName) {
    Plan plan = planOf(kFrom, kTo, {}, 170);
    plan.alternateAirport = airportOf("KONT", "Ontario", 34, -117, 944);
    EXPECT_EQ(Written(plan).key("alternate_id"), "(no such key)");
    EXPECT_EQ(Written(plan).key("alternate_name"), "");
    EXPECT_EQ(Written(plan, true).key("alternate_id"), "KONT, N34* 00.00', W117* 00.00', +000944.00");
    EXPECT_EQ(Written(plan, true).key("alternate_name"), "Ontario");
}

TEST(FS2000, APointAtAltitudeZeroKeepsBothPlusSigns) {
    const Written written(planOf(kFrom, kTo, {point("V ", "OLM", 0)}, 170));
    EXPECT_EQ(written.key("waypoint.1"), "OLM, V, N40* 00.00', W120* 00.00', ++000000.00,");
}

TEST(FS2000, ThirtyFiveThousandFeetHaveTwoPlusSigns) {
    const Written written(planOf(kFrom, kTo, {point("V ", "OLM", 35000)}, 170));
    EXPECT_NE(written.key("waypoint.1").find(", ++035000.00,"), std::string::npos);
}

TEST(FS2000, ABlankTypeKeepsTheKindWordOfThePointBefore) {
    const Written written(
        planOf(kFrom, kTo,
               {point("  ", "ONE"), point("HN", "TWO"), point("TC", "*TOC*"), point("  ", "THREE")}, 170));
    EXPECT_TRUE(written.key("waypoint.1").starts_with("ONE, , "));
    EXPECT_TRUE(written.key("waypoint.2").starts_with("TWO, N+LOCWAY, "));
    EXPECT_TRUE(written.key("waypoint.3").starts_with("THREE, N+LOCWAY, "));
}

TEST(FS2000, EveryTypeHasItsKindWord) {
    const Written written(planOf(kFrom, kTo,
                                 {point("HI", "A"), point("HV", "B"), point("HN", "C"), point("I ", "D"),
                                  point("V ", "E"), point("N ", "F")},
                                 170));
    const char* words[] = {"I+LOCWAY", "V+LOCWAY", "N+LOCWAY", "I", "V", "N"};
    for (int i = 0; i < 6; ++i) {
        const std::string start = std::string(1, static_cast<char>('A' + i)) + ", " + words[i] + ", ";
        EXPECT_TRUE(written.key(("waypoint." + std::to_string(i + 1)).c_str()).starts_with(start)) << start;
    }
}

TEST(FS2000, TheAirwayStaysUntrimmed) {
    PointRow row = point("I ", "JOBOE");
    row.airway = "J5";
    const std::string text = fs2000Plan(planOf(kFrom, kTo, {row}, 170), {"", false}, {});
    EXPECT_NE(text.find("++012000.00,J5   \r\n"), std::string::npos);
}

} // namespace

} // namespace gatewise::test
