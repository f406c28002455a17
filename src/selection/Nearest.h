#pragma once

#include "schedule/Records.h"
#include "selection/Picks.h"

#include <cstdint>
#include <optional>
#include <vector>

// Airports near the destination of a flight. The distance is that of the plan; nothing but a scan of the
// whole table finds what it finds. Like every distance it leaves its course behind: `lastCourse`, when given,
// becomes that of the last airport measured.

namespace gatewise {

/// The airports that the list of the nearest 25 holds, in the order in which a complete selection sort by
/// distance leaves them; fewer where the table ends. The destination itself is among them. An airport whose
/// distance cannot be computed counts as 0 miles away; without a destination that is each of them.
std::vector<std::int32_t> closestAirports(const Tables& tables, std::int32_t destination,
                                          float* lastCourse = nullptr);

/// The same as lines of the picker, by text.
std::vector<PickItem> closestAirportItems(const Tables& tables, std::int32_t destination,
                                          float* lastCourse = nullptr);

/// The nearest airport that is more than `minimum` and less than 10000 nautical miles away; of two at the
/// same distance the earlier in the table. Nothing when there is none. An airport whose distance cannot be
/// computed is passed over.
std::optional<std::int32_t> nearestAlternate(const Tables& tables, std::int32_t destination, double minimum,
                                             float* lastCourse = nullptr);

} // namespace gatewise
