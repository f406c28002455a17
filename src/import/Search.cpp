#include "import/Search.h"

#include <algorithm>
#include <cmath>

namespace gatewise::importer {

namespace {

constexpr std::uint32_t kStart = std::numeric_limits<std::uint32_t>::max();
constexpr Cost kNever = std::numeric_limits<Cost>::max();

// What a mile costs, in hundredths. None is below 100, so that the great circle never overrates a way.
constexpr std::int64_t kJoinCost = 125;
constexpr std::int64_t kLowCost = 115; // of a low airway on a long route
constexpr std::int64_t kDirectCost = 108;

Cost times(Cost length, std::int64_t hundredths) {
    return static_cast<Cost>(length * hundredths / 100);
}

const double kMostTurnCosine = std::cos(kMostTurn * kDegree);
const double kJoinCosine = std::cos(kJoin / kRadius);

bool turnsTooFar(const Vector& in, const Vector& out) {
    return dot(in, out) < kMostTurnCosine;
}

} // namespace

Search::Search(const Graph& graph)
    : graph_(graph), states_(graph.edges.size() + graph.nodes.size()), ahead_(graph.nodes.size()) {}

std::uint32_t Search::nodeOf(std::uint32_t state) const {
    const auto edges = static_cast<std::uint32_t>(graph_.edges.size());
    return state < edges ? graph_.edges[state].to : state - edges;
}

Cost Search::ahead(std::uint32_t node) {
    Ahead& known = ahead_[node];
    if (known.search != search_) known = {search_, costOf(distance(graph_.nodes[node], to_))};
    return known.cost;
}

void Search::reach(std::uint32_t state, Cost cost, Cost length, std::uint32_t before) {
    const Cost rest = ahead(nodeOf(state));
    if (length + rest > longest_) return;
    Reached& there = states_[state];
    if (there.search == search_ && (there.done || there.cost <= cost)) return;
    there = {search_, cost, length, before, false};
    heap_.push_back({cost + rest, state});
    std::push_heap(heap_.begin(), heap_.end(), [](const Entry& a, const Entry& b) {
        return a.estimate != b.estimate ? a.estimate > b.estimate : a.state > b.state;
    });
}

void Search::join() {
    for (std::uint32_t node = 0; node < graph_.nodes.size(); ++node) {
        if (dot(from_, graph_.nodes[node]) < kJoinCosine) continue;
        const Cost length = costOf(distance(from_, graph_.nodes[node]));
        reach(static_cast<std::uint32_t>(graph_.edges.size()) + node, times(length, kJoinCost), length,
              kStart);
    }
}

/// Tries to leave the airways for the destination.
void Search::leave(std::uint32_t state) {
    const std::uint32_t node = nodeOf(state);
    const Vector& here = graph_.nodes[node];
    if (dot(here, to_) < kJoinCosine) return;
    const bool edge = state < graph_.edges.size();
    const Vector in = edge ? graph_.edges[state].in : reaching(from_, here);
    if (turnsTooFar(in, leaving(here, to_))) return;
    const Cost cost = states_[state].cost + times(ahead(node), kJoinCost);
    if (cost >= best_) return;
    best_ = cost;
    last_ = state;
}

void Search::expand(std::uint32_t state) {
    const Reached here = states_[state];
    const std::uint32_t node = nodeOf(state);
    const bool edge = state < graph_.edges.size();
    const Vector in = edge ? graph_.edges[state].in : reaching(from_, graph_.nodes[node]);
    for (std::uint32_t next = graph_.first[node]; next < graph_.first[node + 1]; ++next) {
        const Edge& way = graph_.edges[next];
        if (turnsTooFar(in, way.out)) continue;
        const std::int64_t mile = way.leg < 0 ? kDirectCost : preferHigh_ && !way.high ? kLowCost : 100;
        reach(next, here.cost + times(way.length, mile), here.length + way.length, state);
    }
}

Way Search::wayTo(std::uint32_t state) const {
    Way out;
    for (; state < graph_.edges.size(); state = states_[state].before) out.edges.push_back(state);
    out.begin = nodeOf(state);
    std::reverse(out.edges.begin(), out.edges.end());
    return out;
}

std::optional<Way> Search::find(const Place& from, const Place& to) {
    ++search_;
    heap_.clear();
    from_ = vectorOf(from);
    to_ = vectorOf(to);
    const double direct = distance(from_, to_);
    longest_ = costOf(direct * kDetour);
    preferHigh_ = direct > kHighFrom;
    best_ = kNever;
    join();
    while (!heap_.empty() && heap_.front().estimate < best_) {
        std::pop_heap(heap_.begin(), heap_.end(), [](const Entry& a, const Entry& b) {
            return a.estimate != b.estimate ? a.estimate > b.estimate : a.state > b.state;
        });
        const std::uint32_t state = heap_.back().state;
        heap_.pop_back();
        if (states_[state].done) continue;
        states_[state].done = true;
        leave(state);
        expand(state);
    }
    if (best_ == kNever) return std::nullopt;
    return wayTo(last_);
}

} // namespace gatewise::importer
