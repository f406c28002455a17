#include "drive/GlobalsTable.h"

#include "drive/Arguments.h"
#include "work/ExportKinds.h"

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

using Slices = gatewise::Session; // this room has a Session of its own

struct Global {
    const char* name;
    void (*write)(JsonWriter& json, const Slices& s);
};

/// What a path of members leads to: a slice of the session, a field of it, a field of that.
template<class Record> auto& at(Record& record) {
    return record;
}
template<class Record, class Member, class... Rest> auto& at(Record& record, Member member, Rest... rest) {
    return at(record.*member, rest...);
}

template<auto... Path> void field(JsonWriter& json, const Slices& s) {
    write(json, at(s, Path...));
}
template<auto Slice, auto Function> void result(JsonWriter& json, const Slices& s) {
    write(json, (s.*Slice.*Function)());
}
template<auto Function> void tableResult(JsonWriter& json, const Slices& s) {
    write(json, (s.schedule.tables.*Function)());
}

/// The rows that the board shows; the list behind them is as long as that of the flights.
void boardRows(JsonWriter& json, const Slices& s) {
    const BoardLists& lists = s.board.board;
    writeList(json, lists.BoardRows, lists.BoardRowCount + 1LL);
}

constexpr Global kGlobals[] = {
    {"AppDir", field<&Slices::AppDir>},
    {"DataSetPath", field<&Slices::settings, &Settings::DataSetPath>},
    {"FsPath", field<&Slices::settings, &Settings::FsPath>},
    {"ProFlightFound", field<&Slices::simulator, &SimulatorHandOff::ProFlightFound>},
    {"StartupDone", field<&Slices::desk, &Desk::StartupDone>},
    {"FavoriteAirlineName", field<&Slices::board, &StatusBoard::FavoriteAirlineName>},
    {"MessageMode", field<&Slices::desk, &Desk::MessageMode>},
    {"ErrorText", field<&Slices::desk, &Desk::ErrorText>},

    {"HomeIndex", field<&Slices::settings, &Settings::HomeIndex>},
    {"BoardAirportIndex", field<&Slices::board, &StatusBoard::BoardAirportIndex>},
    {"DepartureIndex", field<&Slices::dispatch, &Dispatch::DepartureIndex>},
    {"DestinationIndex", field<&Slices::dispatch, &Dispatch::DestinationIndex>},
    {"AlternateIndex", field<&Slices::dispatch, &Dispatch::AlternateIndex>},
    {"HaveDeparture", field<&Slices::dispatch, &Dispatch::HaveDeparture>},
    {"HaveDestination", field<&Slices::dispatch, &Dispatch::HaveDestination>},
    {"HaveAlternate", field<&Slices::dispatch, &Dispatch::HaveAlternate>},
    {"BoardMode", field<&Slices::board, &StatusBoard::BoardMode>},
    {"SelectMode", field<&Slices::dispatch, &Dispatch::SelectMode>},
    {"BoardAirlineCode", field<&Slices::board, &StatusBoard::BoardAirlineCode>},

    {"airports", field<&Slices::schedule, &Schedule::tables, &Tables::airports>},
    {"airlines", field<&Slices::schedule, &Schedule::tables, &Tables::airlines>},
    {"aircraft", field<&Slices::schedule, &Schedule::tables, &Tables::aircraft>},
    {"AirportCount", tableResult<&Tables::AirportCount>},
    {"AirlineLast", tableResult<&Tables::AirlineLast>},
    {"AircraftLast", tableResult<&Tables::AircraftLast>},
    {"DepartureFlights", field<&Slices::schedule, &Schedule::DepartureFlights>},
    {"BoardFlights", field<&Slices::schedule, &Schedule::BoardFlights>},
    {"CurrentFlight", field<&Slices::dispatch, &Dispatch::CurrentFlight>},
    {"DepartureFlightCount", result<&Slices::schedule, &Schedule::DepartureFlightCount>},
    {"BoardFlightCount", result<&Slices::schedule, &Schedule::BoardFlightCount>},

    {"BoardList", field<&Slices::board, &StatusBoard::board, &BoardLists::BoardList>},
    {"BoardRows", boardRows},
    {"BoardRowCount", field<&Slices::board, &StatusBoard::board, &BoardLists::BoardRowCount>},
    {"BoardPage", field<&Slices::board, &StatusBoard::BoardPage>},

    {"Bias", field<&Slices::clock, &BoardClock::Bias>},
    {"ClockRegion", field<&Slices::clock, &BoardClock::ClockRegion>},
    {"HourOffset", field<&Slices::clock, &BoardClock::HourOffset>},
    {"MinuteOffset", field<&Slices::clock, &BoardClock::MinuteOffset>},
    {"LastHourOffset", field<&Slices::clock, &BoardClock::LastHourOffset>},
    {"LastMinuteOffset", field<&Slices::clock, &BoardClock::LastMinuteOffset>},
    {"ClockHours", field<&Slices::clock, &BoardClock::ClockHours>},
    {"ClockMinutes", field<&Slices::clock, &BoardClock::ClockMinutes>},
    {"ZoneHours", field<&Slices::clock, &BoardClock::ZoneHours>},
    {"ZoneMinutes", field<&Slices::clock, &BoardClock::ZoneMinutes>},
    {"ZoneShade", field<&Slices::clock, &BoardClock::ZoneShade>},

    {"DecimalSign", field<&Slices::locale, &LocaleSigns::numbers, &NumberLocale::DecimalSign>},
    {"LocaleDecimal", field<&Slices::locale, &LocaleSigns::numbers, &NumberLocale::LocaleDecimal>},
    {"MoneyThousand", field<&Slices::locale, &LocaleSigns::MoneyThousand>},
    {"LocaleThousand", field<&Slices::locale, &LocaleSigns::LocaleThousand>},
    {"LocaleTimeSign", field<&Slices::locale, &LocaleSigns::LocaleTimeSign>},
    {"LocaleListSign", field<&Slices::locale, &LocaleSigns::LocaleListSign>},
    {"ScreenDpi", field<&Slices::locale, &LocaleSigns::ScreenDpi>},
    {"SmallFontFactor", field<&Slices::locale, &LocaleSigns::SmallFontFactor>},

    {"HelpPage", field<&Slices::desk, &Desk::HelpPage>},
    {"DragActive", field<&Slices::desk, &Desk::DragActive>},
    {"DragX", field<&Slices::desk, &Desk::DragX>},
    {"DragY", field<&Slices::desk, &Desk::DragY>},

    {"FlightPicks", field<&Slices::dispatch, &Dispatch::FlightPicks>},
    {"FlightPickCount", field<&Slices::dispatch, &Dispatch::FlightPickCount>},

    {"lastCourse", field<&Slices::plan, &PlanDesk::geometry, &GeometryState::lastCourse>},
    {"offsetDistance", field<&Slices::plan, &PlanDesk::geometry, &GeometryState::offsetDistance>},

    {"ExportKind", field<&Slices::desk, &Desk::ExportKind>},

    {"StartLat", field<&Slices::simulator, &SimulatorHandOff::StartLat>},
    {"StartLon", field<&Slices::simulator, &SimulatorHandOff::StartLon>},
    {"StartHdg", field<&Slices::simulator, &SimulatorHandOff::StartHdg>},
    {"StartChoice", field<&Slices::simulator, &SimulatorHandOff::StartChoice>},
    {"SelectedPoint", field<&Slices::simulator, &SimulatorHandOff::SelectedPoint>},
    {"AircraftTable", field<&Slices::simulator, &SimulatorHandOff::AircraftTable>},
    {"storedPositions", field<&Slices::simulator, &SimulatorHandOff::storedPositions>},

    {"LogEntries", field<&Slices::log, &LogDesk::LogEntries>},
    {"LogWorkingCopy", field<&Slices::log, &LogDesk::LogWorkingCopy>},
    {"LastLogIndex", result<&Slices::log, &LogDesk::LastLogIndex>},
    {"LogPage", field<&Slices::log, &LogDesk::LogPage>},
    {"LogSelected", field<&Slices::log, &LogDesk::LogSelected>},
    {"LogField", field<&Slices::log, &LogDesk::LogField>},

    {"AmbienceVolume", field<&Slices::settings, &Settings::AmbienceVolume>},
    {"AmbienceLevel", field<&Slices::hall, &Hall::AmbienceLevel>},
    {"FadeDirection", field<&Slices::hall, &Hall::FadeDirection>},
    {"PlayedFlags", field<&Slices::hall, &Hall::PlayedFlags>},
    {"AnnouncedDepartures", field<&Slices::hall, &Hall::AnnouncedDepartures>},
    {"AnnouncedArrivals", field<&Slices::hall, &Hall::AnnouncedArrivals>},
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
    bool (*set)(Slices& s, std::string_view value);
};

