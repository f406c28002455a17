#include "platform/posix/WinePrefix.h"
#include "platform/Files.h"
#include "platform/Native.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <unistd.h>

namespace gatewise::native {

namespace {

namespace fs = std::filesystem;

constexpr const char* kKey = "Software\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0";

constexpr const char* kSystemReg =
    "WINE REGISTRY Version 2\n"
    "\n"
    "[Software\\\\Microsoft\\\\Microsoft Games\\\\Flight Simulator] 1021372800\n"
    "\"EXE Path\"=\"C:\\\\Wrong\"\n"
    "\n"
    "[Software\\\\Wow6432Node\\\\Microsoft\\\\Microsoft Games\\\\Flight Simulator\\\\8.0] 1021372800\n"
    "#time=1c1f2a5a3b4c5d6\n"
    "\"AppID\"=dword:00000001\n"
    "\"EXE Path\"=\"C:\\\\Spiele\\\\Flug \\\"2002\\\" \\x00e9\\x20ac\"\n"
    "\n"
    "[Software\\\\Other] 1\n";

/// A home of its own for each test.
struct Prefixes : ::testing::Test {
    Prefixes() {
        fs::create_directories(home);
        setenv("HOME", home.c_str(), 1);
        unsetenv("WINEPREFIX");
    }
    ~Prefixes() override {
        fs::remove_all(home);
        unsetenv("WINEPREFIX");
    }

    static void write(const fs::path& file, const std::string& text) {
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }

