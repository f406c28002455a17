#include "career/AirportNames.h"

#include "platform/Text.h"

namespace gatewise {

namespace {

/// Up to four characters in one number; 0 for none, and for more than four.
std::uint32_t keyOf(std::string_view code) {
    code = trimmed(code);
    if (code.size() > 4) return 0;
    std::uint32_t key = 0;
    for (const char c : code) key = key << 8U | static_cast<unsigned char>(upperCase(c));
    return key;
}

} // namespace

AirportNames::AirportNames(const Tables& tables) : airports_(tables.airports) {
    byIcao_.reserve(airports_.size());
    byIata_.reserve(airports_.size());
    for (const auto& airport : airports_) {
        if (const auto icao = keyOf(airport.Icao.view())) byIcao_.emplace(icao, &airport);
        if (const auto iata = keyOf(airport.Iata.view())) byIata_.emplace(iata, &airport);
    }
}

void AirportNames::addNames() {
    for (const auto& airport : airports_) {
        const auto name = airport.Name.trimmed();
        if (!name.empty()) byName_.emplace(lowerCase(name), &airport);
    }
}

const AirportRecord* AirportNames::find(std::string_view code, std::string_view name) {
    if (const auto key = keyOf(code)) {
        for (const ByCode* codes : {&byIcao_, &byIata_}) {
            if (const auto found = codes->find(key); found != codes->end()) return found->second;
        }
        return nullptr;
    }
    if (trimmed(name).empty()) return nullptr;
    if (byName_.empty()) addNames();
    const auto found = byName_.find(lowerCase(trimmed(name)));
    return found == byName_.end() ? nullptr : found->second;
}

} // namespace gatewise
