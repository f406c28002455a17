#include "import/Routes.h"
#include "import/Texts.h"

#include <gtest/gtest.h>

namespace gatewise::importer {
namespace {

/// Fixes on a line of latitude, a degree of longitude apart, with an airway along them.
Network line(int count, const char* airway = "J1", bool high = true) {
    Network out;
    for (int i = 0; i < count; ++i)
        out.points.push_back({'I', "FIX" + std::to_string(i), "", "", "", {0, static_cast<double>(i)}, high});
    for (std::uint32_t i = 0; i + 1 < out.points.size(); ++i)
        out.legs.push_back({i, i + 1, high, true, true, {airway}});
    return out;
}

RoutePair only(const Network& network, Place a, Place b) {
    return findRoutes(network, {{a, b}}, Job()).at(0);
}

TEST(Routes, FollowTheAirwayThereAndBack) {
    const RoutePair pair = only(line(10), {0.2, 0}, {0.2, 9});
    EXPECT_EQ(pair.there.found, Found::Airways);
    ASSERT_GE(pair.there.points.size(), 3U);
    EXPECT_EQ(pair.there.points[0].airway, "");
    EXPECT_EQ(pair.there.points[1].airway, "J1");
    EXPECT_TRUE(pair.there.points[1].high);
    ASSERT_EQ(pair.back.points.size(), pair.there.points.size());
    EXPECT_EQ(pair.back.points[0].point, pair.there.points.back().point);
    EXPECT_EQ(pair.back.points[0].airway, "");
    EXPECT_NEAR(pair.there.miles, pair.back.miles, 1e-6);
}

TEST(Routes, AOneWayAirwayIsFlownOneWay) {
    Network network = line(12);
    for (Leg& leg : network.legs) leg.backward = false;
    const RoutePair pair = only(network, {0.1, 0}, {0.1, 11});
    EXPECT_EQ(pair.there.found, Found::Airways);
    EXPECT_GT(pair.there.points.size(), 5U);
    EXPECT_NE(pair.back.found == Found::Airways && pair.back.points.size() > 2, true);
}

TEST(Routes, HighAirwaysArePreferredOnLongWays) {
    Network network = line(10, "J1", true);
    const auto first = static_cast<std::uint32_t>(network.points.size());
    for (int i = 0; i < 10; ++i)
        network.points.push_back(
            {'I', "LOW" + std::to_string(i), "", "", "", {0.2, static_cast<double>(i)}, false});
    for (std::uint32_t i = 0; i < 9; ++i)
        network.legs.push_back({first + i, first + i + 1, false, true, true, {"V1"}});
    const RoutePair pair = only(network, {0.2, 0}, {0.2, 9});
    EXPECT_TRUE(pair.there.points[pair.there.points.size() / 2].high);
}

TEST(Routes, NoTurnAboveAHundredDegrees) {
    Network network = line(3);
    network.points[2].place = {0.5, 0.1}; // a hook back
    const auto way = Search(Graph(network)).find({0, -2}, {1.5, 0});
    ASSERT_TRUE(way.has_value());
    for (std::size_t i = 0; i + 1 < way->edges.size(); ++i) {
        const Graph graph(network);
        const Edge& a = graph.edges[way->edges[i]];
        const Edge& b = graph.edges[way->edges[i + 1]];
        EXPECT_LE(turn(graph.nodes[a.from], graph.nodes[a.to], graph.nodes[b.to]), kMostTurn);
    }
}

TEST(Routes, AcrossAnOceanOverItsGrid) {
    Network network;
    const auto add = [&](const char* ident, double latitude, double longitude) {
        network.points.push_back({'I', ident, "", "", "", {latitude, longitude}, true});
    };
    add("SHORE", 53, -10);
    add("INLND", 53, -8);
    add("WESTA", 50, -56);
    add("WESTB", 49, -59);
    for (const auto& [name, latitude, longitude] :
         {std::tuple("53N15", 53, -15), std::tuple("53N20", 53, -20), std::tuple("53N30", 53, -30),
          std::tuple("52N40", 52, -40), std::tuple("51N50", 51, -50)})
        add(name, latitude, longitude);
    network.legs.push_back({0, 1, true, true, true, {"UN1"}});
    network.legs.push_back({2, 3, true, true, true, {"J5"}});
    const RoutePair pair = only(network, {53.3, -6.5}, {48.9, -61});
    EXPECT_EQ(pair.there.found, Found::Airways);
    std::string way;
    for (const RoutePoint& p : pair.there.points) way += network.points[p.point].ident + " ";
    EXPECT_NE(way.find("53N30 52N40 51N50"), std::string::npos) << way;
}

TEST(Routes, WithoutAirwaysOverNavaidsElseDirect) {
    Network network;
    network.points.push_back({'V', "AAA", "A", "112.30", "", {0, 0.3}, false});
    network.points.push_back({'N', "BB", "B", "300.0", "", {0, 4.7}, false});
    const RoutePair pair = only(network, {0, 0}, {0, 5});
    EXPECT_EQ(pair.there.found, Found::Navaids);
    ASSERT_EQ(pair.there.points.size(), 2U);
    EXPECT_EQ(pair.back.points[0].point, 1U);
    const RoutePair nothing = only(network, {50, 0}, {50, 5});
    EXPECT_EQ(nothing.there.found, Found::Direct);
    EXPECT_EQ(nothing.there.points.size(), 0U);
    EXPECT_NEAR(nothing.there.miles, 192.8, 0.5);
}

TEST(Routes, ThePlanThinsInsideOfItsAirways) {
    std::vector<RoutePoint> points;
    for (std::uint32_t i = 0; i < 60; ++i) points.push_back({i, true, i == 0 ? "" : i < 40 ? "J1" : "J2"});
    thin(points);
    EXPECT_EQ(points.size(), kPlanPoints);
    EXPECT_EQ(points.front().point, 0U);
    EXPECT_EQ(points.back().point, 59U);
    bool change = false;
    for (const RoutePoint& p : points) change = change || p.point == 39;
    EXPECT_TRUE(change) << "the point where the airway changes stays";
}

TEST(Routes, APlanOfChangesKeepsThemAll) {
    std::vector<RoutePoint> points;
    for (std::uint32_t i = 0; i < 40; ++i) points.push_back({i, true, "J" + std::to_string(i)});
    thin(points);
    EXPECT_EQ(points.size(), 40U);
}

TEST(Network, BothFormsJoinTheSameWay) {
    for (const bool regions : {false, true}) {
        Findings findings;
        std::vector<std::string> faults;
        const RawTables raw = readSources({textSource("a", regions ? kFixesNew : kFixesOld),
                                           textSource("b", regions ? kNavNew : kNavOld),
                                           textSource("c", regions ? kAwyNew : kAwyOld)},
                                          false, findings, faults, Job());
        const Network network = makeNetwork(raw, findings, Job());
        ASSERT_EQ(network.legs.size(), 3U);
        EXPECT_EQ(network.points[network.legs[0].from].kind, 'V');
        EXPECT_EQ(network.points[network.legs[2].to].kind, 'N');
        EXPECT_EQ(network.legs[0].backward, !regions);
        EXPECT_EQ(network.legs[1].airways, (std::vector<std::string>{"J1", "J2"}));
        EXPECT_EQ(findings.count("airway segments whose ends are not found"), regions ? 1 : 0);
        EXPECT_EQ(network.points[network.legs[0].from].frequency, "112.30");
    }
}

} // namespace
} // namespace gatewise::importer
