#include "board/Clock.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

class Clock : public ::testing::Test {
protected:
    /// The clock of the test with another bias.
    BoardClock& clock(int bias) {
        held.Bias = bias;
        return held;
    }

    BoardClock held;
    std::int16_t &HourOffset = held.HourOffset, &MinuteOffset = held.MinuteOffset;
    std::int16_t &ClockHours = held.ClockHours, &ClockMinutes = held.ClockMinutes;
    std::array<std::int16_t, kZones>& ZoneHours = held.ZoneHours;
    std::array<std::int16_t, kZones>& ZoneMinutes = held.ZoneMinutes;
    std::array<std::int16_t, kZones>& ZoneShade = held.ZoneShade;
};

TEST_F(Clock, WithBiasSixtyAtTwentyThreeLondonShowsMidnight) {
    EXPECT_EQ(UpdateClockHours(clock(60), 23), 23);
    EXPECT_EQ(ClockHours, 0); // 24, brought back by the zones
    EXPECT_EQ(ZoneHours[11], 0);
    EXPECT_EQ(ZoneHours[12], 1);
    EXPECT_EQ(ZoneHours[10], 23);
}

TEST_F(Clock, MidnightIsHourZeroAndTheHourBeforeIsTwentyThree) {
    EXPECT_EQ(UpdateClockHours(clock(0), 0), 0);
    EXPECT_EQ(ClockHours, 0);
    EXPECT_EQ(UpdateClockHours(clock(-60), 0), 0);
    EXPECT_EQ(ClockHours, 23);
}

TEST_F(Clock, AnHourOffsetOfMinusThirtyAtFourGivesTwentyTwo) {
    HourOffset = -30;
    EXPECT_EQ(UpdateClockHours(clock(0), 4), 22);
    HourOffset = 50;
    EXPECT_EQ(UpdateClockHours(clock(0), 4), 6);
}

TEST_F(Clock, ShadesAreBrightAtNoonAndDarkAtMidnight) {
    UpdateClockHours(clock(0), 12);
    EXPECT_EQ(ZoneHours[11], 12);
    EXPECT_EQ(ZoneShade[11], 255);
    EXPECT_EQ(ZoneShade[10], 243);
    EXPECT_EQ(ZoneShade[12], 243);
    EXPECT_EQ(ZoneHours[23], 0);
    EXPECT_EQ(ZoneShade[23], 111);
    EXPECT_EQ(ZoneHours[22], 23);
    EXPECT_EQ(ZoneShade[22], 123);
    EXPECT_EQ(ZoneHours[0], 1);
}

TEST_F(Clock, ABiasBelowZeroIsTruncatedTowardZero) {
    UpdateClockHours(clock(-330), 3);
    EXPECT_EQ(ClockHours, 22); // 3 - 5, brought back once
}

TEST_F(Clock, AHalfHourBiasShowsTheOddMinutesAsTheyStand) {
    EXPECT_EQ(UpdateClockMinutes(clock(-330), 8, 10).minutes, 10);
    EXPECT_EQ(ClockMinutes, -20);
    UpdateClockHours(clock(-330), 8);
    EXPECT_EQ(zoneTimeText(clock(-330), 11), "03:-20");
    UpdateClockMinutes(clock(210), 8, 45);
    EXPECT_EQ(ClockMinutes, 75);
    EXPECT_EQ(zoneTimeText(clock(210), 11).substr(3), "75");
}

TEST_F(Clock, MinutesBeyondTheHourFoldIntoTheHourOffset) {
    MinuteOffset = 1;
    const auto up = UpdateClockMinutes(clock(0), 8, 59);
    EXPECT_EQ(up.minutes, 0);
    EXPECT_EQ(up.hours, 9);
    EXPECT_EQ(MinuteOffset, -59);
    EXPECT_EQ(HourOffset, 1);

    const auto down = UpdateClockMinutes(clock(0), 9, 0);
    EXPECT_EQ(down.minutes, 1);
    EXPECT_EQ(down.hours, 9);
    EXPECT_EQ(MinuteOffset, 1);
    EXPECT_EQ(HourOffset, 0);
}

TEST_F(Clock, SeveralHoursOfMinutesFoldOneByOne) {
    MinuteOffset = 200;
    const auto reading = UpdateClockMinutes(clock(0), 22, 30);
    EXPECT_EQ(reading.minutes, 50);
    EXPECT_EQ(reading.hours, 1);
    EXPECT_EQ(MinuteOffset, 20);
    EXPECT_EQ(HourOffset, 3);
    EXPECT_EQ(ZoneMinutes[5], 50);
}

