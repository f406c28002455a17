#include "Plans.h"

#include "programs/Cycle.h"
#include "programs/Figures.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace gatewise::test {
namespace {

using namespace programs;

std::vector<std::string> identsOf(const Route& route) {
    std::vector<std::string> idents;
    for (const RoutePoint& point : route.points) idents.push_back(point.ident);
    return idents;
}

std::vector<std::string> airwaysOf(const Route& route) {
    std::vector<std::string> airways;
    for (const RoutePoint& point : route.points) airways.push_back(point.airway);
    return airways;
}

Plan oneFix(const PointRow& row) {
    return planOf(airportOf("KATL", "", 33, -84, 0), airportOf("KMIA", "", 25, -80, 0), {row});
}

TEST(Route, ComputedPointsStayAtHome) {
    EXPECT_EQ(
        identsOf(routeOfPlan(mixedPlan())),
        (std::vector<std::string>{"KATL", "ATL", "ICBOD", "FAGAN", "GNV", "ORL", "WP1", "GNV2", "KMIA"}));
}

TEST(Route, ComputedPointsAreUserPointsOnNoAirway) {
    const Route route = routeOfPlan(mixedPlan(), true);
    EXPECT_EQ(identsOf(route), (std::vector<std::string>{"KATL", "ATL", "TOC", "ICBOD", "FAGAN", "GNV",
                                                         "STEPD", "ORL", "WP1", "GNV2", "TOD", "KMIA"}));
    for (const std::size_t i : {2U, 6U, 10U}) {
        EXPECT_TRUE(route.points[i].computed) << i;
        EXPECT_EQ(route.points[i].fix, Fix::User) << i;
        EXPECT_EQ(route.points[i].airway, "") << i;
    }
}

std::vector<std::string> regionsIn(const Route& route) {
    std::vector<std::string> regions;
    for (const RoutePoint& point : route.points) regions.push_back(point.region);
    return regions;
}

/// By kind, ident and place: ICBOD is not the one of the other continent, GNV not the fix of its name. The
/// other GNV is a point of the user's by then.
TEST(Route, ARegionIsThatOfThePointAtItsPlace) {
    EXPECT_EQ(regionsIn(routeOfPlan(mixedPlan(), false, mixedRegions())),
              (std::vector<std::string>{"", "K7", "K7", "", "K7", "K7", "", "", ""}));
    EXPECT_EQ(regionsIn(routeOfPlan(mixedPlan())), std::vector<std::string>(9));
}

TEST(Route, OnlyItsOwnRegionsAreReadFromTheFile) {
    const std::string text = regionsText(mixedRegions()) + "I FAR 1 2 ED\nnothing\nV ORL 91 0 K7\n";
    const Regions regions = programs::regionsOf(mixedPlan(), text);
    EXPECT_EQ(regions.entries().size(), mixedRegions().entries().size());
    EXPECT_EQ(regionsIn(routeOfPlan(mixedPlan(), false, regions)),
              regionsIn(routeOfPlan(mixedPlan(), false, mixedRegions())));
    EXPECT_TRUE(programs::regionsOf(directPlan(), text).entries().empty());
}

TEST(Route, AnAirwayHasOneName) {
    EXPECT_EQ(airwaysOf(routeOfPlan(mixedPlan())),
              (std::vector<std::string>{"", "", "J8", "Q9", "Q9", "J55", "", "V3", ""}));
    EXPECT_EQ(oneAirway("J13-J14", "J14"), "J14");
    EXPECT_EQ(oneAirway("J13-J14", "J13-J20"), "J13");
    EXPECT_EQ(oneAirway("J13-J14", "J20-J14"), "J14");
    EXPECT_EQ(oneAirway("J13-J14", ""), "J13");
    EXPECT_EQ(oneAirway("J13-", "J14"), "J13");
    EXPECT_EQ(oneAirway("-", "J14"), "");
    EXPECT_EQ(oneAirway("J 1\n", ""), "J1");
}

TEST(Route, TheFirstPointAndTheDestinationAreDirect) {
    Plan plan = mixedPlan();
    plan.at(1).pointAirway = "J89";
    plan.at(plan.planLast).pointAirway = "V3";
    const Route route = routeOfPlan(plan);
    EXPECT_EQ(route.points[1].airway, "");
    EXPECT_EQ(route.to().airway, "");
}

TEST(Route, KindsOfPoints) {
    const Route route = routeOfPlan(mixedPlan());
    const Fix kinds[] = {Fix::Airport, Fix::Vor,  Fix::Intersection, Fix::Intersection, Fix::Ndb,
                         Fix::Vor,     Fix::User, Fix::Ndb,          Fix::Airport};
    for (std::size_t i = 0; i < route.points.size(); ++i) {
        // The second GNV is an NDB too, elsewhere: what a program looks up would be the first.
        EXPECT_EQ(route.points[i].fix, i == 7 ? Fix::User : kinds[i]) << i;
    }
}

TEST(Route, AFixThatIsPassedTwiceKeepsItsName) {
    const Route route =
        routeOfPlan(planOf(airportOf("KATL", "", 33, -84, 0), airportOf("KATL", "", 33, -84, 0),
                           {{"V ", "ORL", "", 28, -81, "", 0},
                            {"V ", "CTY", "", 29, -83, "", 0},
                            {"V ", "ORL", "", 28, -81, "", 0}}));
    EXPECT_EQ(identsOf(route), (std::vector<std::string>{"KATL", "ORL", "CTY", "ORL", "KATL"}));
    EXPECT_EQ(route.points[3].fix, Fix::Vor);
}

TEST(Route, TwoPlacesOfOneNameAreToldApart) {
    const Route route =
        routeOfPlan(planOf(airportOf("KATL", "", 33, -84, 0), airportOf("KMIA", "", 25, -80, 0),
                           {{"N ", "A", "", 28, -81, "", 0},
                            {"V ", "A", "", 27, -81, "", 0},
                            {"N ", "A", "", 26, -81, "", 0},
                            {"  ", "A", "", 25, -81, "", 0}}));
    EXPECT_EQ(identsOf(route), (std::vector<std::string>{"KATL", "A", "A", "A2", "A3", "KMIA"}));
    EXPECT_EQ(route.points[1].fix, Fix::Ndb);
    EXPECT_EQ(route.points[2].fix, Fix::Vor); // a program asks for a name and its kind
    EXPECT_EQ(route.points[3].fix, Fix::User);
}

TEST(Route, StepsAreNumbered) {
    const Route route =
        routeOfPlan(planOf(airportOf("KATL", "", 33, -84, 0), airportOf("KMIA", "", 25, -80, 0),
                           {{"SU", "STEPC", "", 28, -81, "", 0}, {"SU", "STEPC", "", 28, -81, "", 0}}),
                    true);
    EXPECT_EQ(identsOf(route), (std::vector<std::string>{"KATL", "STEPC", "STEPC2", "KMIA"}));
}

TEST(Route, NamesAreCleaned) {
    EXPECT_EQ(identsOf(routeOfPlan(oneFix({"V ", "a-\xE9 b", "", 28, -81, "", 0})))[1], "AEB");
    EXPECT_EQ(identsOf(routeOfPlan(oneFix({"V ", "<&>", "", 28, -81, "", 0})))[1], "WP1");
    EXPECT_EQ(routeOfPlan(oneFix({"V ", "ORL", "a\r\n b\x01", 28, -81, "", 0})).points[1].name, "a b");
}

TEST(Route, AnAirportWithoutACodeIsThatOfNone) {
    const Route route =
        routeOfPlan(planOf(airportOf("", "", 33, -84, 0), airportOf("??", "", 25, -80, 0), {}));
    EXPECT_EQ(identsOf(route), (std::vector<std::string>{"ZZZZ", "ZZZ2"}));
}

TEST(Route, AnImpossiblePlaceIsLeftOut) {
    const float none = std::numeric_limits<float>::quiet_NaN();
    for (const auto& [latitude, longitude] :
         {std::pair{none, 0.0F}, {0.0F, none}, {90.5F, 0.0F}, {0.0F, 180.5F}, {-1e30F, 0.0F}}) {
        EXPECT_EQ(routeOfPlan(oneFix({"V ", "ORL", "", latitude, longitude, "", 0})).points.size(), 2U);
    }
    EXPECT_EQ(routeOfPlan(oneFix({"V ", "ORL", "", 90, -180, "", 0})).points.size(), 3U);
}

TEST(Route, ATopThatTookTheDeparturesPlaceDoesNotReplaceIt) {
    Plan plan = directPlan();
    plan.at(0).pointType = "TC";
    plan.at(0).pointName = "*TOC*";
    EXPECT_EQ(identsOf(routeOfPlan(plan, true)), (std::vector<std::string>{"PHNL", "TOC", "PHOG"}));
    EXPECT_EQ(identsOf(routeOfPlan(plan, false)), (std::vector<std::string>{"PHNL", "PHOG"}));
}

TEST(Route, PositionsAreThoseOfTheTables) {
    const Route route = routeOfPlan(mixedPlan());
    EXPECT_EQ(route.from().longitude, -84.4281);
    EXPECT_EQ(route.points[1].latitude, 33.629074);
    EXPECT_EQ(decimalOf(-122.3093F), -122.3093);
    EXPECT_EQ(decimalOf(1e-7F), 1e-7);
    EXPECT_EQ(decimalOf(1e-30F), 0);
}

TEST(Route, LevelSpeedAndTime) {
    const Route route = routeOfPlan(mixedPlan());
    EXPECT_EQ(route.cruiseAltitude, 35000);
    EXPECT_EQ(route.trueAirspeed, 434); // 257 x (1 + 0.01072 x 35 + 0.000256 x 35 x 35)
    EXPECT_EQ(route.minutes, 125);
    EXPECT_EQ(route.from().altitude, 1026);
    EXPECT_EQ(route.to().altitude, -8);
}

TEST(Figures, HaveNoExponentAndNoMinusZero) {
    EXPECT_EQ(fixedFigure(47.449, 6), "47.449000");
    EXPECT_EQ(fixedFigure(-0.0000001, 6), "0.000000");
    EXPECT_EQ(fixedFigure(std::numeric_limits<double>::infinity(), 2), "0.00");
    EXPECT_EQ(exactFigure(-122.3093), "-122.3093");
    EXPECT_EQ(exactFigure(1e-7), "0.0000001");
    EXPECT_EQ(exactFigure(-0.0), "0");
    EXPECT_EQ(wholeFigure(-7, 3), "-007");
    EXPECT_EQ(metresFigure(429), "130.7592");
    EXPECT_EQ(metresFigure(35000), "10668");
}

TEST(Figures, TextsWithoutAccents) {
    EXPECT_EQ(plainText("Z\xFCrich \xC6r\xF8 Stra\xDF"
                        "e"),
              "Zurich AEro Strasse");
    EXPECT_EQ(codeText("b\xF8-7 x", 3), "BO7");
    EXPECT_EQ(codeText("a/b c", 9, " /"), "A/B C");
    EXPECT_EQ(lineText("  a\t\tb\r\n"), "a b");
}

TEST(Cycle, BeginsEvery28Days) {
    DateTime day = testMoment();
    EXPECT_EQ(cycleOf(day), "0206"); // from 13 June 2002
    day.day = 12;
    EXPECT_EQ(cycleOf(day), "0205");
    day.year = 2020, day.month = 12, day.day = 31;
    EXPECT_EQ(cycleOf(day), "2014");
    day.day = 30;
    EXPECT_EQ(cycleOf(day), "2013");
    day.month = 1, day.day = 2;
    EXPECT_EQ(cycleOf(day), "2001");
    day.day = 1;
    EXPECT_EQ(cycleOf(day), "1913");
}

TEST(Cycle, TimesInUtc) {
    EXPECT_EQ(isoTime(testMoment()), "2002-06-17T11:05:00Z");
    EXPECT_EQ(isoTime(utcOf(testMoment(), 300)), "2002-06-17T16:05:00Z");
    EXPECT_EQ(isoTime(utcOf(testMoment(), 780)), "2002-06-18T00:05:00Z");
    EXPECT_EQ(isoTime(utcOf(testMoment(), -690)), "2002-06-16T23:35:00Z");
}

} // namespace
} // namespace gatewise::test
