#pragma once

#include "import/Search.h"

#include <string>
#include <utility>
#include <vector>

namespace gatewise::importer {

/// A plan has at most so many points, as long as points in the middle of an airway can go.
inline constexpr std::size_t kPlanPoints = 28;
/// No plan has more.
inline constexpr std::size_t kMostPlanPoints = 100;

struct RoutePoint {
    std::uint32_t point = 0; // in the network's
    bool high = false;       // reached or left on a high airway
    std::string airway;      // that leads here, blank for a direct leg
};

enum class Found { Airways, Navaids, Direct };

struct Route {
    std::vector<RoutePoint> points;
    Found found = Found::Direct;
    double miles = 0; // nautical, from airport to airport
};

/// The routes of an airport pair, there and back.
struct RoutePair {
    Route there, back;
};

/// Routes for pairs of airports, in their order, whatever the number of threads. Fewer when the job was
/// cancelled.
std::vector<RoutePair> findRoutes(const Network& network, const std::vector<std::pair<Place, Place>>& pairs,
                                  const Job& job);

/// Leaves out points from the middle of runs along one airway, the longest run first, until kPlanPoints are
/// left or no such point is.
void thin(std::vector<RoutePoint>& points);

} // namespace gatewise::importer
