#include "FlightWorld.h"

#include <cmath>
#include <gtest/gtest.h>

namespace gatewise {
namespace {

using namespace test;

std::vector<std::string> namesOf(const std::vector<ProfileValue>& keys) {
    std::vector<std::string> out;
    for (const auto& entry : keys) out.push_back(entry.section + "/" + entry.key);
    return out;
}

StartTime timeOf(const FlightWorld& w, std::string_view choice, int pointIndex = 0) {
    return startTime(w.input(choice, pointIndex));
}

TEST(Situation, KeysOfAGroundStartInTheOrderOfWriting) {
    const FlightWorld w;
    const std::vector<std::string> expected = {"Main/Title",
                                               "Main/Description",
                                               "Tower/Latitude",
                                               "Tower/Longitude",
                                               "Tower/Altitude",
                                               "Plane/Aircraft",
                                               "Plane/Latitude",
                                               "Plane/Longitude",
                                               "Plane/Altitude",
                                               "Plane/Heading",
                                               "DateTimeSeason/Hours",
                                               "DateTimeSeason/Minutes",
                                               "GPS_Engine/Filename",
                                               "GPS_Engine/Position",
                                               "GPS_Engine/Time",
                                               "GPS_Engine/TimeWP",
                                               "GPS_Engine/ArriveTime",
                                               "GPS_Engine/CountWP",
                                               "GPS_Engine/NextWP",
                                               "GPS_Engine/PlaneStarted",
                                               "GPS_Engine/WpInfo0",
                                               "GPS_Engine/WpInfo1",
                                               "GPS_Engine/WpInfo2",
                                               "GPS_Engine/WpInfo3",
                                               "GPS_Engine/WpInfo4",
                                               "GPS_Engine/CountWP",
                                               "GPS_Engine/CountFP",
                                               "GPS_Engine/FP0",
                                               "Fuel/TankSelector",
                                               "Fuel/Center",
                                               "Fuel/LeftMain",
                                               "Fuel/RightMain",
                                               "Fuel/LeftAux",
                                               "Fuel/RightAux",
                                               "Fuel/LeftTip",
                                               "Fuel/RightTip",
                                               "Fuel/Center 2",
                                               "Fuel/Center 3",
                                               "Fuel/External 1",
                                               "Fuel/External 2"};
    EXPECT_EQ(namesOf(w.keys(kDefaultStart)), expected);
}

TEST(Situation, AnInflightStartAddsItsKeysBetweenFlightPlanAndFuel) {
    const auto names = namesOf(FlightWorld().keys(kInflight, 3));
    const auto at = [&](const char* name, int nth = 0) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (names[i] == name && nth-- == 0) return static_cast<int>(i);
        }
        return -1;
    };
    const int second = at("GPS_Engine/NextWP", 1);
    ASSERT_GT(second, 0);
    EXPECT_EQ(at("GPS_Engine/CountWP", 1), second - 1);
    EXPECT_EQ(at("SimVars/SimOnGround"), second + 1);
    EXPECT_EQ(at("GPS_Engine/CountFP"), second + 2);
    EXPECT_EQ(at("Options/Pause"), at("GPS_Engine/FP0") + 1);
    EXPECT_EQ(at("SimVars/Pitch"), at("AutoPilot/AutoThrottleArm") + 1);
    EXPECT_EQ(at("Fuel/TankSelector"), at("System/AvionicsSwitch") + 1);
}

TEST(Situation, TitleDescriptionAndFileName) {
    const auto keys = FlightWorld().keys(kDefaultStart);
    EXPECT_EQ(written(keys, "Main", "Title"), "Vantis Air Flight 123 ATL to JFK");
    EXPECT_EQ(written(keys, "GPS_Engine", "Filename"), "Vantis Air Flight 123 ATL to JFK");
    EXPECT_EQ(written(keys, "Main", "Description"), "Gatewise Terminal Generated flight from KATL to KJFK");
}

