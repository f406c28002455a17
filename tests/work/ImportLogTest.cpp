#include "work/ImportLog.h"
#include "logbook/ImportUndo.h"
#include "logbook/LogExchange.h"
#include "logbook/LogListing.h"
#include "support/TempFolder.h"
#include "work/LogNames.h"

#include <gtest/gtest.h>

// Another log book comes into the pilot's own, and goes out again.

namespace gatewise {
namespace {

constexpr DateTime kNow{2002, 6, 17, 7, 5};

LogRecord entry(int number) {
    LogRecord r;
    r.date = static_cast<double>(daySerial({2002, 6, 15}));
    r.departureIcao = "KATL", r.arrivalIcao = "KORD";
    r.departureName = "Hartsfield Intl", r.arrivalName = "O'Hare Intl";
    r.aircraft = "Boeing 737";
    r.airline = "Quillmark Air Lines";
    r.actualDeparture = r.scheduledDeparture = 735;
    r.actualArrival = r.scheduledArrival = 905;
    r.flightNumber = static_cast<std::int16_t>(number);
    return r;
}

Tables world() {
    Tables tables;
    const auto add = [&](const char* iata, const char* icao, const char* name) {
        AirportRecord airport;
        airport.Iata = iata, airport.Icao = icao, airport.Name = name;
        tables.airports.insert(tables.airports.end() - 1, airport);
    };
    add("ATL", "KATL", "Hartsfield Intl");
    add("ORD", "KORD", "O'Hare Intl");
    tables.aircraft.resize(1);
    tables.aircraft[0].Code = "738", tables.aircraft[0].Name = "Boeing 737-800";
    tables.airlines.resize(1);
    tables.airlines[0].Code = "QA", tables.airlines[0].Name = "Quillmark Air Lines";
    return tables;
}

class ImportLog : public testing::Test {
protected:
    ImportLog() : files(logFiles(folder.path(), folder.path("/FS"))) {
        std::filesystem::create_directories(folder / "Data");
    }
    void haveBook(const std::vector<LogRecord>& entries) {
        Bytes bytes;
        for (const auto& e : entries) appendRecord(bytes, e);
        folder.write("/Data/LogBook.gt1", ByteView(bytes));
        ASSERT_FALSE(LoadLogBook(files, kNow, log));
    }
    void look(const std::string& text) {
        folder.write("/other.csv", text);
        ASSERT_FALSE(lookAtLog(folder.path("/other.csv"), tables, log, career));
    }
    std::error_code take() { return takeLog(files, tables, kNow, log, career); }
    std::error_code undo() { return undoImport(files, kNow, log); }
    [[nodiscard]] std::vector<int> numbers() const {
        std::vector<int> out;
        for (const LogRecord& e : readLogBook(files.book)) out.push_back(e.flightNumber);
        return out;
    }
    /// A folder where a file is to be written makes that write fail.
    void block(const char* name) const { std::filesystem::create_directories(folder / name / "full"); }

