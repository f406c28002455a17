#include "import/OnTime.h"

#include "platform/Machine.h"

#include <algorithm>
#include <array>

namespace gatewise::importer {

namespace {

struct OnTimeColumns {
    /// The form without a header line.
    OnTimeColumns() = default;
    explicit OnTimeColumns(const Header& h)
        : year(h.column({"year"})), month(h.column({"month"})), day(h.column({"dayofmonth"})),
          date(h.column({"flightdate", "fldate"})),
          carrier(h.column({"iatacodereportingairline", "reportingairline", "opuniquecarrier",
                            "uniquecarrier", "opcarrier", "carrier"})),
          number(h.column({"flightnumberreportingairline", "opcarrierflnum", "flightnum", "flnum"})),
          tail(h.column({"tailnumber", "tailnum"})), origin(h.column({"origin"})),
          destination(h.column({"dest"})), departure(h.column({"crsdeptime"})),
          arrival(h.column({"crsarrtime"})), miles(h.column({"distance"})) {}

    int year = 0, month = 1, day = 2, date = -1, carrier = 8, number = 9, tail = 10, origin = 16,
        destination = 17, departure = 5, arrival = 7, miles = 18;
};

/// The serial of a day that the calendar has, 0 for any other.
std::int32_t serialOf(long long year, long long month, long long day) {
    if (year < 1980 || year > 2100 || month < 1 || month > 12 || day < 1 || day > 31) return 0;
    const DateTime date{static_cast<int>(year), static_cast<int>(month), static_cast<int>(day), 0, 0, 0, 0};
    const long long serial = daySerial(date);
    return fromDaySerial(serial).day == date.day ? static_cast<std::int32_t>(serial) : 0;
}

/// "2002-06-01", or "6/1/2002 12:00:00 AM"; 0 for anything else.
std::int32_t serialIn(std::string_view cell) {
    cell = cell.substr(0, cell.find(' '));
    std::array<long long, 3> parts{};
    const char between = cell.find('/') != std::string_view::npos ? '/' : '-';
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::size_t end = i < 2 ? cell.find(between) : cell.size();
        if (end == std::string_view::npos) return 0;
        parts[i] = wholeIn(cell.substr(0, end)).value_or(-1);
        cell.remove_prefix(std::min(end + 1, cell.size()));
    }
    return between == '/' ? serialOf(parts[2], parts[0], parts[1]) : serialOf(parts[0], parts[1], parts[2]);
}

std::int32_t dayOf(const Cells& c, const OnTimeColumns& at) {
    if (at.date >= 0) return serialIn(cellAt(c, at.date));
    return serialOf(wholeIn(cellAt(c, at.year)).value_or(0), wholeIn(cellAt(c, at.month)).value_or(0),
                    wholeIn(cellAt(c, at.day)).value_or(0));
}

/// Minutes of the day of a time HHMM without leading zeros, 2400 being midnight; -1 for anything else.
int minutesIn(std::string_view cell) {
    const auto value = wholeIn(cell);
    if (!value || *value < 0 || *value > 2400 || *value % 100 > 59) return -1;
    return static_cast<int>(*value / 100 * 60 + *value % 100) % 1440;
}

/// The carrier as passengers see it: later holders of a code tell earlier ones apart by "PA (1)".
std::string_view carrierIn(std::string_view cell) {
    const std::string_view code = cell.substr(0, cell.find(' '));
    return isCode(code, 2, 3) ? code : std::string_view();
}

const char* flight(const Cells& c, const OnTimeColumns& at, OnTimeData& data) {
    const auto number = wholeIn(cellAt(c, at.number));
    const auto miles = wholeIn(cellAt(c, at.miles));
    const std::string_view carrier = carrierIn(cellAt(c, at.carrier));
    const std::string_view origin = cellAt(c, at.origin);
    const std::string_view destination = cellAt(c, at.destination);
    OnTimeRow row;
    row.day = dayOf(c, at);
    const int departure = minutesIn(cellAt(c, at.departure));
    const int arrival = minutesIn(cellAt(c, at.arrival));
    if (row.day == 0) return "no day of the calendar";
    if (carrier.empty()) return "no carrier code of two or three characters";
    if (!number || *number < 0 || *number > 9999) return "no flight number from 0 to 9999";
    if (!isCode(origin, 3, 3) || !isCode(destination, 3, 3)) return "no airport code";
    if (departure < 0 || arrival < 0) return "no scheduled times";
    row.carrier = data.carriers.add(carrier);
    row.origin = data.airports.add(origin);
    row.destination = data.airports.add(destination);
    row.tail = data.tails.add(cellAt(c, at.tail));
    row.number = static_cast<std::int16_t>(*number);
    row.departure = static_cast<std::int16_t>(departure);
    row.arrival = static_cast<std::int16_t>(arrival);
    row.miles = static_cast<std::int16_t>(miles && *miles > 0 && *miles < 20000 ? *miles : 0);
    data.rows.push_back(row);
    return nullptr;
}

} // namespace

OnTimeFile readOnTime(const Reading& reading, OnTimeData& data) {
    Table<OnTimeRow> none;
    OnTimeFile out;
    Cells cells;
    OnTimeColumns columns;
    const std::size_t before = data.rows.size();
    readLines(reading, none, [&](int number, std::string_view line) -> const char* {
        if (!cells.commas(line)) return "a quote out of place";
        if (number == 1 && !wholeIn(cells[0])) {
            columns = OnTimeColumns(Header(cells));
            return nullptr;
        }
        return flight(cells, columns, data);
    });
    out.edition = none.edition;
    out.error = none.error;
    out.edition.rows = static_cast<long long>(data.rows.size() - before);
    for (std::size_t i = before; i < data.rows.size(); ++i) {
        const int day = data.rows[i].day;
        out.firstDay = out.firstDay == 0 ? day : std::min(out.firstDay, day);
        out.lastDay = std::max(out.lastDay, day);
    }
    return out;
}

} // namespace gatewise::importer
