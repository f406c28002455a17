#pragma once

#include "import/Job.h"
#include "import/Network.h"
#include "import/Sphere.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace gatewise::importer {

/// Costs and lengths are whole hundredths of a nautical mile, so that sums do not depend on their order and
/// every machine finds the same way.
using Cost = std::int32_t;
Cost costOf(double miles);

/// A way that may be flown from one node to another.
struct Edge {
    std::uint32_t from = 0, to = 0; // nodes
    Cost length = 0;
    std::int32_t leg = -1; // in the network's legs, -1 for a direct leg across an ocean
    bool high = false;
    bool twoWay = true;
    Vector out, in; // unit directions on the sphere: where the edge begins, where it ends
};

/// The airways as nodes and directed edges, and between the grid fixes of the oceans (named like 53N20 or
/// 5320N) direct legs, tied to the airways at their shores.
struct Graph {
    /// Not all of it when the job was cancelled.
    explicit Graph(const Network& network, const Job& job = Job());

    std::vector<std::uint32_t> points; // of each node, in the network's points
    std::vector<Vector> nodes;
    std::vector<Edge> edges;          // ordered by `from`
    std::vector<std::uint32_t> first; // of each node's edges; one more than there are nodes

private:
    std::uint32_t nodeOf(const Network& network, std::uint32_t point);
    void addEdge(std::uint32_t from, std::uint32_t to, const Edge& like);
    void addOceans(const Network& network, const Job& job);

    std::vector<std::uint32_t> nodeOfPoint_;
};

/// The unit direction in which the great circle from a to b leaves a, and in which it reaches b.
Vector leaving(const Vector& a, const Vector& b);
Vector reaching(const Vector& a, const Vector& b);

} // namespace gatewise::importer
