#include "AllFormats.h"
#include "Plans.h"

#include "platform/FileNames.h"
#include "programs/Folders.h"
#include "programs/Send.h"
#include "programs/Settings.h"
#include "support/TempFolder.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace gatewise::test {
namespace {

using namespace programs;

UserFolders foldersIn(const TempFolder& home) {
    return {home.path(), home.path("/Documents"), home.path("/.config")};
}

void makeFolder(const TempFolder& home, const std::string& tail) {
    std::filesystem::create_directories(home.path(tail));
}

TEST(Folders, AProgramThatIsThereGetsItsOwn) {
    const TempFolder home;
    makeFolder(home, "/Documents/Prepar3D v5 Files");
    makeFolder(home, "/X-Plane 12/Output/FMS plans");
    makeFolder(home, "/.fgfs/Export");
    EXPECT_EQ(proposedFolder(formatOf("XPlane"), foldersIn(home)), home.path("/X-Plane 12/Output/FMS plans"));
    EXPECT_EQ(proposedFolder(formatOf("FSX"), foldersIn(home)), home.path("/Documents/Prepar3D v5 Files"));
    EXPECT_EQ(proposedFolder(formatOf("FlightGear"), foldersIn(home)), home.path("/.fgfs/Export"));
}

TEST(Folders, AListOfInstallationsLeadsToThem) {
    const TempFolder home;
    makeFolder(home, "/games/X-Plane/Output/FMS plans");
    home.write("/.x-plane/x-plane_install_12.txt",
               "/gone/X-Plane/\r\n" + home.path("/games/X-Plane/") + "\n");
    EXPECT_EQ(proposedFolder(formatOf("XPlane"), foldersIn(home)),
              home.path("/games/X-Plane/Output/FMS plans"));
    home.write("/.x-plane/x-plane_install_12.txt", std::string("\n\n\0//\n", 6));
    EXPECT_EQ(proposedFolder(formatOf("XPlane"), foldersIn(home)), home.path());
}

TEST(Folders, OtherwiseTheDocumentsThenTheHome) {
    const TempFolder home;
    for (const Format& format : formats()) EXPECT_EQ(proposedFolder(format, foldersIn(home)), home.path());
    makeFolder(home, "/Documents");
    for (const Format& format : formats())
        EXPECT_EQ(proposedFolder(format, foldersIn(home)), home.path("/Documents"));
    EXPECT_EQ(proposedFolder(formatOf("XPlane"), {}), "");
}

TEST(Folders, TheDocumentsAreThoseOfTheDesktop) {
    const TempFolder home;
    ::setenv("HOME", home.path().c_str(), 1);
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(userFolders().documents, home.path("/Documents"));
    home.write("/.config/user-dirs.dirs", "# list\nXDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n");
    EXPECT_EQ(userFolders().documents, home.path("/Dokumente"));
    home.write("/.config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"/srv/papers\"\n");
    EXPECT_EQ(userFolders().documents, "/srv/papers");
    home.write("/.config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"\n");
    EXPECT_EQ(userFolders().documents, home.path("/Documents"));
    ::unsetenv("HOME");
    EXPECT_EQ(userFolders().home, "");
}

TEST(Send, AFileStandsUnderTheFlightsName) {
    const TempFolder folder;
    const Route route = routeOfPlan(mixedPlan());
    for (const Format& format : formats()) {
        const Sent sent = sendTo(format, folder.path(), "Orrery Airways Flight 421 ATL to MIA", route);
        EXPECT_EQ(sent.reason, "");
        EXPECT_EQ(folder.read("/" + sent.file), format.write(route));
    }
    EXPECT_TRUE(std::filesystem::exists(folder.path("/Orrery Airways Flight 421 ATL to MIA.fms")));
    EXPECT_TRUE(std::filesystem::exists(folder.path("/Orrery Airways Flight 421 ATL to MIA MSFS 2024.pln")));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), kFormatCount);
}