TEST(Situation, TheTowerStandsAboveTheField) {
    FlightWorld w;
    EXPECT_EQ(written(w.keys(kDefaultStart), "Tower", "Altitude"), "+001176.00");
    EXPECT_EQ(written(w.keys(kDefaultStart), "Plane", "Altitude"), "+001026.00");
    w.plan.departureAirport.Elevation = 0;
    EXPECT_EQ(written(w.keys(kDefaultStart), "Tower", "Altitude"), "+000150.00");
    EXPECT_EQ(written(w.keys(kDefaultStart), "Plane", "Altitude"), "+000000.00");
    w.plan.departureAirport.Elevation = -1266;
    EXPECT_EQ(written(w.keys(kDefaultStart), "Tower", "Altitude"), "+-001116.00");
    w.plan.departureAirport.Elevation = 2147483647;
    EXPECT_EQ(written(w.keys(kDefaultStart), "Tower", "Altitude"), "+2147484000.00");
}

TEST(Situation, NoAircraftIsTheEmptyText) {
    const FlightWorld w;
    auto input = w.input(kDefaultStart);
    input.aircraft = "- No Aircraft Assigned -";
    EXPECT_EQ(written(situationKeys(input), "Plane", "Aircraft"), "");
    input.aircraft = "";
    EXPECT_EQ(written(situationKeys(input), "Plane", "Aircraft"), "");
    EXPECT_EQ(written(w.keys(kDefaultStart), "Plane", "Aircraft"), "Boeing 737-400");
}

TEST(Situation, WithoutPositionOnlyTheGpsCarriesTheLastOne) {
    FlightWorld w;
    auto keys = w.keys(kUnpositioned);
    for (const char* key : {"Latitude", "Longitude", "Altitude", "Heading"}) {
        EXPECT_EQ(written(keys, "Plane", key), "(none)");
    }
    EXPECT_EQ(written(keys, "GPS_Engine", "Position"),
              "S000* 00' 00.0000\", W000* 00' 00.0000\", +001026.00");
    w.last = {33.65625F, -84.40625F, 270.25F};
    EXPECT_EQ(written(w.keys(kUnpositioned), "GPS_Engine", "Position"),
              "N033* 39' 22.5000\", W084* 24' 22.5000\", +001026.00");
}

TEST(Situation, TheGpsPositionHasTheFieldElevationEvenInFlight) {
    EXPECT_EQ(written(FlightWorld().keys(kInflight, 3), "GPS_Engine", "Position"),
              "N035* 01' 52.5000\", W081* 55' 18.7500\", +001026.00");
    EXPECT_EQ(written(FlightWorld().keys(kInflight, 3), "Plane", "Altitude"), "+031000.00");
}

TEST(Situation, AllElevenTanksAreFilledAlike) {
    FlightWorld w;
    int tanks = 0;
    for (const auto& entry : w.keys(kDefaultStart)) {
        if (entry.section != "Fuel" || entry.key == "TankSelector") continue;
        EXPECT_EQ(entry.value, "85.00") << entry.key;
        ++tanks;
    }
    EXPECT_EQ(tanks, 11);
    w.fuel = "0";
    EXPECT_EQ(written(w.keys(kDefaultStart), "Fuel", "External 2"), "0.00");
    EXPECT_EQ(written(w.keys(kDefaultStart), "Fuel", "TankSelector"), "All");
}

TEST(StartTimes, OfTheGroundAreThoseOfTheDeparture) {
    FlightWorld w;
    EXPECT_EQ(timeOf(w, kDefaultStart).hours, 12);
    EXPECT_EQ(timeOf(w, kDefaultStart).minutes, 50);
    w.flight.DepartureTime = 5;
    EXPECT_EQ(written(w.keys(kUnpositioned), "DateTimeSeason", "Hours"), "00");
    EXPECT_EQ(written(w.keys(kUnpositioned), "DateTimeSeason", "Minutes"), "05");
}

