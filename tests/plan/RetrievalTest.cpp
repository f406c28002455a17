#include "plan/GetFlightPlan.h"

#include "PlanWorld.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

using test::entry;
using test::FileWorld;
using test::indexOf;
using test::namesOf;

const PlanPoint& named(const Plan& plan, std::string_view name) {
    const int i = indexOf(plan, name);
    EXPECT_LE(i, plan.planLast) << name;
    return plan.at(i);
}

TEST(PlanFiles, PlansAndAirportsBelongToTheDataSet) {
    const PlanFiles files = planFiles("C:\\Gatewise", "\\Data\\Summer");
    EXPECT_EQ(files.Plans, "C:\\Gatewise\\Data\\Summer\\Plans.gt1");
    EXPECT_EQ(files.APT, "C:\\Gatewise\\Data\\Summer\\APT.gt1");
    EXPECT_EQ(files.VOR, "C:\\Gatewise\\Data\\VOR.gt1");
    EXPECT_EQ(files.NDB, "C:\\Gatewise\\Data\\NDB.gt1");
    EXPECT_EQ(files.ISC, "C:\\Gatewise\\Data\\ISC.gt1");
    EXPECT_EQ(files.JRT, "C:\\Gatewise\\Data\\JRT.gt1");
}

TEST(Retrieval, EveryKindOfEntryFillsItsPoint) {
    FileWorld world;
    world.writeNavaids();
    world.writePlans(
        {{}, {entry("V", 1, "J1"), entry("N", 1), entry("I", 1, "V23"), entry("H", 1, "UA567")}});
    const Plan& plan = world.load(2);

    const PlanPoint& vor = named(plan, "BBB");
    EXPECT_EQ(vor.pointId, FixedText<7>("BBB"));
    EXPECT_EQ(vor.pointDescription.trimmed(), "Second Vor");
    EXPECT_EQ(vor.pointType.view(), "V ");
    EXPECT_EQ(vor.pointFrequency.view(), "114.9 ");
    EXPECT_EQ(vor.pointAirway.view(), "J1   ");
    EXPECT_EQ(vor.pointLatitude, 40.5F);
    EXPECT_EQ(vor.pointLongitude, -96);

    const PlanPoint& ndb = named(plan, "NB");
    EXPECT_EQ(ndb.pointType.view(), "N ");
    EXPECT_EQ(ndb.pointDescription.trimmed(), "Second Ndb");
    EXPECT_EQ(ndb.pointFrequency.view(), "245   ");
    EXPECT_EQ(ndb.pointAirway.view(), "     ");

    const PlanPoint& fix = named(plan, "FIXTW");
    EXPECT_EQ(fix.pointId.view(), "FIXTW2 ");
    EXPECT_EQ(fix.pointDescription.trimmed(), "Intersection - FIXTW");
    EXPECT_EQ(fix.pointType.view(), "I ");
    EXPECT_EQ(fix.pointFrequency.view(), "      ");

    const PlanPoint& jet = named(plan, "JONE");
    EXPECT_EQ(jet.pointId.view(), "JETONE1");
    EXPECT_EQ(jet.pointDescription.trimmed(), "First Jet");
    EXPECT_EQ(jet.pointType.view(), "HV");
    EXPECT_EQ(jet.pointFrequency.view(), "115.00");
    EXPECT_EQ(jet.pointAirway.view(), "UA567");
}

TEST(Retrieval, JetRecordsCountFromOneAndTheOthersFromZero) {
    FileWorld world;
    world.writeNavaids();
    world.writePlans({{entry("V", 0), entry("H", 1)}});
    const Plan& plan = world.load(1);
    EXPECT_EQ(named(plan, "AAA").pointDescription.trimmed(), "First Vor");
    EXPECT_EQ(named(plan, "JONE").pointDescription.trimmed(), "First Jet");
}

TEST(Retrieval, WhatStandsAtAJetFixIsItsType) {
    FileWorld world;
    world.writeNavaids();
    world.writePlans({{entry("H", 2), entry("H", 3), entry("H", 4)}});
    const Plan& plan = world.load(1);
    EXPECT_EQ(named(plan, "JTWO").pointType.view(), "  ");
    EXPECT_EQ(named(plan, "JTRE").pointType.view(), "HN");
    EXPECT_EQ(named(plan, "JFOR").pointType.view(), "HI");
}

TEST(Retrieval, ComputedPointsHaveAFrequencyOfZeros) {
    FileWorld world;
    world.writeNavaids();
    world.writePlans({{entry("I", 0)}});
    const Plan& plan = world.load(1);
    EXPECT_EQ(named(plan, "*TOC*").pointFrequency.view(), "000.00");
    EXPECT_EQ(named(plan, "*TOD*").pointFrequency.view(), "000.00");
    EXPECT_EQ(named(plan, "FIXON").pointFrequency.view(), "      ");
}

