#include "gt1/Commands.h"
#include "gt1/Folders.h"
#include "gt1/Pack.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>

namespace gatewise::gt1 {
namespace {

using Lines = std::vector<std::string>;

/// Compiles the tiny world after `change`; nothing may be written when there are errors.
class CompileErrors : public testing::Test {
protected:
    Lines errors() {
        const test::TempFolder folder;
        writeFolder(tables, folder / "source");
        Report report;
        compileFolder(folder / "source", folder / "target", std::nullopt, report);
        EXPECT_EQ(std::filesystem::exists(folder / "target"), !report.failed());
        warnings = report.warnings();
        source = (folder / "source").string();
        return report.errors();
    }

    TableTexts tables = tinyWorld();
    Lines warnings;
    std::string source;
};

/// The tiny world has an airline with quotes in its name, which no file name takes.
const std::string kQuotedName = "airlines.csv:3: column 2 (name): \"Quote \"Q\" Lines\" cannot stand in a "
                                "file name: plans and situations of "
                                "these flights cannot be written";

TEST_F(CompileErrors, TheTinyWorldHasNone) {
    EXPECT_EQ(errors(), Lines{});
    EXPECT_EQ(warnings, Lines{kQuotedName});
}

TEST_F(CompileErrors, NamesThatNoFileNameTakesAreAWarning) {
    edit(tables["airlines.csv"], "\"Quote \"\"Q\"\" Lines\"", "../../esc");
    edit(tables["airports.csv"], "BBB,", "B:B,");
    for (const char* table : {"runways.csv", "radios.csv", "flights.csv", "plans.csv"}) {
        for (std::string& text = tables[table]; text.find("BBB") != std::string::npos;)
            edit(text, "BBB", "B:B");
    }
    EXPECT_EQ(errors(), Lines{});
    ASSERT_EQ(warnings.size(), 2U);
    EXPECT_EQ(warnings[0].substr(0, 46), "airlines.csv:3: column 2 (name): \"../../esc\" c");
    EXPECT_EQ(warnings[1].substr(0, 40), "airports.csv:3: column 1 (iata): \"B:B\" c");
}

TEST_F(CompileErrors, AFlightNeedsADayToFly) {
    tables["flights.csv"] = std::regex_replace(tables["flights.csv"], std::regex(",1234567,"), ",,");
    const Lines found = errors();
    ASSERT_FALSE(found.empty());
    EXPECT_NE(found[0].find(
                  "column 6 (days): expected days from 1, Monday, to 7, Sunday, each once, found nothing"),
              std::string::npos)
        << found[0];
}

TEST_F(CompileErrors, TooManyFlightsOfAnAirportAreNamedByTheirLine) {
    std::string& flights = tables["flights.csv"];
    const std::string line = flights.substr(flights.find('\n') + 1,
                                            flights.find('\n', flights.find('\n') + 1) - flights.find('\n'));
    for (int i = 0; i < 32767; ++i) flights += line;
    const Lines found = errors();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].substr(0, 12), "flights.csv:");
    EXPECT_NE(found[0].find("(origin): expected at most 32767 flights of one airport, found one more"),
              std::string::npos)
        << found[0];
}

TEST_F(CompileErrors, TextThatDoesNotFitItsField) {
    edit(tables["airports.csv"], "Bravo Intl", "An airport name of exactly 36 letters");
    edit(tables["airports.csv"], "An airport name of exactly 36 letters",
         "123456789012345678901234567890123456");
    edit(tables["vor.csv"], "117.40", "1117.40");
    edit(tables["aircraft.csv"], "AT7,", "AT72,");
    edit(tables["flights.csv"], "AT7,", "AT72,");
    const Lines found = errors();
    ASSERT_EQ(found.size(), 4U);
    EXPECT_EQ(found[0],
              "aircraft.csv:3: column 1 (code): expected a code of 1 to 3 characters without blanks, "
              "found \"AT72\"");
    EXPECT_EQ(found[1],
              "vor.csv:2: column 5 (frequency): expected at most 6 characters, found 7: \"1117.40\"");
    EXPECT_EQ(found[2], "airports.csv:3: column 3 (name): expected at most 35 characters, found 36: "
                        "\"123456789012345678901234567890123456\"");
    EXPECT_EQ(found[3], "flights.csv:4: column 9 (aircraft): expected a code of 1 to 3 characters without "
                        "blanks, found \"AT72\"");
}

TEST_F(CompileErrors, TextThatJustFits) {
    edit(tables["airports.csv"], "Bravo Intl", "12345678901234567890123456789012345");
    EXPECT_EQ(errors(), Lines{});
}

