#include "export/ExportCommon.h"

#include <gtest/gtest.h>

namespace gatewise {

namespace {

TEST(ExportCommon, DoubledBackslashesBecomeOne) {
    EXPECT_EQ(singleBackslashes("C:\\\\plan.prg"), "C:\\plan.prg");
    EXPECT_EQ(singleBackslashes("/\\plan.prg"), "/\\plan.prg");
}

TEST(ExportCommon, PointsAreSortedByBothCharacters) {
    const auto kind = [](const char* type) {
        PlanPoint point;
        point.pointType = type;
        return exportKind(point);
    };
    EXPECT_EQ(kind("V "), PointKind::Vor);
    EXPECT_EQ(kind("HV"), PointKind::Vor);
    EXPECT_EQ(kind("N "), PointKind::Ndb);
    EXPECT_EQ(kind("HN"), PointKind::Ndb);
    EXPECT_EQ(kind("I "), PointKind::Intersection);
    EXPECT_EQ(kind("HI"), PointKind::Intersection);
    EXPECT_EQ(kind("TC"), PointKind::TopOfClimb);
    EXPECT_EQ(kind("TD"), PointKind::TopOfDescent);
    EXPECT_EQ(kind("SU"), PointKind::Step);
    EXPECT_EQ(kind("SD"), PointKind::Step);
    EXPECT_EQ(kind("  "), PointKind::Other);
    EXPECT_EQ(kind(" V"), PointKind::Other);
}

TEST(ExportCommon, NumbersAlwaysHaveAPoint) {
    EXPECT_EQ(filedNumber({",", ","}, "00.00", 1.5), "01.50");
    EXPECT_EQ(filedSingle({",", ","}, "###.00000", 0.5F), ".50000");
    // The sign that is swapped out is the monetary one, even where numbers are written with another.
    EXPECT_EQ(filedNumber({",", "."}, "00.00", 1.5), "01,50");
}

} // namespace

} // namespace gatewise
