#include "platform/Machine.h"
#include "platform/TimeOfDay.h"

#include <gtest/gtest.h>
#include <limits>

namespace gatewise {
namespace {

DateTime date(int year, int month, int day) {
    DateTime d;
    d.year = year;
    d.month = month;
    d.day = day;
    return d;
}

TEST(DaySerial, CountsFromTheEndOf1899) {
    EXPECT_EQ(daySerial(date(1899, 12, 30)), 0);
    EXPECT_EQ(daySerial(date(1900, 1, 1)), 2);
    EXPECT_EQ(daySerial(date(2000, 2, 29)), 36585);
    EXPECT_EQ(daySerial(date(2000, 3, 1)), 36586);
    EXPECT_EQ(daySerial(date(2002, 6, 15)), 37422);
    EXPECT_EQ(daySerial(date(1899, 12, 29)), -1);
}

TEST(DaySerial, ComesBack) {
    for (long long day = -150000; day < 150000; day += 37) {
        const DateTime d = fromDaySerial(day);
        ASSERT_EQ(daySerial(d), day);
        ASSERT_TRUE(d.month >= 1 && d.month <= 12 && d.day >= 1 && d.day <= 31);
        ASSERT_EQ(d.hour + d.minute, 0);
    }
}

TEST(DaySerial, TheEndsOfFebruaryAndOfTheYearComeBack) {
    const auto text = [](long long serial) {
        const DateTime d = fromDaySerial(serial);
        return std::to_string(d.year) + "-" + std::to_string(d.month) + "-" + std::to_string(d.day);
    };
    EXPECT_EQ(text(36585), "2000-2-29"); // the last day of four centuries
    EXPECT_EQ(text(36586), "2000-3-1");
    EXPECT_EQ(text(61), "1900-3-1"); // no leap year
    EXPECT_EQ(text(60), "1900-2-28");
    EXPECT_EQ(text(38046), "2004-2-29");
    EXPECT_EQ(text(36891), "2000-12-31");
    EXPECT_EQ(text(36892), "2001-1-1");
}

TEST(CalendarDay, IsNothingForWhatNoCalendarHolds) {
    const auto day = calendarDay(37422.9);
    ASSERT_TRUE(day);
    EXPECT_EQ(day->year, 2002);
    EXPECT_EQ(day->month, 6);
    EXPECT_EQ(day->day, 15);
    EXPECT_TRUE(calendarDay(-599999));
    EXPECT_FALSE(calendarDay(-600000));
    EXPECT_TRUE(calendarDay(2999999));
    EXPECT_FALSE(calendarDay(3000000));
    EXPECT_FALSE(calendarDay(std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(calendarDay(std::numeric_limits<double>::quiet_NaN()));
}

TEST(TimeOfDay, IsTheFirstTwoAndTheLastTwoDigits) {
    EXPECT_EQ(timeOfDay(0), 0);
    EXPECT_EQ(timeOfDay(5), 5);
    EXPECT_EQ(timeOfDay(735), 7 * 60 + 35);
    EXPECT_EQ(timeOfDay(2359), 23 * 60 + 59);
    EXPECT_EQ(timeOfDay(12345), 12 * 60 + 45);
    EXPECT_EQ(timeOfDay(123456), 12 * 60 + 56);
    for (const int none : {-1, -735, 60, 1160, 2400, 9930, 9999, 24000, 12360})
        EXPECT_FALSE(timeOfDay(none)) << none;
}

TEST(TimeOfDay, OfTextsIsNothingForWhatIsNoNumber) {
    EXPECT_EQ(timeOfDay("07", "35"), 7 * 60 + 35);
    EXPECT_EQ(timeOfDay("23", "59"), 23 * 60 + 59);
    for (const char* none : {"", "x", "-1", "24"}) EXPECT_FALSE(timeOfDay(none, "00")) << none;
    for (const char* none : {"", "x", "-1", "60"}) EXPECT_FALSE(timeOfDay("12", none)) << none;
}

TEST(Weekday, StartsOnSunday) {
    EXPECT_EQ(weekday(date(2002, 6, 15)), 6);
    EXPECT_EQ(weekday(date(2002, 6, 16)), 0);
    EXPECT_EQ(weekday(date(1899, 12, 30)), 6);
    EXPECT_EQ(weekday(date(1899, 12, 24)), 0);
    EXPECT_EQ(weekday(date(1850, 1, 1)), 2);
}

class PlainLocale : public Locale {
public:
    [[nodiscard]] std::string text(LocaleKey) const override { return "."; }
};

TEST(LongDate, EveryDayAndMonthHasItsName) {
    const PlainLocale locale;
    std::string days;
    std::string months;
    for (int day = 16; day <= 22; ++day) {
        const std::string text = locale.longDate(date(2002, 6, day));
        days += text.substr(0, text.find(',')) + " ";
    }
    for (int month = 1; month <= 12; ++month) {
        const std::string text = locale.longDate(date(2002, month, 7));
        const auto start = text.find(", ") + 2;
        months += text.substr(start, text.find(' ', start) + 1 - start);
    }
    EXPECT_EQ(days, "Sunday Monday Tuesday Wednesday Thursday Friday Saturday ");
    EXPECT_EQ(months,
              "January February March April May June July August September October November December ");
    EXPECT_EQ(locale.longDate(date(2002, 6, 19)), "Wednesday, June 19, 2002");
}

TEST(LocaleDates, AreWrittenLongAndShort) {
    EXPECT_EQ(PlainLocale().longDate(date(2002, 6, 15)), "Saturday, June 15, 2002");
    EXPECT_EQ(PlainLocale().shortDate(date(2002, 6, 15)), "6/15/2002");
}

} // namespace
} // namespace gatewise
