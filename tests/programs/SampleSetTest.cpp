#ifdef GATEWISE_SAMPLE_DATA

#include "AllFormats.h"
#include "Plans.h"

#include "plan/GetFlightPlan.h"
#include "schedule/Readers.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

// Plans of the delivered data sets, each drawn with a flight that flies it.

namespace gatewise::test {
namespace {

using programs::Format;
using programs::formats;

/// A data set of a program folder, "\Data" or one below it.
class DataSet {
public:
    explicit DataSet(const std::string& folder, const std::string& program = GATEWISE_PROGRAM_DIR)
        : files_(planFiles(program, folder)) {
        std::string path = program + folder + "/";
        std::ranges::replace(path, '\\', '/');
        EXPECT_TRUE(loadAirports(path + "index.gt1", tables_));
        EXPECT_TRUE(loadAircraft(program + "/Data/aircraft.gt1", tables_));
        for (const AirportRecord& airport : tables_.airports) {
            std::vector<FlightRecord> departures;
            loadFlights(path + "routes.gt1", airport.DepartureOffset, airport.DepartureCount, departures);
            flights_.insert(flights_.end(), departures.begin(), departures.end());
        }
    }

    void load(Plan& plan, std::mt19937& draw) const {
        const FlightRecord& flight = flights_[draw() % flights_.size()];
        loadFlightPlan(plan, flight.PlanNumber, {tables_, flight, false, 0, files_});
    }

private:
    Tables tables_;
    PlanFiles files_;
    std::vector<FlightRecord> flights_;
};

void expectWhole(const DataSet& set, int count) {
    std::mt19937 draw(15); // NOLINT(cert-msc51-cpp): the same plans in every run
    Plan plan;
    std::size_t points = 0;
    for (int i = 0; i < count; ++i) {
        set.load(plan, draw);
        for (const bool computed : {false, true}) {
            const auto route = routeOfPlan(plan, computed);
            points += route.points.size();
            for (const Format& format : formats()) {
                if (computed && !format.takesComputed) continue;
                ASSERT_EQ(faultsOf(format, format.write(route), route), "") << plan.routeString;
            }
        }
    }
    EXPECT_GT(points, static_cast<std::size_t>(count) * 6);
}

TEST(SampleSet, ThreeHundredPlansAreReadBack) {
    expectWhole(DataSet("\\Data"), 300);
}

TEST(SampleSet, PlansOfAFurtherSetAreReadBack) {
    expectWhole(DataSet("\\Data\\Pacific Islands"), 20);
}

// The check of the import makes the world from public tables and then asks for this test by itself.
TEST(WorldSet, FiveHundredPlansAreReadBack) {
    const char* program = std::getenv("GATEWISE_WORLD");
    if (program == nullptr) GTEST_SKIP() << "GATEWISE_WORLD names no program folder with a set \"World\"";
    expectWhole(DataSet("\\Data\\World", program), 500);
}

} // namespace
} // namespace gatewise::test

#endif
