#include "simulator/AircraftScan.h"

#include "platform/Profile.h"
#include "support/TempFolder.h"

#include <atomic>
#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace gatewise {
namespace {

using test::TempFolder;

std::vector<std::string> titlesOf(std::string_view content) {
    std::vector<std::string> out;
    for (const auto& variation : variationsOf(content)) out.push_back(variation.title);
    return out;
}

using Titles = std::vector<std::string>;

/// An Aircraft folder of one aircraft, with a panel. Not flushed: there are many.
void install(const TempFolder& folder, const std::string& name, std::string_view config) {
    const std::filesystem::path native = folder.path("/Aircraft/" + name);
    std::filesystem::create_directories(native / "panel");
    std::ofstream(native / "aircraft.cfg", std::ios::binary) << config;
}

Titles offered(const TempFolder& folder) {
    Titles out;
    for (const auto& aircraft : FilesSearch(folder.path("\\Aircraft"))) out.push_back(aircraft.title);
    return out;
}

TEST(AircraftVariations, InTheirOrder) {
    EXPECT_EQ(titlesOf("[fltsim.0]\r\ntitle=One\r\nsim=a\r\n[fltsim.1]\r\ntitle=Two\r\n"),
              (Titles{"One", "Two"}));
    EXPECT_EQ(titlesOf("[fltsim.1]\r\ntitle=Two\r\n[fltsim.0]\r\ntitle=One\r\n"), (Titles{"One", "Two"}));
}

TEST(AircraftVariations, EndAtTheFirstMissingSection) {
    EXPECT_EQ(titlesOf("[fltsim.0]\ntitle=A\n[fltsim.1]\ntitle=B\n[fltsim.3]\ntitle=D\n"),
              (Titles{"A", "B"}));
    EXPECT_TRUE(titlesOf("[fltsim.1]\ntitle=B\n").empty());
}

TEST(AircraftVariations, EndAtAMissingTitle) {
    EXPECT_EQ(titlesOf("[fltsim.0]\ntitle=A\n[fltsim.1]\nsim=b\n[fltsim.2]\ntitle=C\n"), (Titles{"A"}));
}

TEST(AircraftVariations, EndAtAnEmptyTitle) {
    EXPECT_EQ(titlesOf("[fltsim.0]\ntitle=A\n[fltsim.1]\ntitle=\n[fltsim.2]\ntitle=C\n"), (Titles{"A"}));
    EXPECT_TRUE(titlesOf(std::string("[fltsim.0]\ntitle=\0A\n", 20)).empty());
}

TEST(AircraftVariations, ATitleThatBeginsWithTitleEndsItsFolder) {
    EXPECT_EQ(titlesOf("[fltsim.0]\ntitle=A\n[fltsim.1]\ntitle=TiTlEist\n[fltsim.2]\ntitle=C\n"),
              (Titles{"A"}));
    EXPECT_EQ(titlesOf("[fltsim.0]\ntitle=Titl\n"), (Titles{"Titl"}));
}

/// In whatever order the folders come, one without a panel stands before one with a panel.
TEST(FilesSearchFolder, AFolderWithoutAPanelEndsNothing) {
    TempFolder folder;
    for (int i = 0; i < 8; ++i) {
        const std::string number = std::to_string(i);
        install(folder, "A" + number, "[fltsim.0]\ntitle=Plane " + number + "\n");
        install(folder, "B" + number, "[fltsim.0]\ntitle=None\n");
        std::filesystem::remove(folder / ("Aircraft/B" + number + "/panel"));
    }
    EXPECT_EQ(offered(folder).size(), 8U);
}

/// Whoever opened the pipe would wait for its end; after a while it comes.
TEST(FilesSearchFolder, APipeNamedAsTheConfigurationIsNotOpened) {
    TempFolder folder;
    install(folder, "A", "[fltsim.0]\ntitle=Plane\n");
    const auto pipe = folder / "Aircraft/B/aircraft.cfg";
    std::filesystem::create_directories(pipe.parent_path() / "panel");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const int writer = ::open(pipe.c_str(), O_RDWR | O_NONBLOCK);
    ASSERT_EQ(::write(writer, "[fltsim.0]\ntitle=Pipe\n", 22), 22);
    std::atomic<bool> over = false;
    std::thread end([&] {
        for (int i = 0; i < 500 && !over; ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
        ::close(writer);
    });
    EXPECT_EQ(offered(folder), Titles{"Plane"});
    over = true;
    end.join();
}

TEST(AircraftVariations, SectionsAndKeysWithoutRegardToCase) {
    EXPECT_EQ(titlesOf("[FLTSIM.0]\nTITLE=A\n[FltSim.1]\nTitle=B\n"), (Titles{"A", "B"}));
}

TEST(AircraftVariations, NumbersStandInPlainDecimal) {
    EXPECT_TRUE(titlesOf("[fltsim.00]\ntitle=A\n").empty());
    EXPECT_TRUE(titlesOf("[fltsim.0x]\ntitle=A\n").empty());
    EXPECT_TRUE(titlesOf("[fltsim.]\ntitle=A\n").empty());
    EXPECT_TRUE(titlesOf("[fltsim.-0]\ntitle=A\n").empty());
}

TEST(AircraftVariations, AHundredAtMost) {
    std::string content;
    for (int j = 0; j < 120; ++j) {
        content += "[fltsim." + std::to_string(j) + "]\ntitle=N" + std::to_string(j) + "\n";
    }
    const Titles titles = titlesOf(content);
    ASSERT_EQ(titles.size(), 100U);
    EXPECT_EQ(titles.back(), "N99");
}

TEST(AircraftVariations, TheFirstSectionAndTheFirstKeyCount) {
    EXPECT_EQ(titlesOf("[fltsim.0]\ntitle=A\ntitle=B\n[fltsim.0]\ntitle=C\n"), (Titles{"A"}));
    // A second section of the name is never reached, even when the first says nothing.
    EXPECT_TRUE(titlesOf("[fltsim.0]\nsim=x\n[fltsim.0]\ntitle=C\n").empty());
}

TEST(AircraftVariations, ATextEndsAfter254Characters) {
    const std::string longTitle(400, 'x');
    EXPECT_EQ(titlesOf("[fltsim.0]\ntitle=" + longTitle + "\n")[0], std::string(254, 'x'));
}

TEST(AircraftVariations, AMissingSimReadsAsItsName) {
    EXPECT_EQ(variationsOf("[fltsim.0]\ntitle=A\n")[0].sim, "sim");
    EXPECT_EQ(variationsOf("[fltsim.0]\ntitle=A\nsim= x737 \n")[0].sim, "x737");
}

/// What two profile reads for each variation would find.
std::vector<AircraftVariation> byProfileReads(std::string_view content) {
    const Profile profile(content);
    const auto read = [&](const std::string& section, const char* key, const char* missing) {
        return profile.find(section, key).value_or(missing).substr(0, 254);
    };
    std::vector<AircraftVariation> out;
    for (int j = 0; j < 100; ++j) {
        const std::string section = "fltsim." + std::to_string(j);
        const std::string title = read(section, "title", "title");
        if (title.empty() || title[0] == '\0' || lowerCase(title.substr(0, 5)) == "title") break;
        out.push_back({title, read(section, "sim", "sim")});
    }
    return out;
}

TEST(AircraftVariations, AFileWithTheMarkOfAnEditorIsReadAsAProfileIs) {
    const std::string plain = "[fltsim.0]\r\ntitle=\xC3\xA9t\xC3\xA9\r\nsim=b\r\n";
    EXPECT_EQ(titlesOf("\xEF\xBB\xBF" + plain), Titles{"\xE9t\xE9"});
    std::string wide = "\xFF\xFE";
    for (const char c : std::string("[fltsim.0]\r\ntitle=Wide\r\n")) wide += std::string{c, '\0'};
    EXPECT_EQ(titlesOf(wide), Titles{"Wide"});
    EXPECT_EQ(byProfileReads(wide)[0].title, "Wide");
}

TEST(AircraftVariations, OnePassFindsWhatProfileReadsWouldFind) {
    const std::vector<std::string> pieces = {"[fltsim.0]",
                                             "[FLTSIM.1]",
                                             "[ fltsim.1 ]",
                                             "[fltsim.2",
                                             "[fltsim.0] x",
                                             "[general]",
                                             "  [fltsim.1]",
                                             "title=A",
                                             "TITLE = \"B\"",
                                             "title='C",
                                             "title",
                                             "title=",
                                             " title =  D E  ",
                                             "title=title",
                                             ";title=F",
                                             " ; x",
                                             "sim=g",
                                             "sim = \" h \"",
                                             "sim=",
                                             "Sim=i=j",
                                             "=",
                                             "[",
                                             "]",
                                             "\x1A",
                                             "\"",
                                             "\t",
                                             "title=\x1A",
                                             std::string("title=\0k", 8),
                                             std::string("title=k\0", 8),
                                             ""};
    const std::vector<std::string> ends = {"\r\n", "\n", "\r", "\n\r", "\r\r\n", "\x1A\r\n", " \r\n"};
    std::mt19937 random(5);
    const auto one = [&](const std::vector<std::string>& from) { return from[random() % from.size()]; };
    int found = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string content;
        for (int i = 0; i < 9; ++i) content += one(pieces) + one(ends);
        const auto once = variationsOf(content);
        const auto reads = byProfileReads(content);
        ASSERT_EQ(once.size(), reads.size()) << content;
        for (std::size_t i = 0; i < once.size(); ++i) {
            EXPECT_EQ(once[i].title, reads[i].title) << content;
            EXPECT_EQ(once[i].sim, reads[i].sim) << content;
        }
        found += static_cast<int>(once.size());
    }
    EXPECT_GT(found, 1000);
}

TEST(AircraftScan, AnAircraftWithoutPanelIsNeverOffered) {
    const TempFolder folder;
    install(folder, "b737", "[fltsim.0]\r\ntitle=Boeing 737\r\nsim=b737\r\n");
    folder.write("/Aircraft/glider/aircraft.cfg", "[fltsim.0]\r\ntitle=Glider\r\n");
    folder.write("/Aircraft/kite/aircraft.cfg", "[fltsim.0]\r\ntitle=Kite\r\n");
    folder.write("/Aircraft/kite/panel", "a file, not a folder");
    EXPECT_EQ(offered(folder), (Titles{"Boeing 737"}));
}

TEST(AircraftScan, FoldersAndFilesWithoutRegardToCase) {
    const TempFolder folder;
    folder.write("/Aircraft/b737/Aircraft.CFG", "[fltsim.0]\r\ntitle=Boeing 737\r\n");
    std::filesystem::create_directories(folder.path("/Aircraft/b737/Panel"));
    EXPECT_EQ(offered(folder), (Titles{"Boeing 737"}));
}

TEST(AircraftScan, FilesAndFoldersWithoutConfigurationArePassedOver) {
    const TempFolder folder;
    folder.write("/Aircraft/readme.txt", "text");
    std::filesystem::create_directories(folder.path("/Aircraft/empty/panel"));
    std::filesystem::create_directories(folder.path("/Aircraft/odd/aircraft.cfg"));
    EXPECT_TRUE(offered(folder).empty());
}

TEST(AircraftScan, NoFolderNoAircraft) {
    const TempFolder folder;
    EXPECT_TRUE(offered(folder).empty());
    EXPECT_TRUE(FilesSearch("").empty());
}

TEST(AircraftScan, NotesOfAFolderFollowItsFirstVariation) {
    const TempFolder folder;
    install(folder, "b737", "[fltsim.0]\ntitle=A\nsim= x1 \n[fltsim.1]\ntitle=B\nsim=x2\n");
    const auto found = FilesSearch(folder.path("\\Aircraft"));
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].notesPath, folder.path("\\Aircraft\\b737\\x1_NOTES"));
    EXPECT_EQ(found[1].notesPath, found[0].notesPath);
    EXPECT_EQ(FilesSearch(folder.path("\\Aircraft\\"))[0].notesPath, found[0].notesPath);
}