    fs::path home =
        fs::temp_directory_path() / ("gatewise-prefix-" + std::to_string(getpid()) + "-" +
                                     ::testing::UnitTest::GetInstance()->current_test_info()->name());
};

} // namespace

TEST(WineRegistryText, FindsTheBranchOf32BitProgramsAndUnescapes) {
    EXPECT_EQ(registryText(kSystemReg, kKey, "EXE Path"), "C:\\Spiele\\Flug \"2002\" \u00E9\u20AC");
    EXPECT_EQ(registryText(kSystemReg, "software\\other", "EXE Path"), std::nullopt);
    EXPECT_EQ(registryText("", kKey, "EXE Path"), std::nullopt);
}

TEST(WineRegistryText, SurvivesBrokenFiles) {
    EXPECT_EQ(registryText("[Software\\\\X\n\"EXE Path\"=\"C\"\n", "Software\\X", "EXE Path"), std::nullopt);
    EXPECT_EQ(registryText("[Software\\\\X]\n\"EXE Path\"=\"\n", "Software\\X", "EXE Path"), std::nullopt);
    EXPECT_EQ(
        registryText("[Software\\\\X]\r\n\"EXE Path\"=\"\\xd800\\xZ\\\"\r\n", "Software\\X", "EXE Path"),
        "\xEF\xBF\xBDxZ\\");
}

TEST(WinePrefixPath, EndsAtTheDriveFolder) {
    EXPECT_EQ(prefixOf("/home/p/.wine/drive_c/Games/FS2002/fs2002.exe"), fs::path("/home/p/.wine"));
    EXPECT_EQ(prefixOf("/home/p/.wine/dosdevices/d:/FS2002/fs2002.exe"), fs::path("/home/p/.wine"));
    EXPECT_EQ(prefixOf("/opt/FS2002"), std::nullopt);
    EXPECT_EQ(prefixOf(""), std::nullopt);
}

TEST_F(Prefixes, NativePathsIgnoreCaseAndFollowDrives) {
    const fs::path prefix = home / ".wine";
    fs::create_directories(prefix / "drive_c" / "Games" / "FS2002");
    fs::create_directories(home / "disk" / "FS");
    fs::create_directories(prefix / "dosdevices");
    fs::create_directory_symlink(home / "disk", prefix / "dosdevices" / "d:");
    EXPECT_EQ(nativePath(prefix, "C:\\games\\fs2002\\"), prefix / "drive_c" / "Games" / "FS2002");
    EXPECT_EQ(nativePath(prefix, "D:\\fs"), prefix / "dosdevices" / "d:" / "FS");
    EXPECT_EQ(nativePath(prefix, "E:\\fs"), std::nullopt);
    fs::create_directory_symlink(home / "disk", prefix / "dosdevices" / "z:");
    EXPECT_EQ(nativePath(prefix, "Z:\\fs"), prefix / "dosdevices" / "z:" / "FS");
    EXPECT_EQ(nativePath(prefix, "[:\\fs"), std::nullopt);
    EXPECT_EQ(nativePath(prefix, "\\\\server\\share"), std::nullopt);
    EXPECT_EQ(nativePath(prefix, ""), std::nullopt);
}

TEST_F(Prefixes, RegistryNamesTheFolderOfAnInstalledSimulator) {
    EXPECT_EQ(systemRegistry()->simulatorFolder(), std::nullopt);
    const fs::path prefix = home / ".local/share/wineprefixes/flying";
    write(prefix / "drive_c" / "FS2002" / "fs2002.cfg", "");
    write(prefix / "system.reg", "[Software\\\\Microsoft\\\\Microsoft Games\\\\Flight "
                                 "Simulator\\\\8.0]\n\"EXE Path\"=\"C:\\\\fs2002\"\n");
    EXPECT_EQ(systemRegistry()->simulatorFolder(), (prefix / "drive_c" / "FS2002").string());
}

TEST_F(Prefixes, AFolderThatIsGoneGivesWayToOneThatIsThere) {
    const std::string value = "[Software\\\\Microsoft\\\\Microsoft Games\\\\Flight Simulator\\\\8.0]\n"
                              "\"EXE Path\"=\"C:\\\\fs2002\"\n";
    write(home / ".wine/drive_c/readme", "");
    write(home / ".wine/system.reg", value);
    const fs::path second = home / ".local/share/wineprefixes/flying";
    write(second / "system.reg", value);
    fs::create_directories(second / "drive_c");
    // Nothing is anywhere: a stale value would overrule each folder that the pilot picks.
    EXPECT_EQ(systemRegistry()->simulatorFolder(), std::nullopt);
    const fs::path usual = home / ".wine/drive_c/Program Files/Microsoft Games/My FS";
    write(usual / "fs2002.cfg", "");
    EXPECT_EQ(systemRegistry()->simulatorFolder(), usual.string());
    write(second / "drive_c/FS2002/fs2002.cfg", "");
    EXPECT_EQ(systemRegistry()->simulatorFolder(), (second / "drive_c/FS2002").string());
}

TEST_F(Prefixes, AreFoundOnEveryShelfOfTheHome) {
    std::vector<fs::path> all = {home / "named", home / ".wine"};
    for (const char* shelf :
         {".local/share/wineprefixes", ".PlayOnLinux/wineprefix", "Games", ".cxoffice",
          ".local/share/bottles/bottles", ".var/app/com.usebottles.bottles/data/bottles/bottles"})
        all.push_back(home / shelf / "flying");
    for (const fs::path& prefix : all) fs::create_directories(prefix / "drive_c");
    fs::create_directories(home / "Games" / "no prefix");
    setenv("WINEPREFIX", (home / "named").c_str(), 1);
    EXPECT_EQ(winePrefixes(), all);
    setenv("WINEPREFIX", (home / ".wine").c_str(), 1); // named once
    all.erase(all.begin());
    EXPECT_EQ(winePrefixes(), all);
}

TEST_F(Prefixes, UsualFoldersAreLookedIntoWithoutARegistryValue) {
    const fs::path folder = home / ".wine/drive_c/Program Files (x86)/Microsoft Games/FS2002";
    write(folder / "FS2002.CFG", "");
    EXPECT_EQ(systemRegistry()->simulatorFolder(), folder.string());
}

} // namespace gatewise::native
