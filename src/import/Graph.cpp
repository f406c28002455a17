#include "import/Graph.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace gatewise::importer {

namespace {

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();
constexpr double kShore = 350;         // nm from a grid fix to the airways
constexpr std::size_t kShoreWays = 16; // to the nearest points of airways

/// A fix of an ocean's grid: four digits and a letter of the wind rose, at whole degrees.
bool isGrid(const Point& p) {
    const auto digits =
        std::count_if(p.ident.begin(), p.ident.end(), [](char c) { return c >= '0' && c <= '9'; });
    const bool wind = p.ident.find_first_of("NESW") != std::string::npos;
    const auto whole = [](double degrees) { return std::abs(degrees - std::round(degrees)) < 0.001; };
    return p.kind == 'I' && p.ident.size() == 5 && digits == 4 && wind && whole(p.place.latitude) &&
           whole(p.place.longitude);
}

/// Neighbours in a grid: a step of at most ten degrees to the side and three up or down.
bool neighbours(const Place& a, const Place& b) {
    const double aside = std::abs(wrapped(a.longitude - b.longitude + 180) - 180);
    const double up = std::abs(a.latitude - b.latitude);
    return aside >= 4.9 && aside <= 10.1 && up <= 3.1;
}

Vector direction(const Vector& at, const Vector& towards) {
    const double along = dot(at, towards);
    Vector out{towards.x - along * at.x, towards.y - along * at.y, towards.z - along * at.z};
    const double length = std::sqrt(dot(out, out));
    if (length < 1e-12) return {};
    return {out.x / length, out.y / length, out.z / length};
}

} // namespace

Cost costOf(double miles) {
    return static_cast<Cost>(std::lround(miles * 100));
}

Vector leaving(const Vector& a, const Vector& b) {
    return direction(a, b);
}

Vector reaching(const Vector& a, const Vector& b) {
    const Vector back = direction(b, a);
    return {-back.x, -back.y, -back.z};
}

std::uint32_t Graph::nodeOf(const Network& network, std::uint32_t point) {
    std::uint32_t& node = nodeOfPoint_[point];
    if (node == kNone) {
        node = static_cast<std::uint32_t>(points.size());
        points.push_back(point);
        nodes.push_back(vectorOf(network.points[point].place));
    }
    return node;
}

void Graph::addEdge(std::uint32_t from, std::uint32_t to, const Edge& like) {
    Edge edge = like;
    edge.from = from;
    edge.to = to;
    edge.length = costOf(distance(nodes[from], nodes[to]));
    edge.out = leaving(nodes[from], nodes[to]);
    edge.in = reaching(nodes[from], nodes[to]);
    edges.push_back(edge);
}

void Graph::addOceans(const Network& network, const Job& job) {
    const auto airwayNodes = static_cast<std::uint32_t>(nodes.size());
    std::vector<std::uint32_t> grid;
    for (std::uint32_t i = 0; i < network.points.size(); ++i)
        if (isGrid(network.points[i])) grid.push_back(nodeOf(network, i));
    const auto place = [&](std::uint32_t node) { return network.points[points[node]].place; };
    Edge direct;
    direct.high = true;
    for (const std::uint32_t a : grid) {
        if (job.cancelled()) return;
        for (const std::uint32_t b : grid)
            if (a != b && neighbours(place(a), place(b))) addEdge(a, b, direct);
        std::vector<std::pair<Cost, std::uint32_t>> shore;
        for (std::uint32_t node = 0; node < airwayNodes; ++node) {
            const double away = dot(nodes[a], nodes[node]) < 0.99 ? kShore : distance(nodes[a], nodes[node]);
            if (away < kShore && node != a) shore.emplace_back(costOf(away), node);
        }
        std::sort(shore.begin(), shore.end());
        if (shore.size() > kShoreWays) shore.resize(kShoreWays);
        for (const auto& [away, node] : shore) {
            addEdge(a, node, direct);
            addEdge(node, a, direct);
        }
    }
}

Graph::Graph(const Network& network, const Job& job) : nodeOfPoint_(network.points.size(), kNone) {
    Walk walk(job, 0);
    for (std::size_t i = 0; i < network.legs.size() && walk.goesOn(); ++i) {
        const Leg& leg = network.legs[i];
        const std::uint32_t from = nodeOf(network, leg.from);
        const std::uint32_t to = nodeOf(network, leg.to);
        Edge edge;
        edge.leg = static_cast<std::int32_t>(i);
        edge.high = leg.high;
        edge.twoWay = leg.forward && leg.backward;
        if (leg.forward) addEdge(from, to, edge);
        if (leg.backward) addEdge(to, from, edge);
    }
    addOceans(network, job);
    const auto order = [&](const Edge& e) { return std::tuple(e.from, points[e.to], !e.high, e.leg); };
    std::sort(edges.begin(), edges.end(), [&](const Edge& a, const Edge& b) { return order(a) < order(b); });
    first.assign(nodes.size() + 1, 0);
    for (const Edge& edge : edges) ++first[edge.from + 1];
    std::partial_sum(first.begin(), first.end(), first.begin());
}

} // namespace gatewise::importer
