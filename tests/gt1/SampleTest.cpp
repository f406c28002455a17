#include "gt1/SampleSet.h"

#include "gt1/Folders.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>

// What the sample set promises, checked on the compiled files.

namespace gatewise::gt1 {
namespace {

const DataSet& sample() {
    return sampleSet().main;
}
const World& world() {
    return sampleSet().world;
}

int airportOf(std::string_view iata) {
    const auto& airports = sample().airports;
    const auto found =
        std::find_if(airports.begin(), airports.end(), [&](const auto& a) { return a.Iata.view() == iata; });
    return static_cast<int>(found - airports.begin());
}

/// Departure hours of an airport's flights.
std::array<int, 24> departuresByHour(int airport) {
    std::array<int, 24> out{};
    for (const auto& flight : sample().flights)
        if (flight.OriginIndex == airport) ++out[static_cast<std::size_t>(flight.DepartureTime / 100)];
    return out;
}

const AircraftRecord& aircraftOf(const FlightRecord& flight) {
    const auto found = std::find_if(world().aircraft.begin(), world().aircraft.end(),
                                    [&](const auto& a) { return a.Code == flight.AircraftCode; });
    EXPECT_NE(found, world().aircraft.end());
    return *found;
}

/// What the plan engine makes of a speed at an altitude.
double trueAirspeed(double feet, double speed) {
    const double h = feet / 1000;
    return speed * (1 + 0.01072 * h + 0.000256 * h * h);
}

TEST(Sample, Has64Airports12AirlinesAnd26AircraftTypes) {
    EXPECT_EQ(sample().airports.size(), 64U);
    EXPECT_EQ(sample().airlines.size(), 12U);
    EXPECT_EQ(world().aircraft.size(), 26U);
}

TEST(Sample, AirlinesAreTheInventedOnes) {
    std::set<std::string_view> names;
    for (const auto& airline : sample().airlines) names.insert(airline.Name.trimmed());
    EXPECT_EQ(names,
              (std::set<std::string_view>{"Orrery Airways", "Fernblick Air", "Skerrymoor Regional",
                                          "Quillmark Air Lines", "Copperline Airways", "Saltbrook Pacific",
                                          "Jacarandina", "Palisander Air", "Marulana Airways",
                                          "Tidewright Airways", "Lantern Peak Airways", "Wattlebird Air"}));
}

TEST(Sample, EveryAirlineAircraftAndAirportIsInUse) {
    std::set<std::string> airlines, aircraft, airports;
    for (const auto& flight : sample().flights) {
        airlines.insert(flight.AirlineCode.str());
        aircraft.insert(flight.AircraftCode.str());
        airports.insert(flight.OriginIata.str());
    }
    EXPECT_EQ(airlines.size(), 12U);
    EXPECT_EQ(aircraft.size(), 26U);
    EXPECT_EQ(airports.size(), 64U);
}

TEST(Sample, RunwaysAndRadiosAreKnown) {
    std::size_t runways = 0, ils = 0, towers = 0;
    for (const auto& block : sample().facilities) {
        EXPECT_GE(block.runways.size(), 2U);
        runways += block.runways.size();
        towers += block.radios.towerFreq.trimmed().empty() ? 0 : 1;
        for (const auto& runway : block.runways) {
            const bool has = runway.ilsId.view() != "NO ILS ";
            ils += has ? 1 : 0;
            EXPECT_EQ(has, !runway.ilsFrequency.trimmed().empty());
        }
    }
    EXPECT_EQ(runways, 376U);
    EXPECT_EQ(ils, 253U);
    EXPECT_EQ(towers, 63U);
}

TEST(Sample, RunwayEndsLieAtTheirAirportAndPointAsTheyAreNamed) {
    for (std::size_t i = 0; i < sample().airports.size(); ++i) {
        const auto& airport = sample().airports[i];
        for (const auto& runway : sample().facilities[i].runways) {
            EXPECT_LT(miles(static_cast<double>(airport.Latitude), static_cast<double>(airport.Longitude),
                            static_cast<double>(runway.runwayLatitude),
                            static_cast<double>(runway.runwayLongitude)),
                      5);
            const double named = std::stoi(runway.runwayId.str()) * 10;
            const double off = std::remainder(static_cast<double>(runway.runwayCourse) - named, 360);
            EXPECT_LT(std::abs(off), 20) << airport.Iata.view() << " " << runway.runwayId.view();
        }
    }
}

TEST(Sample, EachPairHasAPlanInEitherDirection) {
    std::map<std::pair<int, int>, int> planOf;
    for (const auto& flight : sample().flights) {
        const auto [plan, isNew] =
            planOf.try_emplace({flight.OriginIndex, flight.DestIndex}, flight.PlanNumber);
        EXPECT_EQ(plan->second, flight.PlanNumber);
    }
    EXPECT_EQ(planOf.size(), 262U);
    EXPECT_EQ(sample().plans.size(), 262U);
    for (const auto& [pair, number] : planOf) {
        const auto back = planOf.find({pair.second, pair.first});
        ASSERT_NE(back, planOf.end());
        auto there = sample().plans.at(static_cast<std::size_t>(number) - 1);
        const auto& again = sample().plans.at(static_cast<std::size_t>(back->second) - 1);
        ASSERT_EQ(there.size(), again.size());
        std::reverse(there.begin(), there.end());
        for (std::size_t i = 0; i < there.size(); ++i) EXPECT_EQ(there[i].entryRecord, again[i].entryRecord);
    }
}

TEST(Sample, PlansHave2To28PointsAndAShortHopNone) {
    int empty = 0;
    for (const auto& plan : sample().plans) {
        empty += plan.empty() ? 1 : 0;
        EXPECT_TRUE(plan.empty() || (plan.size() >= 2 && plan.size() <= 28)) << plan.size();
    }
    EXPECT_EQ(empty, 2);
    for (const auto& flight : sample().flights) {
        if (!sample().plans.at(static_cast<std::size_t>(flight.PlanNumber) - 1).empty()) continue;
        EXPECT_LT(flight.Miles, 100);
    }
}

TEST(Sample, RoutesRunFromAirportToAirportWithoutWideDetours) {
    for (const auto& flight : sample().flights) {
        const auto& from = sample().airports.at(static_cast<std::size_t>(flight.OriginIndex));
        const auto& to = sample().airports.at(static_cast<std::size_t>(flight.DestIndex));
        const double direct = miles(static_cast<double>(from.Latitude), static_cast<double>(from.Longitude),
                                    static_cast<double>(to.Latitude), static_cast<double>(to.Longitude));
        const double along = routeMiles(sample(), world(), flight);
        EXPECT_LT(along, direct * 1.25);
        EXPECT_NEAR(flight.Miles, along, 1) << from.Iata.view() << to.Iata.view();
    }
}

TEST(Sample, AllFourKindsOfPointsAreInUse) {
    std::map<char, int> kinds;
    std::set<char> highKinds;
    for (const auto& plan : sample().plans)
        for (const auto& entry : plan) {
            const char kind = entry.entryKind.view()[0];
            ++kinds[kind];
            if (kind == 'H')
                highKinds.insert(
                    world().jets.at(static_cast<std::size_t>(entry.entryRecord) - 1).jetKind.view()[0]);
        }
    EXPECT_EQ(kinds.size(), 4U);
    for (const char kind : {'H', 'V', 'N', 'I'}) EXPECT_GE(kinds[kind], 1) << kind;
    EXPECT_GT(kinds['H'], kinds['V'] + kinds['N'] + kinds['I']);
    EXPECT_EQ(highKinds, (std::set<char>{'V', 'N', 'I'}));
}

TEST(Sample, DirectLegsAcrossTheOceanHaveNoAirway) {
    const auto flight =
        std::find_if(sample().flights.begin(), sample().flights.end(), [](const FlightRecord& f) {
            return f.OriginIata.view() == "LHR" && f.DestinationIata.view() == "JFK";
        });
    ASSERT_NE(flight, sample().flights.end());
    const auto& plan = sample().plans.at(static_cast<std::size_t>(flight->PlanNumber) - 1);
    const auto direct = std::count_if(plan.begin(), plan.end(),
                                      [](const RouteEntry& e) { return e.entryAirway.trimmed().empty(); });
    EXPECT_EQ(direct, 7); // the first point and six oceanic legs
    for (const auto& points : sample().plans)
        for (const auto& entry : points) EXPECT_NE(entry.entryAirway.trimmed(), "DCT");
}

TEST(Sample, HasAtLeast2500Flights) {
    EXPECT_GE(sample().flights.size(), 2500U);
}

TEST(Sample, TheEightLargestAirportsHaveDeparturesInEveryHour) {
    std::vector<std::pair<int, int>> sizes;
    for (std::size_t i = 0; i < sample().airports.size(); ++i)
        sizes.emplace_back(-sample().airports[i].DepartureCount, static_cast<int>(i));
    std::sort(sizes.begin(), sizes.end());
    for (int i = 0; i < 8; ++i) {
        const int airport = sizes[static_cast<std::size_t>(i)].second;
        const auto hours = departuresByHour(airport);
        for (int hour = 0; hour < 24; ++hour)
            EXPECT_GE(hours[static_cast<std::size_t>(hour)], 1)
                << sample().airports[static_cast<std::size_t>(airport)].Iata.view() << " " << hour;
    }
}

TEST(Sample, TheBoardOfAtlantaFillsThreePagesAtSixAndHalfAPageAtNineInTheEvening) {
    const int atlanta = airportOf("ATL");
    EXPECT_EQ(sample().airports.at(static_cast<std::size_t>(atlanta)).Icao.view(), "KATL");
    const auto rows = [&](int fromTime) { // an hour before the board's time
        return std::count_if(sample().flights.begin(), sample().flights.end(), [&](const FlightRecord& f) {
            return f.OriginIndex == atlanta && f.DepartureTime >= fromTime;
        });
    };
    EXPECT_EQ(rows(500), 60); // three full pages, "Page 1 of 3"
    EXPECT_GE(rows(2000), 10);
    EXPECT_LE(rows(2000), 20);
}

TEST(Sample, EveryWeekdayClassAndMealIsInUse) {
    int days = 0, meals = 0;
    bool everyDay = false, noMeal = false;
    std::string classes;
    for (const auto& flight : sample().flights) {
        days |= flight.DaysMask;
        meals |= flight.MealMask;
        everyDay = everyDay || flight.DaysMask == 127;
        noMeal = noMeal || flight.MealMask == 0;
        EXPECT_NE(flight.DaysMask, 0);
        if (classes.find(flight.ClassCode.view()) == std::string::npos) classes += flight.ClassCode.view();
    }
    EXPECT_EQ(days, 127);
    EXPECT_EQ(meals, 31);
    EXPECT_TRUE(everyDay);
    EXPECT_TRUE(noMeal);
    std::sort(classes.begin(), classes.end());
    EXPECT_EQ(classes, "ABCDEFG");
}

TEST(Sample, SomeFlightLeavesOutEachWeekday) {
    int missing = 0;
    for (const auto& flight : sample().flights) missing |= ~flight.DaysMask & 127;
    EXPECT_EQ(missing, 127);
}

TEST(Sample, BlockTimesFitDistanceAndAircraftInTheLocalTimesOfBothEnds) {
    for (const auto& flight : sample().flights) {
        const AircraftRecord& aircraft = aircraftOf(flight);
        const double speed = trueAirspeed(aircraft.CruiseAltitude, aircraft.CruiseSpeedTAS);
        const int block = blockMinutes(flight);
        const double calm = flight.Miles / speed * 60;
        EXPECT_GE(block, flight.Miles / (speed + 25) * 60 + 15)
            << flight.OriginIata.view() << flight.DestinationIata.view() << flight.FlightNumber;
        EXPECT_LE(block, flight.Miles / (speed - 25) * 60 + 40)
            << flight.OriginIata.view() << flight.DestinationIata.view() << flight.FlightNumber;
        EXPECT_LT(calm, 20 * 60);
    }
}

TEST(Sample, EastboundFlightsOfTheMiddleLatitudesAreTheFasterOnes) {
    std::map<std::string, std::pair<int, int>> shortest; // eastbound, westbound
    for (const auto& flight : sample().flights) {
        const bool east = flight.OriginIata.view() == "JFK" && flight.DestinationIata.view() == "LHR";
        const bool west = flight.OriginIata.view() == "LHR" && flight.DestinationIata.view() == "JFK";
        if (east) shortest[flight.AircraftCode.str()].first = blockMinutes(flight);
        if (west) shortest[flight.AircraftCode.str()].second = blockMinutes(flight);
    }
    EXPECT_GE(shortest.size(), 2U);
    for (const auto& [aircraft, block] : shortest) EXPECT_LT(block.first, block.second) << aircraft;
}

TEST(Sample, AircraftFlyAtTheirUsualLevelsAndSpeeds) {
    struct Cruise {
        std::string_view code;
        int feet;
        double knots;
    };
    // The record holds the speed from which the engine's rise with altitude comes to the type's true
    // airspeed.
    constexpr std::array<Cruise, 26> usual{
        {{"319", 37000, 447}, {"320", 37000, 450}, {"321", 35000, 450}, {"332", 39000, 470},
         {"333", 39000, 470}, {"343", 37000, 472}, {"345", 37000, 478}, {"AT7", 17000, 270},
         {"SF3", 21000, 270}, {"DH4", 23000, 345}, {"BEH", 19000, 270}, {"AR8", 29000, 400},
         {"CR2", 35000, 430}, {"ER4", 35000, 430}, {"100", 33000, 425}, {"717", 33000, 430},
         {"733", 33000, 430}, {"738", 37000, 453}, {"744", 37000, 490}, {"752", 37000, 461},
         {"763", 37000, 459}, {"772", 39000, 482}, {"77W", 37000, 484}, {"M83", 33000, 438},
         {"M11", 37000, 473}, {"788", 41000, 488}}};
    for (const auto& cruise : usual) {
        const auto found = std::find_if(world().aircraft.begin(), world().aircraft.end(),
                                        [&](const auto& a) { return a.Code.view() == cruise.code; });
        ASSERT_NE(found, world().aircraft.end()) << cruise.code;
        EXPECT_EQ(found->CruiseAltitude, cruise.feet) << cruise.code;
        EXPECT_NEAR(trueAirspeed(found->CruiseAltitude, found->CruiseSpeedTAS), cruise.knots, 1.5)
            << cruise.code;
    }
}

TEST(Sample, FlightNumbersAreUniqueAndComeInPairs) {
    std::map<std::pair<std::string, int>, const FlightRecord*> numbers;
    for (const auto& flight : sample().flights) {
        EXPECT_GE(flight.FlightNumber, 1);
        EXPECT_LE(flight.FlightNumber, 9999);
        EXPECT_TRUE(numbers.try_emplace({flight.AirlineCode.str(), flight.FlightNumber}, &flight).second);
    }
    for (const auto& [key, flight] : numbers) {
        const auto back = numbers.find({key.first, key.second % 2 == 1 ? key.second + 1 : key.second - 1});
        ASSERT_NE(back, numbers.end()) << key.first << key.second;
        EXPECT_EQ(back->second->OriginIndex, flight->DestIndex);
        EXPECT_EQ(back->second->DestIndex, flight->OriginIndex);
        EXPECT_EQ(back->second->AircraftCode, flight->AircraftCode);
    }
}

TEST(Sample, FlightsAreGroupedByDepartureAirport) {
    int next = 1;
    for (std::size_t i = 0; i < sample().airports.size(); ++i) {
        const auto& airport = sample().airports[i];
        EXPECT_EQ(airport.DepartureOffset, next);
        EXPECT_GE(airport.DepartureCount, 1);
        EXPECT_EQ(airport.ArrivalCount, airport.DepartureCount); // each way out has its way back
        for (int k = 0; k < airport.DepartureCount; ++k) {
            const auto& flight = sample().flights.at(static_cast<std::size_t>((next - 1) / 32));
            EXPECT_EQ(flight.OriginIndex, static_cast<int>(i));
            EXPECT_EQ(flight.OriginIata, airport.Iata);
            next += 32;
        }
    }
}

TEST(SmallSample, IsAnotherDataSetOverTheSameWorld) {
    const DataSet& islands = sampleSet().islands;
    EXPECT_EQ(islands.airports.size(), 5U);
    EXPECT_EQ(islands.airlines.size(), 2U);
    EXPECT_EQ(islands.flights.size(), 100U);
    EXPECT_EQ(islands.plans.size(), 8U);
    EXPECT_EQ(islands.airports[0].Iata.view(), "HNL");
    for (const auto& flight : islands.flights) {
        EXPECT_EQ(islands.airports.at(static_cast<std::size_t>(flight.OriginIndex)).Iata, flight.OriginIata);
        EXPECT_EQ(islands.airports.at(static_cast<std::size_t>(flight.DestIndex)).Iata,
                  flight.DestinationIata);
        EXPECT_NEAR(flight.Miles, routeMiles(islands, sampleSet().world, flight), 1);
    }
}

TEST(Delivered, TheSettingsStartWithAtlantaAndEveryKey) {
    const auto files = readFolder(std::filesystem::path(GATEWISE_TEST_SOURCE_DIR) / "data" / "delivered");
    const std::string& text = files.at("GT.cfg");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), std::count(text.begin(), text.end(), '\r'));
    EXPECT_NE(text.find("Index=" + std::to_string(airportOf("ATL")) + "\r\n"), std::string::npos);
    for (const char* key : {"FSPath",
                            "Index",
                            "FavoriteAirline",
                            "DataSet",
                            "Last",
                            "First",
                            "StatusBoard",
                            "PathVerified",
                            "ambVolume",
                            "Dept1",
                            "Dept2",
                            "Dept3",
                            "Arr1",
                            "Arr2",
                            "Arr3",
                            "TimeSort",
                            "CitySort",
                            "FltNumSort",
                            "FltNumber",
                            "Callsign",
                            "PreFlight",
                            "FindAlternate",
                            "SetDept",
                            "SetDest",
                            "SetDefault",
                            "AnyAirline",
                            "MinDist",
                            "747fmc",
                            "PF2Kfmc",
                            "CPfmc",
                            "RadarContactPath",
                            "RadarContactDrive",
                            "SBPath",
                            "SBDrive",
                            "ACSPath",
                            "ACSDrive"})
        EXPECT_NE(text.find("\n" + std::string(key) + "="), std::string::npos) << key;
}

} // namespace
} // namespace gatewise::gt1
