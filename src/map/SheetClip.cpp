#include "map/SheetClip.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace gatewise::map {

namespace {

using Edge = std::pair<DrawingPoint, DrawingPoint>;

/// Narrows the shares `from` to `to` of an edge to those at which start + share * way lies within 0 and 1.
void narrow(double start, double way, double& from, double& to) {
    if (way == 0) {
        if (start < 0 || start > 1) to = -1;
        return;
    }
    const double a = -start / way;
    const double b = (1 - start) / way;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
}

DrawingPoint onSheet(const DrawingPoint& p) {
    return {std::clamp(p.x, 0.0, 1.0), std::clamp(p.y, 0.0, 1.0)};
}

/// The part of an edge inside the square; its ends are those of the edge where they lie inside.
std::optional<Edge> inside(const DrawingPoint& a, const DrawingPoint& b) {
    double from = 0;
    double to = 1;
    narrow(a.x, b.x - a.x, from, to);
    narrow(a.y, b.y - a.y, from, to);
    if (from > to) return std::nullopt;
    const auto at = [&](double share) {
        return onSheet({a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)});
    };
    return Edge{from > 0 ? at(from) : a, to < 1 ? at(to) : b};
}

void addParts(const DrawingLine& line, std::vector<DrawingLine>& out) {
    bool open = false; // the last part goes on with the next edge
    for (std::size_t i = 1; i < line.points.size(); ++i) {
        const auto edge = inside(line.points[i - 1], line.points[i]);
        if (!edge) {
            open = false;
            continue;
        }
        if (!open) out.push_back({{edge->first}, line.tone, line.width, line.id});
        out.back().points.push_back(edge->second);
        open = edge->second == line.points[i];
    }
}

} // namespace

Drawing withinSheet(Drawing drawing) {
    std::vector<DrawingLine> lines;
    for (const DrawingLine& line : drawing.lines) addParts(line, lines);
    drawing.lines = std::move(lines);
    return drawing;
}

} // namespace gatewise::map
