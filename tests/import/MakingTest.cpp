#include "import/Airports.h"
#include "import/Fitting.h"
#include "import/Flown.h"
#include "import/Grow.h"
#include "import/Made.h"
#include "import/Own.h"
#include "import/Texts.h"
#include "import/Zones.h"

#include <gtest/gtest.h>

namespace gatewise::importer {
namespace {

RawTables rawOf(const std::vector<std::string>& texts) {
    std::vector<Source> sources;
    for (std::size_t i = 0; i < texts.size(); ++i)
        sources.push_back(textSource("s" + std::to_string(100 + i), texts[i]));
    Findings findings;
    std::vector<std::string> faults;
    RawTables raw = readSources(sources, false, findings, faults, Job());
    EXPECT_EQ(faults, std::vector<std::string>{});
    return raw;
}

/// A row of on-time data in the plain form.
std::string row(int day, int departure, int arrival, const char* tail, int number = 34) {
    return "2008,6," + std::to_string(day) + ",1,0," + std::to_string(departure) + ",0," +
           std::to_string(arrival) + ",WN," + std::to_string(number) + "," + tail +
           ",54,60,45,-5,1,AAA,BBB,251,2,7,\\N,,\\N,NA,NA,NA,NA,NA\n";
}

const std::string kTails = "tailnum,type,manufacturer,issue_date,model\nN1,C,BOEING,02/13/2004,737-7H4\n"
                           "N2,C,BOEING,02/13/2004,737-3H4\nN3,C,CESSNA,02/13/2004,T337G\n";

std::vector<Flight> flown(const std::string& rows, bool every = false) {
    RawTables raw = rawOf({rows, kTails});
    Findings findings;
    return flownFlights(raw, AircraftTypes(), every, findings);
}

TEST(Zones, SummerTimeGoesByTheMonth) {
    const Zones zones;
    EXPECT_EQ(zones.minutesAhead("America/New_York", 2002, 6), -240);
    EXPECT_EQ(zones.minutesAhead("America/New_York", 2002, 12), -300);
    EXPECT_EQ(zones.minutesAhead("America/New_York", 2006, 3), -300)
        << "summer time began in April until 2006";
    EXPECT_EQ(zones.minutesAhead("America/New_York", 2008, 3), -240);
    EXPECT_EQ(zones.minutesAhead("Asia/Kolkata", 1990, 1), 330);
    EXPECT_EQ(zones.minutesAhead("Australia/Sydney", 2002, 1), 660);
    EXPECT_FALSE(zones.known("Nowhere/At_All"));
    EXPECT_EQ(zones.minutesAhead("Nowhere/At_All", 2002, 1), 0);
}

TEST(AircraftTypes, EveryRowOfTheTablesIsSound) {
    const AircraftTypes types;
    EXPECT_GE(types.all().size(), 100U);
    for (const AircraftType& type : types.all()) {
        EXPECT_EQ(type.code.size(), 3U);
        EXPECT_GT(type.cruise, 100) << type.code;
        EXPECT_LT(type.cruise, 500) << type.code;
        const double h = type.record.CruiseAltitude / 1000.0;
        const double flown = type.record.CruiseSpeedTAS * (1 + 0.01072 * h + 0.000256 * h * h);
        EXPECT_NEAR(flown, type.cruise, 2) << type.code << ": what the plan flies at its level";
        EXPECT_GT(type.record.ClimbRate, 0);
        EXPECT_EQ(types.find(type.code), &type);
    }
}

TEST(AircraftTypes, RelativesAndModels) {
    const AircraftTypes types;
    EXPECT_EQ(types.nearest("73M").code, "732");
    EXPECT_EQ(types.nearest("A320").code, "320");
    EXPECT_EQ(types.nearest("38X").code, "388") << "by its first characters";
    EXPECT_EQ(types.nearest("").code, "738");
    EXPECT_EQ(types.ofModel("BOEING", "737-3TO")->code, "733");
    EXPECT_EQ(types.ofModel("BOEING", "777-232LR")->code, "77L");
    EXPECT_EQ(types.ofModel("MCDONNELL DOUGLAS", "DC-9-82(MD-82)")->code, "M82");
    EXPECT_EQ(types.ofModel("CESSNA", "T337G"), nullptr);
}

TEST(Flown, TenMinutesAreOneFlightElevenAreTwo) {
    EXPECT_EQ(flown(row(2, 1000, 1100, "N1") + row(3, 1010, 1110, "N1")).size(), 1U);
    EXPECT_EQ(flown(row(2, 1000, 1100, "N1") + row(3, 1011, 1110, "N1")).size(), 2U);
    EXPECT_EQ(flown(row(2, 2358, 100, "N1") + row(3, 3, 105, "N1")).size(), 1U) << "across midnight";
}

TEST(Flown, DaysTimesAndTypeAreTheMostFrequent) {
    const auto all = flown(row(2, 1000, 1100, "N1") + row(3, 1005, 1105, "N2") + row(4, 1005, 1105, "N2") +
                           row(4, 1005, 1105, "N2"));
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].departure, 605);
    EXPECT_EQ(all[0].arrival, 665);
    EXPECT_EQ(all[0].days, 1 | 2 | 4) << "2 June 2008 was a Monday";
    EXPECT_EQ(all[0].type, "733") << "the same row twice counts once, the other tail twice";
}

