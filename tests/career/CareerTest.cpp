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
        airport.Icao = icao, airport.Iata = icao + 1, airport.Name = std::string("Field ") + icao;
        airport.Latitude = latitude, airport.Longitude = longitude;
        tables.airports.insert(tables.airports.end() - 1, airport);
    };
    add("KAAA", 0, 0);
    add("KBBB", 0, 10); // 600 NM
    add("KCCC", 10, 0); // 600 NM
    tables.aircraft.resize(1);
    tables.aircraft[0].Code = "73X", tables.aircraft[0].Name = "Boeing 737";
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
    LogRecord one = entry("KAAA", "KBBB", 2002, 6, 1.5F, 0.5F);
    one.scheduledArrival = one.actualArrival = 900;
    const Career career = careerOf({one}, world());
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

TEST(Career, AirportsAreFoundByIataCodeAndByNameToo) {
    LogRecord iata = entry("AAA", "KBBB", 2002, 6, 1);
    LogRecord named = entry("", "KBBB", 2002, 6, 1);
    named.departureName = "field kaaa";
    const Career career = careerOf({iata, named, entry("KAAA", "KBBB", 2002, 6, 1)}, world());
    EXPECT_EQ(career.unknown, 0);
    ASSERT_EQ(career.routes.size(), 1U) << "one route, whatever it is called";
    EXPECT_EQ(career.routes[0].name, "KAAA - KBBB");
    EXPECT_NEAR(career.miles, 1800, 1e-6);
}

TEST(Career, AnUnknownAirportGoesByItsNameWhereItHasNoCode) {
    LogRecord named = entry("", "KBBB", 2002, 6, 1);
    named.departureName = "Nowhere";
    const Career career = careerOf({named}, world());
    EXPECT_EQ(career.unknown, 1);
    EXPECT_EQ(career.routes[0].name, "KBBB - Nowhere");
    EXPECT_EQ(career.places.size(), 1U);
}

TEST(Career, AircraftHaveTheirCodesAndUnknownOnesAreSaid) {
    LogRecord glider = entry("KAAA", "KBBB", 2002, 6, 1);
    glider.aircraft = "Glider";
    LogRecord none = entry("KAAA", "KBBB", 2002, 6, 1);
    none.aircraft = "";
    const auto rows = careerRows(
        careerOf({entry("KAAA", "KBBB", 2002, 6, 1), entry("KAAA", "KBBB", 2002, 6, 1), glider, none},
                 world()),
        NumberLocale());
    EXPECT_EQ(valueOf(rows, "Aircraft 1"), "Boeing 737 (73X), 2 flights");
    EXPECT_EQ(valueOf(rows, "Aircraft 2"), "Glider, 1 flight");
    EXPECT_EQ(valueOf(rows, "Without a type"), "2 entries of unknown aircraft");
}

TEST(Career, WithoutAnyTimeNothingIsOnTime) {
    LogRecord timed = entry("KAAA", "KBBB", 2002, 6, 1);
    timed.scheduledArrival = 900, timed.actualArrival = 930;
    const LogRecord untimed = entry("KAAA", "KBBB", 2002, 6, 1);
    const auto rows = careerRows(careerOf({timed, untimed, untimed}, world()), NumberLocale());
    EXPECT_EQ(valueOf(rows, "On time"), "0 %");
    EXPECT_EQ(valueOf(rows, "Mean arrival"), "30 min late");
    const auto none = careerRows(careerOf({untimed}, world()), NumberLocale());
    EXPECT_EQ(valueOf(none, "On time"), "none");
}

TEST(Career, TheTableHasWhatTheBarsShow) {
    const auto rows = careerRows(
        careerOf({entry("KAAA", "KBBB", 2001, 6, 1.5F), entry("KAAA", "KBBB", 2002, 6, 1)}, world()),
        NumberLocale());
    EXPECT_EQ(valueOf(rows, "Year 2001"), "1 flight, 1.5 hours");
    EXPECT_EQ(valueOf(rows, "June"), "2 flights, 2.5 hours");
    EXPECT_EQ(valueOf(rows, "May"), "none");
}

