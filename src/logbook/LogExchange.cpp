#include "logbook/LogExchange.h"

#include "platform/Files.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace gatewise {

namespace {

constexpr std::size_t kExchangeRecord = recordSize<LogExchangeRecord>();

LogExchangeRecord exchangeRecord(const LogRecord& entry, std::size_t index) {
    LogExchangeRecord out;
    out.index = static_cast<std::int16_t>(index);
    out.departureIcao = entry.departureIcao.trimmed();
    out.departureName = entry.departureName.trimmed();
    out.arrivalIcao = entry.arrivalIcao.trimmed();
    out.arrivalName = entry.arrivalName.trimmed();
    out.flight = std::string(entry.airline.trimmed()) + " " + std::to_string(entry.flightNumber);
    out.scheduledDeparture = entry.scheduledDeparture;
    out.scheduledArrival = entry.scheduledArrival;
    out.actualDeparture = entry.actualDeparture;
    out.actualArrival = entry.actualArrival;
    return out;
}

} // namespace

Bytes exchangeBytes(const std::vector<LogRecord>& entries, ByteView old) {
    Bytes out;
    out.reserve(std::max(entries.size() * kExchangeRecord, old.size()));
    for (std::size_t i = 0; i < entries.size(); ++i) appendRecord(out, exchangeRecord(entries[i], i));
    if (old.size() > out.size())
        out.insert(out.end(), old.begin() + static_cast<std::ptrdiff_t>(out.size()), old.end());
    return out;
}

void mergeExchange(ByteView bytes, std::vector<LogRecord>& entries) {
    const std::size_t count = bytes.size() / kExchangeRecord;
    if (count > kLogEntries) return;
    std::unordered_map<int, LogExchangeRecord> first; // of each index
    for (std::size_t k = 0; k < count; ++k) {
        LogExchangeRecord record;
        loadRecord(record, bytes.data() + k * kExchangeRecord);
        first.emplace(record.index, record);
    }
    for (std::size_t j = 0; j < entries.size(); ++j) {
        const auto found = first.find(static_cast<int>(j));
        if (found == first.end()) continue;
        entries[j].actualArrival = found->second.actualArrival;
        entries[j].actualDeparture = found->second.actualDeparture;
    }
}

void WriteLogRecords(std::string_view path, const std::vector<LogRecord>& entries) {
    if (entries.empty()) return;
    // Without the simulator there is no folder for it; the log book itself stands already.
    (void)files::rewrite(
        path, [&](const Bytes& old) -> std::optional<Bytes> { return exchangeBytes(entries, old); });
}

void MergeLogRecords(std::string_view path, std::vector<LogRecord>& entries) {
    std::error_code error;
    const auto bytes = files::readAll(path, &error);
    if (bytes)
        mergeExchange(*bytes, entries);
    else if (error == std::errc::no_such_file_or_directory)
        (void)files::replace(path, ByteView()); // without the simulator there is no folder for it
}

} // namespace gatewise
