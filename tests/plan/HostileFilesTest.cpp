#include "PlanWorld.h"
#include "plan/Editing.h"
#include "plan/PlanList.h"
#include "plan/PrintPlan.h"

#include <gtest/gtest.h>
#include <random>

// Files full of anything: every plan comes to an end, stays inside its table and can be shown, edited and
// printed.

namespace gatewise {
namespace {

using test::FileWorld;

class HostileFiles : public testing::Test {
protected:
    Bytes noise(std::size_t length) {
        Bytes bytes(length);
        for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random());
        return bytes;
    }

    /// Entries of known kinds with records near the start, so that the noise of the navaid files is read.
    std::vector<RouteEntry> route() {
        std::vector<RouteEntry> entries(random() % 12);
        for (RouteEntry& e : entries) {
            e.entryKind = std::string(1, "VNIHX"[random() % 5]);
            e.entryRecord = static_cast<std::int32_t>(random() % 8);
        }
        return entries;
    }

    void useEverywhere() {
        const PlanInput input = [&] {
            PlanInput in = world.input();
            in.files = world.files;
            in.HaveAlternate = true;
            in.AlternateIndex = static_cast<std::int32_t>(random());
            return in;
        }();
        loadFlightPlan(world.plan, static_cast<std::int32_t>(random() % 4), input);
        check();
        removePlanPoint(world.plan, input, static_cast<int>(random() % 8), 33000);
        check();
        recalculatePlan(world.plan, input, static_cast<std::int32_t>(500 + random() % 70000));
        check();
    }

    void check() {
        ASSERT_GE(world.plan.planLast, 0);
        ASSERT_LT(world.plan.planLast, kPlanPoints);
        ASSERT_LE(world.plan.routeString.size(), 1000U);
        const MagneticTable magnetic(world.folder.path());
        const NumberLocale locale;
        EXPECT_EQ(planListRows(world.plan, world.tables, -1, magnetic, locale).size(),
                  static_cast<std::size_t>(std::max<int>(world.plan.planLast, 1)) + 5);
        EXPECT_FALSE(printFlightPlan(world.plan, world.flight, DateTime(), "", magnetic, locale).empty());
    }

    std::mt19937 random{20020615};
    FileWorld world;
};

TEST_F(HostileFiles, NoiseInEveryFile) {
    for (int round = 0; round < 60; ++round) {
        for (const char* name : {"VOR", "NDB", "ISC", "JRT", "APT"})
            world.folder.write("/Data/" + std::string(name) + ".gt1", noise(random() % 400));
        world.folder.write("/SCENERY/magdec.bgl", noise(random() % 140'000));
        if (round % 3 == 0)
            world.folder.write("/Data/Plans.gt1", noise(random() % 3000));
        else
            world.writePlans({route(), route(), route()});
        for (AirportRecord& airport : world.tables.airports) {
            airport.RunwayCount = static_cast<std::int32_t>(random());
            airport.RunwayOffset = static_cast<std::int32_t>(random() % 500);
        }
        useEverywhere();
    }
}

TEST_F(HostileFiles, NoiseInTheTables) {
    for (int round = 0; round < 12; ++round) {
        world.writePlans({route(), route(), route()});
        for (AirportRecord& airport : world.tables.airports) {
            loadRecord(airport, noise(recordSize<AirportRecord>()).data());
            airport.Iata = world.flight.OriginIata;
        }
        world.flight.DestinationIata = world.flight.OriginIata;
        loadRecord(world.type(), noise(recordSize<AircraftRecord>()).data());
        world.type().Code = world.flight.AircraftCode;
        useEverywhere();
    }
}

} // namespace
} // namespace gatewise
