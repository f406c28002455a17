#include "logbook/ImportUndo.h"
#include "logbook/LogBook.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

LogRecord entry(int number) {
    LogRecord r;
    r.date = 37422;
    r.departureIcao = "KATL", r.arrivalIcao = "KORD";
    r.flightNumber = static_cast<std::int16_t>(number);
    return r;
}

std::vector<int> numbers(const std::vector<LogRecord>& entries) {
    std::vector<int> out;
    for (const LogRecord& e : entries) out.push_back(e.flightNumber);
    return out;
}

class ImportUndo : public testing::Test {
protected:
    [[nodiscard]] std::string book() const { return folder.path("/LogBook.gt1"); }
    void writeBook(const std::vector<LogRecord>& entries) const {
        Bytes bytes;
        for (const auto& e : entries) appendRecord(bytes, e);
        folder.write("/LogBook.gt1", ByteView(bytes));
    }
    const test::TempFolder folder;
};

TEST_F(ImportUndo, TheLogBookBeforeIsKeptByteForByte) {
    writeBook({entry(1), entry(2)});
    ASSERT_FALSE(keepImport(book(), {entry(3)}));
    EXPECT_EQ(folder.bytes("/LogBook.before-import"), folder.bytes("/LogBook.gt1"));
    EXPECT_EQ(numbers(importedEntries(book())), (std::vector{3}));
}

TEST_F(ImportUndo, NoLogBookIsAnEmptyOne) {
    ASSERT_FALSE(keepImport(book(), {entry(3)}));
    EXPECT_TRUE(folder.has("/LogBook.before-import"));
    EXPECT_TRUE(folder.bytes("/LogBook.before-import").empty());
}

TEST_F(ImportUndo, ALogBookThatCannotBeReadIsNoEmptyOne) {
    std::filesystem::create_directories(folder / "LogBook.gt1");
    EXPECT_EQ(keepImport(book(), {entry(3)}), std::errc::is_a_directory);
    EXPECT_FALSE(folder.has("/LogBook.imported"));
}

TEST_F(ImportUndo, AnImportThatFailedLeavesTheOneBeforeIt) {
    writeBook({entry(1)});
    ASSERT_FALSE(keepImport(book(), {entry(2)}));
    const KeptImport old = keptImport(book());
    writeBook({entry(1), entry(2)});
    ASSERT_FALSE(keepImport(book(), {entry(3)}));
    putBackImport(book(), old);
    EXPECT_EQ(numbers(importedEntries(book())), (std::vector{2}));
    EXPECT_EQ(numbers(readLogBook(folder.path("/LogBook.before-import"))), (std::vector{1}));
    putBackImport(book(), {});
    EXPECT_FALSE(folder.has("/LogBook.imported"));
    EXPECT_FALSE(folder.has("/LogBook.before-import"));
}

TEST_F(ImportUndo, IsForgottenOnce) {
    ASSERT_FALSE(keepImport(book(), {entry(3)}));
    EXPECT_FALSE(forgetImport(book()));
    EXPECT_FALSE(forgetImport(book()));
    EXPECT_TRUE(importedEntries(book()).empty());
}

TEST_F(ImportUndo, OfEqualEntriesTheLastGoAsOftenAsTheyCame) {
    EXPECT_EQ(numbers(withoutImport({entry(1), entry(2), entry(1), entry(3)}, {entry(1)})),
              (std::vector{1, 2, 3}));
    EXPECT_EQ(numbers(withoutImport({entry(1), entry(1), entry(1)}, {entry(1), entry(1)})), (std::vector{1}));
    EXPECT_EQ(numbers(withoutImport({entry(1)}, {entry(1), entry(1)})), (std::vector<int>{}));
    LogRecord changed = entry(2);
    changed.comments = "changed since";
    EXPECT_EQ(numbers(withoutImport({entry(1), changed, entry(4)}, {entry(2)})), (std::vector{1, 2, 4}));
}

} // namespace
} // namespace gatewise
