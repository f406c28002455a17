#include "logbook/LogBook.h"
#include "platform/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace gatewise {
namespace {

LogRecord numbered(int number) {
    LogRecord r;
    r.flightNumber = static_cast<std::int16_t>(number);
    r.comments = "entry " + std::to_string(number);
    return r;
}

/// Adds, saves and deletes without end; every state in between is a whole log book of whole records.
/// Tells `done` of each change that is over.
[[noreturn]] void workForEver(const std::string& path, int done) {
    LogStore store;
    for (int round = 0;; ++round) {
        std::vector<LogRecord> entries = readLogBook(path);
        const int number = round % 30000;
        if (entries.size() > 12) {
            entries.erase(entries.begin() + 3);
            store.rewrite(path, entries, 1);
        } else if (round % 3 == 0 && !entries.empty()) {
            store.put(path, entries.size() / 2, numbered(number), 1);
        } else {
            store.put(path, entries.size(), numbered(number), 1);
        }
        if (::write(done, "x", 1) != 1) ::_exit(1);
    }
}

bool whole(const std::string& path) {
    const auto bytes = files::readAll(path);
    if (!bytes || bytes->size() % recordSize<LogRecord>() != 0) return false;
    const auto entries = logEntriesOf(*bytes);
    return std::all_of(entries.begin(), entries.end(), [](const LogRecord& e) {
        return e.comments.trimmed() == "entry " + std::to_string(e.flightNumber);
    });
}

TEST(LogKill, AProgramKilledAtAnyMomentLeavesAWholeLogBook) {
    const test::TempFolder folder;
    const std::string path = folder.path("/LogBook.gt1");
    LogStore store;
    ASSERT_FALSE(store.put(path, 0, numbered(0), 1));
    std::mt19937 random(7); // NOLINT: the same moments each time, as far as the machine allows
    std::size_t changes = 0;
    for (int run = 0; run < 500; ++run) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) workForEver(path, ends[1]);
        ::close(ends[1]);
        char told[64];
        ASSERT_EQ(::read(ends[0], told, 1), 1) << "the first change of a run is over";
        ::usleep(std::uniform_int_distribution<useconds_t>(0, 3000)(random));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        for (ssize_t count = 1; count > 0; count = ::read(ends[0], told, sizeof told)) {
            changes += static_cast<std::size_t>(count);
        }
        ::close(ends[0]);
        ASSERT_TRUE(whole(path)) << "after run " << run;
        ASSERT_TRUE(!files::fileExists(folder.path("/LogBook.bak")) || whole(folder.path("/LogBook.bak")));
    }
    EXPECT_GE(changes, 500U);
}

} // namespace
} // namespace gatewise