TEST(AircraftScan, ABlankTitleIsPassedOverTheNextIsNot) {
    const TempFolder folder;
    install(folder, "b737", "[fltsim.0]\ntitle=\"   \"\nsim=x\n[fltsim.1]\ntitle=B\n");
    const auto found = FilesSearch(folder.path("\\Aircraft"));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].title, "B");
    EXPECT_EQ(found[0].notesPath, folder.path("\\Aircraft\\b737\\x_NOTES"));
}

TEST(AircraftScan, FoldersInTheOrderOfTheFileSystem) {
    const TempFolder folder;
    std::map<std::string, std::string> titles;
    for (const char* name : {"zeta", "alpha", "mike", "bravo"}) {
        install(folder, name, "[fltsim.0]\ntitle=" + std::string(name) + "\n");
    }
    Titles listed;
    for (const auto& entry : files::list(folder.path("\\Aircraft"))) listed.push_back(entry.name);
    EXPECT_EQ(offered(folder), listed);
}

TEST(AircraftScan, TenThousandAircraftAtMost) {
    const TempFolder folder;
    std::string content;
    for (int j = 0; j < 100; ++j) content += "[fltsim." + std::to_string(j) + "]\ntitle=N\n";
    for (int i = 0; i < 101; ++i) install(folder, "a" + std::to_string(i), content);
    EXPECT_EQ(offered(folder).size(), kAircraftLimit);
}

