#include "FlightWorld.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ostream>
#include <unistd.h>

namespace gatewise {
namespace {

using namespace test;

const std::string kTemplate = std::string(GATEWISE_TEST_SOURCE_DIR) + "/data/delivered/default.FLT";

std::string textOf(const std::string& path) {
    const auto bytes = files::readAll(path);
    return bytes ? std::string(bytes->begin(), bytes->end()) : "(no such file)";
}

// ---- whole files, each read through key by key before it was filed

struct GoldenCase {
    const char* name;
    std::string choice;
    int pointIndex;
    int PreFlight;
    const char* fuel;
    StartPosition last;

    friend void PrintTo(const GoldenCase& start, std::ostream* out) { *out << start.name; }
};

const GoldenCase kCases[] = {
    {"ground", kDefaultStart, 0, 0, "85", {}},
    {"runway", "Rwy - 26R", 0, 30, "100", {}},
    {"stored", "Parking 7", 5, 0, "0", {}},
    {"unpositioned", kUnpositioned, 0, 15, "85", {51.5F, -0.5F, 270}},
    {"inflight", kInflight, 3, 0, "40", {}},
    {"inflight-low", kInflight, 0, 0, "40", {}},
};

class GoldenSituation : public testing::TestWithParam<GoldenCase> {
protected:
    [[nodiscard]] std::string sent(const NumberLocale& numbers) const {
        FlightWorld w;
        w.numbers = numbers;
        w.PreFlight = GetParam().PreFlight;
        w.fuel = GetParam().fuel;
        w.last = GetParam().last;
        const TempFolder folder;
        const auto keys = w.keys(GetParam().choice, GetParam().pointIndex);
        EXPECT_FALSE(WriteSituationFile(kTemplate, folder.path("\\sent.FLT"), keys));
        return folder.read("/sent.FLT");
    }
    [[nodiscard]] static std::string golden() {
        return textOf(std::string(GATEWISE_TEST_SOURCE_DIR) + "/tests/simulator/golden/" + GetParam().name +
                      ".FLT");
    }
};

TEST_P(GoldenSituation, IsThatOfTheReview) {
    EXPECT_EQ(sent({}), golden());
}

/// Lines with a position of three parts, which another decimal sign changes.
bool isPosition(std::string_view line) {
    return line.find("* ") != std::string_view::npos;
}

TEST_P(GoldenSituation, ALocaleWithCommaChangesNothingButTheZerosOfPositions) {
    const std::string comma = sent(NumberLocale{",", ","});
    const std::string expected = golden();
    std::size_t a = 0;
    std::size_t b = 0;
    int positions = 0;
    while (a < comma.size() && b < expected.size()) {
        const auto line = std::string_view(comma).substr(a, comma.find('\n', a) + 1 - a);
        const auto other = std::string_view(expected).substr(b, expected.find('\n', b) + 1 - b);
        if (isPosition(line)) {
            EXPECT_TRUE(isPosition(other));
            ++positions;
        } else {
            EXPECT_EQ(line, other);
        }
        a += line.size();
        b += other.size();
    }
    EXPECT_EQ(a, comma.size());
    EXPECT_EQ(b, expected.size());
    EXPECT_EQ(positions, 5);
}

INSTANTIATE_TEST_SUITE_P(Starts, GoldenSituation, testing::ValuesIn(kCases), [](const auto& start) {
    std::string name = start.param.name;
    std::erase(name, '-');
    return name;
});

TEST(CommaLocale, PositionsLoseTheirZeros) {
    FlightWorld w;
    w.numbers = NumberLocale{",", ","};
    const auto keys = w.keys("Parking 7");
    EXPECT_EQ(written(keys, "Plane", "Latitude"), "S33* 38' 26.25\"");
    EXPECT_EQ(written(keys, "Plane", "Longitude"), "E84* 25' 18.75\"");
    EXPECT_EQ(written(keys, "Plane", "Heading"), "012.500000");
    EXPECT_EQ(written(keys, "GPS_Engine", "Position"), "S33* 38' 26.25\", E84* 25' 18.75\", +001026.00");
}

// ---- the template

TEST(Template, IsAWholeSituationWithCrLf) {
    const std::string text = textOf(kTemplate);
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), std::count(text.begin(), text.end(), '\n'));
    EXPECT_TRUE(text.ends_with("\r\n"));
    EXPECT_EQ(text.find('\x1A'), std::string::npos);
}

