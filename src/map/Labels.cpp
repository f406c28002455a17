#include "map/Labels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace gatewise::map {

namespace {

constexpr double kCell = 64; // pixels
constexpr int kMostCells = 256;
constexpr double kGap = 2; // pixels between a mark and its word

int cellsOf(double length) {
    return std::clamp(static_cast<int>(length / kCell) + 1, 1, kMostCells);
}

/// Whether the edge has a point inside the box, by cutting it at the box's four sides.
bool cuts(const Box& box, double x1, double y1, double x2, double y2) {
    double from = 0, to = 1;
    const auto cut = [&](double start, double way, double low, double high) {
        if (way == 0) return start >= low && start <= high;
        const double a = (low - start) / way;
        const double b = (high - start) / way;
        from = std::max(from, std::min(a, b)), to = std::min(to, std::max(a, b));
        return from <= to;
    };
    return cut(x1, x2 - x1, box.left, box.left + box.width) &&
           cut(y1, y2 - y1, box.top, box.top + box.height);
}

/// Above, below, right, left, then the corners.
std::array<Box, 8> boxesBeside(double x, double y, double radius, double wordWidth, double wordHeight) {
    const double gap = radius + kGap;
    return {{
        {x - wordWidth / 2, y - gap - wordHeight, wordWidth, wordHeight},
        {x - wordWidth / 2, y + gap, wordWidth, wordHeight},
        {x + gap + 1, y - wordHeight / 2, wordWidth, wordHeight},
        {x - gap - 1 - wordWidth, y - wordHeight / 2, wordWidth, wordHeight},
        {x + radius, y + gap, wordWidth, wordHeight},
        {x - radius - wordWidth, y + gap, wordWidth, wordHeight},
        {x + radius, y - gap - wordHeight, wordWidth, wordHeight},
        {x - radius - wordWidth, y - gap - wordHeight, wordWidth, wordHeight},
    }};
}

} // namespace

Labels::Labels(double width, double height)
    : width_(width), height_(height), columns_(cellsOf(width)), rows_(cellsOf(height)),
      taken_(static_cast<std::size_t>(columns_ * rows_)), edges_(taken_.size()) {}

template<class Visit> void Labels::cells(const Box& box, Visit visit) const {
    const auto cell = [](double at, int count) {
        return static_cast<int>(std::clamp(at / kCell, 0.0, static_cast<double>(count - 1)));
    };
    for (int y = cell(box.top, rows_); y <= cell(box.top + box.height, rows_); ++y) {
        for (int x = cell(box.left, columns_); x <= cell(box.left + box.width, columns_); ++x) {
            if (!visit(static_cast<std::size_t>(y) * static_cast<std::size_t>(columns_) +
                       static_cast<std::size_t>(x)))
                return;
        }
    }
}

void Labels::keepOff(const Box& box) {
    cells(box, [&](std::size_t cell) {
        taken_[cell].push_back(box);
        return true;
    });
}

void Labels::keepOffLine(double x1, double y1, double x2, double y2) {
    const Box around{std::min(x1, x2), std::min(y1, y2), std::fabs(x2 - x1), std::fabs(y2 - y1)};
    cells(around, [&](std::size_t cell) {
        edges_[cell].push_back({x1, y1, x2, y2});
        return true;
    });
}

bool Labels::isFree(const Box& box) const {
    if (box.left < 0 || box.top < 0 || box.left + box.width > width_ || box.top + box.height > height_)
        return false;
    bool free = true;
    cells(box, [&](std::size_t cell) {
        free = std::none_of(taken_[cell].begin(), taken_[cell].end(),
                            [&](const Box& b) { return b.meets(box); });
        return free;
    });
    return free;
}

bool Labels::crosses(const Box& box) const {
    bool hit = false;
    cells(box, [&](std::size_t cell) {
        hit = std::any_of(edges_[cell].begin(), edges_[cell].end(),
                          [&](const Edge& e) { return cuts(box, e.x1, e.y1, e.x2, e.y2); });
        return !hit;
    });
    return hit;
}

std::optional<Box> Labels::place(double x, double y, double radius, double wordWidth, double wordHeight) {
    std::optional<Box> second;
    for (const Box& box : boxesBeside(x, y, radius, wordWidth, wordHeight)) {
        if (!isFree(box)) continue;
        if (!crosses(box)) {
            keepOff(box);
            return box;
        }
        if (!second) second = box;
    }
    if (second) keepOff(*second);
    return second;
}

std::optional<Box> Labels::placeOffLines(double x, double y, double radius, double wordWidth,
                                         double wordHeight) {
    for (const Box& box : boxesBeside(x, y, radius, wordWidth, wordHeight)) {
        if (!isFree(box) || crosses(box)) continue;
        keepOff(box);
        return box;
    }
    return std::nullopt;
}

} // namespace gatewise::map