TEST_F(Clock, MinutesWithinTheHourLeaveTheHoursAlone) {
    MinuteOffset = 5;
    const auto reading = UpdateClockMinutes(clock(300), 22, 30);
    EXPECT_EQ(reading.minutes, 35);
    EXPECT_FALSE(reading.hours);
    EXPECT_EQ(ClockMinutes, 35);
}

TEST(Regions, ShowFourConsecutiveZones) {
    ASSERT_EQ(zoneClocks(1).size(), 4U);
    EXPECT_EQ(zoneClocks(1)[0].city, "London");
    EXPECT_EQ(zoneClocks(1)[3].city, "Moscow");
    EXPECT_EQ(zoneClocks(2)[2].city, "Mid-Atlantic");
    EXPECT_EQ(zoneClocks(5)[3].city, "Solomon Is.");
    EXPECT_EQ(zoneClocks(6)[0].element, 15U);
    for (int region = 1; region <= 6; ++region) {
        const auto clocks = zoneClocks(region);
        for (std::size_t k = 1; k < 4; ++k)
            EXPECT_EQ(clocks[k].element, (clocks[k - 1].element + 1) % kZones) << region;
    }
    EXPECT_TRUE(zoneClocks(0).empty());
    EXPECT_TRUE(zoneClocks(7).empty());
}

TEST(Regions, NameTheCitiesOfTheirZones) {
    const std::array<std::string, kZones> cities = {
        "Midway",   "Honolulu",  "Anchorage", "San Francisco", "Denver",      "Chicago",
        "New York", "Santiago",  "Brasilia",  "Mid-Atlantic",  "Azores",      "London",
        "Rome",     "Cairo",     "Moscow",    "Abu Dhabi",     "Islamabad",   "Colombo",
        "Bangkok",  "Hong Kong", "Tokyo",     "Sydney",        "Solomon Is.", "Auckland"};
    for (int region = 1; region <= 6; ++region) {
        for (const ZoneClock& clock : zoneClocks(region)) EXPECT_EQ(clock.city, cities.at(clock.element));
    }
}

TEST(Regions, StartByTheBias) {
    for (const auto& [bias, region] : std::vector<std::pair<int, int>>{{-180, 1},
                                                                       {0, 1},
                                                                       {59, 1},
                                                                       {60, 2},
                                                                       {240, 2},
                                                                       {241, 3},
                                                                       {480, 3},
                                                                       {481, 4},
                                                                       {720, 4},
                                                                       {-181, 6},
                                                                       {-420, 6},
                                                                       {-421, 5},
                                                                       {-660, 5},
                                                                       {-661, 4},
                                                                       {-840, 4}})
        EXPECT_EQ(clockRegionOf(bias), region) << bias;
}

TEST(MinutesFromNow, CountsWithinTheSameDay) {
    EXPECT_EQ(minutesFromNow("12", "00", 1200), 0);
    EXPECT_EQ(minutesFromNow("12", "30", 1315), 45);
    EXPECT_EQ(minutesFromNow("23", "50", 10), -1420);
    EXPECT_EQ(minutesFromNow("00", "10", 2350), 1420);
    EXPECT_EQ(minutesFromNow("12", "00", 12345), 45); // of five digits the first two and the last two
    EXPECT_EQ(minutesFromNow("10", "00", 10000), 0);
}

TEST(MinutesFromNow, HasNoResultWithoutATimeOfDay) {
    EXPECT_FALSE(minutesFromNow("", "00", 1200));
    EXPECT_FALSE(minutesFromNow("24", "00", 1200));
    EXPECT_FALSE(minutesFromNow("12", "60", 1200));
    EXPECT_FALSE(minutesFromNow("12", "-1", 1200));
    EXPECT_FALSE(minutesFromNow("12", "00", 1260));
    EXPECT_FALSE(minutesFromNow("12", "00", 2400));
    EXPECT_FALSE(minutesFromNow("12", "00", -1));
    EXPECT_FALSE(minutesFromNow("12", "00", 24000));
    EXPECT_FALSE(minutesFromNow("12", "00", 12360));
}

} // namespace
} // namespace gatewise
