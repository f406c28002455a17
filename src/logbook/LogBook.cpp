#include "logbook/LogBook.h"

#include "platform/Files.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>

namespace gatewise {

namespace {

constexpr std::size_t kRecord = recordSize<LogRecord>();

std::string besides(std::string_view path, std::string_view name) {
    const auto slash = path.find_last_of("/\\");
    return std::string(path.substr(0, slash == std::string_view::npos ? 0 : slash + 1)).append(name);
}

// A backup bears noon of the day before whose first change it was made, so that a later run knows it too.
constexpr long long kSerialOf1970 = 25569;

void markDay(std::string_view backup, long long day) {
    using namespace std::chrono;
    const sys_time<seconds> noon = sys_days(days(day - kSerialOf1970)) + hours(12);
    std::error_code ignored;
    std::filesystem::last_write_time(files::resolve(backup), file_clock::from_sys(noon), ignored);
}

/// Day serial of the backup; 0 without one.
long long markedDay(std::string_view backup) {
    using namespace std::chrono;
    std::error_code error;
    const auto time = std::filesystem::last_write_time(files::resolve(backup), error);
    if (error) return 0;
    return floor<days>(file_clock::to_sys(time)).time_since_epoch().count() + kSerialOf1970;
}

/// Bytes of the file; empty when there is none. An unreadable file is an error, not an empty log.
std::error_code readOld(std::string_view path, Bytes& bytes) {
    std::error_code error;
    auto found = files::readAll(path, &error);
    if (found)
        bytes = std::move(*found);
    else if (error != std::errc::no_such_file_or_directory)
        return error;
    return {};
}

} // namespace

std::vector<LogRecord> logEntriesOf(ByteView bytes) {
    std::vector<LogRecord> entries(std::min<std::size_t>(bytes.size() / kRecord, kLogEntries));
    for (std::size_t i = 0; i < entries.size(); ++i) loadRecord(entries[i], bytes.data() + i * kRecord);
    return entries;
}

std::vector<LogRecord> readLogBook(std::string_view path) {
    const auto bytes = files::readAll(path);
    return bytes ? logEntriesOf(*bytes) : std::vector<LogRecord>();
}

std::error_code LogStore::backUp(std::string_view path, ByteView old, long long today) {
    const bool doubtful = old.size() % kRecord != 0 || static_cast<long long>(old.size()) != known_;
    const std::string backup = besides(path, "LogBook.bak");
    if (backedUpOn_ != today) backedUpOn_ = markedDay(backup);
    if (old.empty() || (backedUpOn_ == today && !doubtful)) return {};
    if (const auto error = files::replace(backup, old)) return error;
    markDay(backup, today);
    backedUpOn_ = today;
    return {};
}

std::error_code LogStore::replace(std::string_view path, const Bytes& bytes) {
    const std::error_code error = files::replace(path, bytes);
    if (!error) remember(static_cast<long long>(bytes.size()));
    return error;
}

std::error_code LogStore::put(std::string_view path, std::size_t index, const LogRecord& record,
                              long long today, const std::vector<LogRecord>& entries) {
    Bytes bytes;
    if (const auto error = readOld(path, bytes)) return error;
    if (const auto error = backUp(path, bytes, today)) return error;
    if (bytes.size() < index * kRecord) {
        const std::size_t whole = bytes.size() / kRecord;
        bytes.resize(whole * kRecord);
        for (std::size_t i = whole; i < std::min(index, entries.size()); ++i) appendRecord(bytes, entries[i]);
    }
    bytes.resize(std::max(bytes.size(), (index + 1) * kRecord));
    Bytes field;
    field.reserve(kRecord);
    appendRecord(field, record);
    std::copy(field.begin(), field.end(), bytes.begin() + static_cast<std::ptrdiff_t>(index * kRecord));
    return replace(path, bytes);
}

std::error_code LogStore::rewrite(std::string_view path, const std::vector<LogRecord>& entries,
                                  long long today) {
    Bytes old;
    if (const auto error = readOld(path, old)) return error;
    if (const auto error = backUp(path, old, today)) return error;
    Bytes bytes;
    bytes.reserve(entries.size() * kRecord);
    for (const LogRecord& entry : entries) appendRecord(bytes, entry);
    return replace(path, bytes);
}

} // namespace gatewise
