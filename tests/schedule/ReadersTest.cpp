#include "schedule/Readers.h"

#include "support/Schedule.h"
#include "support/TempFolder.h"

#include <set>

namespace gatewise {
namespace {

using test::airport;
using test::bytesOf;
using test::flight;
using test::TempFolder;

std::vector<AirportRecord> threeAirports() {
    return {airport("ATL", "KATL", "Hartsfield", "Atlanta", 33.64F, -84.42F),
            airport("JFK", "KJFK", "Kennedy", "New York"),
            airport("LAX", "KLAX", "Los Angeles", "Los Angeles")};
}

TEST(DataSets, AFolderWithoutSubFoldersHasNone) {
    const TempFolder folder;
    folder.write("/Data/index.gt1", "");
    EXPECT_TRUE(dataSetFolders(folder.path()).empty());
    EXPECT_TRUE(dataSetFolders(folder.path("/nowhere")).empty());
}

TEST(DataSets, SubFoldersAreDataSetsAndFilesAreNot) {
    const TempFolder folder;
    folder.write("/data/Summer/index.gt1", "");
    folder.write("/data/Winter/index.gt1", "");
    folder.write("/data/index.gt1", "");
    const auto found = dataSetFolders(folder.path());
    EXPECT_EQ(std::set<std::string>(found.begin(), found.end()), (std::set<std::string>{"Summer", "Winter"}));
}

TEST(DataSets, TheOrderIsThatOfTheFileSystem) {
    const TempFolder folder;
    for (const auto* name : {"C", "A", "B"}) folder.write("/Data/" + std::string(name) + "/x", "");
    std::vector<std::string> order;
    for (const auto& entry : files::list(folder.path("\\Data\\"))) order.push_back(entry.name);
    EXPECT_EQ(dataSetFolders(folder.path()), order);
}

TEST(DataSets, NoMoreThan999AreKept) {
    const TempFolder folder;
    for (int i = 0; i < 1005; ++i)
        std::filesystem::create_directories(folder.path("/Data/" + std::to_string(i)));
    EXPECT_EQ(dataSetFolders(folder.path()).size(), 999U);
}

TEST(LoadAirports, TheTableHasOneBlankElementMoreThanTheFile) {
    const TempFolder folder;
    auto airports = threeAirports();
    airports[0].DepartureOffset = 33;
    airports[0].DepartureCount = -2;
    airports[0].RunwayOffset = 0x01020304;
    folder.write("/index.gt1", bytesOf(airports));
    Tables tables;
    ASSERT_TRUE(loadAirports(folder.path("\\INDEX.GT1"), tables));
    EXPECT_EQ(tables.AirportCount(), 3);
    ASSERT_EQ(tables.airports.size(), 4U);
    EXPECT_EQ(tables.airports[0].Name.str(), "Hartsfield                         ");
    EXPECT_EQ(tables.airports[0].DepartureOffset, 33);
    EXPECT_EQ(tables.airports[0].DepartureCount, -2);
    EXPECT_EQ(tables.airports[0].Latitude, 33.64F);
    EXPECT_EQ(tables.airports[0].RunwayOffset, 0x01020304);
    EXPECT_EQ(tables.airports[3].Icao.str(), "    ");
    EXPECT_EQ(tables.airports[3].Latitude, 0);
}

TEST(LoadAirports, ALengthThatIsNoMultipleGivesARoundedCountAndAPartlyFilledElement) {
    const TempFolder folder;
    Bytes bytes = bytesOf(threeAirports());
    bytes.resize(2 * 107 + 20); // Iata, Icao and thirteen characters of the name
    folder.write("/short", bytes);
    Tables tables;
    ASSERT_TRUE(loadAirports(folder.path("/short"), tables));
    EXPECT_EQ(tables.AirportCount(), 2);
    EXPECT_EQ(tables.airports[2].Icao.str(), "KLAX");
    EXPECT_EQ(tables.airports[2].Name.trimmed(), "Los Angeles");
    EXPECT_EQ(tables.airports[2].City.trimmed(), "");

    bytes = bytesOf(threeAirports());
    bytes.resize(2 * 107 + 60); // rounds up: another blank element follows
    folder.write("/longer", bytes);
    ASSERT_TRUE(loadAirports(folder.path("/longer"), tables));
    EXPECT_EQ(tables.AirportCount(), 3);
    EXPECT_EQ(tables.airports[2].City.trimmed(), "Los Angeles");
    EXPECT_EQ(tables.airports[3].Iata.trimmed(), "");
}

TEST(LoadAirports, AnEmptyFileLeavesTheBlankElementAlone) {
    const TempFolder folder;
    folder.write("/index.gt1", "");
    Tables tables;
    ASSERT_TRUE(loadAirports(folder.path("/index.gt1"), tables));
    EXPECT_EQ(tables.AirportCount(), 0);
    EXPECT_EQ(tables.airports[0].City.trimmed(), "");
}

TEST(LoadAirports, AMissingFileLeavesTheOldTable) {
    const TempFolder folder;
    Tables tables;
    tables.airports = threeAirports();
    EXPECT_FALSE(loadAirports(folder.path("/index.gt1"), tables));
    EXPECT_FALSE(loadAirports(folder.path(), tables));
    EXPECT_EQ(tables.airports.size(), 3U);
}

TEST(LoadAirlines, TheLastIndexIsTheLastRecord) {
    const TempFolder folder;
    folder.write("/airline.gt1", bytesOf<AirlineRecord>({test::airline("AB", "Able", "ABLE"),
                                                         test::airline("CD", "Delta Dawn", "DAWN")}));
    Tables tables;
    ASSERT_TRUE(loadAirlines(folder.path("/airline.gt1"), tables));
    EXPECT_EQ(tables.AirlineLast(), 1);
    EXPECT_EQ(tables.airlines[1].Code.str(), "CD ");
    EXPECT_EQ(tables.airlines[1].Callsign.trimmed(), "DAWN");
}

TEST(LoadAirlines, RoundingGoesToTheEvenUpperIndex) {
    const TempFolder folder;
    const auto last = [&](std::size_t length) {
        folder.write("/airline.gt1", Bytes(length, 'x'));
        Tables tables;
        EXPECT_TRUE(loadAirlines(folder.path("/airline.gt1"), tables));
        return tables.AirlineLast();
    };
    EXPECT_EQ(last(0), -1);
    EXPECT_EQ(last(20), -1);
    EXPECT_EQ(last(33), 0);  // -0.5 goes to 0
    EXPECT_EQ(last(99), 0);  // 0.5 goes to 0
    EXPECT_EQ(last(165), 2); // 1.5 goes to 2
    EXPECT_EQ(last(66 * 3), 2);
}

TEST(LoadAircraft, AnEmptyFileGivesAnUpperIndexOfMinusOne) {
    const TempFolder folder;
    folder.write("/aircraft.gt1", "");
    Tables tables;
    tables.aircraft.resize(2);
    ASSERT_TRUE(loadAircraft(folder.path("/aircraft.gt1"), tables));
    EXPECT_EQ(tables.AircraftLast(), -1);
}

TEST(LoadAircraft, ReadsThePerformanceNumbers) {
    const TempFolder folder;
    AircraftRecord record = test::aircraft("733", "Boeing 737-300", "Boeing", "B737-300");
    record.ClimbRate = 2500;
    record.DescentRate = -1800;
    record.CruiseAltitude = 33000;
    record.CruiseSpeedTAS = 430;
    folder.write("/aircraft.gt1", bytesOf<AircraftRecord>({record}));
    Tables tables;
    ASSERT_TRUE(loadAircraft(folder.path("/aircraft.gt1"), tables));
    const auto& read = tables.aircraft.at(0);
    EXPECT_EQ(read.ClimbRate, 2500);
    EXPECT_EQ(read.DescentRate, -1800);
    EXPECT_EQ(read.CruiseAltitude, 33000);
    EXPECT_EQ(read.CruiseSpeedTAS, 430);
    EXPECT_EQ(read.PfAircraft.trimmed(), "B737-300");
}

class Flights : public ::testing::Test {
protected:
    void SetUp() override {
        std::vector<FlightRecord> routes;
        for (int i = 0; i < 10; ++i) {
            routes.push_back(flight("AB", 100 + i, 600 + i, 700 + i));
            routes.back().PlanNumber = 7 * i;
        }
        folder.write("/routes.gt1", bytesOf(routes));
    }
    void writeArrivals(const std::vector<std::int32_t>& positions) const {
        Bytes bytes;
        for (const auto position : positions) appendField(bytes, position);
        folder.write("/arrivals.gt1", bytes);
    }
    bool arrivals(int offset, int count) {
        return loadArrivals(folder.path("/arrivals.gt1"), folder.path("/routes.gt1"), offset, count, found);
    }
    [[nodiscard]] std::vector<int> numbers() const {
        std::vector<int> out;
        for (const auto& f : found) out.push_back(f.FlightNumber);
        return out;
    }

