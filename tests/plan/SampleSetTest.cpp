#ifdef GATEWISE_SAMPLE_DATA

#include "plan/GetFlightPlan.h"
#include "schedule/Readers.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <set>

// Every plan of the delivered data set with every aircraft that flies it.

namespace gatewise {
namespace {

class SampleSet : public testing::Test {
protected:
    void SetUp() override {
        const std::string data = GATEWISE_PROGRAM_DIR "/Data/";
        ASSERT_TRUE(loadAirports(data + "index.gt1", tables));
        ASSERT_TRUE(loadAircraft(data + "aircraft.gt1", tables));
        std::set<std::pair<std::int32_t, std::string>> seen;
        for (const AirportRecord& airport : tables.airports) {
            std::vector<FlightRecord> departures;
            loadFlights(data + "routes.gt1", airport.DepartureOffset, airport.DepartureCount, departures);
            for (const FlightRecord& flight : departures) {
                if (seen.emplace(flight.PlanNumber, flight.AircraftCode.str()).second)
                    flights.push_back(flight);
            }
        }
        ASSERT_GT(flights.size(), 100U);
    }

    void load(Plan& plan, const FlightRecord& flight) const {
        loadFlightPlan(plan, flight.PlanNumber, {tables, flight, false, 0, files});
    }

    PlanFiles files = planFiles(GATEWISE_PROGRAM_DIR, "\\Data");
    Tables tables;
    std::vector<FlightRecord> flights;
};

/// All that a plan shows; the key of a point that no navaid fills is the one thing that a flight before may
/// leave.
std::string textOf(const Plan& plan) {
    std::string out = plan.routeString + plan.totalTime.str();
    for (int i = 0; i <= plan.planLast; ++i) {
        PlanPoint::fields(plan.at(i), [&](const char* name, const auto& field) {
            if (std::string_view(name) == "pointId" && (i == 0 || i == plan.planLast)) return;
            if constexpr (requires { field.view(); })
                out += field.view();
            else
                out += std::to_string(field) + " ";
        });
    }
    for (const double value :
         {static_cast<double>(plan.cruiseAltitude), static_cast<double>(plan.peakAltitude),
          static_cast<double>(plan.totalDistance), static_cast<double>(plan.directCourse)})
        out += std::to_string(value) + " ";
    return out;
}

TEST_F(SampleSet, EveryPlanComesOutTheSameInAnyOrder) {
    std::vector<std::string> first;
    for (const FlightRecord& flight : flights) {
        Plan fresh;
        load(fresh, flight);
        first.push_back(textOf(fresh));
    }
    std::vector<std::size_t> order(flights.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
    std::shuffle(order.begin(), order.end(), std::mt19937(15)); // NOLINT: the same order in every run
    Plan live;
    for (const std::size_t i : order) {
        load(live, flights[i]);
        ASSERT_EQ(textOf(live), first[i])
            << flights[i].OriginIata.view() << flights[i].DestinationIata.view();
    }
}

TEST_F(SampleSet, EveryPlanIsFlown) {
    Plan plan;
    for (const FlightRecord& flight : flights) {
        load(plan, flight);
        SCOPED_TRACE(flight.OriginIata.str() + " to " + flight.DestinationIata.str());
        int tops = 0;
        for (int i = 0; i <= plan.planLast; ++i) {
            const PlanPoint& point = plan.at(i);
            tops += point.pointType.view() == "TC" || point.pointType.view() == "TD" ? 1 : 0;
            EXPECT_NE(point.pointName.trimmed(), "") << i;
            if (i == 0) continue;
            EXPECT_GE(point.pointMinutes, plan.at(i - 1).pointMinutes) << i;
            EXPECT_GE(point.pointHeading, 0) << i;
            EXPECT_LT(point.pointHeading, 360) << i;
        }
        EXPECT_EQ(tops, 2);
        EXPECT_EQ(plan.at(plan.planLast).pointName, FixedText<5>(plan.destinationAirport.Icao.view()));
        EXPECT_FALSE(plan.departureAirport.runways.empty());
        EXPECT_FALSE(plan.destinationAirport.runways.empty());
        // Within a fifth of the miles that the timetable gives.
        EXPECT_NEAR(plan.totalDistance, flight.Miles, 50 + 0.2 * flight.Miles);
        EXPECT_GT(plan.cruiseAltitude, 0);
    }
}

} // namespace
} // namespace gatewise

#endif
