#include "export/ExportCommon.h"

#include <gtest/gtest.h>

namespace gatewise {

namespace {

TEST(ExportCommon, DoubledBackslashesBecomeOne) {
    EXPECT_EQ(singleBackslashes("C:\\\\plan.prg"), "C:\\plan.prg");
    EXPECT_EQ(singleBackslashes("/\\plan.prg"), "/\\plan.prg");
}

TEST(ExportCommon, NumbersAlwaysHaveAPoint) {
    EXPECT_EQ(filedNumber({",", ","}, "00.00", 1.5), "01.50");
    EXPECT_EQ(filedSingle({",", ","}, "###.00000", 0.5F), ".50000");
    // The sign that is swapped out is the monetary one, even where numbers are written with another.
    EXPECT_EQ(filedNumber({",", "."}, "00.00", 1.5), "01,50");
}

} // namespace

} // namespace gatewise