TEST_F(CompileErrors, UnknownCodes) {
    edit(tables["flights.csv"], "AAA,0005,BBB", "AAB,0005,BBC");
    edit(tables["flights.csv"], "X0,2,AT7", "X1,2,AT8");
    edit(tables["runways.csv"], "CCC,09", "CCD,09");
    edit(tables["plans.csv"], "V,PUT.2", "V,PUT.3");
    edit(tables["flights.csv"], ",x,2", ",x,22");
    const Lines found = errors();
    const std::string airport = "expected the iata code of an airport in airports.csv, found ";
    const Lines expected{
        "runways.csv:4: column 1 (airport): " + airport + "\"CCD\"",
        "flights.csv:2: column 1 (origin): " + airport + "\"AAB\"",
        "flights.csv:2: column 3 (destination): " + airport + "\"BBC\"",
        "flights.csv:4: column 7 (airline): expected the code of an airline in airlines.csv, found \"X1\"",
        "flights.csv:4: column 9 (aircraft): expected the code of an aircraft in aircraft.csv, found \"AT8\"",
        "flights.csv:3: column 13 (plan): expected the number of a plan in plans.csv, found 22",
    };
    ASSERT_GE(found.size(), expected.size());
    for (const auto& line : expected)
        EXPECT_NE(std::find(found.begin(), found.end(), line), found.end()) << line;
    const std::string fix = "plans.csv:3: column 6 (fix): expected a record of vor.csv, found \"PUT.3\"";
    EXPECT_NE(std::find(found.begin(), found.end(), fix), found.end());
}

TEST_F(CompileErrors, UnknownLetters) {
    edit(tables["flights.csv"], "320,A,", "320,H,");
    edit(tables["flights.csv"], "AT7,F,", "AT7,,");
    edit(tables["jets.csv"], "-5.04,V", "-5.04,X");
    edit(tables["plans.csv"], "4,I,", "4,Q,");
    edit(tables["plans.csv"], "3,N,", "3,,");
    EXPECT_EQ(
        errors(),
        (Lines{"jets.csv:3: column 6 (kind): expected one of the letters V N I, found \"X\"",
               "flights.csv:2: column 10 (class): expected one of the letters A B C D E F G, found \"H\"",
               "flights.csv:4: column 10 (class): expected one of the letters A B C D E F G, found nothing",
               "plans.csv:4: column 5 (kind): expected one of the letters V N I H, found nothing",
               "plans.csv:5: column 5 (kind): expected one of the letters V N I H, found \"Q\""}));
}

TEST_F(CompileErrors, DuplicateAirports) {
    tables["airports.csv"] += "AAA,KDDD,Delta,Delta,1,1,1\nEEE,KBBB,Echo,Echo,1,1,1\n";
    tables["radios.csv"] += "EEE,,,,,,,\n";
    EXPECT_EQ(
        errors()[0],
        "airports.csv:5: column 1 (iata): expected each iata once, found \"AAA\" again, first in line 2");
    EXPECT_EQ(
        errors()[1],
        "airports.csv:6: column 2 (icao): expected each icao once, found \"KBBB\" again, first in line 3");
}

TEST_F(CompileErrors, OtherDuplicates) {
    tables["airlines.csv"] += "X0,Again,AGAIN\n";
    tables["aircraft.csv"] += "320,Again,1,1,1,1,,\n";
    tables["radios.csv"] += "AAA,,,,,,,\n";
    tables["runways.csv"] += "AAA,04L,1,1,1,1,NO ILS,\n";
    EXPECT_EQ(
        errors(),
        (Lines{
            "aircraft.csv:4: column 1 (code): expected each code once, found \"320\" again, first in line 2",
            "airlines.csv:4: column 1 (code): expected each code once, found \"X0\" again, first in line "
            "2",
            "runways.csv:5: column 2 (runway): expected each runway once, found \"AAA 04L\" again, first in "
            "line 2",
            "radios.csv:5: column 1 (airport): expected each airport once, found \"AAA\" again, first in "
            "line 2"}));
}

TEST_F(CompileErrors, APlanOf198PointsFitsOneOf199DoesNot) {
    const auto points = [](int count) {
        std::string out;
        for (int i = 2; i <= count; ++i) out += "3,BBB,AAA," + std::to_string(i) + ",I,53N20,\n";
        return out;
    };
    const std::string plans = tables["plans.csv"];
    tables["plans.csv"] = plans + points(198);
    EXPECT_EQ(errors(), Lines{});
    tables["plans.csv"] = plans + points(199);
    EXPECT_EQ(errors(),
              Lines{"plans.csv:205: column 4 (sequence): expected at most 198 points in a plan, found 199 "
                    "in plan 3"});
}