template<auto... Path> bool set(Slices& s, std::string_view value) {
    return take(at(s, Path...), value);
}

constexpr Setter kSetters[] = {
    {"directCourse", set<&Slices::plan, &PlanDesk::plan, &Plan::directCourse>},
    {"flightRules", set<&Slices::plan, &PlanDesk::plan, &Plan::flightRules>},
    {"climbDivisor", set<&Slices::plan, &PlanDesk::plan, &Plan::climbDivisor>},
    {"descentDivisor", set<&Slices::plan, &PlanDesk::plan, &Plan::descentDivisor>},
    {"offsetDistance", set<&Slices::plan, &PlanDesk::geometry, &GeometryState::offsetDistance>},
    {"lastCourse", set<&Slices::plan, &PlanDesk::geometry, &GeometryState::lastCourse>},
    {"FavoriteAirlineName", set<&Slices::board, &StatusBoard::FavoriteAirlineName>},
    {"FsPath", set<&Slices::settings, &Settings::FsPath>},
};

/// The folder or the drive of an export, "SBPath" and "SBDrive"; nothing for another name.
std::optional<std::string> exportFolder(const Slices& s, std::string_view name) {
    for (const std::string& word : rememberedExports()) {
        const auto at = s.settings.exportFolders.find(word);
        const ExportFolder folder = at != s.settings.exportFolders.end() ? at->second : ExportFolder{};
        if (name == word + "Path") return folder.path;
        if (name == word + "Drive") return folder.drive;
    }
    return std::nullopt;
}

} // namespace

bool writeGlobal(JsonWriter& json, const Program& p, std::string_view name) {
    for (const Global& global : kGlobals) {
        if (global.name != name) continue;
        global.write(json, p.session);
        return true;
    }
    for (const Summary& value : kSummary) {
        if (value.name != name) continue;
        value.write(json, p.session.plan.plan);
        return true;
    }
    if (const auto folder = exportFolder(p.session, name)) {
        json.text(*folder);
        return true;
    }
    return false;
}

Assigned assignGlobal(Program& p, std::string_view name, std::string_view value) {
    for (const Setter& setter : kSetters) {
        if (setter.name == name) return setter.set(p.session, value) ? Assigned::Done : Assigned::WrongValue;
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
