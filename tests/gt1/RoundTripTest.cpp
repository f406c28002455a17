#include "gt1/Commands.h"
#include "gt1/Folders.h"
#include "gt1/Unpack.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace gatewise::gt1 {
namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

Files compiled(const fs::path& source, const fs::path& target,
               const std::optional<fs::path>& world = std::nullopt) {
    Report report;
    compileFolder(source, target, world, report);
    EXPECT_EQ(report.errors(), std::vector<std::string>{});
    return readFolder(target);
}

Files dumped(const fs::path& folder, const fs::path& out,
             const std::optional<fs::path>& world = std::nullopt) {
    Report report;
    const auto tables = dumpFolder(folder, world, report);
    writeTables(tables, out, report);
    EXPECT_EQ(report.errors(), std::vector<std::string>{});
    return readFolder(out);
}

void expectInverse(const fs::path& source) {
    const test::TempFolder folder;
    const Files bytes = compiled(source, folder / "one");
    EXPECT_EQ(bytes.size(), 11U);
    EXPECT_EQ(dumped(folder / "one", folder / "tables"), readFolder(source));
    EXPECT_EQ(compiled(folder / "tables", folder / "two"), bytes);
}

TEST(RoundTrip, TheTinyWorld) {
    const test::TempFolder folder;
    writeFolder(tinyWorld(), folder.native());
    expectInverse(folder.native());
}

TEST(RoundTrip, TheSampleWorld) {
    expectInverse(sampleFolder());
}

/// The tables of the tiny world with a region for each point.
Files tinyWorldWithRegions() {
    Files world = tinyWorld();
    for (const char* table : {"vor.csv", "ndb.csv", "fixes.csv", "jets.csv"}) {
        std::string out;
        for (std::size_t at = 0; at < world[table].size();) {
            const std::size_t end = world[table].find('\n', at);
            out += world[table].substr(at, end - at) + (at == 0 ? ",region\n" : ",K7\n");
            at = end + 1;
        }
        world[table] = out;
    }
    return world;
}

TEST(RoundTrip, RegionsAreAColumnAndAFile) {
    const test::TempFolder folder;
    writeFolder(tinyWorldWithRegions(), folder / "tables");
    const Files bytes = compiled(folder / "tables", folder / "one");
    ASSERT_EQ(bytes.size(), 12U);
    EXPECT_NE(bytes.at("Regions.txt").find(" K7\n"), std::string::npos) << bytes.at("Regions.txt");
    EXPECT_EQ(dumped(folder / "one", folder / "again"), readFolder(folder / "tables"));
    EXPECT_EQ(compiled(folder / "again", folder / "two"), bytes);
    // The .gt1 files are those of the world without regions, and over an older world they go.
    writeFolder(tinyWorld(), folder / "plain");
    Files plain = compiled(folder / "plain", folder / "one");
    for (const auto& [name, content] : bytes)
        EXPECT_EQ(plain.at(name), name == "Regions.txt" ? "" : content) << name;
}

TEST(RoundTrip, ARegionThatIsNoneAndTwoOfOnePointAreErrors) {
    const test::TempFolder folder;
    Files world = tinyWorldWithRegions();
    std::string& vor = world["vor.csv"];
    vor.replace(vor.find(",K7\n"), 4, ",k7\n");
    writeFolder(world, folder / "tables");
    Report report;
    compileFolder(folder / "tables", folder / "one", std::nullopt, report);
    ASSERT_EQ(report.errors().size(), 1U);
    EXPECT_NE(report.errors()[0].find("vor.csv:2: column 6 (region): expected a region"), std::string::npos)
        << report.errors()[0];
    const test::TempFolder other;
    world = tinyWorldWithRegions();
    std::string& fixes = world["fixes.csv"];
    std::string again =
        fixes.substr(fixes.find('\n') + 1, fixes.find('\n', fixes.find('\n') + 1) - fixes.find('\n'));
    again.replace(again.size() - 3, 2, "ED");
    fixes += again;
    writeFolder(world, other / "tables");
    Report second;
    compileFolder(other / "tables", other / "one", std::nullopt, second);
    ASSERT_EQ(second.errors().size(), 1U);
    EXPECT_NE(second.errors()[0].find("as another row of this point has it"), std::string::npos);
}