TEST_F(CompileErrors, PlansHaveNoGaps) {
    edit(tables["plans.csv"], "1,AAA,BBB,3,N", "1,AAA,BBB,4,N");
    EXPECT_EQ(errors(),
              Lines{"plans.csv:4: column 4 (sequence): expected 3, the next point of plan 1, found 4"});
    tables = tinyWorld();
    tables["plans.csv"] += "5,,,0,,,\n";
    EXPECT_EQ(errors(),
              Lines{"plans.csv:8: column 1 (plan): expected plan 4: the numbers run from 1 without gaps, "
                    "found 5"});
    tables = tinyWorld();
    edit(tables["plans.csv"], "2,AAA,CCC,0,,,", "2,AAA,CCC,0,I,53N20,");
    EXPECT_EQ(errors(),
              Lines{"plans.csv:6: column 4 (sequence): expected 1 for the first point; 0 stands for a "
                    "plan without points, found 0"});
}

TEST_F(CompileErrors, APlanNamesTheAirportsOfItsFlights) {
    edit(tables["plans.csv"], "3,BBB,AAA,1", "3,BBB,CCC,1");
    EXPECT_EQ(errors(),
              Lines{"plans.csv:7: column 3 (destination): expected AAA, as the flights with this plan have "
                    "it, found \"CCC\""});
    tables = tinyWorld();
    tables["plans.csv"] += "4,AAA,BBB,0,,,\n";
    EXPECT_EQ(errors().size(), 2U);
    tables = tinyWorld();
    tables["plans.csv"] += "4,,,0,,,\n";
    EXPECT_EQ(errors(), Lines{});
}

TEST_F(CompileErrors, NumbersTimesAndMasks) {
    edit(tables["flights.csv"], "0005", "2400");
    edit(tables["flights.csv"], "0210", "210");
    edit(tables["flights.csv"], "640,1234567", "6.5,12344");
    edit(tables["flights.csv"], "B L D S Bev", "B B");
    edit(tables["flights.csv"], "QQ9,9999", "QQ9,10000");
    edit(tables["airports.csv"], "41.9786", "91");
    edit(tables["airports.csv"], "8361", "high");
    EXPECT_EQ(
        errors(),
        (Lines{
            "airports.csv:3: column 6 (latitude): expected a number from -90 to 90, found \"91\"",
            "airports.csv:4: column 5 (elevation_ft): expected a whole number from -2000 to 30000, found "
            "\"high\"",
            "flights.csv:2: column 2 (departure): expected a time of day as four digits HHMM, found \"2400\"",
            "flights.csv:2: column 4 (arrival): expected a time of day as four digits HHMM, found \"210\"",
            "flights.csv:2: column 5 (miles): expected a whole number from 0 to 32767, found \"6.5\"",
            "flights.csv:2: column 6 (days): expected days from 1, Monday, to 7, Sunday, each once, found "
            "\"12344\"",
            "flights.csv:2: column 11 (meals): expected meals of B L D S Bev, each once, with a blank "
            "between, "
            "found \"B B\"",
            "flights.csv:3: column 8 (number): expected a whole number from 0 to 9999, found \"10000\""}));
}

TEST_F(CompileErrors, BehindAGapThePlansAreStillChecked) {
    tables["plans.csv"] += "5,,,0,,,\n6,,,1,Q,1,\n";
    EXPECT_EQ(errors(),
              (Lines{"plans.csv:8: column 1 (plan): expected plan 4: the numbers run from 1 without gaps, "
                     "found 5",
                     "plans.csv:9: column 5 (kind): expected one of the letters V N I H, found \"Q\""}));
}

TEST_F(CompileErrors, ATableThatCannotBeReadHidesNoDuplicates) {
    tables["airports.csv"] += tables["airports.csv"].substr(tables["airports.csv"].find("AAA,"));
    edit(tables["airlines.csv"], "callsign", "sign");
    const Lines found = errors();
    EXPECT_NE(std::find_if(found.begin(), found.end(),
                           [](const std::string& line) {
                               return line.find("expected each iata once, found \"AAA\" again") !=
                                      std::string::npos;
                           }),
              found.end());
}

TEST_F(CompileErrors, TablesThatCannotBeRead) {
    tables.erase("airlines.csv");
    edit(tables["vor.csv"], "ident,name", "ident,title");
    edit(tables["ndb.csv"], "ALBA", "\"ALBA");
    tables["jets.csv"].clear();
    const Lines found = errors();
    EXPECT_EQ(found, (Lines{"vor.csv:1: column 2 (title): expected a column of this table, found \"title\"",
                            "vor.csv:1: expected a column name, found none in the header",
                            "ndb.csv:2: column 2 (name): expected a closing quote, found none",
                            "jets.csv: expected a header line, found an empty file",
                            "airlines.csv: expected this table in " + source +
                                ", found No such file or directory"}));
}

