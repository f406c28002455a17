#include "drive/GlobalsTable.h"

#include "drive/Arguments.h"

#include <cmath>
#include <concepts>
#include <limits>

namespace gatewise::drive {

void write(JsonWriter& json, const PlanAirport& airport) {
    const auto part = [&](const char* name, const auto& value) {
        json.key(name);
        write(json, value);
    };
    json.beginObject();
    part("Icao", airport.Icao);
    part("Name", airport.Name);
    part("Latitude", airport.Latitude);
    part("Longitude", airport.Longitude);
    part("Elevation", airport.Elevation);
    part("RunwayCount", airport.RunwayCount);
    part("RunwayOffset", airport.RunwayOffset);
    part("runways", airport.runways);
    part("radio", airport.radio);
    json.endObject();
}

void write(JsonWriter& json, const ScannedAircraft& aircraft) {
    json.beginObject();
    json.key("title");
    json.text(aircraft.title);
    json.key("notesPath");
    json.text(aircraft.notesPath);
    json.endObject();
}

namespace {

struct Summary {
    const char* name;
    void (*write)(JsonWriter& json, const Plan& plan);
};

template<auto Member> void planField(JsonWriter& json, const Plan& plan) {
    write(json, plan.*Member);
}

constexpr Summary kSummary[] = {
    {"planLast", planField<&Plan::planLast>},
    {"totalDistance", planField<&Plan::totalDistance>},
    {"totalTime", planField<&Plan::totalTime>},
    {"directCourse", planField<&Plan::directCourse>},
    {"flightRules", planField<&Plan::flightRules>},
    {"cruiseAltitude", planField<&Plan::cruiseAltitude>},
    {"peakAltitude", planField<&Plan::peakAltitude>},
    {"ceilingAltitude", planField<&Plan::ceilingAltitude>},
    {"climbRate", planField<&Plan::climbRate>},
    {"descentRate", planField<&Plan::descentRate>},
    {"climbDivisor", planField<&Plan::climbDivisor>},
    {"descentDivisor", planField<&Plan::descentDivisor>},
    {"speedSchedule", planField<&Plan::speedSchedule>},
    {"routeString", planField<&Plan::routeString>},
    {"departureAirport", planField<&Plan::departureAirport>},
    {"destinationAirport", planField<&Plan::destinationAirport>},
    {"alternateAirport", planField<&Plan::alternateAirport>},
};

struct Global {
    const char* name;
    void (*write)(JsonWriter& json, const Globals& g);
};

template<auto Member> void field(JsonWriter& json, const Globals& g) {
    write(json, g.*Member);
}
template<auto Group, auto Member> void inner(JsonWriter& json, const Globals& g) {
    write(json, g.*Group.*Member);
}
template<auto Function> void result(JsonWriter& json, const Globals& g) {
    write(json, (g.*Function)());
}
template<auto Function> void tableResult(JsonWriter& json, const Globals& g) {
    write(json, (g.tables.*Function)());
}

/// The rows that the board shows; the list behind them is as long as that of the flights.
void boardRows(JsonWriter& json, const Globals& g) {
    writeList(json, g.board.BoardRows, g.board.BoardRowCount + 1LL);
}

constexpr Global kGlobals[] = {
    {"AppDir", field<&Globals::AppDir>},
    {"DataSetPath", field<&Globals::DataSetPath>},
    {"FsPath", field<&Globals::FsPath>},
    {"ProFlightFound", field<&Globals::ProFlightFound>},
    {"StartupDone", field<&Globals::StartupDone>},
    {"FavoriteAirlineName", field<&Globals::FavoriteAirlineName>},
    {"MessageMode", field<&Globals::MessageMode>},
    {"ErrorText", field<&Globals::ErrorText>},

    {"HomeIndex", field<&Globals::HomeIndex>},
    {"BoardAirportIndex", field<&Globals::BoardAirportIndex>},
    {"DepartureIndex", field<&Globals::DepartureIndex>},
    {"DestinationIndex", field<&Globals::DestinationIndex>},
    {"AlternateIndex", field<&Globals::AlternateIndex>},
    {"HaveDeparture", field<&Globals::HaveDeparture>},
    {"HaveDestination", field<&Globals::HaveDestination>},
    {"HaveAlternate", field<&Globals::HaveAlternate>},
    {"BoardMode", field<&Globals::BoardMode>},
    {"SelectMode", field<&Globals::SelectMode>},
    {"BoardAirlineCode", field<&Globals::BoardAirlineCode>},

    {"airports", inner<&Globals::tables, &Tables::airports>},
    {"airlines", inner<&Globals::tables, &Tables::airlines>},
    {"aircraft", inner<&Globals::tables, &Tables::aircraft>},
    {"AirportCount", tableResult<&Tables::AirportCount>},
    {"AirlineLast", tableResult<&Tables::AirlineLast>},
    {"AircraftLast", tableResult<&Tables::AircraftLast>},
    {"DepartureFlights", field<&Globals::DepartureFlights>},
    {"BoardFlights", field<&Globals::BoardFlights>},
    {"CurrentFlight", field<&Globals::CurrentFlight>},
    {"DepartureFlightCount", result<&Globals::DepartureFlightCount>},
    {"BoardFlightCount", result<&Globals::BoardFlightCount>},

    {"BoardList", inner<&Globals::board, &BoardLists::BoardList>},
    {"BoardRows", boardRows},
    {"BoardRowCount", inner<&Globals::board, &BoardLists::BoardRowCount>},
    {"BoardPage", field<&Globals::BoardPage>},

    {"Bias", field<&Globals::Bias>},
    {"ClockRegion", field<&Globals::ClockRegion>},
    {"HourOffset", field<&Globals::HourOffset>},
    {"MinuteOffset", field<&Globals::MinuteOffset>},
    {"LastHourOffset", field<&Globals::LastHourOffset>},
    {"LastMinuteOffset", field<&Globals::LastMinuteOffset>},
    {"ClockHours", field<&Globals::ClockHours>},
    {"ClockMinutes", field<&Globals::ClockMinutes>},
    {"ZoneHours", field<&Globals::ZoneHours>},
    {"ZoneMinutes", field<&Globals::ZoneMinutes>},
    {"ZoneShade", field<&Globals::ZoneShade>},

    {"DecimalSign", inner<&Globals::numbers, &NumberLocale::DecimalSign>},
    {"LocaleDecimal", inner<&Globals::numbers, &NumberLocale::LocaleDecimal>},
    {"MoneyThousand", field<&Globals::MoneyThousand>},
    {"LocaleThousand", field<&Globals::LocaleThousand>},
    {"LocaleTimeSign", field<&Globals::LocaleTimeSign>},
    {"LocaleListSign", field<&Globals::LocaleListSign>},
    {"ScreenDpi", field<&Globals::ScreenDpi>},
    {"SmallFontFactor", field<&Globals::SmallFontFactor>},

    {"HelpPage", field<&Globals::HelpPage>},
    {"DragActive", field<&Globals::DragActive>},
    {"DragX", field<&Globals::DragX>},
    {"DragY", field<&Globals::DragY>},

    {"FlightPicks", field<&Globals::FlightPicks>},
    {"FlightPickCount", field<&Globals::FlightPickCount>},

    {"lastCourse", inner<&Globals::geometry, &GeometryState::lastCourse>},
    {"offsetDistance", inner<&Globals::geometry, &GeometryState::offsetDistance>},

    {"ExportKind", field<&Globals::ExportKind>},
    {"RadarContactPath", field<&Globals::RadarContactPath>},
    {"RadarContactDrive", field<&Globals::RadarContactDrive>},
    {"SBPath", field<&Globals::SBPath>},
    {"SBDrive", field<&Globals::SBDrive>},
    {"ACSPath", field<&Globals::ACSPath>},
    {"ACSDrive", field<&Globals::ACSDrive>},

    {"StartLat", field<&Globals::StartLat>},
    {"StartLon", field<&Globals::StartLon>},
    {"StartHdg", field<&Globals::StartHdg>},
    {"StartChoice", field<&Globals::StartChoice>},
    {"SelectedPoint", field<&Globals::SelectedPoint>},
    {"AircraftTable", field<&Globals::AircraftTable>},
    {"storedPositions", field<&Globals::storedPositions>},

    {"LogEntries", field<&Globals::LogEntries>},
    {"LogWorkingCopy", field<&Globals::LogWorkingCopy>},
    {"LastLogIndex", result<&Globals::LastLogIndex>},
    {"LogPage", field<&Globals::LogPage>},
    {"LogSelected", field<&Globals::LogSelected>},
    {"LogField", field<&Globals::LogField>},

    {"AmbienceVolume", field<&Globals::AmbienceVolume>},
    {"AmbienceLevel", field<&Globals::AmbienceLevel>},
    {"FadeDirection", field<&Globals::FadeDirection>},
    {"PlayedFlags", field<&Globals::PlayedFlags>},
    {"AnnouncedDepartures", field<&Globals::AnnouncedDepartures>},
    {"AnnouncedArrivals", field<&Globals::AnnouncedArrivals>},
};

template<class T> bool take(T& target, std::string_view value) {
    const auto number = numberArgument(value);
    if (!number) return false;
    if constexpr (std::integral<T>) {
        if (*number != std::trunc(*number)) return false;
        if (*number < static_cast<double>(std::numeric_limits<T>::min()) ||
            *number > static_cast<double>(std::numeric_limits<T>::max())) {
            return false;
        }
    }
    if constexpr (std::same_as<T, float>) {
        if (std::isfinite(*number) && std::abs(*number) > std::numeric_limits<float>::max()) return false;
    }
    target = static_cast<T>(*number);
    return true;
}
template<std::size_t N> bool take(FixedText<N>& target, std::string_view value) {
    target = value;
    return true;
}
bool take(std::string& target, std::string_view value) {
    target = value;
    return true;
}

struct Setter {
    const char* name;
    bool (*set)(Globals& g, std::string_view value);
};

template<auto Member> bool set(Globals& g, std::string_view value) {
    return take(g.*Member, value);
}
template<auto Group, auto Member> bool setInner(Globals& g, std::string_view value) {
    return take(g.*Group.*Member, value);
}

constexpr Setter kSetters[] = {
    {"directCourse", setInner<&Globals::plan, &Plan::directCourse>},
    {"flightRules", setInner<&Globals::plan, &Plan::flightRules>},
    {"climbDivisor", setInner<&Globals::plan, &Plan::climbDivisor>},
    {"descentDivisor", setInner<&Globals::plan, &Plan::descentDivisor>},
    {"offsetDistance", setInner<&Globals::geometry, &GeometryState::offsetDistance>},
    {"lastCourse", setInner<&Globals::geometry, &GeometryState::lastCourse>},
    {"FavoriteAirlineName", set<&Globals::FavoriteAirlineName>},
    {"FsPath", set<&Globals::FsPath>},
};

} // namespace

bool writeGlobal(JsonWriter& json, const Program& p, std::string_view name) {
    for (const Global& global : kGlobals) {
        if (global.name != name) continue;
        global.write(json, p.g);
        return true;
    }
    for (const Summary& value : kSummary) {
        if (value.name != name) continue;
        value.write(json, p.g.plan);
        return true;
    }
    return false;
}

Assigned assignGlobal(Program& p, std::string_view name, std::string_view value) {
    for (const Setter& setter : kSetters) {
        if (setter.name == name) return setter.set(p.g, value) ? Assigned::Done : Assigned::WrongValue;
    }
    return Assigned::NoSuchName;
}

void writePlan(JsonWriter& json, const Plan& plan) {
    json.beginObject();
    json.key("points");
    writeList(json, plan.points, plan.planLast + 1LL);
    json.key("summary");
    json.beginObject();
    for (const Summary& value : kSummary) {
        json.key(value.name);
        value.write(json, plan);
    }
    json.endObject();
    json.endObject();
}

} // namespace gatewise::drive
