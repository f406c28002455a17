#include "export/ExportPF2K.h"

#include "platform/Text.h"
#include "schedule/FlightTexts.h"
#include "schedule/Lookups.h"

#include <algorithm>
#include <cmath>

namespace gatewise {

namespace {

bool blank(std::string_view text) {
    return trimmed(text).empty();
}

} // namespace

std::string proFlightTime(int departureTime, int preflight) {
    int hours = departureTime / 100;
    int minutes = departureTime % 100 - preflight;
    if (minutes < 0) {
        --hours;
        minutes += 60;
    }
    if (hours < 0) hours += 24;
    return formatInteger("00", hours) + ":" + formatInteger("00", minutes);
}

std::vector<ProfileValue> proFlightKeys(const Plan& plan, const FlightRecord& flight, const Tables& tables,
                                        const ProFlightOptions& options, const NumberLocale& numbers) {
    std::vector<ProfileValue> keys;
    const auto set = [&](const char* key, std::string value) {
        keys.push_back({"FlightInfo", key, std::move(value)});
    };
    const auto aircraft = flight.AircraftCode.view();
    const std::string flightNumber = std::to_string(flight.FlightNumber);

    set("PilotName", std::string(trimmed(options.firstName)) + " " + std::string(trimmed(options.lastName)));
    set("CruiseAltitude", std::to_string(plan.peakAltitude));
    set("Time", proFlightTime(flight.DepartureTime, options.preflight));
    set("ClimbRate", numbers.filed(numbers.plainSingle(plan.climbRate)));
    set("DescentRate", numbers.filed(numbers.plainSingle(std::fabs(plan.descentRate))));
    set("CruiseSpeedTAS", numbers.filed(numbers.plainDouble(plan.speedSchedule[3])));
    if (const auto company = find_pf_compnay(tables, aircraft); !blank(company)) set("Company", company);
    if (const auto type = find_pf_aircraft(tables, aircraft); !blank(type)) set("Aircraft", type);

    std::string callsign = find_pf_callsign(tables, flight.AirlineCode.view());
    std::replace(callsign.begin(), callsign.end(), '\0', ' ');
    if (blank(callsign)) {
        set("Airline", "None");
        set("Callsign", std::string(flight.AirlineCode.trimmed()) + flightNumber);
    } else {
        if (options.callsign) set("Airline", callsign);
        if (options.flightNumber) set("Callsign", flightNumber);
    }
    return keys;
}

} // namespace gatewise
