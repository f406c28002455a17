#pragma once

#include "schedule/Records.h"
#include "selection/AirportFinder.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What the picker lists in each of its modes. Lists come in their final order: by text, letters folded to one
// case, equal texts in the order in which they were added.

namespace gatewise {

/// A line of the picker and the index of the airport or airline behind it.
struct PickItem {
    std::string text;
    std::int32_t data = 0;
    friend bool operator==(const PickItem&, const PickItem&) = default;
};

/// Modes "departure" and "home": all airports that hold the text; none for an empty text.
std::vector<PickItem> airportItems(const Tables& tables, const AirportFinder& finder, std::string_view text);

/// Mode "arrival": the destinations of the flights that hold the text, all of them for a blank one; of equal
/// lines the last stays.
std::vector<PickItem> destinationItems(const Tables& tables, const AirportFinder& finder,
                                       const std::vector<FlightRecord>& flights, std::string_view text);

/// Mode "alternate" with a text: the airports that hold the trimmed text, without the blank extra one; of
/// equal lines the last stays.
std::vector<PickItem> alternateItems(const Tables& tables, const AirportFinder& finder,
                                     std::string_view text);

/// Mode "airline": kAnyAirline and the airlines that fly here, without an index.
std::vector<PickItem> airlineItems(const Tables& tables, const std::vector<FlightRecord>& flights);

/// The airlines that fly here alone, as the board lists them when it turns.
std::vector<PickItem> boardAirlineItems(const Tables& tables, const std::vector<FlightRecord>& flights);

/// Mode "home_airline": all airlines whose name holds the text, all of them for an empty one.
std::vector<PickItem> homeAirlineItems(const Tables& tables, std::string_view text);

/// Puts lines into the order of the picker.
void sortItems(std::vector<PickItem>& items);

} // namespace gatewise
