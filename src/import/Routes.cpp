#include "import/Routes.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace gatewise::importer {

namespace {

/// The names that keep a pilot on one airway as long as it goes.
void nameAirways(const Network& network, const Graph& graph, const Way& way,
                 std::vector<RoutePoint>& points) {
    const auto namesOf = [&](std::size_t i) {
        const std::int32_t leg = graph.edges[way.edges[i]].leg;
        auto names =
            leg < 0 ? std::vector<std::string>() : network.legs[static_cast<std::size_t>(leg)].airways;
        std::sort(names.begin(), names.end());
        return names;
    };
    for (std::size_t from = 0, to = 0; from < way.edges.size(); from = to) {
        std::vector<std::string> common = namesOf(from);
        for (to = from + 1; to < way.edges.size() && !common.empty(); ++to) {
            const auto next = namesOf(to);
            std::vector<std::string> both;
            std::set_intersection(common.begin(), common.end(), next.begin(), next.end(),
                                  std::back_inserter(both));
            if (both.empty()) break;
            common = std::move(both);
        }
        if (common.empty()) continue;
        for (std::size_t i = from; i < to; ++i) points[i + 1].airway = common.front();
    }
}

class RouteFinder {
public:
    RouteFinder(const Network& network, const Graph& graph)
        : network_(network), graph_(graph), search_(graph) {
        for (std::uint32_t i = 0; i < network.points.size(); ++i)
            if (network.points[i].kind != 'I') aids_.emplace_back(vectorOf(network.points[i].place), i);
    }

    RoutePair pair(const Place& a, const Place& b) {
        RoutePair out;
        bool twoWay = true;
        out.there = route(a, b, twoWay);
        bool any = true;
        out.back = twoWay ? turned(out.there) : route(b, a, any);
        out.there.miles = length(a, b, out.there);
        out.back.miles = length(b, a, out.back);
        return out;
    }

private:
    Route route(const Place& a, const Place& b, bool& twoWay) {
        if (const auto way = search_.find(a, b)) {
            Route out = alongAirways(*way);
            for (const std::uint32_t edge : way->edges) twoWay = twoWay && graph_.edges[edge].twoWay;
            thin(out.points);
            if (out.points.size() <= kMostPlanPoints) return out;
        }
        twoWay = true;
        return overNavaids(a, b);
    }

    Route alongAirways(const Way& way) const {
        Route out;
        out.found = Found::Airways;
        out.points.push_back({graph_.points[way.begin], false, ""});
        for (const std::uint32_t edge : way.edges)
            out.points.push_back({graph_.points[graph_.edges[edge].to], false, ""});
        for (std::size_t i = 0; i < way.edges.size(); ++i) {
            const Edge& edge = graph_.edges[way.edges[i]];
            if (!edge.high || edge.leg < 0) continue;
            out.points[i].high = true;
            out.points[i + 1].high = true;
        }
        nameAirways(network_, graph_, way, out.points);
        return out;
    }

    static Route turned(const Route& there) {
        Route out = there;
        std::reverse(out.points.begin(), out.points.end());
        for (std::size_t i = out.points.size(); i-- > 1;) out.points[i].airway = out.points[i - 1].airway;
        if (!out.points.empty()) out.points[0].airway.clear();
        return out;
    }

    double length(const Place& a, const Place& b, const Route& route) const {
        double out = 0;
        Vector last = vectorOf(a);
        for (const RoutePoint& p : route.points) {
            const Vector next = vectorOf(network_.points[p.point].place);
            out += distance(last, next);
            last = next;
        }
        return out + distance(last, vectorOf(b));
    }

    /// The navaids nearest to an airport, at most a few and not far away.
    std::vector<std::uint32_t> aidsNear(const Place& place) const {
        constexpr double within = 60;
        constexpr std::size_t most = 5;
        const Vector here = vectorOf(place);
        const double cosine = std::cos(within / kRadius);
        std::vector<std::pair<Cost, std::uint32_t>> near;
        for (const auto& [at, point] : aids_)
            if (dot(here, at) >= cosine) near.emplace_back(costOf(distance(here, at)), point);
        std::sort(near.begin(), near.end());
        std::vector<std::uint32_t> out;
        for (std::size_t i = 0; i < near.size() && i < most; ++i) out.push_back(near[i].second);
        return out;
    }

    bool flies(const Place& a, const Place& b, const Route& route) const {
        std::vector<Vector> all{vectorOf(a)};
        for (const RoutePoint& p : route.points) all.push_back(vectorOf(network_.points[p.point].place));
        all.push_back(vectorOf(b));
        for (std::size_t i = 1; i + 1 < all.size(); ++i)
            if (turn(all[i - 1], all[i], all[i + 1]) > kMostTurn) return false;
        return length(a, b, route) <= kDetour * distance(a, b);
    }

    Route overNavaids(const Place& a, const Place& b) const {
        const auto near = aidsNear(a);
        const auto far = aidsNear(b);
        for (std::size_t sum = 0; sum < near.size() + far.size(); ++sum)
            for (std::size_t i = 0; i <= sum && i < near.size(); ++i) {
                if (sum - i >= far.size()) continue;
                Route out;
                out.found = Found::Navaids;
                out.points.push_back({near[i], false, ""});
                if (near[i] != far[sum - i]) out.points.push_back({far[sum - i], false, ""});
                if (flies(a, b, out)) return out;
            }
        for (const auto& ends : {near, far})
            for (const std::uint32_t aid : ends) {
                Route out;
                out.found = Found::Navaids;
                out.points.push_back({aid, false, ""});
                if (flies(a, b, out)) return out;
            }
        return {};
    }

    const Network& network_;
    const Graph& graph_;
    Search search_;
    std::vector<std::pair<Vector, std::uint32_t>> aids_;
};

} // namespace

std::vector<RoutePair> findRoutes(const Network& network, const std::vector<std::pair<Place, Place>>& pairs,
                                  const Job& job) {
    const Graph graph(network, job);
    std::vector<RoutePair> out(pairs.size());
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        RouteFinder finder(network, graph);
        for (std::size_t i = next++; i < pairs.size() && !job.cancelled(); i = next++) {
            out[i] = finder.pair(pairs[i].first, pairs[i].second);
            if (i % 100 == 0) job.progress(static_cast<double>(i) / static_cast<double>(pairs.size()));
        }
    };
    std::vector<std::thread> helpers;
    const unsigned threads = std::clamp(std::thread::hardware_concurrency(), 1U, 8U);
    if (pairs.size() > 100)
        for (unsigned i = 1; i < threads; ++i) helpers.emplace_back(work);
    work();
    for (std::thread& helper : helpers) helper.join();
    return out;
}

} // namespace gatewise::importer