TEST(Flown, UnknownTailsTakeTheCarriersUsualType) {
    const auto all =
        flown(row(2, 1000, 1100, "N2", 1) + row(2, 1300, 1400, "N3", 2) + row(2, 1500, 1600, "N99", 3));
    ASSERT_EQ(all.size(), 3U);
    for (const Flight& flight : all) EXPECT_EQ(flight.type, "733");
}

TEST(Flown, ASingleDayStaysWhereTheSourceIsShort) {
    const std::string week = row(2, 1000, 1100, "N1", 1) + row(15, 1300, 1400, "N1", 2);
    EXPECT_EQ(flown(week).size(), 2U) << "fourteen days are not more than two weeks";
    const std::string month = row(2, 1000, 1100, "N1", 1) + row(16, 1300, 1400, "N1", 2);
    EXPECT_EQ(flown(month).size(), 0U);
    EXPECT_EQ(flown(month, true).size(), 2U);
}

TEST(Airports, RunwaysRadiosAndIls) {
    RawTables raw = rawOf({kAirportsDat, kRunwaysCsv, kRadiosCsv, kNavOld});
    Findings findings;
    const Airports airports = makeAirports(raw, findings);
    ASSERT_EQ(airports.all.size(), 3U);
    const Airport& alpha = airports.all[0];
    EXPECT_EQ(alpha.record.Name.trimmed(), "Alpha Intl");
    ASSERT_EQ(alpha.facilities.runways.size(), 2U) << "no helipad, no closed runway";
    const RunwayRecord& nine = alpha.facilities.runways[0];
    EXPECT_EQ(nine.runwayId.trimmed(), "09");
    EXPECT_NEAR(nine.runwayHeading, 90, 0.05);
    EXPECT_NEAR(nine.runwayCourse, 85, 0.05) << "the nearest VOR has 5 degrees east";
    EXPECT_EQ(nine.ilsId.trimmed(), "IALP");
    EXPECT_EQ(nine.ilsFrequency.trimmed(), "111.50");
    EXPECT_EQ(alpha.facilities.runways[1].ilsId.trimmed(), "NO ILS");
    EXPECT_EQ(alpha.facilities.radios.towerFreq.trimmed(), "118.30") << "the channel of 25 kHz";
    EXPECT_EQ(alpha.facilities.radios.deliveryFreq.trimmed(), "124.12");
    const Airport& bravo = airports.all[1];
    ASSERT_EQ(bravo.facilities.runways.size(), 2U);
    EXPECT_NEAR(bravo.facilities.runways[0].runwayHeading, 185, 0.05) << "from the name, turned true";
    EXPECT_GT(bravo.facilities.runways[0].runwayLatitude, 41.5F);
}

TEST(Airports, TheTableWithAHeaderWinsAndTheOtherLendsItsZone) {
    RawTables raw = rawOf({kAirportsDat, kAirportsCsv});
    Findings findings;
    const Airports airports = makeAirports(raw, findings);
    const Airport& alpha = airports.all[static_cast<std::size_t>(airports.find("AAA"))];
    EXPECT_EQ(alpha.record.Elevation, 1001);
    EXPECT_EQ(alpha.zone, "America/Chicago");
    EXPECT_EQ(airports.find("HEL"), -1);
    EXPECT_EQ(airports.find("QQQ"), -1);
}

struct World {
    RawTables raw = rawOf({kAirportsDat, kRoutesDat});
    Findings findings;
    Airports airports = makeAirports(raw, findings);
    AircraftTypes types;
    Zones zones;

    std::vector<Flight> made(CycleMonth month, const std::vector<Flight>& real = {}) {
        return madeFlights(raw.routes.rows, airports, types, zones, month, real, findings);
    }
};

