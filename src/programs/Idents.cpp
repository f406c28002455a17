#include "programs/Idents.h"

#include <map>
#include <tuple>
#include <utility>

namespace gatewise::programs {

namespace {

using Place = std::tuple<double, double>;

Place placeOf(const RoutePoint& point) {
    return {point.latitude, point.longitude};
}

/// Who has which identifier so far.
class Names {
public:
    /// False when another place of this kind has it.
    bool take(const RoutePoint& point) {
        any_.emplace(point.ident, placeOf(point));
        return kinds_.emplace(std::pair(point.fix, point.ident), placeOf(point)).first->second ==
               placeOf(point);
    }

    /// Two airports of one code are a fault of the tables; a file must still tell them apart.
    void numberAirport(RoutePoint& point) {
        const std::string base = point.ident.substr(0, 3);
        for (int n = 2; !take(point) && n < 10; ++n) point.ident = base + std::to_string(n);
    }

    /// For a point of the user's: its own, else with the first number that makes it one of its own.
    void number(RoutePoint& point) {
        const std::string base = point.ident.empty() ? "WP" : point.ident;
        if (point.ident.empty()) point.ident = "WP1";
        for (int n = 2; !takeAlone(point); ++n) point.ident = base + std::to_string(n);
    }

private:
    bool takeAlone(const RoutePoint& point) {
        const auto [at, fresh] = any_.emplace(point.ident, placeOf(point));
        if (fresh) users_.emplace(point.ident, point.computed);
        const auto user = users_.find(point.ident);
        return fresh ||
               (user != users_.end() && !user->second && !point.computed && at->second == placeOf(point));
    }

    std::map<std::string, Place> any_;
    std::map<std::string, bool> users_; // whether computed
    std::map<std::pair<Fix, std::string>, Place> kinds_;
};

} // namespace

void nameApart(std::vector<RoutePoint>& points) {
    Names names;
    for (RoutePoint& point : points) {
        if (point.fix == Fix::User) continue;
        if (point.fix == Fix::Airport)
            names.numberAirport(point);
        else if (point.ident.empty() || !names.take(point))
            point.fix = Fix::User;
    }
    for (RoutePoint& point : points) {
        if (point.fix == Fix::User) names.number(point);
    }
}

} // namespace gatewise::programs
