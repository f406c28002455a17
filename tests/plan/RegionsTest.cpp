#include "plan/Regions.h"

#include <gtest/gtest.h>

namespace gatewise::test {
namespace {

Regions some() {
    Regions out;
    out.add({'I', "LLAKE", 27.35F, -81.3F, "K7"});
    out.add({'V', "ALP", -0.0005F, 179.9999F, "NZ"});
    return out;
}

TEST(Regions, AreFoundByKindIdentAndPlace) {
    const Regions regions = some();
    EXPECT_EQ(regions.find('I', "LLAKE", 27.3509, -81.2991), "K7");
    EXPECT_EQ(regions.find('I', "LLAKE", 27.3511, -81.3), "") << "another point of the name";
    EXPECT_EQ(regions.find('V', "LLAKE", 27.35, -81.3), "");
    EXPECT_EQ(regions.find('I', "LLAK", 27.35, -81.3), "");
    EXPECT_EQ(regions.find('V', "ALP", 0.0001, 179.9999), "NZ") << "across the equator";
    EXPECT_EQ(regions.find('V', "ALP", 1e300, 1e300), "");
}

TEST(Regions, WhatIsKnownStays) {
    Regions regions = some();
    regions.add({'I', "LLAKE", 27.3502F, -81.3F, "ED"});
    regions.add({'I', "LLAKE", 27.36F, -81.3F, "k7"});
    regions.add({'I', "", 27.36F, -81.3F, "K7"});
    EXPECT_EQ(regions.entries().size(), 2U);
    regions.add({'I', "LLAKE", 27.36F, -81.3F, "ED"});
    EXPECT_EQ(regions.find('I', "LLAKE", 27.36, -81.3), "ED");
}

TEST(Regions, TheNearestOfTwoCounts) {
    Regions regions;
    regions.add({'I', "X", 0.0007F, 0, "AA"});
    regions.add({'I', "X", -0.0007F, 0, "BB"});
    EXPECT_EQ(regions.find('I', "X", 0.0001, 0), "AA");
    EXPECT_EQ(regions.find('I', "X", -0.0001, 0), "BB");
}

TEST(Regions, TheTextIsTheWayThereAndBack) {
    const std::string text = regionsText(some());
    EXPECT_EQ(text, "I LLAKE 27.35 -81.3 K7\nV ALP -0.0005 179.9999 NZ\n");
    EXPECT_EQ(regionsText(regionsIn(text)), text);
    EXPECT_EQ(regionsText(regionsIn("\r\n" + text.substr(0, 22) + "\r\n")), text.substr(0, 23));
}

TEST(Regions, ALineThatIsNoneIsToldAndLeftOut) {
    std::vector<int> bad;
    const Regions regions =
        regionsIn("I LLAKE 27.35 -81.3 K7\n\nI LLAKE 27.35 -81.3\nX A 1 1 K7\nI A nan 1 K7\n"
                  "I A 91 1 K7\nI A 1 1 K7 \nI  1 1 K7\nI TOOLONG 1 1 K7\nI A 1 1 k7\nI A 2 2 K7",
                  [&](int line) { bad.push_back(line); });
    EXPECT_EQ(bad, (std::vector<int>{3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(regions.entries().size(), 2U);
}

} // namespace
} // namespace gatewise::test