TEST_F(CompileErrors, LinesWithOtherNumbersOfColumns) {
    edit(tables["ndb.csv"], "381.0", "381.0,more");
    EXPECT_EQ(errors()[0], "ndb.csv:2: expected 5 columns, found 6");
}

TEST_F(CompileErrors, AnAirportWithoutRadios) {
    edit(tables["radios.csv"], "CCC,,,,,,,\n", "");
    EXPECT_EQ(errors(),
              Lines{"airports.csv:4: column 1 (iata): expected a row in radios.csv for each airport, found "
                    "none for CCC"});
}

TEST_F(CompileErrors, TextThatIsNoText) {
    edit(tables["airports.csv"], "Bravo Intl", "Br\xFFvo");
    edit(tables["airports.csv"], "Charlie,Charlie", "Char\tlie,Charlie");
    EXPECT_EQ(errors(),
              (Lines{"airports.csv:3: column 3 (name): expected text in UTF-8, found other bytes",
                     "airports.csv:4: column 3 (name): expected a text without control characters, found "
                     "\"Char\tlie\""}));
}

TEST_F(CompileErrors, CharactersOutsideThePageAreAWarning) {
    edit(tables["airlines.csv"], "\"Quote \"\"Q\"\" Lines\"", "Quote Q Lines");
    edit(tables["airports.csv"], "Bravo Intl",
         "\xC5\x81\xC3\xB3"
         "d\xC5\xBA");
    EXPECT_EQ(errors(), Lines{});
    EXPECT_EQ(warnings, Lines{"airports.csv:3: column 3 (name): \"\xC5\x81\xC3\xB3"
                              "d\xC5\xBA\" became \"L\xC3\xB3"
                              "dz\""});
}

TEST_F(CompileErrors, AFurtherSetBringsNoSharedTables) {
    const test::TempFolder folder;
    writeFolder(tables, folder / "world");
    tables.erase("vor.csv");
    tables.erase("ndb.csv");
    tables.erase("jets.csv");
    writeFolder(tables, folder / "source");
    Report report;
    compileFolder(folder / "source", folder / "target", folder / "world", report);
    ASSERT_EQ(report.errors().size(), 2U);
    EXPECT_EQ(report.errors()[0],
              "aircraft.csv: expected this table in the main set alone, since all sets share it, "
              "found one in " +
                  (folder / "source").string());
}

TEST(CompileFolder, WhereOneFileCannotBeReplacedTheOldSetStaysWhole) {
    const test::TempFolder folder;
    const auto source = folder / "source";
    const auto target = folder / "target";
    TableTexts tables = tinyWorld();
    writeFolder(tables, source);
    Report first;
    compileFolder(source, target, std::nullopt, first);
    ASSERT_FALSE(first.failed());
    const auto before = readFolder(target);

    std::filesystem::permissions(target / "routes.gt1", std::filesystem::perms::owner_read);
    edit(tables["airlines.csv"], "X0,", "X1,");
    edit(tables["flights.csv"], "X0,", "X1,");
    writeFolder(tables, source);
    Report second;
    EXPECT_EQ(compileFolder(source, target, std::nullopt, second), "");
    EXPECT_TRUE(second.failed());
    EXPECT_EQ(readFolder(target), before);
}

TEST(Positions, CountFromOneAndEndAtTwoToThe31) {
    Report report;
    EXPECT_EQ(filePosition("routes.gt1", "the flights", 0, report), 1);
    EXPECT_EQ(filePosition("routes.gt1", "the flights", 2147483646, report), 2147483647);
    EXPECT_FALSE(report.failed());
    filePosition("routes.gt1", "the flights", 2147483647, report);
    EXPECT_EQ(report.errors(),
              Lines{"routes.gt1: expected the flights to begin at byte 2147483647 at the latest, "
                    "found byte 2147483648"});
}

TEST(Positions, AnAirportHas32767FlightsAtMost) {
    Report report;
    EXPECT_EQ(flightCount("routes.gt1", "AAA", 32767, report), 32767);
    EXPECT_FALSE(report.failed());
    flightCount("routes.gt1", "AAA", 32768, report);
    EXPECT_EQ(report.errors(), Lines{"routes.gt1: expected at most 32767 flights at AAA, found 32768"});
}

} // namespace
} // namespace gatewise::gt1
