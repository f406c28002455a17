#include "support/TempFolder.h"
#include "work/BoardWork.h"
#include "work/Clocks.h"
#include "work/ConfigFile.h"
#include "work/HallWork.h"
#include "work/LikelyPlaces.h"
#include "work/LogWork.h"
#include "work/Notices.h"

#include <gtest/gtest.h>

// What a pilot misses on the second day: the shift of the clock, likely folders, reasons in plain words,
// settings that leave no trace, entries that come back.

namespace gatewise {
namespace {

TEST(ClockShift, IsSaidWithItsSign) {
    BoardClock clock;
    EXPECT_EQ(clockShift(clock), "");
    clock.HourOffset = 1;
    clock.MinuteOffset = 30;
    EXPECT_EQ(clockShift(clock), "+1:30");
    clock.HourOffset = -1;
    EXPECT_EQ(clockShift(clock), "-0:30");
    clock.HourOffset = -12;
    clock.MinuteOffset = -5;
    EXPECT_EQ(clockShift(clock), "-12:05");
    unshiftClock(clock);
    EXPECT_EQ(clockShift(clock), "");
}

TEST(ClockShift, AnHourForwardAndSixtyMinutesBackIsNone) {
    BoardClock clock;
    clock.HourOffset = 1;
    clock.MinuteOffset = -60;
    EXPECT_EQ(clockShift(clock), "");
}

TEST(LikelyPlaces, AreWineFoldersAndMountedDisksThatHoldTheSimulator) {
    const test::TempFolder folder;
    const std::string home = folder.path("/home");
    folder.write("/home/.wine/drive_c/Program Files/Microsoft Games/FS2002/FS2002.exe", "x");
    folder.write("/home/Games/flying/drive_c/FS2002/fs2002.cfg", "x");
    folder.write("/disk/Games/FS2002/readme.txt", "no simulator");
    folder.write("/other/FS2002/FS2002.exe", "x");
    const auto places = likelyPlaces(home, {folder.path("/disk"), folder.path("/other")});
    EXPECT_EQ(places, (std::vector<std::string>{home + "/.wine/drive_c/Program Files/Microsoft Games/FS2002",
                                                home + "/Games/flying/drive_c/FS2002",
                                                folder.path("/other") + "/FS2002"}));
    EXPECT_TRUE(likelyPlaces(folder.path("/nobody"), {}).empty());
}

TEST(PlainReason, IsInWordsOfAPilot) {
    EXPECT_EQ(plainReason(std::make_error_code(std::errc::permission_denied)),
              "there is no permission to write there");
    EXPECT_EQ(plainReason(std::make_error_code(std::errc::no_such_file_or_directory)),
              "its folder is not there");
    EXPECT_EQ(plainReason(std::make_error_code(std::errc::no_space_on_device)), "the disk is full");
    const auto rare = std::make_error_code(std::errc::too_many_links);
    EXPECT_EQ(plainReason(rare), rare.message());
    const Notice notice = failure(rare, "ExportSB", "/plans/a.sbp");
    EXPECT_EQ(notice.message, Message::Failure);
    EXPECT_EQ(notice.file, "/plans/a.sbp");
    EXPECT_EQ(notice.reason, rare.message());
}

class OwnKeys : public testing::Test {
protected:
    [[nodiscard]] std::string file() const { return folder.read("GT.cfg"); }
    Settings written(const Settings& settings) {
        EXPECT_FALSE(WriteConfig(folder.path(), settings));
        Settings read;
        ReadConfig(folder.path(), read);
        return read;
    }
    const test::TempFolder folder;
};

TEST_F(OwnKeys, LeaveNoTraceUntilTheySaySomething) {
    (void)written(Settings{});
    EXPECT_EQ(file().find("[Gatewise]"), std::string::npos);
    Settings settings;
    settings.Muted = 1;
    EXPECT_EQ(written(settings).Muted, 1);
    EXPECT_NE(file().find("Muted=1"), std::string::npos);
    EXPECT_EQ(file().find("annVolume"), std::string::npos);
    settings.Muted = 0; // what was written once is written over
    EXPECT_EQ(written(settings).Muted, 0);
    EXPECT_NE(file().find("Muted=0"), std::string::npos);
}

TEST_F(OwnKeys, ComeBackWhole) {
    Settings settings;
    settings.AnnouncementVolume = -900;
    settings.ComeBack = 1;
    settings.LastLeft = -1200;
    settings.LastTop = 40;
    settings.LastPage = 2;
    settings.LastAirport = "KMIA";
    const Settings read = written(settings);
    EXPECT_EQ(read.AnnouncementVolume, -900);
    EXPECT_EQ(read.LastLeft, -1200);
    EXPECT_EQ(read.LastTop, 40);
    EXPECT_EQ(read.LastPage, 2);
    EXPECT_EQ(read.LastAirport, "KMIA");
}

TEST_F(OwnKeys, AreReadWhereAKeyOfOldEndsTheRead) {
    folder.write("/GT.cfg", "[Main]\r\nIndex=none\r\n[Gatewise]\r\nMuted=1\r\nLastLeft=wide\r\n");
    Settings read;
    ReadConfig(folder.path(), read);
    EXPECT_EQ(read.Muted, 1);
    EXPECT_EQ(read.LastLeft, 0);
}

TEST(Announcements, AreTurnedDownInTheStepsOfTheAmbience) {
    Settings settings;
    stepAnnouncements(settings, "ann_up");
    EXPECT_EQ(settings.AnnouncementVolume, 0);
    stepAnnouncements(settings, "ann_dn");
    EXPECT_EQ(settings.AnnouncementVolume, -90);
    EXPECT_EQ(announcementVolume(settings, 0), -90);
    EXPECT_EQ(announcementVolume(settings, -500), -590);
    for (int i = 0; i < 200; ++i) stepAnnouncements(settings, "ann_dn");
    EXPECT_EQ(settings.AnnouncementVolume, -9000);
    EXPECT_EQ(announcementVolume(settings, -2000), -10000);
}

TEST(NextFlight, IsTheNearestAfterTheClockAndBehindMidnightTheFirst) {
    Schedule schedule;
    StatusBoard board;
    board.BoardAirlineCode = FixedText<3>("- A");
    const auto add = [&](std::int16_t departure, const char* airline) {
        FlightRecord flight;
        flight.DepartureTime = departure;
        flight.AirlineCode = FixedText<3>(airline);
        schedule.BoardFlights.push_back(flight);
    };
    EXPECT_EQ(nextFlightTime(schedule, {0, "23", "50", BoardSort::Time}, board), std::nullopt);
    add(1430, "AA");
    add(540, "BB");
    EXPECT_EQ(nextFlightTime(schedule, {0, "12", "00", BoardSort::Time}, board), "14:30");
    EXPECT_EQ(nextFlightTime(schedule, {1, "23", "50", BoardSort::Time}, board), "05:40");
    board.BoardAirlineCode = FixedText<3>("AA");
    EXPECT_EQ(nextFlightTime(schedule, {0, "23", "50", BoardSort::Time}, board), "14:30");
    board.BoardAirlineCode = FixedText<3>("CC");
    EXPECT_EQ(nextFlightTime(schedule, {0, "23", "50", BoardSort::Time}, board), std::nullopt);
}

TEST(DeletedEntries, ComeBackToTheirPlacesLatestFirst) {
    const test::TempFolder folder;
    const LogFiles files{folder.path("/LogBook.gt1"), folder.path("/logrecords.gt1")};
    const DateTime now{2002, 6, 15};
    LogDesk log;
    (void)LoadLogBook(files, now, log);
    for (std::int16_t number = 1; number <= 3; ++number) {
        LogRecord entry;
        entry.flightNumber = number;
        ASSERT_FALSE(log.logStore.add(files.book, entry, daySerial(now), log.LogEntries));
        log.LogEntries.push_back(entry);
    }
    const auto numbers = [&log] {
        std::vector<int> all;
        for (const LogRecord& entry : log.LogEntries) all.push_back(entry.flightNumber);
        return all;
    };
    const auto erase = [&](std::int16_t index) {
        log.LogSelected = index;
        EXPECT_FALSE(DeleteLogEntry(files, now, log));
        EXPECT_FALSE(LoadLogBook(files, now, log));
    };
    erase(1);
    erase(0);
    EXPECT_EQ(numbers(), std::vector<int>{3});
    EXPECT_FALSE(undoDeletion(files, now, log));
    EXPECT_EQ(numbers(), (std::vector<int>{1, 3}));
    EXPECT_FALSE(undoDeletion(files, now, log));
    EXPECT_EQ(numbers(), (std::vector<int>{1, 2, 3}));
    EXPECT_FALSE(undoDeletion(files, now, log)); // nothing is left to come back
    EXPECT_FALSE(LoadLogBook(files, now, log));
    EXPECT_EQ(numbers(), (std::vector<int>{1, 2, 3})); // the file has them
}

} // namespace
} // namespace gatewise
