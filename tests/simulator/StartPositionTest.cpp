#include "FlightWorld.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

using namespace test;

void expectAt(const StartPosition& position, float latitude, float longitude, float heading) {
    EXPECT_EQ(position.StartLat, latitude);
    EXPECT_EQ(position.StartLon, longitude);
    EXPECT_EQ(position.StartHdg, heading);
}

StartPosition resolved(const FlightWorld& w, std::string_view choice, int pointIndex = 0) {
    return resolveStart(choice, w.plan, w.positions, pointIndex, w.last);
}

TEST(StartChoices, InTheOrderOfTheList) {
    const FlightWorld w;
    EXPECT_EQ(
        startChoices(w.plan.departureAirport, w.positions),
        (std::vector<std::string>{"- Do NOT Position Aircraft -", "- KATL Default -", "- Start Inflight -",
                                  "Rwy - 08L", "Rwy - 26R", "Gate B12", "Parking 7"}));
}

TEST(StartChoices, AnAirportWithoutRunwaysHasThree) {
    FlightWorld w;
    w.plan.departureAirport.runways.clear();
    EXPECT_EQ(startChoices(w.plan.departureAirport, {}).size(), 3U);
}

TEST(StartChoices, ASlotWithBlankIdentifierIsLeftOutALaterOneIsNot) {
    FlightWorld w;
    w.positions = {};
    w.positions[0] = stored("    ", "Ghost");
    w.positions[99] = stored("Z   ", "Last");
    w.plan.departureAirport.runways.clear();
    const auto choices = startChoices(w.plan.departureAirport, w.positions);
    ASSERT_EQ(choices.size(), 4U);
    EXPECT_EQ(choices[3], "Last");
}

TEST(StartChoices, BlankNamesAreRemoved) {
    FlightWorld w;
    w.positions = {};
    w.positions[0] = stored("G1  ", "   ");
    w.plan.departureAirport.runways.clear();
    EXPECT_EQ(startChoices(w.plan.departureAirport, w.positions).size(), 3U);
}

TEST(StartChoices, ACodeOfThreeLettersIsTrimmed) {
    FlightWorld w;
    w.plan.departureAirport.Icao = "ABC";
    EXPECT_EQ(startChoices(w.plan.departureAirport, {})[1], "- ABC Default -");
}

TEST(ResolveStart, TheAirportItself) {
    expectAt(resolved(FlightWorld(), kDefaultStart), 33.625F, -84.4375F, 0);
}

TEST(ResolveStart, TheAirportOfACodeOfThreeLetters) {
    FlightWorld w;
    w.plan.departureAirport.Icao = "ABC";
    w.last = {1, 2, 3};
    expectAt(resolved(w, "- ABC Default -"), 33.625F, -84.4375F, 0);
    // Another airport's entry stands for nothing here.
    expectAt(resolved(w, "- ABCD Default -"), 1, 2, 3);
}

TEST(ResolveStart, ARunwayGivesItsHeadingNotItsCourse) {
    expectAt(resolved(FlightWorld(), "Rwy - 26R"), 33.65625F, -84.40625F, 270.25F);
}

TEST(ResolveStart, TheFirstOfTwoEqualRunwaysCounts) {
    FlightWorld w;
    w.plan.departureAirport.runways.push_back(runway("08L", 1, 2, 3));
    expectAt(resolved(w, "Rwy - 08L"), 33.65625F, -84.4375F, 90.25F);
}

TEST(ResolveStart, AStoredPositionByItsTrimmedName) {
    expectAt(resolved(FlightWorld(), "Parking 7"), -33.640625F, 84.421875F, 12.5F);
    expectAt(resolved(FlightWorld(), " Gate B12 "), 33.640625F, -84.421875F, 181.5F);
}

TEST(ResolveStart, ARunwayComesBeforeAStoredPositionOfItsName) {
    FlightWorld w;
    w.positions[0] = stored("X   ", "Rwy - 08L", 1, 2, 3);
    expectAt(resolved(w, "Rwy - 08L"), 33.65625F, -84.4375F, 90.25F);
}

TEST(ResolveStart, AStoredPositionNeedsNoIdentifier) {
    FlightWorld w;
    w.positions[5] = stored("    ", "Hidden", 5, 6, 7);
    expectAt(resolved(w, "Hidden"), 5, 6, 7);
}

TEST(ResolveStart, NoPositionKeepsTheLastOne) {
    FlightWorld w;
    expectAt(resolved(w, kUnpositioned), 0, 0, 0);
    w.last = {51.5F, -0.5F, 270};
    expectAt(resolved(w, kUnpositioned), 51.5F, -0.5F, 270);
    expectAt(resolved(w, "Rwy - 99"), 51.5F, -0.5F, 270);
}

TEST(ResolveStart, InFlightAtThePointOnTheCourseOfTheLegThatLeavesIt) {
    expectAt(resolved(FlightWorld(), kInflight, 1), 34.6875F, -83.296875F, 52.75F);
    expectAt(resolved(FlightWorld(), kInflight, 0), 33.625F, -84.4375F, 41.5F);
}

TEST(ResolveStart, APointOutsideTheTableIsHeldInside) {
    FlightWorld w;
    w.plan.at(kPlanPoints - 2).pointLatitude = 7;
    w.plan.at(kPlanPoints - 1).pointHeading = 8;
    expectAt(resolved(w, kInflight, 32767), 7, 0, 8);
    expectAt(resolved(w, kInflight, -1), 33.625F, -84.4375F, 41.5F);
}

} // namespace
} // namespace gatewise