TEST(Career, WhatStandsOnTheMapCanBePickedByItsNumber) {
    const MapScene scene = careerScene(
        careerOf({entry("KAAA", "KBBB", 2002, 6, 1), entry("KAAA", "KCCC", 2002, 6, 1)}, world()), nullptr);
    ASSERT_EQ(scene.places.size(), 3U);
    ASSERT_EQ(scene.routes.size(), 2U);
    EXPECT_EQ(scene.places[0].id, 0);
    EXPECT_EQ(scene.routes[0].id, 3);
    EXPECT_EQ(scene.routes[1].id, 4);
    EXPECT_EQ(scene.places[0].words, "KAAA, 2 departures and arrivals");
    EXPECT_EQ(scene.routes[0].words, "KAAA - KBBB, 1 flight, 600 NM");
}

int countTexts(const Drawing& drawing, const std::string& text) {
    return static_cast<int>(
        std::count_if(drawing.texts.begin(), drawing.texts.end(), [&](auto& t) { return t.text == text; }));
}

TEST(Career, NumbersThatWouldLieOnEachOtherStandAtTheHighestBarAlone) {
    std::vector<LogRecord> log(120, entry("KAAA", "KBBB", 2002, 6, 1));
    log.push_back(entry("KAAA", "KBBB", 2002, 7, 1));
    const Drawing bars = careerBars(careerOf(log, world()));
    EXPECT_EQ(countTexts(bars, "120"), 1); // June
    EXPECT_EQ(countTexts(bars, "1"), 0);   // July
    EXPECT_EQ(countTexts(bars, "121"), 1); // the one year has room
    for (const auto& text : bars.texts) EXPECT_GE(text.at.y, 0.05) << text.text;
}

TEST(Career, ManyYearsStandWithoutTheirCenturies) {
    std::vector<LogRecord> log;
    for (int year = 1990; year < 2005; ++year) log.push_back(entry("KAAA", "KBBB", year, 1, 1));
    const Drawing bars = careerBars(careerOf(log, world()));
    EXPECT_EQ(countTexts(bars, "04"), 1);
    EXPECT_EQ(countTexts(bars, "93"), 1);
    EXPECT_EQ(countTexts(bars, "92"), 0) << "the last twelve";
    EXPECT_NE(bars.summary.find("1990 1, 1991 1"), std::string::npos);
    for (const auto& text : bars.texts) {
        EXPECT_GT(text.at.x, 0);
        EXPECT_LT(text.at.x, 1);
    }
}

/// A digit is 6 pixels wide on the smallest sheet, which has 296.
TEST(Career, YearsDoNotRunIntoEachOther) {
    for (int years = 2; years <= 12; ++years) {
        std::vector<LogRecord> log;
        for (int i = 0; i < years; ++i) log.push_back(entry("KAAA", "KBBB", 1999 + i, 1, 1));
        const Drawing bars = careerBars(careerOf(log, world()));
        double end = 0;
        int names = 0;
        for (const auto& text : bars.texts) {
            if (text.at.y < 0.9 || text.text.size() < 2) continue; // a number, or a month
            const double half = static_cast<double>(text.text.size()) * 3 / 296;
            EXPECT_GT(text.at.x - half, end + 2.0 / 296) << years << " years, " << text.text;
            EXPECT_LE(text.at.x + half, 1);
            end = text.at.x + half;
            ++names;
        }
        EXPECT_EQ(names, years);
    }
    const std::vector<LogRecord> four{entry("KAAA", "KBBB", 1999, 1, 1), entry("KAAA", "KBBB", 2000, 1, 1),
                                      entry("KAAA", "KBBB", 2001, 1, 1), entry("KAAA", "KBBB", 2002, 1, 1)};
    EXPECT_EQ(countTexts(careerBars(careerOf(four, world())), "1999"), 1) << "four have room for all digits";
}

TEST(Career, WithoutADateThereAreNoYears) {
    LogRecord bad = entry("KAAA", "KBBB", 2002, 6, 1);
    bad.date = 1e300;
    EXPECT_EQ(careerBars(careerOf({bad}, world())).summary, "No flight has a date.");
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
    EXPECT_EQ(bars.summary, "Flights by year: 2001 1, 2002 1; by month: June 2.");
    EXPECT_GT(bars.aspect, 1);
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
