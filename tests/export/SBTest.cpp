#include "ExportFlights.h"

#include "export/ExportSB.h"

#include <gtest/gtest.h>
#include <sstream>

namespace gatewise::test {

namespace {

const PlanAirport kFrom = airportOf("KLAX", "Los Angeles", 33.9425F, -118.408F, 126);
const PlanAirport kTo = airportOf("KJFK", "Kennedy", 40.64F, -73.78F, 13);

PointRow point(const char* type, std::int32_t altitude) {
    return {type, "ABC", "ABC", "ALPHA", 33.9425F, -118.408F, "113.40", "", altitude, 71};
}

std::vector<std::string> linesOf(const std::vector<PointRow>& rows, std::int32_t peak = 35000,
                                 const MagneticTable& magnetic = {}) {
    Plan plan = planOf(kFrom, kTo, rows, 93.5F);
    plan.peakAltitude = peak;
    plan.speedSchedule = {240, 301, 302, 303, 304, 305, 236};
    std::istringstream text(squawkBoxPlan(plan, magnetic, {}));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        EXPECT_TRUE(line.ends_with('\r'));
        lines.push_back(line.substr(0, line.size() - 1));
    }
    return lines;
}

std::string field(const std::string& line, int n) {
    std::istringstream text(line);
    std::string part;
    for (int i = 0; i < n; ++i) std::getline(text, part, ':');
    return part;
}

TEST(SB, ALineReadsLikeThis) {
    EXPECT_EQ(linesOf({point("TC", 5000), point("V ", 5000), point("TD", 12000)})[2],
              "V:ABC:33.942500:-118.408000:240:05000:12000:071");
}

TEST(SB, TheLastFixGoesDownToTheDestinationsElevation) {
    const auto lines = linesOf({point("TC", 5000), point("TD", 5000), point("I ", 3000)});
    EXPECT_EQ(lines[3], "I:ABC:33.942500:-118.408000:236:03000:00013:094");
}

TEST(SB, TheDestinationsElevationIsNotTheAltitudeOfItsRow) {
    Plan plan = planOf(kFrom, kTo, {point("V ", 3000)}, 93.5F);
    plan.at(plan.planLast).pointAltitude = 2500;
    const std::string text = squawkBoxPlan(plan, {}, {});
    EXPECT_EQ(field(text.substr(text.find("V:")), 7), "00013");
}

TEST(SB, TopsAreWrittenWithAnX) {
    const auto lines = linesOf({point("TC", 5000), point("TD", 5000)});
    EXPECT_EQ(field(lines[1], 1), "X");
    EXPECT_EQ(field(lines[2], 1), "X");
}

TEST(SB, TenThousandFeetIsTheFirstColumnTwentyFiveThousandTheSecond) {
    const auto lines = linesOf(
        {point("V ", 10000), point("V ", 10001), point("V ", 25000), point("V ", 25001), point("TC", 10000),
         point("TC", 25000), point("V ", 10000), point("V ", 10001), point("V ", 25001), point("TD", 25001),
         point("V ", 25001), point("V ", 25000), point("V ", 10001), point("V ", 10000)});
    // The last top of climb counts, so the first of the two is still climbing.
    const char* speeds[] = {"240", "301", "301", "302", "240", "301", "240",
                            "301", "303", "303", "304", "305", "305", "236"};
    for (std::size_t i = 0; i < std::size(speeds); ++i) EXPECT_EQ(field(lines[i + 1], 5), speeds[i]) << i;
}

TEST(SB, WithoutATopOfDescentEveryRowDescends) {
    const auto lines = linesOf({point("V ", 9000), point("TC", 30000), point("V ", 30000)});
    EXPECT_EQ(field(lines[1], 5), "236");
    EXPECT_EQ(field(lines[2], 5), "304");
    EXPECT_EQ(field(lines[3], 5), "304");
}

TEST(SB, WithoutATopOfClimbTheFirstRowsCruise) {
    const auto lines = linesOf({point("V ", 30000), point("TD", 30000), point("V ", 30000)});
    EXPECT_EQ(field(lines[1], 5), "303");
    EXPECT_EQ(field(lines[3], 5), "304");
}

TEST(SB, StepPointsWriteNoLineButAreTheNextAltitude) {
    const auto lines =
        linesOf({point("V ", 33000), point("SU", 35000), point("V ", 36000), point("  ", 37000)});
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(field(lines[1], 7), "35000");
    EXPECT_EQ(field(lines[2], 7), "37000");
}

TEST(SB, TheAirportsHaveNoLines) {
    EXPECT_EQ(linesOf({}), (std::vector<std::string>{"KLAX:KJFK:512"})); // 303 x 1.6888
}

TEST(SB, TheHeaderTakesItsSpeedFromThePeak) {
    EXPECT_EQ(field(linesOf({}, 25000)[0], 3), "430"); // 301 x 1.428
    EXPECT_EQ(field(linesOf({}, 25001)[0], 3), "433"); // 303 x 1.428
    EXPECT_EQ(field(linesOf({}, 10000)[0], 3), "272"); // 240 x 1.1328
    EXPECT_EQ(field(linesOf({}, 10001)[0], 3), "341"); // 301 x 1.1328
}

TEST(SB, CoursesAreMagneticAtTheFixThatTheLegLeaves) {
    EXPECT_EQ(field(linesOf({point("V ", 9000)}, 9000, exportMagnetic())[1], 8), "088");
}

} // namespace

} // namespace gatewise::test