TEST(StartTimes, PreFlightBorrowsOnceAndWrapsTheDay) {
    FlightWorld w;
    w.flight.DepartureTime = 5;
    w.PreFlight = 15;
    EXPECT_EQ(written(w.keys(kDefaultStart), "DateTimeSeason", "Hours"), "23");
    EXPECT_EQ(written(w.keys(kDefaultStart), "DateTimeSeason", "Minutes"), "50");
    w.flight.DepartureTime = 1015;
    EXPECT_EQ(timeOf(w, kDefaultStart).hours, 10);
    EXPECT_EQ(timeOf(w, kDefaultStart).minutes, 0);
    w.PreFlight = 60;
    EXPECT_EQ(timeOf(w, kDefaultStart).hours, 9);
    EXPECT_EQ(timeOf(w, kDefaultStart).minutes, 15);
}

TEST(StartTimes, InFlightAddsDigitsAndNotTimes) {
    FlightWorld w;
    w.plan.at(1).pointMinutes = 20;
    EXPECT_EQ(written(w.keys(kInflight, 1), "DateTimeSeason", "Hours"), "12");
    EXPECT_EQ(written(w.keys(kInflight, 1), "DateTimeSeason", "Minutes"), "70");
    w.plan.at(1).pointMinutes = 61; // one hour and one minute: 1250 + 101
    EXPECT_EQ(timeOf(w, kInflight, 1).hours, 13);
    EXPECT_EQ(timeOf(w, kInflight, 1).minutes, 51);
    w.flight.DepartureTime = 2330;
    EXPECT_EQ(timeOf(w, kInflight, 1).hours, 24);
    w.flight.DepartureTime = 1250;
    w.PreFlight = 55;
    EXPECT_EQ(timeOf(w, kInflight, 1).hours, 12);
    EXPECT_EQ(timeOf(w, kInflight, 1).minutes, 56);
}

TEST(StartTimes, EveryMinuteOfADayOfFlightComesOutWhole) {
    FlightWorld w;
    w.flight.DepartureTime = 0;
    for (int minutes = 0; minutes < 24 * 60; ++minutes) {
        w.plan.at(1).pointMinutes = minutes;
        ASSERT_EQ(timeOf(w, kInflight, 1).hours, minutes / 60) << minutes;
        ASSERT_EQ(timeOf(w, kInflight, 1).minutes, minutes % 60) << minutes;
    }
}

TEST(Waypoints, ComputedPointsHaveNone) {
    const FlightWorld w;
    const WaypointSlots slots = waypointSlots(w.plan, 0);
    ASSERT_EQ(slots.keys.size(), 5U); // of 9 points
    EXPECT_EQ(slots.keys[4].key, "WpInfo4");
    for (const auto& entry : slots.keys) EXPECT_EQ(entry.value, "0, 0, 0, 0, 0, 0.0, 0.0, 0.0");
    EXPECT_EQ(written(w.keys(kDefaultStart), "GPS_Engine", "CountWP"), "5");
}

TEST(Waypoints, CountIsFirstThatOfThePlan) {
    for (const auto& entry : FlightWorld().keys(kDefaultStart)) {
        if (entry.key != "CountWP") continue;
        EXPECT_EQ(entry.value, "8");
        break;
    }
}

TEST(Waypoints, NextIsTheOneBehindTheStart) {
    const FlightWorld w;
    EXPECT_EQ(waypointSlots(w.plan, 0).next, 1);
    EXPECT_EQ(waypointSlots(w.plan, 1).next, 2);
    EXPECT_EQ(waypointSlots(w.plan, 3).next, 3);
    EXPECT_EQ(written(w.keys(kInflight, 3), "GPS_Engine", "NextWP"), "3");
    EXPECT_EQ(written(w.keys(kDefaultStart, 3), "GPS_Engine", "NextWP"), "1");
}

TEST(Waypoints, AComputedPointIsFoundNowhere) {
    EXPECT_EQ(waypointSlots(FlightWorld().plan, 2).next, 0);
    EXPECT_EQ(written(FlightWorld().keys(kInflight, 2), "GPS_Engine", "NextWP"), "0");
}

