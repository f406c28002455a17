#include "work/LogNames.h"

#include "import/AircraftTypes.h"
#include "schedule/Lookups.h"

namespace gatewise {

namespace {

constexpr std::size_t kLongestCode = 4;

const importer::AircraftTypes& aircraftTypes() {
    static const importer::AircraftTypes types;
    return types;
}

} // namespace

LogNames::LogNames(const Tables& tables) : tables_(tables), airports_(tables) {}

void LogNames::completeAirport(FixedText<4>& icao, FixedText<35>& name) {
    const AirportRecord* found = airports_.find(icao.view(), name.view());
    if (found == nullptr) return;
    if (!found->Icao.trimmed().empty()) icao = found->Icao;
    if (name.trimmed().empty()) name = found->Name;
}

std::string LogNames::aircraftName(std::string_view text) const {
    const std::string code = upperCase(text);
    std::string name = find_aircraft(tables_, FixedText<3>(code).view());
    if (code.size() <= FixedText<3>::width && !name.empty()) return name;
    const importer::AircraftType* type = aircraftTypes().find(code);
    if (type == nullptr) return std::string(text);
    name = find_aircraft(tables_, type->record.Code.view());
    return name.empty() ? type->record.Name.str() : name;
}

void LogNames::complete(LogRecord& entry) {
    completeAirport(entry.departureIcao, entry.departureName);
    completeAirport(entry.arrivalIcao, entry.arrivalName);
    const auto aircraft = entry.aircraft.trimmed();
    if (!aircraft.empty() && aircraft.size() <= kLongestCode) entry.aircraft = aircraftName(aircraft);
    const auto airline = entry.airline.trimmed();
    if (airline.empty() || airline.size() >= kLongestCode) return;
    const std::string name = find_airline(tables_, upperCase(airline));
    if (!name.empty()) entry.airline = name;
}

} // namespace gatewise
