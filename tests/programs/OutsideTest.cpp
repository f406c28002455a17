#include "AllFormats.h"
#include "Plans.h"

#include "platform/Text.h"
#include "support/TempFolder.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>

// Other programs read what is written.

namespace gatewise::test {
namespace {

/// What a command says on both outputs, and how it ended.
std::pair<std::string, int> run(const std::string& command) {
    std::FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) return {"cannot start", -1};
    std::string out;
    std::array<char, 4096> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe))
        out.append(part.data(), count);
    return {out, ::pclose(pipe)};
}

TEST(Outside, XmllintReadsTheXml) {
    const TempFolder folder;
    const auto route = routeOfPlan(mixedPlan(), true);
    std::string files;
    for (const programs::Format& format : programs::formats()) {
        const std::string bytes = format.write(route);
        if (!bytes.starts_with("<?xml")) continue;
        const std::string name = std::string("/") + format.key + ".xml";
        folder.write(name, bytes);
        files += " '" + folder.path() + name + "'";
    }
    EXPECT_EQ(run("xmllint --nonet --noout" + files), (std::pair<std::string, int>{"", 0}));
    for (const char* schema : {"Garmin", "GPX", "KML"}) {
        const auto [said, code] =
            run(std::string("xmllint --nonet --noout --schema '" GATEWISE_TEST_SOURCE_DIR
                            "/tests/programs/schemas/") +
                lowerCase(schema) + ".xsd' '" + folder.path() + "/" + schema + ".xml'");
        EXPECT_EQ(code, 0) << said;
    }
}

TEST(Outside, GpsbabelReadsTheGpx) {
    const TempFolder folder;
    folder.write("/plan.gpx", formatOf("GPX").write(routeOfPlan(mixedPlan())));
    const auto [said, code] = run("gpsbabel -r -i gpx -f '" + folder.path() + "/plan.gpx' -o unicsv -F -");
    EXPECT_EQ(code, 0);
    EXPECT_NE(said.find("2,33.629074,-84.435040,\"ATL\",2987.0"), std::string::npos) << said;
    EXPECT_NE(said.find("9,25.793300,-80.290600,\"KMIA\",-2.4"), std::string::npos) << said;
    const auto track = run("gpsbabel -t -i gpx -f '" + folder.path() + "/plan.gpx' -o unicsv -F -");
    EXPECT_EQ(track.second, 0);
    EXPECT_NE(track.first.find("9,25.793300,-80.290600"), std::string::npos) << track.first;
}

TEST(Outside, GpsbabelReadsTheKml) {
    const TempFolder folder;
    folder.write("/plan.kml", formatOf("KML").write(routeOfPlan(mixedPlan())));
    const auto [said, code] = run("gpsbabel -w -i kml -f '" + folder.path() + "/plan.kml' -o unicsv -F -");
    EXPECT_EQ(code, 0);
    EXPECT_NE(said.find("33.629074,-84.435040,\"ATL\""), std::string::npos) << said;
}

} // namespace
} // namespace gatewise::test