TEST(Retrieval, NoEntriesMakeADirectFlight) {
    FileWorld world;
    world.writePlans({{}});
    const Plan& plan = world.load(1);
    // At a level of 37,000 a step at 20,000, 30,000, 35,000 and 27,000 each joins the two top points.
    EXPECT_EQ(namesOf(plan), (std::vector<std::string>{"KDEP", "STEPC", "STEPC", "*TOC*", "*TOD*", "STEPD",
                                                       "STEPD", "KDST"}));
    world.type().ClimbRate = 0; // no profile: the route as filed
    EXPECT_EQ(world.load(1).planLast, 1);
}

TEST(Retrieval, UnknownKindsLeaveTheirPointEmpty) {
    FileWorld world;
    world.writeNavaids();
    world.writePlans({{entry("V", 0, "J1"), entry("X", 1, "J2"), entry("v", 1, "J3")}});
    world.type().ClimbRate = 0; // no profile, so that the table is as filed
    const Plan& plan = world.load(1);
    ASSERT_EQ(plan.planLast, 4);
    for (const int i : {2, 3}) {
        EXPECT_EQ(plan.at(i).pointName.trimmed(), "");
        EXPECT_EQ(plan.at(i).pointAirway.trimmed(), "");
        EXPECT_EQ(plan.at(i).pointFrequency.view(), "000.00");
        EXPECT_EQ(plan.at(i).pointLatitude, 0);
    }
}

TEST(Retrieval, RecordsPastTheEndOfAFileLeaveTheirPointEmpty) {
    FileWorld world;
    world.writeNavaids();
    world.writePlans({{entry("V", 2), entry("V", -1), entry("H", 0), entry("H", 5), entry("I", 2147483647),
                       entry("N", -2147483647 - 1), entry("V", 1)}});
    world.type().ClimbRate = 0;
    const Plan& plan = world.load(1);
    ASSERT_EQ(plan.planLast, 8);
    for (int i = 1; i <= 6; ++i) EXPECT_EQ(plan.at(i).pointName.trimmed(), "") << i;
    EXPECT_EQ(plan.at(7).pointName.trimmed(), "BBB");
}

TEST(Retrieval, MissingFilesLeaveADirectFlight) {
    FileWorld world;
    const Plan& plan = world.load(1);
    EXPECT_EQ(plan.at(0).pointName.trimmed(), "KDEP");
    EXPECT_EQ(plan.at(plan.planLast).pointName.trimmed(), "KDST");
    EXPECT_GT(plan.totalDistance, 900);
    EXPECT_EQ(plan.routeString.substr(0, 5), "KDEP.");
}

TEST(Retrieval, PlanNumbersOutsideTheIndexLeaveADirectFlight) {
    FileWorld world;
    world.writeNavaids();
    world.writePlans({{entry("V", 0)}});
    for (const std::int32_t number : {0, -1, 50, 2147483647, -2147483647 - 1}) {
        const Plan& plan = world.load(number);
        EXPECT_EQ(indexOf(plan, "AAA"), plan.planLast + 1) << number;
        EXPECT_EQ(plan.at(plan.planLast).pointName.trimmed(), "KDST") << number;
    }
}

TEST(Retrieval, PositionsAndCountsFromADamagedIndexAreHarmless) {
    FileWorld world;
    world.writeNavaids();
    for (const std::int32_t position : {0, -7, 3, 4, 2147483647}) {
        Bytes bytes;
        appendField(bytes, position);
        world.folder.write("/Data/Plans.gt1", bytes);
        EXPECT_EQ(world.load(1).at(world.plan.planLast).pointName.trimmed(), "KDST") << position;
    }
    Bytes negative;
    appendField(negative, std::int32_t{5});
    appendField(negative, std::int16_t{-3});
    world.folder.write("/Data/Plans.gt1", negative);
    world.type().ClimbRate = 0;
    EXPECT_EQ(world.load(1).planLast, 1);
}

TEST(Retrieval, ACutRouteKeepsItsCountAndFillsWhatIsThere) {
    FileWorld world;
    world.writeNavaids();
    world.type().ClimbRate = 0;
    Bytes bytes = FileWorld::plansBytes({{entry("V", 0), entry("V", 1), entry("N", 0)}});
    bytes.resize(bytes.size() - 11); // into the second entry
    world.folder.write("/Data/Plans.gt1", bytes);
    const Plan& plan = world.load(1);
    EXPECT_EQ(namesOf(plan), (std::vector<std::string>{"KDEP", "AAA", "", "", "KDST"}));
}

