#include "map/MapDrawing.h"

#include "map/Labels.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace gatewise::map {
namespace {

MapPlace place(const char* name, double latitude, double longitude, int id = -1) {
    return {{latitude, longitude}, Tone::Airport, name, std::string("about ") + name, id};
}

MapScene scene(std::vector<MapPlace> places) {
    MapScene out;
    MapRoute route;
    for (const auto& p : places) route.points.push_back(p.at);
    out.places = std::move(places);
    out.routes = {route};
    return out;
}

Sheet sheet(double width, double height) {
    Sheet out;
    out.size = {width, height};
    return out;
}

const DrawingMark* markOf(const Drawing& drawing, const std::string& name) {
    const auto at = std::find_if(drawing.marks.begin(), drawing.marks.end(),
                                 [&](const DrawingMark& m) { return m.label == name; });
    return at == drawing.marks.end() ? nullptr : &*at;
}

std::vector<DrawingLine> linesOf(const Drawing& drawing, Tone tone) {
    std::vector<DrawingLine> out;
    std::copy_if(drawing.lines.begin(), drawing.lines.end(), std::back_inserter(out),
                 [&](const DrawingLine& l) { return l.tone == tone; });
    return out;
}

TEST(Map, AFittedSightShowsAllPlaces) {
    for (const SheetSize size : {SheetSize{400, 400}, SheetSize{1200, 300}, SheetSize{300, 1200}}) {
        for (const auto& s : {scene({place("KATL", 33.6, -84.4), place("RJTT", 35.5, 139.8)}),
                              scene({place("NZAA", -37, 174.8), place("SCEL", -33.4, -70.8)}),
                              scene({place("ENSB", 78.2, 15.5), place("PABR", 71.3, -156.8)}),
                              scene({place("KATL", 33.6, -84.4)})}) {
            const Drawing drawing = drawMap(s, fitted(s, size), sheet(size.width, size.height));
            for (const auto& p : s.places) {
                const DrawingMark* mark = markOf(drawing, p.name);
                ASSERT_NE(mark, nullptr) << p.name;
                EXPECT_GT(mark->at.x, 0.01);
                EXPECT_LT(mark->at.x, 0.99);
                EXPECT_GT(mark->at.y, 0.01);
                EXPECT_LT(mark->at.y, 0.99);
            }
        }
    }
}

TEST(Map, NothingToShowIsTheWholeWorld) {
    EXPECT_EQ(fitted({}, {400, 400}).span, kMostSpan);
}

TEST(Map, ARouteOverTheDateLineIsOneLine) {
    const auto s = scene({place("PHNL", 21.3, -157.9), place("RJTT", 35.5, 139.8)});
    const auto lines = linesOf(drawMap(s, fitted(s, {400, 400}), sheet(400, 400)), Tone::Route);
    ASSERT_EQ(lines.size(), 1U);
    for (std::size_t i = 1; i < lines[0].points.size(); ++i)
        EXPECT_LT(std::abs(lines[0].points[i].x - lines[0].points[i - 1].x), 0.1);
}

TEST(Map, ARouteOfNoMilesDrawsItsAirport) {
    const auto s = scene({place("KATL", 33.6, -84.4), place("KATL", 33.6, -84.4)});
    const MapSight sight = fitted(s, {400, 400});
    EXPECT_NEAR(sight.middle.latitude, 33.6, 1e-6);
    const Drawing drawing = drawMap(s, sight, sheet(400, 400));
    EXPECT_EQ(drawing.marks.size(), 2U);
    EXPECT_NEAR(drawing.marks[0].at.x, 0.5, 1e-6);
}

TEST(Map, PanningAndItsWayBackMeet) {
    const MapSight sight{{40, 179}, 20};
    const SheetSize size{400, 400};
    const MapSight there = panned(sight, size, -200, 0);
    EXPECT_LT(there.middle.longitude, 0); // over the date line
    const View view(there, size);
    const auto old = view.place(vectorOf(sight.middle));
    ASSERT_TRUE(old);
    EXPECT_NEAR(old->x, 0, 4);
}

TEST(Map, ZoomingKeepsWhatIsUnderThePointer) {
    const MapSight sight{{40, -100}, 60};
    const SheetSize size{600, 400};
    const SheetPoint about{500, 100};
    const Vector under = View(sight, size).spotAt(about);
    const MapSight near = zoomed(sight, size, 2, about);
    EXPECT_NEAR(near.span, 30, 1e-9);
    const auto now = View(near, size).place(under);
    ASSERT_TRUE(now);
    EXPECT_NEAR(now->x, about.x, 1.5);
    EXPECT_NEAR(now->y, about.y, 1.5);
    EXPECT_EQ(zoomed(sight, size, 1e9, about).span, kLeastSpan);
    EXPECT_EQ(zoomed(sight, size, 1e-9, about).span, kMostSpan);
}

TEST(Map, ThePoleIsNeverPassed) {
    const MapSight sight = panned({{88, 0}, 20}, {400, 400}, 0, 4000);
    EXPECT_LE(sight.middle.latitude, 89.5);
}

TEST(Map, WordsDoNotLieOnEachOther) {
    std::vector<MapPlace> places;
    for (int i = 0; i < 60; ++i) places.push_back(place("KXYZ", 30 + i % 8 * 0.7, -90 + i / 8 * 0.7, i));
    const auto s = scene(places);
    const Sheet on = sheet(400, 300);
    const Drawing drawing = drawMap(s, fitted(s, on.size), on);
    std::vector<Box> boxes;
    for (const auto& text : drawing.texts) {
        const double width = on.widthOf(text.text);
        boxes.push_back({text.at.x * 400 - width / 2 + 0.01, text.at.y * 300 - on.wordHeight / 2 + 0.01,
                         width - 0.02, on.wordHeight - 0.02});
    }
    ASSERT_GT(boxes.size(), 5U);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) EXPECT_FALSE(boxes[i].meets(boxes[k])) << i << " " << k;
    }
    // Each place keeps its mark and its name, whether there is room for the word or not.
    EXPECT_EQ(drawing.marks.size(), 60U);
}