    const test::TempFolder folder;
    const LogFiles files;
    const Tables tables = world();
    LogDesk log;
    CareerDesk career;
};

TEST_F(ImportLog, LookingWritesNothing) {
    haveBook({entry(1)});
    const Bytes before = folder.bytes("/Data/LogBook.gt1");
    look(logCsv({entry(1), entry(2), entry(3)}));
    EXPECT_EQ(foundText(career.found), "2 new flights, 1 known already.");
    EXPECT_EQ(folder.bytes("/Data/LogBook.gt1"), before);
    EXPECT_EQ(log.LogEntries.size(), 1U);
    for (const char* name : {"/Data/LogBook.before-import", "/Data/LogBook.imported", "/Data/LogBook.bak"})
        EXPECT_FALSE(folder.has(name)) << name;
}

TEST_F(ImportLog, WhatIsTakenStandsBehindTheOthers) {
    haveBook({entry(1)});
    look(logCsv({entry(1), entry(2), entry(3)}));
    ASSERT_FALSE(take());
    EXPECT_EQ(numbers(), (std::vector{1, 2, 3}));
    EXPECT_EQ(log.LogEntries.size(), 3U);
    look(logCsv({entry(1), entry(2), entry(3)}));
    EXPECT_EQ(foundText(career.found), "0 new flights, 3 known already.");
}

TEST_F(ImportLog, UndoneTheLogBookIsWhatItWasToTheByte) {
    haveBook({entry(1), entry(2)});
    const Bytes before = folder.bytes("/Data/LogBook.gt1");
    look(logCsv({entry(3)}));
    ASSERT_FALSE(take());
    EXPECT_EQ(folder.bytes("/Data/LogBook.before-import"), before);
    ASSERT_FALSE(undo());
    EXPECT_EQ(folder.bytes("/Data/LogBook.gt1"), before);
    EXPECT_EQ(log.LogEntries.size(), 2U);
    EXPECT_EQ(importUndo(files, log).out, 0) << "once";
}

TEST_F(ImportLog, ALaterRunCanUndo) {
    haveBook({entry(1)});
    look(logCsv({entry(2), entry(3)}));
    ASSERT_FALSE(take());
    LogDesk later;
    ASSERT_FALSE(LoadLogBook(files, kNow, later));
    EXPECT_EQ(importUndo(files, later).out, 2);
    ASSERT_FALSE(undoImport(files, kNow, later));
    EXPECT_EQ(numbers(), (std::vector{1}));
    EXPECT_EQ(later.LogEntries.size(), 1U);
}

TEST_F(ImportLog, WhatWasLoggedOrChangedSinceStays) {
    haveBook({entry(1)});
    look(logCsv({entry(2), entry(3)}));
    ASSERT_FALSE(take());
    LogRecord changed = entry(3);
    changed.comments = "with a tail wind";
    ASSERT_FALSE(log.logStore.put(files.book, 2, changed, 1));
    ASSERT_FALSE(log.logStore.add(files.book, entry(9), 1, log.LogEntries));
    ASSERT_FALSE(LoadLogBook(files, kNow, log));
    const ImportUndo what = importUndo(files, log);
    EXPECT_EQ(undoneText(what), "1 flight was taken out again; 1 had been changed or removed since.");
    ASSERT_FALSE(undo());
    EXPECT_EQ(numbers(), (std::vector{1, 3, 9}));
}

TEST_F(ImportLog, WhatWasLoggedBetweenLookingAndTakingIsNotTakenTwice) {
    haveBook({});
    look(logCsv({entry(1), entry(2)}));
    ASSERT_FALSE(log.logStore.add(files.book, entry(2), 1, log.LogEntries));
    ASSERT_FALSE(take());
    EXPECT_EQ(numbers(), (std::vector{2, 1}));
    EXPECT_EQ(career.found.entries.size(), 1U);
}

TEST_F(ImportLog, NothingNewChangesNoFile) {
    haveBook({entry(1)});
    look(logCsv({entry(1)}));
    ASSERT_FALSE(take());
    EXPECT_FALSE(folder.has("/Data/LogBook.before-import"));
    EXPECT_FALSE(folder.has("/Data/LogBook.imported"));
}

TEST_F(ImportLog, AWriteThatFailsLosesNothing) {
    haveBook({entry(1)});
    const Bytes before = folder.bytes("/Data/LogBook.gt1");
    for (const char* file : {"Data/LogBook.imported", "Data/LogBook.before-import", "Data/LogBook.bak"}) {
        look(logCsv({entry(2)}));
        block(file);
        EXPECT_TRUE(take()) << file;
        EXPECT_EQ(folder.bytes("/Data/LogBook.gt1"), before) << file;
        EXPECT_EQ(log.LogEntries.size(), 1U) << file;
        EXPECT_EQ(importUndo(files, log).out, 0) << file;
        std::filesystem::remove_all(folder / file);
        EXPECT_FALSE(folder.has("/Data/LogBook.imported")) << file;
    }
    ASSERT_FALSE(take());
    EXPECT_EQ(numbers(), (std::vector{1, 2}));
}

TEST_F(ImportLog, AFailedImportKeepsTheUndoOfTheOneBefore) {
    haveBook({entry(1)});
    look(logCsv({entry(2)}));
    ASSERT_FALSE(take());
    look(logCsv({entry(3)}));
    // The day's first backup stands already; a book of another length asks for one again.
    Bytes bytes = folder.bytes("/Data/LogBook.gt1");
    bytes.push_back(0);
    std::filesystem::remove(folder / "Data/LogBook.bak");
    folder.write("/Data/LogBook.gt1", ByteView(bytes));
    block("Data/LogBook.bak");
    EXPECT_TRUE(take());
    EXPECT_EQ(importUndo(files, log).out, 1);
    std::filesystem::remove_all(folder / "Data/LogBook.bak");
    ASSERT_FALSE(undo());
    EXPECT_EQ(numbers(), (std::vector{1}));
}

TEST_F(ImportLog, ALogBookThatCannotBeReadIsNotWrittenOver) {
    std::filesystem::create_directories(folder / "Data/LogBook.gt1");
    (void)LoadLogBook(files, kNow, log);
    look(logCsv({entry(1)}));
    EXPECT_EQ(take(), std::errc::is_a_directory);
    EXPECT_EQ(undo(), std::errc::is_a_directory);
    EXPECT_FALSE(folder.has("/Data/LogBook.imported"));
}

TEST_F(ImportLog, AMissingFileIsSaid) {
    EXPECT_EQ(lookAtLog(folder.path("/none.csv"), tables, log, career), std::errc::no_such_file_or_directory);
    EXPECT_EQ(lookAtLog(folder.path("/Data"), tables, log, career), std::errc::is_a_directory);
    look("nothing of a log book");
    EXPECT_EQ(foundText(career.found), "No log book: no header line with a date and two airports.");
    EXPECT_FALSE(take());
    EXPECT_FALSE(folder.has("/Data/LogBook.gt1"));
}

TEST_F(ImportLog, AFullLogBookTakesWhatItHasRoomFor) {
    haveBook(std::vector<LogRecord>(kLogEntries - 1));
    look(logCsv({entry(1), entry(2), entry(3)}));
    EXPECT_EQ(foundText(career.found), "1 new flight, 2 for which the log book has no room.");
    ASSERT_FALSE(take());
    EXPECT_EQ(numbers().size(), static_cast<std::size_t>(kLogEntries));
}

/// What the exchange file still has of entries that are gone is not taken for the times of new ones.
TEST_F(ImportLog, TheSimulatorsTimesStayWithTheirFlights) {
    std::filesystem::create_directories(folder / "FS/Modules");
    haveBook({entry(1)});
    LogRecord gone = entry(8);
    gone.actualDeparture = 2222;
    WriteLogRecords(files.exchange, {entry(1), gone});
    look(logCsv({entry(2)}));
    ASSERT_FALSE(take());
    ASSERT_EQ(log.LogEntries.size(), 2U);
    EXPECT_EQ(log.LogEntries[1].actualDeparture, 735);
    ASSERT_FALSE(undo());
    std::vector<LogRecord> next{entry(1), gone};
    MergeLogRecords(files.exchange, next);
    EXPECT_EQ(next[1].actualDeparture, 2222) << "the exchange file ends with the log book";
}

TEST_F(ImportLog, CodesBecomeTheNamesOfTheTables) {
    haveBook({});
    look("Date,From,To,Type Code,Flight\n2002-06-15,atl,ORD,B738,QA 12\n"
         "2002-06-16,O'Hare Intl,KATL,738,\n2002-06-17,QQQ,KATL,Glider,\n");
    ASSERT_EQ(career.found.entries.size(), 3U);
    const auto& e = career.found.entries;
    EXPECT_EQ(e[0].departureIcao.view(), "KATL");
    EXPECT_EQ(e[0].departureName.trimmed(), "Hartsfield Intl");
    EXPECT_EQ(e[0].arrivalIcao.view(), "KORD");
    EXPECT_EQ(e[0].aircraft.trimmed(), "Boeing 737-800");
    EXPECT_EQ(e[0].airline.trimmed(), "Quillmark Air Lines");
    EXPECT_EQ(e[0].flightNumber, 12);
    EXPECT_EQ(e[1].departureIcao.view(), "KORD");
    EXPECT_EQ(e[1].aircraft.trimmed(), "Boeing 737-800");
    EXPECT_EQ(e[2].departureIcao.trimmed(), "QQQ");
    EXPECT_EQ(e[2].aircraft.trimmed(), "Glider");
}

/// The same flight is known whether a log book says ATL or KATL.
TEST_F(ImportLog, DuplicatesAreFoundAcrossCodes) {
    LogRecord iata = entry(12);
    iata.departureIcao = "ATL";
    haveBook({iata});
    look("Date,From,To,Flight,Actual Departure\n2002-06-15,KATL,ORD,QA12,07:35\n");
    EXPECT_EQ(foundText(career.found), "0 new flights, 1 known already.");
}

} // namespace
} // namespace gatewise
