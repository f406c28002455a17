#include "logbook/LogBook.h"
#include "logbook/LogExchange.h"
#include "platform/Files.h"
#include "support/TempFolder.h"

#include <chrono>
#include <gtest/gtest.h>

namespace gatewise {
namespace {

constexpr long long kToday = 37422;

LogRecord entry(int number) {
    LogRecord r;
    r.date = 37422;
    r.departureIcao = "KATL";
    r.arrivalIcao = "KORD";
    r.departureName = "Hartsfield Intl";
    r.arrivalName = "O'Hare Intl";
    r.aircraft = "Boeing 717-200";
    r.scheduledDeparture = r.actualDeparture = 735;
    r.scheduledArrival = r.actualArrival = 905;
    r.airline = "Quillmark Air Lines";
    r.flightNumber = static_cast<std::int16_t>(number);
    r.comments = "no " + std::to_string(number);
    return r;
}

Bytes bytesOf(const std::vector<LogRecord>& entries) {
    Bytes out;
    for (const auto& e : entries) appendRecord(out, e);
    return out;
}

class LogBook : public ::testing::Test {
protected:
    [[nodiscard]] std::string path() const { return folder.path("/LogBook.gt1"); }
    [[nodiscard]] std::string backup() const { return folder.path("/LogBook.bak"); }
    [[nodiscard]] Bytes read(const std::string& file) const { return files::readAll(file).value_or(Bytes()); }

