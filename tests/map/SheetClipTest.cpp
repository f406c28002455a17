#include "map/SheetClip.h"

#include <gtest/gtest.h>

namespace gatewise::map {
namespace {

std::vector<DrawingLine> cut(std::vector<DrawingPoint> points) {
    Drawing drawing;
    drawing.lines = {{std::move(points), Tone::Flight, 2, 7}};
    return withinSheet(drawing).lines;
}

TEST(WithinSheet, WhatLiesInsideStaysAsItIs) {
    const auto lines = cut({{0, 0}, {0.5, 1}, {1, 0.25}});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0], (DrawingLine{{{0, 0}, {0.5, 1}, {1, 0.25}}, Tone::Flight, 2, 7}));
}

TEST(WithinSheet, WhatRunsOutEndsAtTheEdge) {
    const auto lines = cut({{0.5, 0.5}, {1.5, 0.5}});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].points, (std::vector<DrawingPoint>{{0.5, 0.5}, {1, 0.5}}));
    EXPECT_EQ(cut({{-1, -1}, {2, 2}})[0].points, (std::vector<DrawingPoint>{{0, 0}, {1, 1}}));
}

TEST(WithinSheet, ALineThatComesBackIsTwo) {
    const auto lines = cut({{0.5, 0.25}, {1.5, 0.25}, {1.5, 0.75}, {0.5, 0.75}});
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].points, (std::vector<DrawingPoint>{{0.5, 0.25}, {1, 0.25}}));
    EXPECT_EQ(lines[1].points, (std::vector<DrawingPoint>{{1, 0.75}, {0.5, 0.75}}));
    EXPECT_EQ(lines[1].id, 7);
}

TEST(WithinSheet, WhatLiesOutsideIsNotThere) {
    EXPECT_TRUE(cut({{-0.5, 0.2}, {-0.1, 0.9}}).empty());
    EXPECT_TRUE(cut({{2, 0.2}, {2, 0.9}}).empty());
    EXPECT_TRUE(cut({{0.5, 2}, {2, 0.5}}).empty()) << "past a corner";
    EXPECT_TRUE(cut({}).empty());
}

} // namespace
} // namespace gatewise::map
