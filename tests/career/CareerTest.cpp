#include "career/CareerPictures.h"

#include "platform/Machine.h"

#include <algorithm>
#include <ctime>
#include <gtest/gtest.h>

namespace gatewise {
namespace {

Tables world() {
    Tables tables;
    const auto add = [&](const char* icao, float latitude, float longitude) {
        AirportRecord airport;
        airport.Icao = icao;
        airport.Latitude = latitude, airport.Longitude = longitude;
        tables.airports.insert(tables.airports.end() - 1, airport);
    };
    add("KAAA", 0, 0);
    add("KBBB", 0, 10); // 600 NM
    add("KCCC", 10, 0); // 600 NM
    return tables;
}

LogRecord entry(const char* from, const char* to, int year, int month, float day, float night = 0) {
    LogRecord e;
    e.date = static_cast<double>(daySerial({year, month, 15, 0, 0, 0}));
    e.departureIcao = from;
    e.arrivalIcao = to;
    e.aircraft = "Boeing 737";
    e.airline = "Sample Air";
    e.dayHours = day, e.nightHours = night, e.instrumentHours = 0.5F;
    return e;
}

std::string valueOf(const std::vector<CareerRow>& rows, const std::string& name) {
    const auto at =
        std::find_if(rows.begin(), rows.end(), [&](const CareerRow& r) { return r.first == name; });
    return at == rows.end() ? "none" : at->second;
}

TEST(Career, OfAnEmptyLogAllSumsAreNothing) {
    const Career career = careerOf({}, world());
    EXPECT_EQ(career.flights, 0);
    EXPECT_EQ(valueOf(careerRows(career, NumberLocale()), "Total hours"), "0.0");
    EXPECT_EQ(valueOf(careerRows(career, NumberLocale()), "Longest flight"), "none");
    EXPECT_TRUE(careerBars(career).texts.empty());
    EXPECT_TRUE(careerScene(career, nullptr).routes.empty());
}

TEST(Career, OneEntry) {
    const Career career = careerOf({entry("KAAA", "KBBB", 2002, 6, 1.5F, 0.5F)}, world());
    const auto rows = careerRows(career, NumberLocale());
    EXPECT_EQ(valueOf(rows, "Flights"), "1");
    EXPECT_EQ(valueOf(rows, "Total hours"), "2.0");
    EXPECT_EQ(valueOf(rows, "Night hours"), "0.5");
    EXPECT_EQ(valueOf(rows, "Instrument hours"), "0.5");
    EXPECT_EQ(valueOf(rows, "Miles"), "600");
    EXPECT_EQ(valueOf(rows, "Airports visited"), "2");
    EXPECT_EQ(valueOf(rows, "Longest flight"), "KAAA - KBBB, 600 NM");
    EXPECT_EQ(valueOf(rows, "On time"), "100 %");
    EXPECT_EQ(valueOf(rows, "Not on the map"), "none");
    EXPECT_EQ(career.months[5].flights, 1);
    EXPECT_EQ(career.years.at(2002).flights, 1);
}

TEST(Career, BothDirectionsAreOneRoute) {
    const Career career = careerOf({entry("KAAA", "KBBB", 2002, 6, 1), entry("KBBB", "KAAA", 2002, 7, 1),
                                    entry("KAAA", "KCCC", 2003, 7, 1)},
                                   world());
    ASSERT_EQ(career.map.size(), 2U);
    EXPECT_EQ(career.map[0].flights, 2);
    EXPECT_EQ(career.routes[0].name, "KAAA - KBBB");
    EXPECT_EQ(career.airports[0].name, "KAAA");
    EXPECT_EQ(career.airports[0].flights, 3);
    EXPECT_NEAR(career.miles, 1800, 1e-6);
    const MapScene scene = careerScene(career, nullptr);
    EXPECT_GT(scene.routes[0].width, scene.routes[1].width);
    EXPECT_EQ(scene.places[0].name, "KAAA");
}

TEST(Career, WhatIsNotInTheTableIsSaid) {
    const Career career = careerOf({entry("KAAA", "ZZZZ", 2002, 6, 1), entry("", "", 2002, 6, 1),
                                    entry("KAAA", "YYYY", 2002, 6, 1), entry("KAAA", "KBBB", 2002, 6, 1)},
                                   world());
    EXPECT_EQ(career.unknown, 3);
    EXPECT_EQ(valueOf(careerRows(career, NumberLocale()), "Not on the map"), "3 entries of unknown airports");
    EXPECT_NEAR(career.miles, 600, 1e-6);
    EXPECT_EQ(career.flights, 4);
    EXPECT_NE(careerScene(career, nullptr).summary.find("3 entries of unknown airports"), std::string::npos);
}

TEST(Career, AFlightToWhereItBeganHasNoMiles) {
    const Career career = careerOf({entry("KAAA", "KAAA", 2002, 6, 1)}, world());
    EXPECT_EQ(career.miles, 0);
    EXPECT_EQ(career.longest, "KAAA - KAAA");
    EXPECT_EQ(career.airports[0].flights, 1);
}

TEST(Career, PunctualityTakesTheNearerSideOfMidnight) {
    LogRecord late = entry("KAAA", "KBBB", 2002, 6, 1);
    late.scheduledArrival = 2350, late.actualArrival = 20; // half an hour late
    LogRecord early = entry("KAAA", "KBBB", 2002, 6, 1);
    early.scheduledArrival = 10, early.actualArrival = 2340; // half an hour early
    LogRecord close = entry("KAAA", "KBBB", 2002, 6, 1);
    close.scheduledArrival = 1000, close.actualArrival = 1015;
    const Career career = careerOf({late, early, close}, world());
    EXPECT_EQ(career.onTime, 2);
    EXPECT_NEAR(career.delay, 5, 1e-9);
}

TEST(Career, FiltersByYearAircraftAndAirline) {
    LogRecord other = entry("KAAA", "KCCC", 2003, 1, 1);
    other.aircraft = "Cessna 172";
    other.airline = "Own";
    const std::vector<LogRecord> log{entry("KAAA", "KBBB", 2002, 6, 1), other};
    EXPECT_EQ(careerOf(log, world(), {2003, "", ""}).flights, 1);
    EXPECT_EQ(careerOf(log, world(), {0, "Cessna 172", ""}).flights, 1);
    EXPECT_EQ(careerOf(log, world(), {0, "", "Own"}).flights, 1);
    EXPECT_EQ(careerOf(log, world(), {2002, "Cessna 172", ""}).flights, 0);
    const CareerChoices choices = careerChoices(log);
    EXPECT_EQ(choices.years, (std::vector{2003, 2002}));
    EXPECT_EQ(choices.airlines, (std::vector<std::string>{"Own", "Sample Air"}));
}

TEST(Career, DamagedEntriesCountAsFarAsTheyCan) {
    LogRecord bad = entry("KAAA", "KBBB", 2002, 6, std::numeric_limits<float>::quiet_NaN());
    bad.date = 1e300;
    bad.actualArrival = -32768;
    const Career career = careerOf({bad}, world());
    EXPECT_EQ(career.total(), 0);
    EXPECT_TRUE(career.years.empty());
    EXPECT_NO_FATAL_FAILURE(careerBars(career));
}

TEST(Career, TheBarsSayWhatTheyCount) {
    const Drawing bars =
        careerBars(careerOf({entry("KAAA", "KBBB", 2001, 6, 1), entry("KAAA", "KBBB", 2002, 6, 1)}, world()));
    EXPECT_EQ(bars.areas.size(), 3U); // one month, two years
    EXPECT_EQ(bars.summary, "Flights by year: 2001 1, 2002 1.");
    const auto two =
        std::count_if(bars.texts.begin(), bars.texts.end(), [](auto& t) { return t.text == "2"; });
    EXPECT_EQ(two, 1);
}

TEST(Career, TenThousandEntriesAreQuick) {
    std::vector<LogRecord> log;
    for (int i = 0; i < kLogEntries; ++i)
        log.push_back(entry(i % 2 ? "KAAA" : "KBBB", i % 3 ? "KCCC" : "KAAA", 1990 + i % 20, 1 + i % 12, 1));
    const std::clock_t start = std::clock();
    const Career career = careerOf(log, world());
    const double milliseconds = 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    EXPECT_EQ(career.flights, kLogEntries);
    EXPECT_LT(milliseconds, 1000) << "50 ms on a quiet machine; the bench measures it";
}

TEST(Career, TheTextIsATable) {
    EXPECT_EQ(careerText({{"Flights", "1"}, {"Miles", "600"}}), "Flights\t1\r\nMiles\t600\r\n");
}

} // namespace
} // namespace gatewise
