#pragma once

#include "import/Graph.h"

#include <optional>
#include <vector>

namespace gatewise::importer {

/// How far from an airport a route may join or leave the airways, nautical miles.
inline constexpr double kJoin = 150;
/// Above this many miles high airways are preferred.
inline constexpr double kHighFrom = 250;
/// A route is at most so many times as long as the great circle, and turns by no more degrees at a point.
inline constexpr double kDetour = 1.35;
inline constexpr double kMostTurn = 100;

/// The way that a search found: the first node, then the edges from there.
struct Way {
    std::uint32_t begin = 0;
    std::vector<std::uint32_t> edges; // in the graph's
};

/// A* over the graph; one for each thread. The graph must outlive it.
class Search {
public:
    explicit Search(const Graph& graph);

    /// The cheapest way between two airports, nothing when there is none within the limits.
    std::optional<Way> find(const Place& from, const Place& to);

private:
    /// A state is an edge just flown, or behind the edges a node just joined from the airport.
    struct Entry {
        Cost estimate = 0;
        std::uint32_t state = 0;
    };
    struct Reached {
        std::uint32_t search = 0; // which search reached it, 0 none
        Cost cost = 0;
        Cost length = 0;
        std::uint32_t before = 0;
        bool done = false;
    };

    [[nodiscard]] std::uint32_t nodeOf(std::uint32_t state) const;
    Cost ahead(std::uint32_t node);
    void reach(std::uint32_t state, Cost cost, Cost length, std::uint32_t before);
    void join();
    void expand(std::uint32_t state);
    void leave(std::uint32_t state);
    [[nodiscard]] Way wayTo(std::uint32_t state) const;

    const Graph& graph_;
    std::vector<Reached> states_;
    struct Ahead {
        std::uint32_t search = 0;
        Cost cost = 0;
    };
    std::vector<Ahead> ahead_;
    std::vector<Entry> heap_;
    std::uint32_t search_ = 0;
    Vector from_, to_;
    Cost longest_ = 0;
    bool preferHigh_ = false;
    Cost best_ = 0;
    std::uint32_t last_ = 0;
};

} // namespace gatewise::importer
