#include "import/Routes.h"

namespace gatewise::importer {

namespace {

/// Points from `first` to `last` along one airway; those between may go.
struct Run {
    std::size_t first = 0;
    std::size_t last = 0;
    [[nodiscard]] std::size_t inside() const { return last - first > 1 ? last - first - 1 : 0; }
};

Run longestRun(const std::vector<RoutePoint>& points) {
    Run best;
    for (std::size_t from = 0; from + 1 < points.size();) {
        std::size_t to = from + 1;
        const std::string& airway = points[to].airway;
        while (!airway.empty() && to + 1 < points.size() && points[to + 1].airway == airway) ++to;
        if (to - from > best.last - best.first) best = {from, to};
        from = to;
    }
    return best;
}

} // namespace

void thin(std::vector<RoutePoint>& points) {
    while (points.size() > kPlanPoints) {
        const Run run = longestRun(points);
        if (run.inside() == 0) return;
        points.erase(points.begin() + static_cast<std::ptrdiff_t>((run.first + run.last) / 2));
    }
}

} // namespace gatewise::importer
