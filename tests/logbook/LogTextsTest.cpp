#include "logbook/LogTexts.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

const NumberLocale kEnglish;

std::vector<LogRecord> entries(int count) {
    std::vector<LogRecord> out(static_cast<std::size_t>(count));
    for (auto& entry : out) {
        entry.departureIcao = "KATL";
        entry.departureName = "Hartsfield";
        entry.dayHours = 1.5F;
        entry.nightHours = 0.3F;
        entry.instrumentHours = 0.4F;
    }
    return out;
}

TEST(LogPages, EmptyLogHasOnePage) {
    EXPECT_EQ(logPages(-1), 1);
}
TEST(LogPages, SevenEntriesHaveOnePage) {
    EXPECT_EQ(logPages(6), 1);
}
TEST(LogPages, EightEntriesHaveTwoPages) {
    EXPECT_EQ(logPages(7), 2);
}

TEST(LogPage, EmptyLogShowsZeroSums) {
    const auto page = logPageTexts({}, 1, kEnglish);
    EXPECT_EQ(page.pageInstrument, "0.0");
    EXPECT_EQ(page.pagePilot, "0.0");
    EXPECT_EQ(page.previousInstrument, "0.0");
    EXPECT_EQ(page.previousPilot, "0.0");
    EXPECT_EQ(page.totalInstrument, "0.0");
    EXPECT_EQ(page.totalPilot, "0.0");
    for (const auto& row : page.rows) EXPECT_EQ(row.departure, "");
}

TEST(LogPage, SecondPageAddsThePagesBefore) {
    const auto page = logPageTexts(entries(9), 2, kEnglish);
    EXPECT_EQ(page.pageInstrument, "0.8");
    EXPECT_EQ(page.pagePilot, "3.6");
    EXPECT_EQ(page.previousInstrument, "2.8");
    EXPECT_EQ(page.previousPilot, "12.6");
    EXPECT_EQ(page.totalInstrument, "3.6");
    EXPECT_EQ(page.totalPilot, "16.2");
    EXPECT_EQ(page.rows[1].pilot, "1.8");
    EXPECT_EQ(page.rows[1].instrument, "0.4");
    EXPECT_EQ(page.rows[2].departure, "");
    EXPECT_EQ(page.rows[0].departure, "KATL - Hartsfield                         ");
}

TEST(LogPage, LastPageOfTotalsIsNotTheGrandTotalOfEarlierOnes) {
    const auto page = logPageTexts(entries(9), 1, kEnglish);
    EXPECT_EQ(page.totalPilot, "12.6");
}

TEST(HoursText, TakesTheSignOfTheLocale) {
    NumberLocale comma;
    comma.LocaleDecimal = ",";
    EXPECT_EQ(hoursText(1.5, comma), "1,5");
    EXPECT_EQ(hoursText(0, kEnglish), "0.0");
    EXPECT_EQ(hoursText(123.45, kEnglish), "123.5");
}

TEST(Hhmm, SplitsHoursAndMinutes) {
    EXPECT_EQ(hhmmText(705), "07:05");
    EXPECT_EQ(hhmmText(0), "00:00");
    EXPECT_EQ(hhmmText(2359), "23:59");
}

TEST(Difference, EqualTimesShowZero) {
    EXPECT_EQ(differenceText(1200, 1200), "00:00");
}
TEST(Difference, LateByNinetyMinutesIsNegative) {
    EXPECT_EQ(differenceText(1000, 1130), "-01:30");
}
TEST(Difference, EarlyByFiveMinutesIsPositive) {
    EXPECT_EQ(differenceText(1000, 955), "00:05");
}
TEST(Difference, LateByLessThanAnHourKeepsItsSign) {
    EXPECT_EQ(differenceText(1000, 1005), "-00:05");
}
TEST(Difference, NoWrapAtMidnight) {
    EXPECT_EQ(differenceText(2350, 10), "23:40");
    EXPECT_EQ(differenceText(10, 2350), "-23:40");
}

TEST(StepTime, MinuteUpPastMidnight) {
    EXPECT_EQ(stepTime(2359, "timeMin_up"), 0);
}
TEST(StepTime, MinuteDownPastMidnight) {
    EXPECT_EQ(stepTime(0, "timeMin_dn"), 2359);
}
TEST(StepTime, MinuteUpTurnsTheHour) {
    EXPECT_EQ(stepTime(1059, "timeMin_up"), 1100);
}
TEST(StepTime, MinuteDownTurnsTheHour) {
    EXPECT_EQ(stepTime(1100, "timeMin_dn"), 1059);
}
TEST(StepTime, HoursWrap) {
    EXPECT_EQ(stepTime(2315, "timeHr_up"), 15);
    EXPECT_EQ(stepTime(15, "timeHr_dn"), 2315);
    EXPECT_EQ(stepTime(1015, "timeHr_up"), 1115);
}
TEST(StepTime, MidnightIsZeroFromBothSides) {
    EXPECT_EQ(stepTime(2300, "timeHr_up"), 0);
    EXPECT_EQ(stepTime(1, "timeMin_dn"), 0);
    EXPECT_EQ(stepTime(100, "timeHr_dn"), 0);
}
TEST(StepTime, DigitsOfATimeBelowZeroAreThoseThatAreWritten) {
    EXPECT_EQ(stepTime(-2498, "timeMin_dn"),
              2261); // -2499, -99, whose last two digits are above 59: -139, 2261
}
TEST(StepTime, AnythingElseChangesNothing) {
    EXPECT_EQ(stepTime(1015, "vol_up"), 1015);
}

TEST(StepHours, StaysAtTheTop) {
    EXPECT_EQ(stepHours(99.9F, "timeHr_up"), 99.9F);
    EXPECT_EQ(stepHours(99.9F, "timeMin_up"), 99.9F);
    EXPECT_EQ(stepHours(99.0F, "timeHr_up"), 99.9F);
}
TEST(StepHours, StaysAtTheBottom) {
    EXPECT_EQ(stepHours(0.05F, "timeMin_dn"), 0.0F);
    EXPECT_EQ(stepHours(0.5F, "timeHr_dn"), 0.0F);
}
TEST(StepHours, ManyTenthsShowAsTheyShould) {
    float hours = 0;
    for (int i = 1; i <= 999; ++i) {
        hours = stepHours(hours, "timeMin_up");
        EXPECT_EQ(hoursText(static_cast<double>(hours), kEnglish),
                  std::to_string(i / 10) + "." + std::to_string(i % 10));
    }
}

} // namespace
} // namespace gatewise