TEST(Template, HoldsEveryKeyThatASendWritesButTheWaypoints) {
    const Profile profile(textOf(kTemplate));
    const FlightWorld w;
    auto keys = w.keys(kInflight, 3);
    for (auto& entry : w.keys(kDefaultStart)) keys.push_back(entry);
    for (const auto& entry : keys) {
        if (entry.key.starts_with("WpInfo")) continue;
        EXPECT_TRUE(profile.find(entry.section, entry.key)) << entry.section << " " << entry.key;
    }
}

TEST(WriteSituationFile, LeavesWhatItDoesNotName) {
    const TempFolder folder;
    folder.write("/default.FLT", "; ours\r\n[Odd]\r\n a = b \r\n\r\n[plane]\r\nAIRCRAFT = old \r\nx=1\r\n");
    const std::vector<ProfileValue> keys = {
        {"Plane", "Aircraft", "New"}, {"Plane", "Heading", "1"}, {"Main", "Title", "t"}};
    ASSERT_FALSE(WriteSituationFile(folder.path("\\default.FLT"), folder.path("\\out.FLT"), keys));
    EXPECT_EQ(folder.read("/out.FLT"),
              "; ours\r\n[Odd]\r\n a = b \r\n\r\n[plane]\r\nAIRCRAFT = New \r\nx=1\r\n"
              "Heading=1\r\n[Main]\r\nTitle=t\r\n");
    EXPECT_EQ(folder.read("/default.FLT").find("New"), std::string::npos);
}

TEST(WriteSituationFile, ReplacesAnOlderSend) {
    const TempFolder folder;
    folder.write("/default.FLT", "[Main]\r\n");
    folder.write("/out.FLT", "[GPS_Engine]\r\nWpInfo77=old\r\n");
    ASSERT_FALSE(WriteSituationFile(folder.path("\\default.FLT"), folder.path("\\out.FLT"), {}));
    EXPECT_EQ(folder.read("/out.FLT"), "[Main]\r\n");
}

TEST(WriteSituationFile, AMissingTemplateLeavesTheOldFile) {
    const TempFolder folder;
    folder.write("/out.FLT", "old");
    const auto error = WriteSituationFile(folder.path("\\default.FLT"), folder.path("\\out.FLT"), {});
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
    EXPECT_EQ(folder.read("/out.FLT"), "old");
}

TEST(WriteSituationFile, AFolderInPlaceOfTheTemplate) {
    const TempFolder folder;
    std::filesystem::create_directories(folder.path("/default.FLT"));
    EXPECT_EQ(WriteSituationFile(folder.path("\\default.FLT"), folder.path("\\out.FLT"), {}),
              std::errc::is_a_directory);
    EXPECT_FALSE(files::fileExists(folder.path("/out.FLT")));
}

TEST(WriteSituationFile, AMissingFolderIsNotMade) {
    const TempFolder folder;
    folder.write("/default.FLT", "[Main]\r\n");
    const auto error =
        WriteSituationFile(folder.path("\\default.FLT"), folder.path("\\flights\\fs2kflts\\out.FLT"), {});
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
    EXPECT_FALSE(files::folderExists(folder.path("/flights")));
}

TEST(WriteSituationFile, ATargetThatIsAFolderOrBelowAFile) {
    const TempFolder folder;
    folder.write("/default.FLT", "[Main]\r\n");
    std::filesystem::create_directories(folder.path("/out.FLT"));
    EXPECT_TRUE(WriteSituationFile(folder.path("\\default.FLT"), folder.path("\\out.FLT"), {}));
    EXPECT_TRUE(WriteSituationFile(folder.path("\\default.FLT"), folder.path("\\default.FLT\\x.FLT"), {}));
    EXPECT_EQ(files::list(folder.path()).size(), 2U); // nothing half-written lies beside them
    EXPECT_EQ(folder.read("/default.FLT"), "[Main]\r\n");
}

/// Another user than the administrator, whom no protection stops.
class OtherUser {
public:
    OtherUser() {
        if (before_ == 0) {
            EXPECT_EQ(seteuid(65534), 0);
        }
    }
    ~OtherUser() { EXPECT_EQ(seteuid(before_), 0); }
    OtherUser(const OtherUser&) = delete;
    OtherUser& operator=(const OtherUser&) = delete;

private:
    uid_t before_ = geteuid();
};

