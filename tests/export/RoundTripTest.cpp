#include "ExportAll.h"
#include "Readers.h"

#include "export/ExportFSNav.h"

#include <gtest/gtest.h>

namespace gatewise::test {

namespace {

/// Half a unit of the last place that a format writes, and what seven digits of a position leave out.
constexpr double kMinutes = 0.0051 / 60;
constexpr double kFiveDigits = 0.0000051 + 0.00005;

struct Keeps {
    bool airports, computed, steps, unknown;
    double near = 0; // miles from the departure below which a point is left out
};

std::vector<ReadPoint> expected(const Plan& plan, const Keeps& keeps, auto&& nameOf) {
    std::vector<ReadPoint> out;
    for (int i = 0; i <= plan.planLast; ++i) {
        const PlanPoint& point = plan.at(i);
        const bool airport = i == 0 || i == plan.planLast;
        const auto type = point.pointType.view();
        const bool top = type == "TC" || type == "TD";
        const bool step = type == "SU" || type == "SD";
        if (airport ? !keeps.airports
                    : (top && !keeps.computed) || (step && !keeps.steps) || (type == "  " && !keeps.unknown))
            continue;
        float course = 0;
        if (!airport &&
            static_cast<double>(Distance(plan.at(0).pointLatitude, plan.at(0).pointLongitude,
                                         point.pointLatitude, point.pointLongitude, course)) < keeps.near)
            continue;
        out.push_back({nameOf(point, airport), static_cast<double>(point.pointLatitude),
                       static_cast<double>(point.pointLongitude), point.pointAltitude});
    }
    return out;
}

void expectSame(const std::vector<ReadPoint>& read, const std::vector<ReadPoint>& points, double tolerance) {
    ASSERT_EQ(read.size(), points.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        EXPECT_EQ(read[i].name, points[i].name) << i;
        EXPECT_NEAR(read[i].latitude, points[i].latitude, tolerance) << i;
        EXPECT_NEAR(read[i].longitude, points[i].longitude, tolerance) << i;
        if (read[i].altitude >= 0 && points[i].altitude >= 0) {
            EXPECT_EQ(read[i].altitude, points[i].altitude) << i;
        }
    }
}

std::string noName(const PlanPoint&, bool) {
    return {};
}
std::string nameOf(const PlanPoint& point, bool) {
    return std::string(point.pointName.trimmed());
}
std::string idOf(const PlanPoint& point, bool airport) {
    return airport ? nameOf(point, true) : std::string(point.pointId.trimmed());
}
std::string gpsName(const PlanPoint& point, bool) {
    const auto type = point.pointType.view();
    return type == "TC" ? "TOC" : type == "TD" ? "BOD" : std::string(point.pointName.trimmed());
}

class RoundTrip : public testing::TestWithParam<std::string> {
protected:
    [[nodiscard]] std::string file(const std::string& extension) const {
        for (const auto& file : exportAll(exportCase(GetParam()), {})) {
            if (file.name == GetParam() + extension) return file.bytes;
        }
        return {};
    }
    [[nodiscard]] const Plan& plan() const { return exportCase(GetParam()).plan; }
};

TEST_P(RoundTrip, FS2000) {
    expectSame(readPln(file(".pln")), expected(plan(), {true, false, false, true}, idOf), kMinutes);
}

TEST_P(RoundTrip, FMC) {
    expectSame(readFmc(file(".fmc")), expected(plan(), {true, true, true, true}, nameOf), kFiveDigits);
}

TEST_P(RoundTrip, RC2) {
    const std::string text = file(".apl");
    if (text.empty()) {
        EXPECT_EQ(GetParam(), "long30");
        return;
    }
    expectSame(readApl(text), expected(plan(), {true, false, false, true, 5.0}, noName), kFiveDigits);
}

TEST_P(RoundTrip, ACSGPS) {
    expectSame(readPrg(file(".prg")), expected(plan(), {true, true, false, false}, gpsName), kMinutes);
}

TEST_P(RoundTrip, SB) {
    expectSame(readSbp(file(".sbp")), expected(plan(), {false, true, false, false}, nameOf), kFiveDigits);
}

TEST_P(RoundTrip, FSNav) {
    const auto& c = exportCase(GetParam());
    const Bytes bytes = fsnavPlan(c.plan, c.exportFlight(), {});
    expectSame(readFsn(std::string(bytes.begin(), bytes.end())),
               expected(plan(), {true, false, false, true}, noName), 0);
}

INSTANTIATE_TEST_SUITE_P(Flights, RoundTrip,
                         testing::Values("west", "south", "andes", "direct", "long29", "long30"),
                         [](const auto& flight) { return flight.param; });

} // namespace

} // namespace gatewise::test