TEST(RoundTrip, AFurtherSetUsesTheWorldOfTheFolderAbove) {
    const test::TempFolder folder;
    compiled(sampleFolder(), folder / "Data");
    const Files bytes = compiled(smallSampleFolder(), folder / "Data" / "Small", sampleFolder());
    EXPECT_EQ(bytes.size(), 6U);
    const Files tables = dumped(folder / "Data" / "Small", folder / "tables");
    EXPECT_EQ(tables, readFolder(smallSampleFolder()));
    EXPECT_EQ(compiled(folder / "tables", folder / "again", sampleFolder()), bytes);
}

TEST(RoundTrip, AFurtherSetFindsItsWorldWhereItIsTold) {
    const test::TempFolder folder;
    compiled(sampleFolder(), folder / "main");
    compiled(smallSampleFolder(), folder / "elsewhere" / "set", sampleFolder());
    EXPECT_EQ(dumped(folder / "elsewhere" / "set", folder / "tables", folder / "main"),
              readFolder(smallSampleFolder()));
}

TEST(RoundTrip, FlightsAreGroupedByDepartureAirportInStableOrder) {
    TableTexts tables = tinyWorld();
    std::string& flights = tables["flights.csv"];
    const std::string first =
        flights.substr(flights.find("AAA,0005"), flights.find("AAA,2359") - flights.find("AAA,0005"));
    edit(flights, first, "");
    flights += first;
    const test::TempFolder folder;
    writeFolder(tables, folder / "source");
    compiled(folder / "source", folder / "target");
    Report report;
    const DataSet set = unpackDataSet(folder / "target", report);
    ASSERT_EQ(set.flights.size(), 3U);
    EXPECT_EQ(set.flights[0].DepartureTime, 2359);
    EXPECT_EQ(set.flights[1].DepartureTime, 5);
    EXPECT_EQ(set.flights[2].OriginIata.view(), "BBB");
}

TEST(RoundTrip, ColumnsMayStandInAnyOrder) {
    TableTexts tables = tinyWorld();
    tables["airlines.csv"] =
        "callsign,code,name\nEXAMPLE,X0,Example Airways\nQUOTE,QQ9,\"Quote \"\"Q\"\" Lines\"\n";
    const test::TempFolder folder;
    writeFolder(tables, folder / "source");
    writeFolder(tinyWorld(), folder / "straight");
    EXPECT_EQ(compiled(folder / "source", folder / "a"), compiled(folder / "straight", folder / "b"));
}

TEST(Files, TheTinyWorldByteByByte) {
    const test::TempFolder folder;
    writeFolder(tinyWorld(), folder / "source");
    Files files = compiled(folder / "source", folder / "target");
    EXPECT_EQ(files["index.gt1"].size(), 3 * 107U);
    EXPECT_EQ(files["index.gt1"].substr(0, 42), "AAAKAAAAlpha Field                        ");
    EXPECT_EQ(files["routes.gt1"].size(), 3 * 32U);
    // BBB: one departure, the third flight; CCC: none, and one arrival
    EXPECT_EQ(files["index.gt1"].substr(107 + 75, 6), std::string("\x41\0\0\0\x01\0", 6));
    EXPECT_EQ(files["index.gt1"].substr(214 + 75, 6), std::string("\0\0\0\0\0\0", 6));
    // arrivals at AAA, BBB, CCC are the third, first and second flight
    EXPECT_EQ(files["arrivals.gt1"], std::string("\x41\0\0\0\x01\0\0\0\x21\0\0\0", 12));
    EXPECT_EQ(files["index.gt1"].substr(214 + 93, 6), std::string("\x09\0\0\0\x01\0", 6));
    // three positions, then 4 points, none, and 1
    EXPECT_EQ(files["Plans.gt1"].size(), 12 + (2 + 40) + 2 + (2 + 10U));
    EXPECT_EQ(files["Plans.gt1"].substr(0, 12), std::string("\x0D\0\0\0\x37\0\0\0\x39\0\0\0", 12));
    // high fixes are counted from 1, VOR from 0
    EXPECT_EQ(files["Plans.gt1"].substr(12, 22), std::string("\x04\0H\x02\0\0\0     V\x01\0\0\0J42  ", 22));
    EXPECT_EQ(files["APT.gt1"].size(), 3 * 34 + 3 * 42U);
    EXPECT_EQ(files["APT.gt1"].substr(21, 13), "IAAA   110.90");
    EXPECT_EQ(files["APT.gt1"].substr(34 + 21, 13), "NO ILS       ");
}