TEST(ProtectedFolder, TakesNoSituationAndKeepsItsSettings) {
    namespace fs = std::filesystem;
    const TempFolder folder;
    folder.write("/default.FLT", "[Main]\r\n");
    folder.write("/sim/fs2002.cfg", "[USERINTERFACE]\r\nSITUATION=mine\r\n");
    const auto readable = fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_read |
                          fs::perms::group_exec | fs::perms::others_read | fs::perms::others_exec;
    fs::permissions(folder.path(), readable);
    fs::permissions(folder.path("/sim"), readable);
    {
        const OtherUser user;
        const auto target = folder.path("\\sim\\out.FLT");
        EXPECT_EQ(WriteSituationFile(folder.path("\\default.FLT"), target, {}), std::errc::permission_denied);
        EXPECT_EQ(SetDefaultFlight(folder.path("\\sim"), "x"), std::errc::permission_denied);
    }
    fs::permissions(folder.path(), fs::perms::owner_all);
    fs::permissions(folder.path("/sim"), fs::perms::owner_all);
    EXPECT_EQ(files::list(folder.path("/sim")).size(), 1U);
    EXPECT_EQ(folder.read("/sim/fs2002.cfg"), "[USERINTERFACE]\r\nSITUATION=mine\r\n");
}

// ---- the default flight

constexpr const char* kStem = "Vantis Air Flight 123 ATL to JFK";

TEST(SetDefaultFlight, ChangesOneValueOfFiveThousandLines) {
    const TempFolder folder;
    std::string before;
    for (int i = 0; i < 2500; ++i) {
        before += i % 25 == 0 ? "\r\n [ Section " + std::to_string(i) + " ] ; odd\r\n"
                              : "  Key " + std::to_string(i) + "  =  value, with ; \t\r\n";
        if (i % 40 == 0) before += "; a remark with SITUATION=in it\r\n\r\n\t\r\n";
    }
    before += "[Other]\nSITUATION=not this one\n[UserInterface]\r\n;SITUATION=nor this\r\nPageID=1\r\n "
              "situation \t=  ";
    std::string after = "  \t\r\nMap=\"quoted\"\r\n[USERINTERFACE]\r\nSITUATION=second section\r\n";
    for (int i = 0; i < 2500; ++i) after += "x" + std::to_string(i) + "=\"" + std::string(3, '\xE9') + "\"\r";
    after += "last line without end";
    folder.write("/fs2002.cfg", before + "flights\\other\\My old flight" + after);
    ASSERT_FALSE(SetDefaultFlight(folder.path(), kStem));
    EXPECT_EQ(folder.read("/fs2002.cfg"), before + "flights\\fs2kflts\\" + kStem + after);
}

TEST(SetDefaultFlight, AddsAMissingKeyToItsSection) {
    const TempFolder folder;
    folder.write("/fs2002.cfg", "[UserInterface]\r\nPageID=1\r\n\r\n[Display]\r\nx=1\r\n");
    ASSERT_FALSE(SetDefaultFlight(folder.path(), kStem));
    EXPECT_EQ(folder.read("/fs2002.cfg"),
              std::string("[UserInterface]\r\nPageID=1\r\nSITUATION=flights\\fs2kflts\\") + kStem +
                  "\r\n\r\n[Display]\r\nx=1\r\n");
}

TEST(SetDefaultFlight, AddsAMissingSectionAtTheEnd) {
    const TempFolder folder;
    folder.write("/fs2002.cfg", "[Display]\r\nx=1");
    ASSERT_FALSE(SetDefaultFlight(folder.path(), kStem));
    EXPECT_EQ(folder.read("/fs2002.cfg"),
              std::string("[Display]\r\nx=1\r\n[USERINTERFACE]\r\nSITUATION=flights\\fs2kflts\\") + kStem +
                  "\r\n");
}

TEST(SetDefaultFlight, FailsWhereTheFileIsAFolder) {
    const TempFolder folder;
    std::filesystem::create_directories(folder.path("/fs2002.cfg"));
    EXPECT_TRUE(SetDefaultFlight(folder.path(), kStem));
}

} // namespace
} // namespace gatewise
