#include "selection/AirportFinder.h"

#include <algorithm>
#include <string>

namespace gatewise {

namespace {

template<std::size_t N> FixedText<N> folded(FixedText<N> field) {
    std::transform(field.data(), field.data() + N, field.data(), [](char c) { return upperCase(c); });
    return field;
}

} // namespace

bool AirportFinder::Fields::hold(std::string_view folded) const {
    const auto held = [&](std::string_view field) { return field.find(folded) != std::string_view::npos; };
    return held(Iata.view()) || held(Icao.view()) || held(Name.view()) || held(City.view());
}

AirportFinder::AirportFinder(const std::vector<AirportRecord>& airports) {
    airports_.reserve(airports.size());
    for (const auto& a : airports)
        airports_.push_back({folded(a.Iata), folded(a.Icao), folded(a.Name), folded(a.City)});
}

std::vector<std::int32_t> AirportFinder::find(std::string_view text) const {
    std::vector<std::int32_t> found;
    if (text.empty()) return found;
    const std::string wanted = upperCase(text);
    for (std::size_t i = 0; i < airports_.size(); ++i) {
        if (airports_[i].hold(wanted)) found.push_back(static_cast<std::int32_t>(i));
    }
    return found;
}

bool AirportFinder::matches(std::int32_t airport, std::string_view text) const {
    if (airport < 0 || static_cast<std::size_t>(airport) >= airports_.size() || text.empty()) return false;
    return airports_[static_cast<std::size_t>(airport)].hold(upperCase(text));
}

} // namespace gatewise
