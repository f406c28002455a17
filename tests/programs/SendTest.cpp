#include "AllFormats.h"
#include "Plans.h"

#include "platform/FileNames.h"
#include "programs/Folders.h"
#include "programs/Send.h"
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
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 11);
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
    for (const std::string& gone :
         {folder.path("/gone"), folder.path("/file"), std::string(), std::string("plans")}) {
        const Sent sent = sendTo(formatOf("GPX"), gone, "F", route);
        EXPECT_EQ(sent.reason, "the folder is gone") << gone;
        EXPECT_EQ(sent.file, "");
    }
    EXPECT_FALSE(std::filesystem::exists(folder.path("/gone")));
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

} // namespace
} // namespace gatewise::test