TEST(Waypoints, PositionAndNameMustAgreeExactly) {
    FlightWorld w;
    w.plan.at(5) = w.plan.at(1); // the same fix twice: the later one counts
    EXPECT_EQ(waypointSlots(w.plan, 1).next, 4);
    w.plan.at(5).pointLatitude = std::nextafter(w.plan.at(1).pointLatitude, 90.0F);
    EXPECT_EQ(waypointSlots(w.plan, 1).next, 2);
    w.plan.at(5) = w.plan.at(1);
    w.plan.at(5).pointName = "ODG";
    EXPECT_EQ(waypointSlots(w.plan, 1).next, 2);
}

TEST(Waypoints, APlanAsLongAsTheTable) {
    Plan plan;
    plan.planLast = kPlanPoints - 1;
    EXPECT_EQ(waypointSlots(plan, 0).keys.size(), 200U);
    plan.planLast = 32767;
    EXPECT_EQ(waypointSlots(plan, 0).keys.size(), 200U);
    plan.planLast = -1;
    EXPECT_TRUE(waypointSlots(plan, 0).keys.empty());
}

TEST(Autopilot, TheSpeedFollowsTheBands) {
    FlightWorld w;
    const auto at = [&](std::int32_t altitude) {
        w.plan.at(1).pointAltitude = altitude;
        return startSpeed(w.plan, 1);
    };
    EXPECT_EQ(at(10000), 240);
    EXPECT_EQ(at(10001), 270);
    EXPECT_EQ(at(25000), 270);
    EXPECT_EQ(at(25001), 300);
}

TEST(Autopilot, PausedOnTheCourseOfTheLegThatLeaves) {
    const FlightWorld w;
    const auto keys = autopilotKeys(w.plan, 1);
    const std::vector<std::string> expected = {
        "Options/Pause=True",          "AutoPilot/MasterSwitch=True",   "AutoPilot/HeadingValue=053",
        "AutoPilot/HeadingLock=True",  "AutoPilot/AltitudeLock=True",   "AutoPilot/AltitudeValue=19500",
        "AutoPilot/AirSpeedHold=True", "AutoPilot/AirSpeedValue=00270", "AutoPilot/AutoThrottleArm=True"};
    std::vector<std::string> found;
    for (const auto& entry : keys) found.push_back(entry.section + "/" + entry.key + "=" + entry.value);
    EXPECT_EQ(found, expected);
}

TEST(InflightState, AllKeysInOrder) {
    const FlightWorld w;
    const auto keys = inflightKeys(w.plan, 3, w.numbers);
    ASSERT_EQ(keys.size(), 3U + 5 + 1 + 13 + 4 * 5 + 6 + 2);
    EXPECT_EQ(written(keys, "SimVars", "Heading"), "047.250000");
    EXPECT_EQ(keys[8].key, "ZVelBodyAxis");
    EXPECT_EQ(keys[8].value, "549.000000"); // 300 x 1.83
    EXPECT_EQ(keys[9].key, "DynPres");
    EXPECT_EQ(keys[21].key, "ZVelWorld");
    EXPECT_EQ(keys[22].section, "Engine Parameters.1");
    EXPECT_EQ(keys[22].key, "ThrottleLeverPct");
    EXPECT_EQ(keys[41].section, "Engine Parameters.4");
    EXPECT_EQ(keys[41].key, "Pct Engine RPM");
    EXPECT_EQ(keys[41].value, "0.800000");
    EXPECT_EQ(keys[42].key, "Gear1");
    EXPECT_EQ(keys[42].value, "000.00");
    EXPECT_EQ(keys[45].key, "ParkingBrake");
    EXPECT_EQ(keys.back().key, "AvionicsSwitch");
}

TEST(InflightState, TheSpeedIsRounded) {
    FlightWorld w;
    w.plan.speedSchedule[1] = 255.5; // 467.565
    EXPECT_EQ(written(inflightKeys(w.plan, 1, w.numbers), "SimVars", "ZVelBodyAxis"), "468.000000");
}

} // namespace
} // namespace gatewise
