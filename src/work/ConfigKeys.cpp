#include "work/ConfigKeys.h"

namespace gatewise {

namespace {

using enum ConfigValue;

constexpr ConfigKey textKey(const char* section, const char* key, int read, std::string Settings::*text) {
    return {section, key, read, Text, text};
}
constexpr ConfigKey boxKey(const char* section, const char* key, int read, int Settings::*box) {
    return {section, key, read, Box, nullptr, box};
}
constexpr ConfigKey sortKey(const char* key, int read, BoardSort sort) {
    return {"Announcements", key, read, Sort, nullptr, nullptr, sort};
}

// The reader takes the sort keys before the announcements and SetDefault before SetDept: a value that cannot
// be converted hides those that are read after it.
constexpr ConfigKey kKeys[] = {
    textKey("Main", "FSPath", 1, &Settings::FsPath),
    {"Main", "Index", 2, Index, nullptr, &Settings::HomeIndex},
    textKey("Main", "FavoriteAirline", 3, &Settings::FavoriteAirline),
    {"Main", "DataSet", 4, DataSet, &Settings::DataSetPath},
    textKey("Main", "Last", 5, &Settings::Last),
    textKey("Main", "First", 6, &Settings::First),
    boxKey("Main", "StatusBoard", 7, &Settings::StatusBoard),
    {"Announcements", "ambVolume", 8, Number16, nullptr, &Settings::AmbienceVolume},
    boxKey("Announcements", "Dept1", 12, &Settings::Dept1),
    boxKey("Announcements", "Dept2", 13, &Settings::Dept2),
    boxKey("Announcements", "Dept3", 14, &Settings::Dept3),
    boxKey("Announcements", "Arr1", 15, &Settings::Arr1),
    boxKey("Announcements", "Arr2", 16, &Settings::Arr2),
    boxKey("Announcements", "Arr3", 17, &Settings::Arr3),
    sortKey("TimeSort", 9, BoardSort::Time),
    sortKey("CitySort", 10, BoardSort::City),
    sortKey("FltNumSort", 11, BoardSort::FlightNumber),
    boxKey("ProFlight", "FltNumber", 18, &Settings::FltNumber),
    boxKey("ProFlight", "Callsign", 19, &Settings::Callsign),
    {"FlightOptions", "PreFlight", 20, Minutes},
    boxKey("FlightOptions", "FindAlternate", 21, &Settings::FindAlternate),
    boxKey("FlightOptions", "SetDept", 23, &Settings::SetDept),
    boxKey("FlightOptions", "SetDest", 24, &Settings::SetDest),
    boxKey("FlightOptions", "SetDefault", 22, &Settings::SetDefault),
    boxKey("FlightOptions", "AnyAirline", 25, &Settings::AnyAirline),
    {"FlightOptions", "MinDist", 26, Miles},
    boxKey("Export", "747fmc", 27, &Settings::Fmc747),
    boxKey("Export", "PF2Kfmc", 28, &Settings::PF2Kfmc),
    boxKey("Export", "CPfmc", 29, &Settings::CPfmc),
};

constexpr ConfigKey wholeKey(const char* key, int Settings::*number) {
    return {"Gatewise", key, 0, Whole, nullptr, number};
}

constexpr ConfigKey kOwnKeys[] = {
    {"Gatewise", "annVolume", 0, Number16, nullptr, &Settings::AnnouncementVolume},
    boxKey("Gatewise", "Muted", 0, &Settings::Muted),
    boxKey("Gatewise", "ComeBack", 0, &Settings::ComeBack),
    wholeKey("LastLeft", &Settings::LastLeft),
    wholeKey("LastTop", &Settings::LastTop),
    wholeKey("LastPage", &Settings::LastPage),
    textKey("Gatewise", "LastAirport", 0, &Settings::LastAirport),
};

} // namespace

std::span<const ConfigKey> configKeys() {
    return kKeys;
}

std::span<const ConfigKey> ownKeys() {
    return kOwnKeys;
}

} // namespace gatewise
