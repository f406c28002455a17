#include "logbook/LogBook.h"

#include "logbook/BesideBook.h"
#include "platform/Files.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>

namespace gatewise {

namespace {

constexpr std::size_t kRecord = recordSize<LogRecord>();

// A backup bears noon of the day before whose first change it was made, so that a later run knows it too.
constexpr long long kSerialOf1970 = 25569;

// A file's time is counted in nanoseconds and ends a good two centuries around 2174. Outside of these days a
// backup keeps its own time and is made again by the next run.
constexpr long long kFirstMark = 2;      // 1 January 1900
constexpr long long kLastMark = 180'000; // 26 October 2392

void markDay(std::string_view backup, long long day) {
    using namespace std::chrono;
    if (day < kFirstMark || day > kLastMark) return;
    const sys_time<seconds> noon = sys_days(days(day - kSerialOf1970)) + hours(12);
    std::error_code ignored;
    std::filesystem::last_write_time(files::target(backup), file_clock::from_sys(noon), ignored);
}

/// Day serial of the backup; 0 without one.
long long markedDay(std::string_view backup) {
    using namespace std::chrono;
    std::error_code error;
    const auto time = std::filesystem::last_write_time(files::target(backup), error);
    if (error) return 0;
    const auto counted = file_clock::to_sys(floor<seconds>(time)); // in seconds: any time of a file fits
    return floor<days>(counted).time_since_epoch().count() + kSerialOf1970;
}

Bytes bytesOf(const std::vector<LogRecord>& entries) {
    Bytes out;
    out.reserve(entries.size() * kRecord);
    for (const LogRecord& entry : entries) appendRecord(out, entry);
    return out;
}

std::string keptPath(std::string_view path) {
    return besideBook(path, "LogBook.new");
}

/// Makes room for a record at `index`: what the file has lost meanwhile comes back from `entries`.
void reach(Bytes& bytes, std::size_t index, const std::vector<LogRecord>& entries) {
    if (bytes.size() < index * kRecord) {
        const std::size_t whole = bytes.size() / kRecord;
        bytes.resize(whole * kRecord);
        for (std::size_t i = whole; i < std::min(index, entries.size()); ++i) appendRecord(bytes, entries[i]);
    }
    bytes.resize(std::max(bytes.size(), (index + 1) * kRecord));
}

void store(Bytes& bytes, std::size_t index, const LogRecord& record) {
    const Bytes field = bytesOf({record});
    std::copy(field.begin(), field.end(), bytes.begin() + static_cast<std::ptrdiff_t>(index * kRecord));
}

/// Whether the records of `part` stand in `whole` one behind the other.
bool holds(const Bytes& whole, const Bytes& part) {
    return std::search(whole.begin(), whole.end(), part.begin(), part.end()) != whole.end();
}

} // namespace

std::vector<LogRecord> logEntriesOf(ByteView bytes) {
    std::vector<LogRecord> entries(std::min<std::size_t>(bytes.size() / kRecord, kLogEntries));
    for (std::size_t i = 0; i < entries.size(); ++i) loadRecord(entries[i], bytes.data() + i * kRecord);
    return entries;
}

std::vector<LogRecord> readLogBook(std::string_view path, std::error_code* error) {
    std::error_code found;
    const auto bytes = files::readAll(path, &found);
    if (found == std::errc::no_such_file_or_directory) found.clear();
    if (error != nullptr) *error = found;
    return bytes ? logEntriesOf(*bytes) : std::vector<LogRecord>();
}

std::error_code LogStore::load(std::string_view path, long long today, std::vector<LogRecord>& entries) {
    std::vector<LogRecord> found = readLogBook(path, &doubt_);
    if (doubt_) return doubt_;
    entries = std::move(found);
    remember(static_cast<long long>(entries.size()) * static_cast<long long>(kRecord));
    takeKept(path, today, entries);
    return {};
}

std::error_code LogStore::keepBeside(std::string_view path, const LogRecord& record) {
    return files::rewrite(keptPath(path), [&](Bytes old) -> std::optional<Bytes> {
        old.resize(old.size() / kRecord * kRecord);
        appendRecord(old, record);
        return old;
    });
}

void LogStore::takeKept(std::string_view path, long long today, std::vector<LogRecord>& entries) {
    const std::vector<LogRecord> kept = readLogBook(keptPath(path));
    if (kept.empty()) return;
    // A run that ended between the two steps has filed them already.
    if (!holds(bytesOf(entries), bytesOf(kept))) {
        const std::size_t free =
            static_cast<std::size_t>(kLogEntries) - std::min<std::size_t>(entries.size(), kLogEntries);
        if (kept.size() > free) return;
        entries.insert(entries.end(), kept.begin(), kept.end());
        const auto filed = change(path, today, [&](Bytes bytes) {
            for (const LogRecord& record : kept) {
                const std::size_t index = bytes.size() / kRecord;
                reach(bytes, index, {});
                store(bytes, index, record);
            }
            return bytes;
        });
        if (filed) return; // they wait on
    }
    (void)files::remove(keptPath(path)); // found to be filed at the next reading
}

std::error_code LogStore::backUp(std::string_view path, ByteView old, long long today) {
    const bool doubtful = old.size() % kRecord != 0 || static_cast<long long>(old.size()) != known_;
    const std::string backup = besideBook(path, "LogBook.bak");
    if (backedUpOn_ != today) backedUpOn_ = markedDay(backup);
    if (old.empty() || (backedUpOn_ == today && !doubtful)) return {};
    if (const auto error = files::replace(backup, old)) return error;
    markDay(backup, today);
    backedUpOn_ = today;
    return {};
}

std::error_code LogStore::change(std::string_view path, long long today, const Change& change) {
    if (doubt_) return doubt_;
    std::error_code backedUp;
    long long length = 0;
    const auto error = files::rewrite(path, [&](Bytes old) -> std::optional<Bytes> {
        backedUp = backUp(path, old, today);
        if (backedUp) return std::nullopt;
        Bytes bytes = change(std::move(old));
        length = static_cast<long long>(bytes.size());
        return bytes;
    });
    if (error || backedUp) return error ? error : backedUp;
    remember(length);
    return {};
}

std::error_code LogStore::add(std::string_view path, const LogRecord& record, long long today,
                              const std::vector<LogRecord>& entries) {
    return append(path, {record}, today, entries);
}

std::error_code LogStore::append(std::string_view path, const std::vector<LogRecord>& records,
                                 long long today, const std::vector<LogRecord>& entries) {
    return change(path, today, [&](Bytes bytes) {
        std::size_t index = std::max(entries.size(), bytes.size() / kRecord);
        for (const LogRecord& record : records) {
            reach(bytes, index, entries);
            store(bytes, index++, record);
        }
        return bytes;
    });
}

std::error_code LogStore::put(std::string_view path, std::size_t index, const LogRecord& record,
                              long long today, const std::vector<LogRecord>& entries) {
    return change(path, today, [&](Bytes bytes) {
        reach(bytes, index, entries);
        store(bytes, index, record);
        return bytes;
    });
}

std::error_code LogStore::rewrite(std::string_view path, const std::vector<LogRecord>& entries,
                                  long long today) {
    return change(path, today, [&](const Bytes&) { return bytesOf(entries); });
}

} // namespace gatewise
