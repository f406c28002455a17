#include "plan/PlanTable.h"

#include <gtest/gtest.h>
#include <tuple>

namespace gatewise {
namespace {

TEST(PlanPoint, KnowsWhatItIsByBothCharactersOfItsType) {
    using Answer = std::tuple<PointKind, bool, bool>; // kind, of the high-altitude file, computed
    const auto answer = [](const char* type) {
        PlanPoint point;
        point.pointType = type;
        return Answer(point.kind(), point.highAltitude(), point.computed());
    };
    EXPECT_EQ(answer("V "), Answer(PointKind::Vor, false, false));
    EXPECT_EQ(answer("HV"), Answer(PointKind::Vor, true, false));
    EXPECT_EQ(answer("N "), Answer(PointKind::Ndb, false, false));
    EXPECT_EQ(answer("HN"), Answer(PointKind::Ndb, true, false));
    EXPECT_EQ(answer("I "), Answer(PointKind::Intersection, false, false));
    EXPECT_EQ(answer("HI"), Answer(PointKind::Intersection, true, false));
    EXPECT_EQ(answer("TC"), Answer(PointKind::TopOfClimb, false, true));
    EXPECT_EQ(answer("TD"), Answer(PointKind::TopOfDescent, false, true));
    EXPECT_EQ(answer("SU"), Answer(PointKind::StepClimb, false, true));
    EXPECT_EQ(answer("SD"), Answer(PointKind::StepDescent, false, true));
    for (const char* none : {"  ", " V", "HX", "vv", "T "})
        EXPECT_EQ(answer(none), Answer(PointKind::Other, false, false)) << none;
}

} // namespace
} // namespace gatewise