TEST(Retrieval, MoreThan198EntriesEndAtTheTablesEnd) {
    FileWorld world;
    world.writeNavaids();
    world.writePlans({std::vector<RouteEntry>(198, entry("V", 0)),
                      std::vector<RouteEntry>(199, entry("V", 0)),
                      std::vector<RouteEntry>(32767, entry("V", 1))});
    for (const std::int32_t number : {1, 2, 3}) {
        const Plan& plan = world.load(number);
        ASSERT_EQ(plan.planLast, 199);
        EXPECT_EQ(plan.at(199).pointName.trimmed(), "KDST");
        EXPECT_EQ(plan.at(198).pointName.trimmed(), number == 3 ? "BBB" : "AAA");
        EXPECT_EQ(indexOf(plan, "*TOC*"), 200); // no room for the top points
    }
}

TEST(Retrieval, TopPointsTakeTheLastTwoSlots) {
    FileWorld world;
    world.writeNavaids();
    world.type().CruiseAltitude = 19000; // no steps
    world.writePlans(
        {std::vector<RouteEntry>(196, entry("V", 0)), std::vector<RouteEntry>(197, entry("V", 0))});
    EXPECT_EQ(world.load(1).planLast, 199);
    EXPECT_LE(indexOf(world.plan, "*TOD*"), 199);
    EXPECT_EQ(world.load(2).planLast, 198);
    EXPECT_EQ(indexOf(world.plan, "*TOD*"), 199);
}

TEST(Retrieval, TheKeyOfAPointWithoutNavaidStaysFromTheFlightBefore) {
    FileWorld world;
    world.writeNavaids();
    world.type().ClimbRate = 0;
    world.writePlans({{}, {entry("V", 1), entry("V", 0)}});
    EXPECT_EQ(world.load(1).at(1).pointId.view(), "       ");
    world.load(2);
    EXPECT_EQ(world.load(1).at(1).pointId.view(), "BBB    ");
    EXPECT_EQ(world.plan.at(1).pointName.trimmed(), "KDST");
    EXPECT_EQ(world.plan.at(2).pointName.trimmed(), "");
}

TEST(Retrieval, ANewFlightLeavesNothingElseOfTheOneBefore) {
    FileWorld world;
    world.writeNavaids();
    world.writePlans({{entry("V", 0), entry("I", 0)}, {entry("N", 0)}});
    const Plan first = world.load(1);
    world.load(2);
    const Plan again = world.load(1);
    ASSERT_EQ(again.planLast, first.planLast);
    for (int i = 0; i < kPlanPoints; ++i) {
        EXPECT_EQ(again.at(i).pointName, first.at(i).pointName) << i;
        EXPECT_EQ(again.at(i).pointMinutes, first.at(i).pointMinutes) << i;
        EXPECT_EQ(again.at(i).pointTotalDistance, first.at(i).pointTotalDistance) << i;
        EXPECT_EQ(again.at(i).pointAltitude, first.at(i).pointAltitude) << i;
    }
    EXPECT_EQ(again.routeString, first.routeString);
    EXPECT_EQ(again.totalTime, first.totalTime);
}

TEST(Retrieval, TheFirstAirportOfACodeIsTheOne) {
    FileWorld world;
    world.tables.airports.insert(world.tables.airports.begin() + 2,
                                 test::airport("DST", "KTWO", "Second Of The Code", "Arrive", 10, 10));
    EXPECT_EQ(world.load(1).destinationAirport.Icao.view(), "KDST");
}

TEST(Retrieval, TheAlternateIsCopiedOnlyWhenThereIsOne) {
    FileWorld world;
    PlanInput input = world.input();
    input.files = world.files;
    input.AlternateIndex = 2;
    loadFlightPlan(world.plan, 1, input);
    EXPECT_EQ(world.plan.alternateAirport.Icao.trimmed(), "");
    input.HaveAlternate = true;
    loadFlightPlan(world.plan, 1, input);
    EXPECT_EQ(world.plan.alternateAirport.Icao.view(), "KALT");
    input.AlternateIndex = 99999;
    loadFlightPlan(world.plan, 1, input);
    EXPECT_EQ(world.plan.alternateAirport.Icao.trimmed(), "");
}