TEST(Dump, FilesThatAreMissingOrCutAreErrors) {
    const test::TempFolder folder;
    writeFolder(tinyWorld(), folder / "source");
    compiled(folder / "source", folder / "target");
    const auto target = folder / "target";
    fs::remove(target / "VOR.gt1");
    fs::resize_file(target / "routes.gt1", 40);
    fs::resize_file(target / "APT.gt1", 50);
    fs::resize_file(target / "Plans.gt1", 20);
    Report report;
    dumpFolder(target, std::nullopt, report);
    const auto& found = report.errors();
    ASSERT_GE(found.size(), 5U);
    EXPECT_EQ(found[0], "routes.gt1: expected a whole number of records of 32 bytes, found 40 bytes");
    EXPECT_EQ(found[1], "Plans.gt1: expected plan 1 inside the file, found position 13");
    EXPECT_EQ(found[2], "APT.gt1: expected the block of AAA inside the file, found position 1, 2 runways");
}

TEST(Dump, HostileNumbersAreErrors) {
    const test::TempFolder folder;
    writeFolder(tinyWorld(), folder / "source");
    Files files = compiled(folder / "source", folder / "target");
    files["index.gt1"].replace(99, 8, "\xFF\xFF\xFF\x7F\x00\x00\x00\x80",
                               8); // runways without end at no position
    files["routes.gt1"].replace(24, 2, "\xFF\xFF", 2);
    files["Plans.gt1"].replace(4, 4, "\xFF\xFF\xFF\xFF", 4);
    writeFolder(files, folder / "target");
    Report report;
    dumpFolder(folder / "target", std::nullopt, report);
    ASSERT_EQ(report.errors().size(), 3U);
    EXPECT_EQ(report.errors()[0], "Plans.gt1: expected plan 2 inside the file, found position -1");
    EXPECT_EQ(report.errors()[2], "routes.gt1: expected airports of the index in record 1, found airport -1");
}

struct Outcome {
    int code = 0;
    std::string out; // both streams
};

Outcome run(const std::string& arguments) {
    Outcome result;
    std::FILE* pipe = popen((std::string("\"") + GT1_TOOL + "\" " + arguments + " 2>&1").c_str(), "r");
    if (pipe == nullptr) return result;
    std::array<char, 4096> buffer{};
    while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), pipe))
        result.out.append(buffer.data(), got);
    result.code = WEXITSTATUS(pclose(pipe));
    return result;
}

TEST(Tool, CompilesDumpsAndSaysWhatIsWrong) {
    const test::TempFolder folder;
    const std::string at = folder.native().string();
    TableTexts tables = tinyWorld();
    edit(tables["airlines.csv"], "\"Quote \"\"Q\"\" Lines\"", "Quote Q Lines");
    writeFolder(tables, folder / "source");
    EXPECT_EQ(run("compile " + at + "/source " + at + "/target").out,
              at + "/target: 3 airports, 2 airlines, 3 flights, 3 plans\n");

    const Outcome dump = run("dump " + at + "/target");
    EXPECT_EQ(dump.code, 0);
    std::string expected;
    for (const char* name : {"airports", "runways", "radios", "airlines", "aircraft", "flights", "vor", "ndb",
                             "fixes", "jets", "plans"})
        expected += std::string("== ") + name + ".csv\n" + tables[std::string(name) + ".csv"];
    EXPECT_EQ(dump.out, expected);

    EXPECT_EQ(run("dump " + at + "/target " + at + "/out").code, 0);
    EXPECT_EQ(readFolder(folder / "out"), tables);

    edit(tables["airlines.csv"], "X0,", "X00Y,");
    edit(tables["ndb.csv"], "61.39528", "north");
    writeFolder(tables, folder / "source");
    const Outcome wrong = run("compile " + at + "/source " + at + "/nowhere");
    EXPECT_EQ(wrong.code, 1);
    EXPECT_NE(wrong.out.find("error: ndb.csv:2: column 3 (latitude): expected a number from -90 to 90, found "
                             "\"north\"\n"),
              std::string::npos);
    EXPECT_NE(wrong.out.find("error: airlines.csv:2: column 1 (code): "), std::string::npos);
    EXPECT_FALSE(fs::exists(folder / "nowhere"));
    EXPECT_EQ(run("").code, 2);
    EXPECT_EQ(run("compile one").code, 2);
    EXPECT_EQ(run("dump a --world").code, 2);
}

} // namespace
} // namespace gatewise::gt1
