#include "selection/Nearest.h"

#include "plan/Geometry.h"
#include "schedule/FlightTexts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace gatewise {

namespace {

constexpr std::size_t kListed = 25;
constexpr float kTooFar = 10000; // nautical miles; from here on an airport is never the nearest

/// Distances from the destination, each leaving its course behind; no number, and no course, when the table
/// has no such destination.
class Ruler {
public:
    Ruler(const Tables& tables, std::int32_t destination, float* lastCourse)
        : from_(tables.hasAirport(destination) ? &tables.airport(destination) : nullptr),
          lastCourse_(lastCourse != nullptr ? lastCourse : &unused_) {}

    [[nodiscard]] float to(const AirportRecord& airport) {
        if (from_ == nullptr) return std::numeric_limits<float>::quiet_NaN();
        return Distance(from_->Latitude, from_->Longitude, airport.Latitude, airport.Longitude, *lastCourse_);
    }

private:
    const AirportRecord* from_;
    float* lastCourse_;
    float unused_ = 0;
};

/// Place of the first smallest distance from `start` on; `otherwise` when none is below the limit.
std::size_t smallestFrom(const std::vector<float>& distances, std::size_t start, std::size_t otherwise) {
    float best = kTooFar;
    std::size_t place = otherwise;
    for (std::size_t j = start; j < distances.size(); ++j) {
        if (distances[j] < best) {
            best = distances[j];
            place = j;
        }
    }
    return place;
}

} // namespace

std::vector<std::int32_t> closestAirports(const Tables& tables, std::int32_t destination, float* lastCourse) {
    const std::size_t count = tables.airports.size();
    std::vector<std::int32_t> airports(count);
    std::iota(airports.begin(), airports.end(), 0);
    std::vector<float> distances(count);
    Ruler ruler(tables, destination, lastCourse);
    for (std::size_t i = 0; i < count; ++i) {
        const float d = ruler.to(tables.airports[i]);
        if (std::isfinite(d)) distances[i] = d;
    }

    const auto near = static_cast<std::size_t>(
        std::count_if(distances.begin(), distances.end(), [](float d) { return d < kTooFar; }));
    // A pass that finds nothing below the limit exchanges with the place that the pass before it found. As
    // long as nearer airports fill the list, those passes touch nothing in it; else they are made as well,
    // without their scans.
    std::size_t k = 0;
    const std::size_t scans = std::min(near, kListed);
    const std::size_t passes = near > kListed ? kListed : count;
    for (std::size_t i = 0; i < passes; ++i) {
        if (i < scans) k = smallestFrom(distances, i, k);
        std::swap(distances[i], distances[k]);
        std::swap(airports[i], airports[k]);
    }
    airports.resize(std::min(count, kListed));
    return airports;
}

std::vector<PickItem> closestAirportItems(const Tables& tables, std::int32_t destination, float* lastCourse) {
    std::vector<PickItem> items;
    for (const auto airport : closestAirports(tables, destination, lastCourse))
        items.push_back({airportListText(tables.airport(airport)), airport});
    sortItems(items);
    return items;
}

std::optional<std::int32_t> nearestAlternate(const Tables& tables, std::int32_t destination, double minimum,
                                             float* lastCourse) {
    Ruler ruler(tables, destination, lastCourse);
    float best = kTooFar;
    std::optional<std::int32_t> nearest;
    for (std::int32_t i = 0; i <= tables.AirportCount(); ++i) {
        const float d = ruler.to(tables.airport(i));
        if (static_cast<double>(d) > minimum && d < best) {
            best = d;
            nearest = i;
        }
    }
    return nearest;
}

} // namespace gatewise
