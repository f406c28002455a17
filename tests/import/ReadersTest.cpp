#include "import/Navigation.h"
#include "import/OpenFlights.h"
#include "import/OurAirports.h"
#include "import/Registries.h"
#include "import/Texts.h"
#include "platform/Machine.h"

#include <gtest/gtest.h>

namespace gatewise::importer {
namespace {

template<class Read> auto read(Read reader, const std::string& text, Findings& findings) {
    const Source source = textSource("file", text);
    auto table = reader(Reading{source, findings, Job()});
    EXPECT_EQ(table.error, "");
    return table.rows;
}

TEST(Readers, EveryFormIsKnownByItsContent) {
    for (const auto& [kind, text] : samples()) {
        const SourceInfo info = lookAt(textSource("x", text));
        EXPECT_EQ(nameOf(info.kind), nameOf(kind)) << text.substr(0, 80);
        EXPECT_EQ(info.fault, "");
    }
}

TEST(Readers, ByteOrderMarkAndCrLfChangeNothing) {
    for (const auto& [kind, text] : samples()) {
        std::string dos = "\xEF\xBB\xBF";
        for (const char c : text) dos += c == '\n' ? std::string("\r\n") : std::string(1, c);
        EXPECT_EQ(nameOf(lookAt(textSource("x", dos)).kind), nameOf(kind)) << text.substr(0, 80);
    }
}

TEST(Readers, WhatIsNoTableIsUnknown) {
    for (const char* text : {"", "\n", "hello\n", "a,b,c\n1,2,3\n", "I\n", "I\nhello\n", "PK\x03\x04"})
        EXPECT_EQ(lookAt(textSource("x", text)).kind, Kind::Unknown) << text;
}

TEST(Readers, NavigationVersionAndShapeMustAgree) {
    std::string wrong = kFixesOld;
    wrong.replace(wrong.find("600"), 3, "640");
    EXPECT_EQ(lookAt(textSource("x", wrong)).fault,
              "line 2 says version 640, but the lines below do not look like it");
    std::string strange = kFixesNew;
    strange.replace(strange.find("1200"), 4, "1300");
    EXPECT_EQ(lookAt(textSource("x", strange)).fault, "a navigation form of the unknown version 1300");
}

TEST(Readers, AirportsHaveTheirCodesAndZones) {
    Findings findings;
    const auto rows = read(readWorldAirports, kAirportsDat, findings);
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0].iata, "AAA");
    EXPECT_EQ(rows[1].city, "Bravo \"City\"");
    EXPECT_EQ(rows[2].zone, "Europe/London");
    EXPECT_EQ(rows[3].iata, "");
    ASSERT_EQ(findings.count(kBadRow), 1);
    EXPECT_EQ(findings.kinds().at(std::string(kBadRow)).first[0], "file:5: no position");
}

TEST(Readers, AirportColumnsGoByName) {
    Findings findings;
    const auto old = read(readAirports, kAirportsCsv, findings);
    ASSERT_EQ(old.size(), 3U);
    EXPECT_EQ(old[0].icao, "KAAA");
    EXPECT_TRUE(old[1].closed);
    EXPECT_FALSE(old[2].land);
    const auto fresh = read(readAirports, kNewAirportsCsv, findings);
    ASSERT_EQ(fresh.size(), 1U);
    EXPECT_EQ(fresh[0].icao, "KBBB") << "the code's own column comes before the GPS code";
}

TEST(Readers, ClosedRunwaysAreLeftOut) {
    Findings findings;
    const auto rows = read(readRunways, kRunwaysCsv, findings);
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_TRUE(rows[0].low.placed);
    EXPECT_FALSE(rows[1].low.placed);
    EXPECT_EQ(rows[1].low.heading, -1);
}

TEST(Readers, RadioAidsAreVorAndNdb) {
    Findings findings;
    const auto rows = read(readRadioAids, kNavaidsCsv, findings);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].frequency, 11230);
    EXPECT_EQ(rows[0].bearing, 5);
    EXPECT_EQ(rows[1].frequency, 341);
    EXPECT_EQ(rows[1].bearing, 2);
}

TEST(Readers, NewFixesHaveRegionAndArea) {
    Findings findings;
    EXPECT_EQ(read(readFixes, kFixesOld, findings).size(), 3U);
    const auto rows = read(readFixes, kFixesNew, findings);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].region, "K3");
    EXPECT_TRUE(rows[0].enroute);
    EXPECT_FALSE(rows[2].enroute);
}

TEST(Readers, LocalizersHaveTheirTrueCourseInEveryForm) {
    Findings findings;
    for (const std::string& text : {kNavOld, kNavNew}) {
        const auto rows = read(readNavAids, text, findings);
        ASSERT_EQ(rows.size(), 3U);
        EXPECT_EQ(rows[0].name, "BRAVO NDB");
        EXPECT_EQ(rows[2].runway, "09");
        EXPECT_EQ(rows[2].airport, "KAAA");
        EXPECT_NEAR(rows[2].bearing, 89.9, 1e-9);
    }
    EXPECT_EQ(findings.kinds().size(), 0U);
}

TEST(Readers, NewAirwaysHaveADirection) {
    Findings findings;
    const auto rows = read(readAirways, kAwyNew, findings);
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0].direction, 'F');
    EXPECT_EQ(rows[0].from.type, 3);
    EXPECT_TRUE(rows[1].high);
    EXPECT_EQ(read(readAirways, kAwyOld, findings)[0].from.latitude, 40);
}

