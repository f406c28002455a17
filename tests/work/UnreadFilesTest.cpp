#include "support/TempFolder.h"
#include "work/ConfigFile.h"
#include "work/DataSets.h"
#include "work/LogWork.h"

#include <gtest/gtest.h>

// A file that is there but cannot be read is no empty file, and a set that does not load is none.

namespace gatewise {
namespace {

constexpr DateTime kNow;

TEST(UnreadSettings, AreNotWrittenOver) {
    const test::TempFolder folder;
    std::filesystem::create_directory(folder / "GT.cfg");
    Settings settings;
    ReadConfig(folder.path(), settings);
    EXPECT_EQ(settings.unread, std::errc::is_a_directory);
    // It could be read by now, but what is held here is not what stands there.
    std::filesystem::remove(folder / "GT.cfg");
    folder.write("/GT.cfg", "[Main]\r\nLast=Hart\r\n");
    EXPECT_EQ(WriteConfig(folder.path(), settings), std::errc::is_a_directory);
    EXPECT_EQ(folder.read("/GT.cfg"), "[Main]\r\nLast=Hart\r\n");
    ReadConfig(folder.path(), settings);
    EXPECT_FALSE(settings.unread);
    EXPECT_EQ(settings.HomeIndex, 0);
}

TEST(UnreadSettings, AMissingFileIsMadeAnew) {
    const test::TempFolder folder;
    Settings settings;
    ReadConfig(folder.path(), settings);
    EXPECT_FALSE(settings.unread);
    EXPECT_FALSE(WriteConfig(folder.path(), settings));
    EXPECT_TRUE(files::fileExists(folder.path("/GT.cfg")));
}

class UnreadLogBook : public testing::Test {
protected:
    UnreadLogBook() : files(logFiles(folder.path(), folder.path("/FS"))) {
        Bytes book;
        for (int i = 0; i < 3; ++i) {
            LogRecord record;
            record.flightNumber = static_cast<std::int16_t>(i + 1);
            appendRecord(book, record);
        }
        folder.write("/Data/away", ByteView(book));
        std::filesystem::create_directories(folder / "Data/LogBook.gt1");
        schedule.tables.airports.resize(1);
        dispatch.CurrentFlight.FlightNumber = 77;
    }
    void comeBack() const {
        std::filesystem::remove(folder / "Data/LogBook.gt1");
        std::filesystem::rename(folder / "Data/away", folder / "Data/LogBook.gt1");
    }
    Notice add() { return AddLogEntry(files, schedule, dispatch, kNow, log); }
    [[nodiscard]] std::vector<int> numbers() const {
        std::vector<int> out;
        for (const LogRecord& entry : readLogBook(files.book)) out.push_back(entry.flightNumber);
        return out;
    }

    const test::TempFolder folder;
    const LogFiles files;
    Schedule schedule;
    Dispatch dispatch;
    LogDesk log;
};

TEST_F(UnreadLogBook, IsNotWrittenOverByTheNextFlight) {
    EXPECT_EQ(LoadLogBook(files, kNow, log), std::errc::is_a_directory);
    const Notice told = add();
    EXPECT_EQ(told.message, Message::Failure);
    EXPECT_EQ(told.errorNumber, static_cast<int>(std::errc::is_a_directory));
    EXPECT_EQ(log.LogEntries.size(), 1U) << "the flight stays in view";
    comeBack();
    EXPECT_EQ(numbers(), (std::vector<int>{1, 2, 3}));
    dispatch.CurrentFlight.FlightNumber = 78;
    EXPECT_EQ(add().message, Message::LogEntryMade);
    EXPECT_EQ(numbers(), (std::vector<int>{1, 2, 3, 77, 78}));
    EXPECT_EQ(log.LogEntries.size(), 5U);
}

TEST_F(UnreadLogBook, WhatWaitedIsFiledAtTheNextStart) {
    (void)LoadLogBook(files, kNow, log);
    (void)add();
    comeBack();
    LogDesk later;
    EXPECT_FALSE(LoadLogBook(files, kNow, later));
    EXPECT_EQ(numbers(), (std::vector<int>{1, 2, 3, 77}));
    EXPECT_EQ(later.LogEntries.size(), 4U);
}

TEST_F(UnreadLogBook, WhatNoFileTookIsFiledWhenTheBookCanBeRead) {
    (void)LoadLogBook(files, kNow, log);
    std::filesystem::create_directories(folder / "Data/LogBook.new"); // nor does anything go beside it
    EXPECT_EQ(add().errorNumber, static_cast<int>(std::errc::is_a_directory));
    dispatch.CurrentFlight.FlightNumber = 78;
    (void)add();
    EXPECT_EQ(log.LogEntries.size(), 2U);
    comeBack();
    dispatch.CurrentFlight.FlightNumber = 79;
    EXPECT_EQ(add().message, Message::LogEntryMade);
    EXPECT_EQ(numbers(), (std::vector<int>{1, 2, 3, 77, 78, 79}));
    EXPECT_EQ(log.LogEntries.size(), 6U);
    EXPECT_TRUE(log.unkept.empty());
}

class SetThatDoesNotLoad : public testing::Test {
protected:
    void SetUp() override {
        Bytes airports;
        for (int i = 0; i < 2; ++i) appendRecord(airports, AirportRecord());
        Bytes one;
        appendRecord(one, AirportRecord());
        for (const char* set : {"/Data", "/Data/Europe"}) {
            for (const char* table : {"/airline.gt1", "/routes.gt1", "/arrivals.gt1"})
                folder.write(std::string(set) + table, "");
        }
        folder.write("/Data/index.gt1", ByteView(airports));
        folder.write("/Data/aircraft.gt1", "");
        folder.write("/Data/Europe/index.gt1", ByteView(one));
        LoadTables(folder.path(), "\\Data", schedule);
    }
    std::error_code change() { return changeTables(folder.path(), "\\Data\\Europe", schedule); }

    const test::TempFolder folder;
    Schedule schedule;
};

TEST_F(SetThatDoesNotLoad, AWholeSetIsTaken) {
    ASSERT_EQ(schedule.tables.airports.size(), 3U);
    EXPECT_FALSE(change());
    EXPECT_EQ(schedule.tables.airports.size(), 2U);
}

TEST_F(SetThatDoesNotLoad, ChangesNothing) {
    for (const char* table : {"airline.gt1", "routes.gt1", "arrivals.gt1"}) {
        const auto path = folder / "Data/Europe" / table;
        std::filesystem::remove(path);
        std::filesystem::create_directory(path);
        EXPECT_EQ(change(), std::errc::is_a_directory) << table;
        EXPECT_EQ(schedule.tables.airports.size(), 3U) << table;
        std::filesystem::remove(path);
        EXPECT_EQ(change(), std::errc::no_such_file_or_directory) << table;
        EXPECT_EQ(schedule.tables.airports.size(), 3U) << table;
        folder.write("/Data/Europe/" + std::string(table), "");
    }
}

} // namespace
} // namespace gatewise
