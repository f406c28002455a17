#include "schedule/FlightTexts.h"

#include "platform/Numbers.h"
#include "schedule/Lookups.h"

#include <array>

namespace gatewise {

namespace {

struct ClassRow {
    std::string_view code;
    std::string_view offered;
    std::string_view onPass;
};

constexpr std::array<ClassRow, 7> kClasses = {{{"A", "First, Business, Economy", "FIRST"},
                                               {"B", "First, Business", "FIRST"},
                                               {"C", "First, Economy", "FIRST"},
                                               {"D", "First", "FIRST"},
                                               {"E", "Business", "BUSINESS"},
                                               {"F", "Economy", "ECONOMY"},
                                               {"G", "Business, Economy", "BUSINESS"}}};

const ClassRow* classRow(std::string_view code) {
    for (const auto& row : kClasses) {
        if (row.code == code) return &row;
    }
    return nullptr;
}

} // namespace

std::string airportListText(const AirportRecord& airport) {
    return joined({airport.City.trimmed(), " - ", airport.Name.trimmed(), " (", airport.Iata.trimmed(), ")"});
}

std::string airportText(const AirportRecord& airport) {
    return " " + airportListText(airport);
}

std::string homeText(const AirportRecord& airport) {
    return joined({airport.Icao.trimmed(), " - ", airportListText(airport)});
}

std::string airportHitText(const AirportRecord& airport) {
    return joined({airport.Icao.view(), " - ", airport.Name.trimmed(), " (", airport.Iata.view(), ")"});
}

std::string flightStem(const Tables& tables, const FlightRecord& flight) {
    return joined({trimmed(find_airline(tables, flight.AirlineCode.view())), " Flight ",
                   std::to_string(flight.FlightNumber), " ", flight.OriginIata.view(), " to ",
                   flight.DestinationIata.view()});
}

std::string fourDigits(int value) {
    if (value < 0 || value > 9999) return formatInteger("0000", value);
    // The board writes thousands of these for each build.
    const auto digit = [&](int unit) { return static_cast<char>('0' + value / unit % 10); };
    return {digit(1000), digit(100), digit(10), digit(1)};
}

std::optional<std::string> passTime(int hhmm) {
    if (hhmm > 1300) return formatInteger("####", hhmm - 1200) + "P";
    if (hhmm >= 1200 && hhmm <= 1299) return formatInteger("####", hhmm) + "P";
    if (hhmm >= 100 && hhmm <= 1199) return formatInteger("####", hhmm) + "A";
    if (hhmm >= 0 && hhmm <= 99) return formatInteger("####", hhmm + 1200) + "A";
    return std::nullopt;
}

std::string passDate(const DateTime& today) {
    static constexpr std::string_view kMonths = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";
    const auto month = static_cast<std::size_t>(today.month - 1);
    return formatInteger("00", today.day).append(month < 12 ? kMonths.substr(month * 3, 3) : "");
}

std::string seatText(int second) {
    return std::to_string(second / 4 + 1) + (second > 30 ? "A" : "B");
}

std::string_view classText(std::string_view ClassCode) {
    const auto* row = classRow(ClassCode);
    return row != nullptr ? row->offered : std::string_view();
}

std::optional<std::string_view> passClass(std::string_view ClassCode) {
    const auto* row = classRow(ClassCode);
    if (row == nullptr) return std::nullopt;
    return row->onPass;
}

} // namespace gatewise