TEST(Retrieval, SummaryOfTheWholeRoute) {
    FileWorld world;
    world.departure().Elevation = 433;
    world.writePlans({{}});
    const Plan& plan = world.load(1);
    EXPECT_EQ(plan.flightRules.view(), "IFR");
    EXPECT_EQ(plan.climbDivisor, 1.2F);
    EXPECT_EQ(plan.descentDivisor, 1.2F);
    EXPECT_EQ(plan.totalDistance, plan.at(plan.planLast).pointTotalDistance);
    EXPECT_EQ(plan.peakAltitude, 37000);
    EXPECT_EQ(plan.cruiseAltitude, 37000);
    EXPECT_NEAR(plan.directCourse, 83.5, 0.5); // due east along a parallel starts north of east
    for (int i = 1; i <= plan.planLast; ++i) {
        EXPECT_GE(plan.at(i).pointHeading, 0) << i;
        EXPECT_LT(plan.at(i).pointHeading, 360) << i;
        EXPECT_GE(plan.at(i).pointMinutes, plan.at(i - 1).pointMinutes) << i;
    }
    const std::int32_t minutes = plan.at(plan.planLast).pointMinutes;
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d", minutes / 60, minutes % 60);
    EXPECT_EQ(plan.totalTime.view(), text);
}

TEST(Facilities, RunwaysAndRadiosOfTheAirports) {
    FileWorld world;
    Bytes bytes;
    const auto runway = [&](std::string_view id) {
        RunwayRecord record;
        record.runwayId = id;
        record.ilsId = std::string_view("NO ILS ");
        record.runwayHeading = 160;
        appendRecord(bytes, record);
    };
    const auto radio = [&](std::string_view tower) {
        RadioRecord record;
        record.towerFreq = tower;
        appendRecord(bytes, record);
    };
    world.departure().RunwayCount = 2;
    world.departure().RunwayOffset = 1;
    runway("16L"), runway("34R"), radio("119.90");
    world.destination().RunwayCount = 1;
    world.destination().RunwayOffset = static_cast<std::int32_t>(bytes.size() + 1);
    runway("09"), radio("118.30");
    world.tables.airports[2].RunwayOffset = static_cast<std::int32_t>(bytes.size() + 1);
    radio("121.10"); // a field without runways
    world.folder.write("/Data/APT.gt1", bytes);

    PlanInput input = world.input();
    input.files = world.files;
    input.AlternateIndex = 2;
    loadFlightPlan(world.plan, 1, input);
    ASSERT_EQ(world.plan.departureAirport.runways.size(), 2U);
    EXPECT_EQ(world.plan.departureAirport.runways[1].runwayId.view(), "34R  ");
    EXPECT_EQ(world.plan.departureAirport.radio.towerFreq.view(), "119.90");
    ASSERT_EQ(world.plan.destinationAirport.runways.size(), 1U);
    EXPECT_EQ(world.plan.destinationAirport.runways[0].runwayHeading, 160);
    EXPECT_EQ(world.plan.destinationAirport.radio.towerFreq.view(), "118.30");
    EXPECT_EQ(world.plan.alternateAirport.radio.towerFreq.trimmed(), "");

    input.HaveAlternate = true;
    loadFlightPlan(world.plan, 1, input);
    EXPECT_TRUE(world.plan.alternateAirport.runways.empty());
    EXPECT_EQ(world.plan.alternateAirport.radio.towerFreq.view(), "121.10");
    EXPECT_EQ(world.plan.departureAirport.runways.size(), 2U); // emptied first, not added to

    // Without an alternate its runways go; its radio stays what was read last.
    world.plan.alternateAirport.runways.resize(1);
    input.HaveAlternate = false;
    loadFlightPlan(world.plan, 1, input);
    EXPECT_TRUE(world.plan.alternateAirport.runways.empty());
    EXPECT_EQ(world.plan.alternateAirport.radio.towerFreq.view(), "121.10");
    input.HaveAlternate = true;

    // An airport without a block has neither runways nor radios, however many runways its record counts.
    world.plan.departureAirport.RunwayOffset = 0;
    world.plan.departureAirport.radio = {};
    loadAirportFacilities(world.plan, input);
    EXPECT_TRUE(world.plan.departureAirport.runways.empty());
    EXPECT_EQ(world.plan.departureAirport.radio.towerFreq.trimmed(), "");
    world.plan.departureAirport.RunwayOffset = 1;

    bytes.resize(34 + 10); // the second runway is cut
    world.folder.write("/Data/APT.gt1", bytes);
    loadAirportFacilities(world.plan, input);
    EXPECT_EQ(world.plan.departureAirport.runways.size(), 1U);
    EXPECT_EQ(world.plan.departureAirport.radio.towerFreq.trimmed(), "");
    EXPECT_TRUE(world.plan.destinationAirport.runways.empty());

    world.plan.departureAirport.RunwayCount = -5;
    world.plan.destinationAirport.RunwayCount = 2147483647;
    world.plan.alternateAirport.RunwayOffset = -2147483647;
    loadAirportFacilities(world.plan, input);
    EXPECT_TRUE(world.plan.departureAirport.runways.empty());
}

} // namespace
} // namespace gatewise