TEST(Map, WhatIsChosenStandsOut) {
    auto s = scene({place("KATL", 33.6, -84.4, 0), place("KORD", 42, -87.9, 1)});
    const Drawing drawing = drawMap(s, fitted(s, {400, 400}), sheet(400, 400), 1);
    EXPECT_EQ(markOf(drawing, "KORD")->tone, Tone::Chosen);
    EXPECT_EQ(markOf(drawing, "KATL")->tone, Tone::Airport);
}

TEST(Map, APointerFindsTheNearestMarkAndRoute) {
    auto s = scene({place("KATL", 33.6, -84.4, 0), place("KORD", 42, -87.9, 1)});
    s.routes[0].id = 7;
    const SheetSize size{400, 400};
    const Drawing drawing = drawMap(s, fitted(s, size), sheet(400, 400));
    const DrawingPoint at = markOf(drawing, "KORD")->at;
    const DrawingMark* found = markNear(drawing, size, {at.x + 0.01, at.y}, 6);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->id, 1);
    EXPECT_EQ(markNear(drawing, size, {at.x + 0.05, at.y}, 6), nullptr);
    const DrawingLine line = linesOf(drawing, Tone::Route).at(0);
    const DrawingPoint half = line.points[line.points.size() / 2];
    ASSERT_NE(lineNear(drawing, size, half, 3), nullptr);
    EXPECT_EQ(lineNear(drawing, size, half, 3)->id, 7);
    EXPECT_EQ(lineNear(drawing, size, {0.01, 0.01}, 3), nullptr);
}

TEST(Map, RunwaysAreSeenFromNearOnly) {
    MapScene s = scene({place("KATL", 33.64, -84.43)});
    s.strips = {{{33.6367, -84.4480}, {33.6367, -84.4060}, "08L"}};
    const auto strips = [&](double span) {
        return linesOf(drawMap(s, {{33.64, -84.43}, span}, sheet(400, 400)), Tone::Runway).size();
    };
    EXPECT_EQ(strips(0.2), 1U);
    EXPECT_EQ(strips(60), 0U);
}

