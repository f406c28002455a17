#include "import/Grow.h"

#include <algorithm>
#include <cmath>

namespace gatewise::importer {

namespace {

bool samePlace(float latitude, float longitude, const Place& place) {
    constexpr double within = 0.001;
    return std::abs(static_cast<double>(latitude) - place.latitude) < within &&
           std::abs(static_cast<double>(longitude) - place.longitude) < within;
}

/// A key of at most seven characters that no record has yet: the ident, then ident.2 and so on; the ident
/// again where there is no room.
std::string newKey(std::unordered_set<std::string>& taken, const std::string& ident) {
    constexpr std::size_t width = 7;
    std::string key = ident;
    for (int again = 2; taken.contains(key); ++again) {
        key = ident + "." + std::to_string(again);
        if (key.size() > width) return ident;
    }
    taken.insert(key);
    return key;
}

} // namespace

SharedTables::SharedTables(gt1::World world) : world_(std::move(world)) {
    before_ = {world_.aircraft.size(), world_.vor.size(), world_.ndb.size(), world_.fixes.size(),
               world_.jets.size()};
    regionsBefore_ = world_.regions.entries().size();
    for (std::size_t i = 0; i < world_.vor.size(); ++i) vor_.emplace(world_.vor[i].navaidId.trimmed(), i);
    for (std::size_t i = 0; i < world_.ndb.size(); ++i) ndb_.emplace(world_.ndb[i].navaidId.trimmed(), i);
    for (std::size_t i = 0; i < world_.fixes.size(); ++i) {
        fixes_.emplace(world_.fixes[i].fixName.trimmed(), i);
        fixKeys_.emplace(world_.fixes[i].fixId.trimmed());
    }
    for (std::size_t i = 0; i < world_.jets.size(); ++i) {
        jets_.emplace(world_.jets[i].jetName.trimmed(), i);
        jetKeys_.emplace(world_.jets[i].jetId.trimmed());
    }
}

/// The lowest number of a record that is the point; -1 when there is none.
template<class Records, class Same>
long long SharedTables::find(const Places& places, const Records& records, const Point& point, Same same) {
    long long best = -1;
    const auto [from, to] = places.equal_range(point.ident);
    for (auto at = from; at != to; ++at) {
        const auto number = static_cast<long long>(at->second);
        if (same(records[at->second]) && (best < 0 || number < best)) best = number;
    }
    return best;
}

std::size_t SharedTables::aid(std::vector<NavaidRecord>& records, Places& places, const Point& point) {
    const long long known = find(places, records, point, [&](const NavaidRecord& r) {
        return samePlace(r.latitude, r.longitude, point.place) && r.frequency.trimmed() == point.frequency;
    });
    if (known >= 0) return static_cast<std::size_t>(known);
    NavaidRecord out;
    out.navaidId = point.ident;
    out.navaidName = point.name;
    out.latitude = static_cast<float>(point.place.latitude);
    out.longitude = static_cast<float>(point.place.longitude);
    out.frequency = point.frequency;
    places.emplace(point.ident, records.size());
    records.push_back(out);
    return records.size() - 1;
}

std::size_t SharedTables::record(const Point& point) {
    const std::size_t number = numberOf(point);
    constexpr std::string_view userRegion = "ZZ"; // of points that a user made up: it names no place
    if (point.region != userRegion)
        world_.regions.add({point.kind, point.ident, static_cast<float>(point.place.latitude),
                            static_cast<float>(point.place.longitude), point.region});
    return number;
}

std::size_t SharedTables::numberOf(const Point& point) {
    if (point.kind == 'V') return aid(world_.vor, vor_, point);
    if (point.kind == 'N') return aid(world_.ndb, ndb_, point);
    const long long known = find(fixes_, world_.fixes, point, [&](const FixRecord& r) {
        return samePlace(r.latitude, r.longitude, point.place);
    });
    if (known >= 0) return static_cast<std::size_t>(known);
    FixRecord out;
    out.fixName = point.ident;
    out.fixId = newKey(fixKeys_, point.ident);
    out.latitude = static_cast<float>(point.place.latitude);
    out.longitude = static_cast<float>(point.place.longitude);
    fixes_.emplace(point.ident, world_.fixes.size());
    world_.fixes.push_back(out);
    return world_.fixes.size() - 1;
}

std::size_t SharedTables::jet(const Point& point) {
    const long long known = find(jets_, world_.jets, point, [&](const JetRecord& r) {
        return r.jetKind.view()[0] == point.kind && samePlace(r.latitude, r.longitude, point.place) &&
               r.frequency.trimmed() == point.frequency;
    });
    if (known >= 0) return static_cast<std::size_t>(known);
    JetRecord out;
    out.jetName = point.ident;
    out.jetId = newKey(jetKeys_, point.ident);
    out.jetDescription = point.kind == 'I' ? "Intersection - " + point.ident : point.name;
    out.latitude = static_cast<float>(point.place.latitude);
    out.longitude = static_cast<float>(point.place.longitude);
    out.jetKind = std::string_view(&point.kind, 1);
    out.frequency = point.frequency;
    jets_.emplace(point.ident, world_.jets.size());
    world_.jets.push_back(out);
    return world_.jets.size() - 1;
}

void SharedTables::aircraft(const AircraftRecord& record) {
    const bool known = std::any_of(world_.aircraft.begin(), world_.aircraft.end(),
                                   [&](const AircraftRecord& r) { return r.Code == record.Code; });
    if (!known) world_.aircraft.push_back(record);
}

std::vector<std::size_t> SharedTables::grown() const {
    return {world_.aircraft.size() - before_[0], world_.vor.size() - before_[1],
            world_.ndb.size() - before_[2], world_.fixes.size() - before_[3],
            world_.jets.size() - before_[4]};
}

} // namespace gatewise::importer