    TempFolder folder;
    std::vector<FlightRecord> found;
};

TEST_F(Flights, DeparturesAreARunFromAPositionThatCountsFromOne) {
    ASSERT_TRUE(loadFlights(folder.path("/routes.gt1"), 1, 2, found));
    EXPECT_EQ(numbers(), (std::vector<int>{100, 101}));
    ASSERT_TRUE(loadFlights(folder.path("/routes.gt1"), 65, 8, found));
    EXPECT_EQ(found.front().FlightNumber, 102);
    EXPECT_EQ(found.back().PlanNumber, 63);
    EXPECT_EQ(found.back().DaysMask, 127);
}

TEST_F(Flights, DeparturesOutsideTheFileFailAndLeaveTheList) {
    ASSERT_TRUE(loadFlights(folder.path("/routes.gt1"), 1, 2, found));
    for (const auto& [offset, count] : std::vector<std::pair<int, int>>{{0, 1},
                                                                        {-31, 1},
                                                                        {289, 2},
                                                                        {290, 1},
                                                                        {321, 1},
                                                                        {2147483647, 1},
                                                                        {1, 11},
                                                                        {1, 32767},
                                                                        {1, 0},
                                                                        {1, -5}})
        EXPECT_FALSE(loadFlights(folder.path("/routes.gt1"), offset, count, found)) << offset << " " << count;
    EXPECT_FALSE(loadFlights(folder.path("/none.gt1"), 1, 1, found));
    EXPECT_EQ(found.size(), 2U);
}

TEST_F(Flights, ArrivalsFollowTheListOfPositions) {
    writeArrivals({1, 289, 33, 33});
    ASSERT_TRUE(arrivals(5, 3));
    EXPECT_EQ(numbers(), (std::vector<int>{109, 101, 101}));
    EXPECT_EQ(found[0].PlanNumber, 63);
}

TEST_F(Flights, AnArrivalCountOfOneGivesASingleFlight) {
    writeArrivals({65});
    ASSERT_TRUE(arrivals(1, 1));
    EXPECT_EQ(numbers(), std::vector<int>{102});
}

TEST_F(Flights, ArrivalsOutsideTheirListFail) {
    writeArrivals({1, 33});
    EXPECT_TRUE(arrivals(1, 2));
    for (const auto& [offset, count] : std::vector<std::pair<int, int>>{
             {0, 1}, {-3, 1}, {1, 3}, {5, 2}, {6, 1}, {9, 1}, {2147483647, 32767}, {1, 0}, {1, -1}})
        EXPECT_FALSE(arrivals(offset, count)) << offset << " " << count;
    EXPECT_EQ(found.size(), 2U);
}

TEST_F(Flights, APositionOutsideTheRoutesFails) {
    for (const std::int32_t position : {0, -1, 290, 321, 2147483647, -2147483647 - 1}) {
        writeArrivals({1, position});
        EXPECT_FALSE(arrivals(1, 2)) << position;
    }
    writeArrivals({1, 289});
    EXPECT_TRUE(arrivals(1, 2));
    std::filesystem::remove(folder.path("/routes.gt1"));
    EXPECT_FALSE(arrivals(1, 2));
}

TEST_F(Flights, FarScatteredArrivalsAreTheSameAsNeighbours) {
    // 60,000 flights: two of them lie farther apart than is worth reading in one piece.
    std::vector<FlightRecord> routes(60000);
    for (std::size_t i = 0; i < routes.size(); ++i) routes[i].PlanNumber = static_cast<std::int32_t>(i);
    folder.write("/routes.gt1", bytesOf(routes));
    writeArrivals({32 * 59999 + 1, 1, 32 * 30000 + 1});
    ASSERT_TRUE(arrivals(1, 3));
    EXPECT_EQ(found[0].PlanNumber, 59999);
    EXPECT_EQ(found[1].PlanNumber, 0);
    EXPECT_EQ(found[2].PlanNumber, 30000);
    writeArrivals({32 * 59999 + 1, 1, 32 * 60000 + 1});
    EXPECT_FALSE(arrivals(1, 3));
}

} // namespace
} // namespace gatewise