TEST(Send, AnOlderFileIsReplaced) {
    const TempFolder folder;
    folder.write("/F.txt", std::string(100000, 'x'));
    EXPECT_EQ(sendTo(formatOf("RouteText"), folder.path(), "F", routeOfPlan(directPlan())).file, "F.txt");
    EXPECT_EQ(folder.read("/F.txt"), "N0434F350 DCT\n");
}

TEST(Send, NoNameLeadsOutOfTheFolder) {
    const Format& text = formatOf("RouteText");
    EXPECT_EQ(fileNameOf(text, "A/B\\C: \"D\" Flight 1"), "A-B-C- -D- Flight 1.txt");
    EXPECT_EQ(fileNameOf(text, "../../x\n"), "Plan.txt");
    EXPECT_EQ(fileNameOf(text, ""), "Plan.txt");
    EXPECT_EQ(fileNameOf(text, "NUL"), "Plan.txt");
    for (const char* stem : {"..", "/", "\\", ".", "C:", "a\0b", " x ", "COM1"}) {
        for (const Format& format : formats()) {
            const std::string name = fileNameOf(format, stem);
            EXPECT_TRUE(files::isFileName(name)) << name;
        }
    }
    EXPECT_TRUE(files::isFileName(fileNameOf(text, std::string(4000, 'a'))));
    EXPECT_LT(fileNameOf(text, std::string(4000, 'a')).size(), 200U);
}

TEST(Send, AFolderThatIsGoneSaysSo) {
    const TempFolder folder;
    const Route route = routeOfPlan(directPlan());
    folder.write("/file", "x");
    for (const std::string& gone : {folder.path("/gone"), folder.path("/file"), std::string("plans")}) {
        const Sent sent = sendTo(formatOf("GPX"), gone, "F", route);
        EXPECT_EQ(sent.reason, "the folder is gone") << gone;
        EXPECT_EQ(sent.file, "");
    }
    EXPECT_FALSE(std::filesystem::exists(folder.path("/gone")));
    EXPECT_EQ(sendTo(formatOf("GPX"), "", "F", route).reason, "no folder is named");
}

TEST(Send, AFolderInTheFilesPlaceSaysSo) {
    const TempFolder folder;
    makeFolder(folder, "/F.gpx/full");
    const Sent sent = sendTo(formatOf("GPX"), folder.path(), "F", routeOfPlan(directPlan()));
    EXPECT_EQ(sent.reason, "a folder has the file's name");
    EXPECT_TRUE(std::filesystem::exists(folder.path("/F.gpx/full")));
}

/// A disk that takes no more: no file of this process may grow beyond a few bytes.
TEST(Send, AFullDiskLeavesTheOldFileWhole) {
    const TempFolder folder;
    folder.write("/F.gpx", "older");
    rlimit old{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto handler = ::signal(SIGXFSZ, SIG_IGN);
    rlimit few = old;
    few.rlim_cur = 64;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &few), 0);
    const Sent sent = sendTo(formatOf("GPX"), folder.path(), "F", routeOfPlan(directPlan()));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &old), 0);
    ::signal(SIGXFSZ, handler);
    EXPECT_EQ(sent.reason, "the disk is full");
    EXPECT_EQ(folder.read("/F.gpx"), "older");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

/// The system's own folder of devices takes no file of anybody's, not even the administrator's.
TEST(Send, AFolderThatTakesNoFileSaysSo) {
    if (!std::filesystem::is_directory("/sys/kernel")) GTEST_SKIP() << "no such folder on this system";
    const Sent sent = sendTo(formatOf("GPX"), "/sys/kernel", "F", routeOfPlan(directPlan()));
    EXPECT_EQ(sent.reason, "the folder is read-only");
    EXPECT_EQ(sent.file, "");
    EXPECT_FALSE(std::filesystem::exists("/sys/kernel/F.gpx"));
}

TEST(Send, ReasonsAreThePilots) {
    const auto reason = [](std::errc error) { return reasonOf(std::make_error_code(error)); };
    EXPECT_EQ(reason(std::errc::read_only_file_system), "the folder is read-only");
    EXPECT_EQ(reason(std::errc::permission_denied), "the folder is read-only");
    EXPECT_EQ(reason(std::errc::no_space_on_device), "the disk is full");
    EXPECT_NE(reason(std::errc::io_error), "");
}