TEST(Made, ArrivalsFollowTheClocksOfTheMonth) {
    World world;
    for (const auto& flight : world.made({2002, 6})) {
        if (flight.destination != "CCC") continue;
        const double miles = distance(world.airports.all[0].place, world.airports.all[2].place);
        const int block = blockMinutes(*world.types.find("763"), miles);
        EXPECT_EQ((flight.departure + block + 6 * 60) % 1440, flight.arrival) << "both ends have summer time";
    }
    bool seen = false;
    for (const auto& flight : world.made({2006, 3})) seen = seen || flight.destination == "CCC";
    EXPECT_TRUE(seen);
}

TEST(Made, NumbersDoNotClashAndRealFlightsWin) {
    World world;
    Flight real;
    real.airline = "X0";
    real.number = 1;
    real.origin = "AAA";
    real.destination = "BBB";
    std::set<int> numbers{1};
    for (const Flight& flight : world.made({2002, 6}, {real})) {
        EXPECT_FALSE(flight.origin == "AAA" && flight.destination == "BBB");
        EXPECT_TRUE(numbers.insert(flight.number).second) << flight.number;
        EXPECT_EQ(flight.airline, "X0") << "the other airline only shares its code";
    }
    EXPECT_EQ(world.findings.count("routes flown under another airline's number, left out"), 1);
}

TEST(Made, AnAirlineWithoutNumbersLeftSaysSo) {
    World world;
    std::vector<Flight> real;
    for (int number = 1; number <= 9999; ++number) {
        Flight flight;
        flight.airline = "X0";
        flight.number = number;
        flight.origin = "BBB";
        flight.destination = "CCC";
        real.push_back(flight);
    }
    EXPECT_EQ(world.made({2002, 6}, real).size(), 0U);
    EXPECT_GT(world.findings.count("flights beyond an airline's last number, left out"), 0);
}

TEST(Own, APilotsFlightsWin) {
    RawTables raw = rawOf({kAirportsDat, kOwnFlights});
    Findings findings;
    const Airports airports = makeAirports(raw, findings);
    const auto own = ownFlights(raw.ownFlights.rows, airports, AircraftTypes(), findings);
    ASSERT_EQ(own.size(), 1U);
    std::vector<Flight> others(2);
    others[0].airline = others[1].airline = "X0";
    others[0].origin = others[1].destination = "AAA";
    others[0].destination = others[1].origin = "BBB";
    giveWay(others, own);
    ASSERT_EQ(others.size(), 1U);
    EXPECT_EQ(others[0].origin, "BBB");
}

TEST(SharedTables, GrowAtTheirEndAndOnlyOnce) {
    gt1::World old;
    NavaidRecord vor;
    vor.navaidId = "ALP";
    vor.latitude = 40;
    vor.longitude = -100;
    vor.frequency = "112.30";
    old.vor.push_back(vor);
    SharedTables shared(old);
    const Point same{'V', "ALP", "ALPHA", "112.30", "K3", {40.0004, -100.0}, true};
    const Point moved{'V', "ALP", "ALPHA", "112.30", "K3", {40.1, -100.0}, true};
    EXPECT_EQ(shared.record(same), 0U);
    EXPECT_EQ(shared.record(moved), 1U);
    EXPECT_EQ(shared.record(moved), 1U);
    EXPECT_EQ(shared.jet(same), 0U);
    EXPECT_EQ(shared.jet(moved), 1U);
    EXPECT_EQ(shared.world().jets[1].jetId.trimmed(), "ALP.2");
    EXPECT_EQ(shared.grown(), (std::vector<std::size_t>{0, 1, 0, 0, 2}));
}

TEST(Fitting, NamesKeepWholeWordsAndThePage) {
    EXPECT_EQ(airportName("Ch\xC3\xA1rlie Regional Airport"), "Ch\xE1rlie Rgnl");
    EXPECT_EQ(airportName("Airport"), "Airport");
    EXPECT_EQ(fitted("a long name that goes on and on", 20), "a long name that");
    EXPECT_EQ(fitted("Llanfairpwllgwyngyllgogerych", 10), "Llanfairpw");
    EXPECT_EQ(ownText("\xC5\x81\xC3\xB3\x64\xC5\xBA\x01"), "L\xF3"
                                                           "dz");
    EXPECT_EQ(ownText("\xFF\xE1"), "\xFF\xE1") << "what is no UTF-8 is the page itself";
}

} // namespace
} // namespace gatewise::importer