TEST(AircraftScan, ManyFoldersInAMoment) {
    const TempFolder folder;
    std::string content = "[fltsim.0]\r\ntitle=Name\r\nsim=model\r\n";
    for (int i = 0; i < 400; ++i) content += "some_key_of_the_flight_model=0.123, 4.567, 8.9 // remark\r\n";
    constexpr int kFolders = 600;
    for (int i = 0; i < kFolders; ++i) install(folder, "type " + std::to_string(i), content);
    // Time of the processor, since what else the machine does is none of this program's.
    const std::clock_t start = std::clock();
    EXPECT_EQ(offered(folder).size(), static_cast<std::size_t>(kFolders));
    const auto ms = (std::clock() - start) * 1000 / CLOCKS_PER_SEC;
    RecordProperty("milliseconds", static_cast<int>(ms));
    // A twentieth of it is usual; the limit leaves room for checked builds and slow machines.
    EXPECT_LT(ms, 1000);
}

TEST(AircraftVariations, AreReadBehindAMarkOfUtf8) {
    const auto found = variationsOf("\xEF\xBB\xBF[fltsim.0]\r\ntitle=Z\xC3\xBCrich\r\nsim=b737\r\n");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].title, "Z\xFCrich");
    EXPECT_EQ(found[0].sim, "b737");
}