TEST(Send, OneMessageSaysAll) {
    const Format &gpx = formatOf("GPX"), &kml = formatOf("KML"), &fsx = formatOf("FSX");
    EXPECT_EQ(summaryOf({}), "");
    EXPECT_EQ(summaryOf({{&gpx, "a", ""}, {&kml, "b", ""}}), "Written: GPX, KML.");
    EXPECT_EQ(summaryOf({{&gpx, "", "the disk is full"}, {&kml, "b", ""}, {&fsx, "", "the disk is full"}}),
              "Written: KML. Not written, the disk is full: GPX, FSX and Prepar3D.");
    EXPECT_EQ(summaryOf({{&gpx, "", "the folder is gone"}, {&kml, "", "the disk is full"}}),
              "Not written, the folder is gone: GPX. Not written, the disk is full: KML.");
}

std::string fileWith(const Choices& choices, const UserFolders& folders, const std::string& before) {
    return contentWith(Bytes(before.begin(), before.end()), valuesOf(choices, folders));
}

TEST(Choices, NothingIsTickedInAFileWithoutThem) {
    const TempFolder home;
    const Choices choices = choicesIn(Profile("[Main]\r\nXPlane=1\r\n"), foldersIn(home));
    ASSERT_EQ(choices.lines.size(), formats().size());
    for (const Choice& choice : choices.lines) {
        EXPECT_FALSE(choice.ticked);
        EXPECT_EQ(choice.folder, home.path());
    }
    EXPECT_FALSE(choices.withComputed);
    EXPECT_FALSE(choices.onDispatch);
}

TEST(Choices, AreReadAsTheyWereWritten) {
    const TempFolder home;
    Choices choices = choicesIn(Profile(), foldersIn(home));
    choices.lines[0] = {true, "/a folder/plans; \xE9"};
    choices.lines[3] = {true, home.path()}; // ticked: kept, should the proposal change
    choices.lines[5].folder = std::string(1, '/') + std::string(400, 'x');
    choices.withComputed = choices.onDispatch = true;
    const std::string file = fileWith(choices, foldersIn(home), "[Main]\r\nA=1\r\n");
    EXPECT_TRUE(file.starts_with("[Main]\r\nA=1\r\n")) << file;
    const Choices read = choicesIn(Profile(file), {});
    for (std::size_t i = 0; i < choices.lines.size(); ++i) {
        const bool kept = i == 0 || i == 3 || i == 5;
        EXPECT_EQ(read.lines[i].ticked, choices.lines[i].ticked) << i;
        EXPECT_EQ(read.lines[i].folder, kept ? choices.lines[i].folder : "") << i;
    }
    EXPECT_TRUE(read.withComputed);
    EXPECT_TRUE(read.onDispatch);
}

TEST(Choices, OneFolderThatFailsStopsNoOther) {
    const TempFolder home;
    const Plan plan = mixedPlan();
    Choices choices = choicesIn(Profile(), foldersIn(home));
    for (const std::size_t i : {0U, 7U, 8U, 10U}) choices.lines[i] = {true, home.path()};
    choices.lines[7].folder = home.path("/gone");
    choices.withComputed = true;
    const Dispatch dispatch{plan, "F", testMoment()};
    const auto sent = sendTicked(choices, dispatch);
    EXPECT_EQ(summaryOf(sent),
              "Written: X-Plane 11 and 12, KML, Route text. Not written, the folder is gone: GPX.");
    EXPECT_NE(home.read("/F.fms").find("28 TOC"), std::string::npos);
    EXPECT_EQ(home.read("/F.txt").find("TOC"), std::string::npos);
    EXPECT_EQ(clipboardText(choices, dispatch) + "\n", home.read("/F.txt"));
    choices.lines[10].ticked = false;
    EXPECT_EQ(clipboardText(choices, dispatch), "");
}

} // namespace
} // namespace gatewise::test