TEST(Map, FromNearARunwayHasItsNameAndNoOtherLiesUponIt) {
    MapScene s = scene({place("KATL", 33.64, -84.43)});
    s.strips = {{{33.63, -84.43}, {33.65, -84.43}, "18/36"}};
    const auto words = [&](double span) {
        std::vector<DrawingText> out;
        for (const DrawingText& text : drawMap(s, {{33.64, -84.43}, span}, sheet(400, 400)).texts) {
            if (text.text == "18/36" || text.text == "KATL") out.push_back(text);
        }
        return out;
    };
    ASSERT_EQ(words(1).size(), 1U) << "too short for its name";
    const auto near = words(0.1);
    ASSERT_EQ(near.size(), 2U);
    EXPECT_EQ(near[1].text, "18/36");
    EXPECT_EQ(near[1].tone, Tone::Runway);
    // The runway leads up and down through the middle: both words stand beside it.
    for (const DrawingText& word : near) EXPECT_GT(std::fabs(word.at.x - 0.5), 0.02) << word.text;
}

TEST(Map, TheBarIsARoundNumberOfMiles) {
    // 400 pixels for 60 degrees: 1 NM is 400 / 3600 pixels.
    const ScaleBar bar = scaleBar(400 / (60 * kDegree), 80);
    EXPECT_EQ(bar.miles, 500);
    EXPECT_NEAR(bar.pixels, 500 * 400 / 3600.0, 1e-9);
    EXPECT_EQ(scaleBar(400 / (60 * kDegree), 20).miles, 100);
    EXPECT_EQ(scaleBar(400 / (60 * kDegree), 30).miles, 200);
}

TEST(Labels, TheFirstPlaceIsAboveThenBelowThenBeside) {
    Labels labels(100, 100);
    EXPECT_EQ(labels.place(50, 50, 4, 20, 10)->top, 34);
    EXPECT_EQ(labels.place(50, 50, 4, 20, 10)->top, 56);
    EXPECT_EQ(labels.place(50, 50, 4, 20, 10)->left, 57);
    // At the upper edge there is no room above.
    EXPECT_EQ(labels.place(50, 5, 4, 20, 10)->top, 11);
    // A word wider than the sheet has no place.
    EXPECT_FALSE(labels.place(50, 80, 4, 200, 10));
}

TEST(Labels, ALineIsCrossedOnlyWhereNothingElseIsFree) {
    Labels labels(100, 100);
    labels.keepOffLine(0, 38, 100, 38);
    EXPECT_EQ(labels.place(50, 50, 4, 20, 10)->top, 56);
}

int countOf(const Drawing& drawing, const std::string& text) {
    return static_cast<int>(
        std::count_if(drawing.texts.begin(), drawing.texts.end(), [&](auto& t) { return t.text == text; }));
}

/// Two airways of five short legs each, none of which is long enough for a name beside it.
TEST(Map, AnAirwayOfShortLegsHasItsNameOnce) {
    MapScene s;
    MapRoute route;
    for (int i = 0; i <= 10; ++i) route.points.push_back({0, 0.1 * i});
    for (int i = 0; i < 10; ++i) route.names.emplace_back(i < 5 ? "J89" : "J55");
    s.routes.push_back(route);
    s.places.push_back(place("A", 0, 0));
    s.places.push_back(place("B", 0, 1));
    // 400 pixels are 1.25 degrees: a leg has 32, a name 21 and wants 24 more.
    const Drawing drawing = drawMap(s, {{0, 0.5}, 1.25}, sheet(400, 400));
    EXPECT_EQ(countOf(drawing, "J89"), 1);
    EXPECT_EQ(countOf(drawing, "J55"), 1);
    // Ten times as near each of the few legs in sight has it.
    EXPECT_GT(countOf(drawMap(s, {{0, 0.25}, 0.25}, sheet(400, 400)), "J89"), 1);
    // Where the whole airway is shorter than its name there is none.
    EXPECT_EQ(countOf(drawMap(s, {{0, 0.5}, 60}, sheet(400, 400)), "J89"), 0);
}

} // namespace
} // namespace gatewise::map