TEST(AircraftScan, AFileOfAbsurdLengthIsNoAircraft) {
    const test::TempFolder folder;
    folder.write("/Aircraft/b737/aircraft.cfg", "[fltsim.0]\r\ntitle=Boeing\r\n");
    std::filesystem::create_directories(folder / "Aircraft/b737/panel");
    EXPECT_EQ(FilesSearch(folder.path("/Aircraft")).size(), 1U);
    std::filesystem::resize_file(folder / "Aircraft/b737/aircraft.cfg", 1500ULL << 20U);
    EXPECT_TRUE(FilesSearch(folder.path("/Aircraft")).empty());
}

TEST(AircraftScan, TellsHowFarItIs) {
    const TempFolder folder;
    for (const char* name : {"A", "B", "C"}) install(folder, name, "[fltsim.0]\ntitle=Plane\n");
    std::ofstream(folder / "Aircraft/readme.txt") << "no folder";
    ScanProgress progress;
    EXPECT_EQ(FilesSearch(folder.path("\\Aircraft"), &progress).size(), 3U);
    EXPECT_EQ(progress.folders, 3);
}

TEST(AircraftScan, EndsWhenItIsTold) {
    const TempFolder folder;
    for (const char* name : {"A", "B", "C"}) install(folder, name, "[fltsim.0]\ntitle=Plane\n");
    ScanProgress progress;
    progress.stop = true;
    EXPECT_TRUE(FilesSearch(folder.path("\\Aircraft"), &progress).empty());
    EXPECT_EQ(progress.folders, 0);
}

} // namespace
} // namespace gatewise