    test::TempFolder folder;
    LogStore store;
};

TEST_F(LogBook, RecordStandsByteForByteAsTheTableSays) {
    LogRecord r = entry(1234);
    r.dayHours = 1.5F;
    r.nightHours = 0.25F;
    r.instrumentHours = 2.0F;
    const Bytes b = bytesOf({r});
    ASSERT_EQ(b.size(), 347U);
    const auto text = [&](std::size_t at, std::size_t n) {
        return std::string(b.begin() + static_cast<std::ptrdiff_t>(at),
                           b.begin() + static_cast<std::ptrdiff_t>(at + n));
    };
    // 37422 as an IEEE double is 40 E2 45 C0 00 00 00 00, low byte first.
    EXPECT_EQ(text(0, 8), std::string("\0\0\0\0\xC0\x45\xE2\x40", 8));
    EXPECT_EQ(text(8, 8), "KATLKORD");
    EXPECT_EQ(text(16, 35), "Hartsfield Intl" + std::string(20, ' '));
    EXPECT_EQ(text(51, 35), "O'Hare Intl" + std::string(24, ' '));
    EXPECT_EQ(text(86, 50), "Boeing 717-200" + std::string(36, ' '));
    EXPECT_EQ(text(136, 8), std::string("\xDF\x02\x89\x03\xDF\x02\x89\x03", 8));
    EXPECT_EQ(text(144, 12), std::string("\0\0\xC0\x3F\0\0\x80\x3E\0\0\0\x40", 12));
    EXPECT_EQ(text(156, 39), "Quillmark Air Lines" + std::string(20, ' '));
    EXPECT_EQ(text(195, 2), std::string("\xD2\x04", 2));
    EXPECT_EQ(text(197, 150), "no 1234" + std::string(143, ' '));
}

TEST_F(LogBook, MissingAndEmptyFilesHoldNoEntry) {
    EXPECT_TRUE(readLogBook(path()).empty());
    ASSERT_FALSE(files::replace(path(), ""));
    EXPECT_TRUE(readLogBook(path()).empty());
}

TEST_F(LogBook, BrokenLastRecordDoesNotCount) {
    Bytes bytes = bytesOf({entry(1), entry(2)});
    bytes.resize(bytes.size() + 346);
    ASSERT_FALSE(files::replace(path(), bytes));
    EXPECT_EQ(readLogBook(path()).size(), 2U);
}

TEST_F(LogBook, MoreThanTheLimitIsCut) {
    EXPECT_EQ(logEntriesOf(Bytes(347U * 10001U)).size(), 10000U);
}

TEST_F(LogBook, AddingAppendsOneRecord) {
    EXPECT_FALSE(store.put(path(), 0, entry(1), kToday));
    EXPECT_FALSE(store.put(path(), 1, entry(2), kToday));
    EXPECT_EQ(read(path()), bytesOf({entry(1), entry(2)}));
}

TEST_F(LogBook, SavingReplacesInPlaceAndKeepsWhatLiesBehind) {
    Bytes bytes = bytesOf({entry(1), entry(2), entry(3)});
    bytes.push_back('x');
    ASSERT_FALSE(files::replace(path(), bytes));
    EXPECT_FALSE(store.put(path(), 1, entry(9), kToday));
    Bytes expected = bytesOf({entry(1), entry(9), entry(3)});
    expected.push_back('x');
    EXPECT_EQ(read(path()), expected);
}

TEST_F(LogBook, DeletingTheOnlyEntryLeavesAnEmptyFile) {
    store.put(path(), 0, entry(1), kToday);
    EXPECT_FALSE(store.rewrite(path(), {}, kToday));
    EXPECT_TRUE(files::fileExists(path()));
    EXPECT_TRUE(read(path()).empty());
}

TEST_F(LogBook, FirstChangeOfADayKeepsTheOldFile) {
    const Bytes old = bytesOf({entry(1)});
    ASSERT_FALSE(files::replace(path(), old));
    store.put(path(), 1, entry(2), kToday);
    EXPECT_EQ(read(backup()), old);
    store.put(path(), 2, entry(3), kToday);
    EXPECT_EQ(read(backup()), old) << "the second change of the day keeps the morning's copy";
    store.put(path(), 3, entry(4), kToday + 1);
    EXPECT_EQ(read(backup()), bytesOf({entry(1), entry(2), entry(3)}));
}

TEST_F(LogBook, ALaterRunOfTheDayKeepsTheMorningsCopy) {
    const Bytes old = bytesOf({entry(1)});
    ASSERT_FALSE(files::replace(path(), old));
    store.put(path(), 1, entry(2), kToday);
    LogStore later;
    later.remember(2 * 347);
    later.put(path(), 2, entry(3), kToday);
    EXPECT_EQ(read(backup()), old);
    LogStore tomorrow;
    tomorrow.remember(3 * 347);
    tomorrow.put(path(), 3, entry(4), kToday + 1);
    EXPECT_EQ(read(backup()), bytesOf({entry(1), entry(2), entry(3)}));
}

TEST_F(LogBook, WhatAShorterFileHasLostComesBackFromMemory) {
    ASSERT_FALSE(files::replace(path(), bytesOf({entry(1)})));
    const std::vector<LogRecord> memory{entry(1), entry(2), entry(3), entry(4)};
    EXPECT_FALSE(store.put(path(), 3, entry(9), kToday, memory));
    EXPECT_EQ(read(path()), bytesOf({entry(1), entry(2), entry(3), entry(9)}));
}

TEST_F(LogBook, FileThatIsNoWholeNumberOfRecordsIsKeptBeforeEveryChange) {
    ASSERT_FALSE(files::replace(path(), bytesOf({entry(1)})));
    store.put(path(), 0, entry(1), kToday);
    const Bytes broken(400, 'b');
    ASSERT_FALSE(files::replace(path(), broken));
    store.put(path(), 1, entry(2), kToday);
    EXPECT_EQ(read(backup()), broken);
}

TEST_F(LogBook, FileThatHasShrunkIsKeptBeforeTheChange) {
    store.put(path(), 0, entry(1), kToday);
    store.put(path(), 1, entry(2), kToday);
    const Bytes shrunk = bytesOf({entry(7)});
    ASSERT_FALSE(files::replace(path(), shrunk));
    store.put(path(), 2, entry(3), kToday);
    EXPECT_EQ(read(backup()), shrunk);
}

TEST_F(LogBook, FileThatAnotherHasAddedToIsKeptBeforeTheChange) {
    store.put(path(), 0, entry(1), kToday);
    store.put(path(), 1, entry(2), kToday);
    const Bytes grown = bytesOf({entry(1), entry(2), entry(7)});
    ASSERT_FALSE(files::replace(path(), grown));
    store.put(path(), 2, entry(3), kToday);
    EXPECT_EQ(read(backup()), grown);
}

TEST_F(LogBook, FileLongerThanALogBookIsKeptBeforeEveryChange) {
    store.put(path(), 0, entry(1), kToday);
    store.put(path(), 1, entry(2), kToday);
    const Bytes overfull(347U * 10001U, ' ');
    ASSERT_FALSE(files::replace(path(), overfull));
    store.rewrite(path(), logEntriesOf(overfull), kToday);
    EXPECT_EQ(read(backup()), overfull);
}

TEST_F(LogBook, FolderInItsPlaceIsAnErrorAndNotAnEmptyLog) {
    std::filesystem::create_directory(path());
    EXPECT_TRUE(store.put(path(), 0, entry(1), kToday));
    EXPECT_TRUE(files::folderExists(path()));
}

TEST_F(LogBook, AnAdditionOfAnotherProgramIsNotWrittenOver) {
    EXPECT_FALSE(store.add(path(), entry(1), kToday, {}));
    ASSERT_FALSE(files::replace(path(), bytesOf({entry(1), entry(7)})));
    EXPECT_FALSE(store.add(path(), entry(2), kToday, {entry(1)}));
    EXPECT_EQ(read(path()), bytesOf({entry(1), entry(7), entry(2)}));
}

TEST_F(LogBook, ADayThatNoFilesTimeReachesIsNoFault) {
    EXPECT_FALSE(store.add(path(), entry(1), kToday, {}));
    for (const long long day : {-793'652LL, 0LL, 179'999LL, 2'958'465LL, 99'999'999LL}) {
        EXPECT_FALSE(store.add(path(), entry(2), day, {})) << day;
        EXPECT_TRUE(files::fileExists(backup())) << day;
    }
    // A backup that another program dated far ahead.
    using namespace std::chrono;
    std::filesystem::last_write_time(backup(),
                                     file_clock::from_sys(sys_time<seconds>(seconds(13'000'000'000))));
    LogStore later;
    std::vector<LogRecord> entries;
    EXPECT_FALSE(later.load(path(), kToday, entries));
    EXPECT_FALSE(later.add(path(), entry(3), kToday, entries));
}

class LogInDoubt : public LogBook {
protected:
    /// A log book of three entries, which cannot be read as long as it bears another name.
    LogInDoubt() {
        EXPECT_FALSE(files::replace(path(), bytesOf({entry(1), entry(2), entry(3)})));
        std::filesystem::rename(path(), path() + ".away");
        std::filesystem::create_directory(path());
    }
    void comeBack() const {
        std::filesystem::remove(path());
        std::filesystem::rename(path() + ".away", path());
    }
    [[nodiscard]] std::string kept() const { return folder.path("/LogBook.new"); }

    std::vector<LogRecord> entries;
};

TEST_F(LogInDoubt, NothingIsWrittenOverWhatCouldNotBeRead) {
    EXPECT_EQ(store.load(path(), kToday, entries), std::errc::is_a_directory);
    EXPECT_EQ(store.doubt(), std::errc::is_a_directory);
    comeBack();
    EXPECT_EQ(store.add(path(), entry(9), kToday, entries), std::errc::is_a_directory);
    EXPECT_EQ(store.put(path(), 0, entry(9), kToday), std::errc::is_a_directory);
    EXPECT_EQ(store.rewrite(path(), {}, kToday), std::errc::is_a_directory);
    EXPECT_EQ(read(path()), bytesOf({entry(1), entry(2), entry(3)}));
    EXPECT_FALSE(store.load(path(), kToday, entries));
    EXPECT_FALSE(store.add(path(), entry(9), kToday, entries));
    EXPECT_EQ(read(path()), bytesOf({entry(1), entry(2), entry(3), entry(9)}));
}

TEST_F(LogInDoubt, WhatIsKnownStaysKnown) {
    entries = {entry(1), entry(2), entry(3)};
    EXPECT_TRUE(store.load(path(), kToday, entries));
    EXPECT_EQ(entries.size(), 3U);
}

TEST_F(LogInDoubt, EntriesWaitBesideTheFileAndAreFiledByTheNextReading) {
    EXPECT_TRUE(store.load(path(), kToday, entries));
    EXPECT_FALSE(LogStore::keepBeside(path(), entry(8)));
    EXPECT_FALSE(LogStore::keepBeside(path(), entry(9)));
    EXPECT_EQ(read(kept()), bytesOf({entry(8), entry(9)}));
    comeBack();
    EXPECT_FALSE(store.load(path(), kToday, entries));
    EXPECT_EQ(bytesOf(entries), bytesOf({entry(1), entry(2), entry(3), entry(8), entry(9)}));
    EXPECT_EQ(read(path()), bytesOf(entries));
    EXPECT_FALSE(files::fileExists(kept()));
}

TEST_F(LogInDoubt, EntriesThatWereFiledAlreadyAreNotFiledTwice) {
    comeBack();
    EXPECT_FALSE(LogStore::keepBeside(path(), entry(2)));
    EXPECT_FALSE(store.load(path(), kToday, entries));
    EXPECT_EQ(entries.size(), 3U);
    EXPECT_FALSE(files::fileExists(kept()));
}

TEST(LogExchange, RecordStandsByteForByteAsTheTableSays) {
    const Bytes b = exchangeBytes({entry(5)}, {});
    ASSERT_EQ(b.size(), 132U);
    const auto text = [&](std::size_t at, std::size_t n) {
        return std::string(b.begin() + static_cast<std::ptrdiff_t>(at),
                           b.begin() + static_cast<std::ptrdiff_t>(at + n));
    };
    EXPECT_EQ(text(0, 2), std::string("\0\0", 2));
    EXPECT_EQ(text(2, 4), "KATL");
    EXPECT_EQ(text(6, 35), "Hartsfield Intl" + std::string(20, ' '));
    EXPECT_EQ(text(41, 4), "KORD");
    EXPECT_EQ(text(45, 35), "O'Hare Intl" + std::string(24, ' '));
    EXPECT_EQ(text(80, 44), "Quillmark Air Lines 5" + std::string(23, ' '));
    EXPECT_EQ(text(124, 8), std::string("\xDF\x02\x89\x03\xDF\x02\x89\x03", 8));
}

TEST(LogExchange, TailBehindTheNewEndStays) {
    const Bytes three = exchangeBytes({entry(1), entry(2), entry(3)}, {});
    const Bytes two = exchangeBytes({entry(8), entry(9)}, three);
    ASSERT_EQ(two.size(), three.size());
    EXPECT_TRUE(std::equal(two.begin() + 264, two.end(), three.begin() + 264));
}

TEST(LogExchange, FirstRecordOfAnIndexBringsItsTimes) {
    std::vector<LogRecord> sent = {entry(1), entry(2)};
    sent[1].actualDeparture = 800;
    sent[1].actualArrival = 930;
    Bytes bytes = exchangeBytes(sent, {});
    sent[1].actualDeparture = 1;
    const Bytes again = exchangeBytes(sent, {});
    bytes.insert(bytes.end(), again.begin(), again.end());
    std::vector<LogRecord> log = {entry(1), entry(2), entry(3)};
    mergeExchange(bytes, log);
    EXPECT_EQ(log[0].actualDeparture, 735);
    EXPECT_EQ(log[1].actualDeparture, 800);
    EXPECT_EQ(log[1].actualArrival, 930);
    EXPECT_EQ(log[2].actualDeparture, 735);
}

TEST(LogExchange, BrokenLastRecordIsNotRead) {
    std::vector<LogRecord> sent = {entry(1)};
    sent[0].actualDeparture = 800;
    Bytes bytes = exchangeBytes(sent, {});
    bytes.pop_back();
    std::vector<LogRecord> log = {entry(1)};
    mergeExchange(bytes, log);
    EXPECT_EQ(log[0].actualDeparture, 735);
}

TEST(LogExchange, MissingFileIsCreatedEmptyByTheMerge) {
    const test::TempFolder folder;
    std::vector<LogRecord> log = {entry(1)};
    MergeLogRecords(folder.path("/logrecords.gt1"), log);
    EXPECT_TRUE(files::fileExists(folder.path("/logrecords.gt1")));
    MergeLogRecords(folder.path("/Modules/logrecords.gt1"), log);
    EXPECT_FALSE(files::folderExists(folder.path("/Modules")));
}

TEST(LogExchange, NoEntriesLeaveTheFileAsItWas) {
    const test::TempFolder folder;
    WriteLogRecords(folder.path("/logrecords.gt1"), {entry(1)});
    const auto before = files::readAll(folder.path("/logrecords.gt1"));
    WriteLogRecords(folder.path("/logrecords.gt1"), {});
    EXPECT_EQ(files::readAll(folder.path("/logrecords.gt1")), before);
}

} // namespace
} // namespace gatewise