TEST(Readers, OnTimeIsTheSameInEveryForm) {
    for (const std::string& text : {kOnTimePlain, kOnTimeHeaded, kOnTimeBureau, kOnTimePicked}) {
        Findings findings;
        OnTimeData data;
        const Source source = textSource("file", text);
        const OnTimeFile file = readOnTime(Reading{source, findings, Job()}, data);
        ASSERT_GE(data.rows.size(), 1U) << text;
        const OnTimeRow& row = data.rows[0];
        EXPECT_EQ(file.firstDay, daySerial({2008, 6, 2, 0, 0, 0, 0}));
        EXPECT_EQ(row.day, file.firstDay);
        EXPECT_EQ(data.carriers[row.carrier], "WN");
        EXPECT_EQ(row.number, 34);
        EXPECT_EQ(data.tails[row.tail], "N1");
        EXPECT_EQ(data.airports[row.origin] + data.airports[row.destination], "AAABBB");
        EXPECT_EQ(row.departure, 19 * 60 + 55);
        EXPECT_EQ(row.arrival, 20 * 60 + 55);
        EXPECT_EQ(row.miles, 251);
    }
}

TEST(Readers, CancelledFlightsCountAndMidnightIs0000) {
    Findings findings;
    OnTimeData data;
    const Source source = textSource("file", kOnTimePlain);
    readOnTime(Reading{source, findings, Job()}, data);
    ASSERT_EQ(data.rows.size(), 2U) << "June has no 31st day";
    EXPECT_EQ(data.rows[1].arrival, 0);
    EXPECT_EQ(findings.count(kBadRow), 1);
}

TEST(Readers, TailsOfBothRegistries) {
    Findings findings;
    const auto tails = read(readTails, kPlaneData, findings);
    ASSERT_EQ(tails.size(), 1U);
    EXPECT_EQ(tails[0].model, "737-7H4");
    EXPECT_EQ(read(readRegistry, kMaster, findings)[0].tail, "N1");
    EXPECT_EQ(read(readRegistryModels, kAcftref, findings)[0].maker, "BOEING");
}

TEST(Readers, OwnFlightsInPart) {
    Findings findings;
    const auto rows = read(readOwnFlights, kOwnFlights, findings);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].days, 31);
    EXPECT_EQ(rows[0].miles, -1);
    EXPECT_EQ(findings.count(kBadRow), 1);
}

TEST(Sources, TheNewerNavigationWinsInAnyOrder) {
    for (const bool turned : {false, true}) {
        std::vector<Source> sources{textSource(turned ? "b" : "a", kFixesOld),
                                    textSource(turned ? "a" : "b", kFixesNew)};
        Findings findings;
        std::vector<std::string> faults;
        const RawTables all = readSources(sources, false, findings, faults, Job());
        EXPECT_EQ(all.fixes.edition.head.cycle, "2107");
        EXPECT_EQ(all.fixes.edition.head.copyright, "Copyright (c) 2021 Body");
        EXPECT_EQ(faults.size(), 0U);
        EXPECT_NE(all.files[0].used, all.files[1].used);
    }
}

TEST(Sources, AnUnknownFileStopsUnlessItIsSkipped) {
    Findings findings;
    std::vector<std::string> faults;
    readSources({textSource("notes.txt", "hello\n")}, false, findings, faults, Job());
    EXPECT_EQ(faults, std::vector<std::string>{"notes.txt: a table of no known form"});
    faults.clear();
    readSources({textSource("notes.txt", "hello\n")}, true, findings, faults, Job());
    EXPECT_EQ(faults.size(), 0U);
}

TEST(Sources, ALineWithoutEndIsNoTable) {
    const SourceInfo info = lookAt(textSource("x", std::string(500000, 'x')));
    EXPECT_EQ(info.kind, Kind::Unknown);
    Findings findings;
    std::vector<std::string> faults;
    readSources({textSource("x", kRoutesDat + std::string(500000, 'x'))}, false, findings, faults, Job());
    ASSERT_EQ(faults.size(), 1U);
    EXPECT_EQ(faults[0], "x: line 5 is longer than that of any table");
}

TEST(Cells, NumbersReadTheSameInEveryLocale) {
    EXPECT_EQ(realIn("+1.5"), 1.5);
    EXPECT_EQ(realIn("1,5"), std::nullopt);
    EXPECT_EQ(realIn("nan"), std::nullopt);
    EXPECT_EQ(wholeIn("60.00"), 60);
    EXPECT_EQ(wholeIn("60.5"), std::nullopt);
    EXPECT_EQ(latitudeIn("90.1"), std::nullopt);
}

TEST(Cells, QuotesDoubledAndBehindABackslash) {
    Cells c;
    EXPECT_TRUE(c.commas("a,\"b \"\"c\"\", d\",\\N"));
    EXPECT_EQ(c[1], "b \"c\", d");
    EXPECT_EQ(c[2], "");
    EXPECT_TRUE(c.commas("\"b \\\"c\\\"\",x", Quotes::Backslash));
    EXPECT_EQ(c[0], "b \"c\"");
    EXPECT_FALSE(c.commas("\"open"));
    EXPECT_FALSE(c.commas("\"a\"b"));
}

} // namespace
} // namespace gatewise::importer
