#include "logbook/LogListing.h"

#include "platform/Machine.h"
#include "platform/Text.h"

#include <algorithm>

namespace gatewise {

namespace {

std::string field(std::string_view text) {
    std::string utf8 = utf8FromText(trimmed(text));
    if (utf8.find_first_of(",\"\r\n") == std::string::npos) return utf8;
    return "\"" + replaceAll(utf8, "\"", "\"\"") + "\"";
}

std::string hours(double value) {
    return formatNumber("0.0", value);
}

struct CsvColumn {
    const char* head;
    std::string (*text)(const LogRecord&);
};

constexpr CsvColumn kColumns[] = {
    {"date", [](const LogRecord& e) { return isoDate(e.date); }},
    {"departure", [](const LogRecord& e) { return field(e.departureIcao.view()); }},
    {"departure_name", [](const LogRecord& e) { return field(e.departureName.view()); }},
    {"arrival", [](const LogRecord& e) { return field(e.arrivalIcao.view()); }},
    {"arrival_name", [](const LogRecord& e) { return field(e.arrivalName.view()); }},
    {"aircraft", [](const LogRecord& e) { return field(e.aircraft.view()); }},
    {"airline", [](const LogRecord& e) { return field(e.airline.view()); }},
    {"flight", [](const LogRecord& e) { return std::to_string(e.flightNumber); }},
    {"scheduled_departure", [](const LogRecord& e) { return hhmmText(e.scheduledDeparture); }},
    {"scheduled_arrival", [](const LogRecord& e) { return hhmmText(e.scheduledArrival); }},
    {"actual_departure", [](const LogRecord& e) { return hhmmText(e.actualDeparture); }},
    {"actual_arrival", [](const LogRecord& e) { return hhmmText(e.actualArrival); }},
    {"day_hours", [](const LogRecord& e) { return hours(static_cast<double>(e.dayHours)); }},
    {"night_hours", [](const LogRecord& e) { return hours(static_cast<double>(e.nightHours)); }},
    {"instrument_hours", [](const LogRecord& e) { return hours(static_cast<double>(e.instrumentHours)); }},
    {"pilot_in_command_hours",
     [](const LogRecord& e) {
         return hours(static_cast<double>(e.dayHours) + static_cast<double>(e.nightHours));
     }},
    {"comments", [](const LogRecord& e) { return field(e.comments.view()); }},
};

std::string padded(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

std::string right(const std::string& text, std::size_t width) {
    return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

constexpr std::size_t kLine = 80;
constexpr std::size_t kHours = 8;   // width of each of the two columns of hours
constexpr std::size_t kIndent = 12; // of the lines below a flight

/// Lines of at most `width` characters, broken at blanks; a line feed ends one, a longer word is cut.
std::vector<std::string> folded(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    const std::string plain = replaceAll(replaceAll(std::string(text), "\r\n", "\n"), "\r", "\n");
    std::string_view rest = plain;
    while (rest.find('\n') != std::string_view::npos || rest.size() > width) {
        const std::string_view reach = rest.substr(0, width + 1);
        std::size_t end = std::min(reach.find('\n'), reach.size());
        if (end > width) end = reach.rfind(' ');
        const bool cut = end == std::string_view::npos || end == 0;
        if (cut && reach.front() != '\n') end = width;
        lines.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end + (rest[end] == '\n' || rest[end] == ' ' ? 1 : 0));
    }
    lines.emplace_back(rest);
    return lines;
}

std::string sumLine(const std::string& words, const std::string& instrument, const std::string& pilot) {
    return right(words, kLine - 2 * kHours) + right(instrument, kHours) + right(pilot, kHours) + "\n";
}

} // namespace

std::string isoDate(double serial) {
    const auto day = calendarDay(serial);
    if (!day) return {};
    return formatInteger("0000", day->year) + "-" + formatInteger("00", day->month) + "-" +
           formatInteger("00", day->day);
}

std::string logCsv(const std::vector<LogRecord>& entries) {
    std::string out;
    const auto line = [&](auto text) {
        const char* comma = "";
        for (const auto& column : kColumns) {
            out += comma + std::string(text(column));
            comma = ",";
        }
        out += "\r\n";
    };
    line([](const CsvColumn& column) { return column.head; });
    for (const auto& entry : entries) {
        line([&](const CsvColumn& column) { return column.text(entry); });
    }
    return out;
}

std::string logListing(const std::vector<LogRecord>& entries, int page, const std::string& pilot,
                       const NumberLocale& numbers) {
    const int last = static_cast<int>(entries.size()) - 1;
    const LogPageTexts texts = logPageTexts(entries, page, numbers);
    std::string out = "PILOT'S LOG BOOK\n" + padded("Pilot: " + std::string(trimmed(pilot)), 60) + "Page " +
                      std::to_string(page) + " of " + std::to_string(logPages(last)) + "\n\n";
    out += padded("DATE        FLIGHT", kLine - 2 * kHours) + right("INST.", kHours) + right("PIC", kHours) +
           "\n";
    out += std::string(kLine, '-') + "\n";
    const std::string indent(kIndent, ' ');
    for (int row = 0; row < kLogRows; ++row) {
        const auto i = static_cast<std::size_t>(page - 1) * kLogRows + static_cast<std::size_t>(row);
        if (i >= entries.size()) break;
        const LogRecord& entry = entries[i];
        const LogRowTexts& text = texts.rows[static_cast<std::size_t>(row)];
        const std::string flight =
            std::string(entry.airline.trimmed()) + " " + std::to_string(entry.flightNumber);
        out += padded(isoDate(entry.date) + "  " + flight, kLine - 2 * kHours) +
               right(text.instrument, kHours) + right(text.pilot, kHours) + "\n";
        // Code and name of an airport always fit; comments may be longer than a line and have several.
        out += indent + hhmmText(entry.actualDeparture) + " " + std::string(trimmed(text.departure)) + "\n";
        out += indent + hhmmText(entry.actualArrival) + " " + std::string(trimmed(text.arrival)) + "\n";
        for (const auto& line : folded(trimmed(text.notes), kLine - kIndent)) out += indent + line + "\n";
        out += "\n";
    }
    out += std::string(kLine, '-') + "\n";
    out += sumLine("Totals this page", texts.pageInstrument, texts.pagePilot);
    out += sumLine("Totals from previous pages", texts.previousInstrument, texts.previousPilot);
    out += sumLine("Totals to date", texts.totalInstrument, texts.totalPilot);
    return out;
}

} // namespace gatewise
