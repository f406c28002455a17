#include "platform/AppFolder.h"
#include "platform/Files.h"
#include "platform/Native.h"
#include "platform/Profile.h"
#include "platform/posix/ProcessTable.h"
#include "platform/simulated/SimulatedClock.h"
#include "support/Soon.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <locale.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace gatewise::native {

namespace {

namespace fs = std::filesystem;

struct Services : ::testing::Test {
    Services() { fs::create_directories(folder); }
    ~Services() override { fs::remove_all(folder); }

    static void write(const fs::path& file, const std::string& text) {
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }
    static std::string read(const fs::path& file) {
        std::ostringstream out;
        out << std::ifstream(file, std::ios::binary).rdbuf();
        return out.str();
    }

    fs::path folder =
        fs::temp_directory_path() / ("gatewise-native-" + std::to_string(getpid()) + "-" +
                                     ::testing::UnitTest::GetInstance()->current_test_info()->name());
};

} // namespace

TEST(PosixClock, BiasIsThatOfStandardTime) {
    setenv("TZ", "EST5EDT,M3.2.0,M11.1.0", 1);
    EXPECT_EQ(systemClock()->bias(), 300);
    setenv("TZ", "IST-5:30", 1);
    EXPECT_EQ(systemClock()->bias(), -330);
    setenv("TZ", "UTC0", 1);
    EXPECT_EQ(systemClock()->bias(), 0);
    const DateTime now = systemClock()->now();
    EXPECT_GE(now.year, 2024);
    EXPECT_LE(now.second, 59);
}

TEST(PosixLocale, TheNeutralLocaleHasAPointAndNoMonetarySign) {
    setenv("LC_ALL", "C", 1);
    const auto locale = userLocale();
    EXPECT_EQ(locale->text(LocaleKey::MoneyDecimal), "");
    EXPECT_EQ(locale->text(LocaleKey::Decimal), ".");
    EXPECT_EQ(locale->text(LocaleKey::Time), ":");
    EXPECT_EQ(locale->text(LocaleKey::List), ",");
    EXPECT_EQ(locale->longDate({2002, 6, 15}), "Saturday, June 15, 2002");
}

TEST(SystemRandom, DrawsLieInTheUnitInterval) {
    const auto random = systemRandom();
    bool differs = false;
    const double first = random->draw();
    for (int i = 0; i < 1000; ++i) {
        const double draw = random->draw();
        ASSERT_GE(draw, 0);
        ASSERT_LT(draw, 1);
        differs = differs || draw != first;
    }
    EXPECT_TRUE(differs);
}

TEST_F(Services, AProgramStartsInItsFolderWithItsOneParameter) {
    write(folder / "Helper",
          "#!/bin/sh\npwd > where.tmp\necho \"$#: $1\" >> where.tmp\nmv where.tmp where\n");
    fs::permissions(folder / "Helper", fs::perms::owner_all);
    fs::create_directories(folder / "work");
    const auto processes = systemProcesses({});
    const auto process =
        processes->start((folder / "helper").string(), "/gt now", (folder / "work").string());
    ASSERT_TRUE(process);
    EXPECT_TRUE(soon([&] { return processes->ended(*process); }));
    EXPECT_EQ(read(folder / "work" / "where"), (folder / "work").string() + "\n1: /gt now\n");
}

TEST_F(Services, AProgramWithoutAParameterGetsNone) {
    write(folder / "helper", "#!/bin/sh\necho $# > count.tmp\nmv count.tmp count\n");
    fs::permissions(folder / "helper", fs::perms::owner_all);
    const auto processes = systemProcesses({});
    const auto process = processes->start("helper", "", folder.string());
    ASSERT_TRUE(process);
    EXPECT_TRUE(soon([&] { return processes->ended(*process); }));
    EXPECT_EQ(read(folder / "count"), "0\n");
}

TEST(CommandLineWord, IsOneParameterAgainWhereWindowsReadsIt) {
    EXPECT_EQ(commandLineWord(""), "");
    EXPECT_EQ(commandLineWord("/gt"), "/gt");
    EXPECT_EQ(commandLineWord("C:\\PF\\"), "C:\\PF\\");
    EXPECT_EQ(commandLineWord("/gt now"), "\"/gt now\"");
    EXPECT_EQ(commandLineWord("C:\\Pro Flight\\"), "\"C:\\Pro Flight\\\\\"");
    EXPECT_EQ(commandLineWord("a\"b"), "\"a\\\"b\"");
    EXPECT_EQ(commandLineWord("a\\\"b"), "\"a\\\\\\\"b\"");
}

TEST_F(Services, WithoutWineThePilotHearsWhatIsMissing) {
    write(folder / "FS2002.EXE", "MZ");
    fs::create_directories(folder / "wine"); // a folder of that name is no program
    const std::string path = getenv("PATH");
    setenv("PATH", folder.c_str(), 1);
    std::vector<std::string> told;
    const auto processes = systemProcesses([&](const std::string& text) { told.push_back(text); });
    EXPECT_FALSE(processes->start("fs2002.exe", "", folder.string()));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NE(told[0].find("Wine"), std::string::npos);
    EXPECT_FALSE(processes->start("missing.exe", "", folder.string()));
    setenv("PATH", path.c_str(), 1);
}

TEST_F(Services, WineGetsTheProgramAndThePrefixThatHoldsIt) {
    const fs::path game = folder / "prefix/drive_c/FS2002";
    write(game / "fs2002.exe", "MZ");
    write(folder / "bin/wine",
          "#!/bin/sh\necho \"$WINEPREFIX\" > said.tmp\necho \"$1\" >> said.tmp\n/bin/mv said.tmp said\n");
    fs::permissions(folder / "bin/wine", fs::perms::owner_all);
    const std::string path = getenv("PATH");
    setenv("PATH", (folder / "bin").c_str(), 1);
    const auto processes = systemProcesses({});
    const auto process = processes->start("FS2002.exe", "", game.string());
    setenv("PATH", path.c_str(), 1);
    ASSERT_TRUE(process);
    EXPECT_TRUE(soon([&] { return processes->ended(*process); }));
    EXPECT_EQ(read(game / "said"),
              (folder / "prefix").string() + "\n" + (game / "fs2002.exe").string() + "\n");
}

/// A table that shows one process of the computer: what else runs there may be called as it likes.
TEST_F(Services, ARunningSimulatorIsFoundByItsProcess) {
    write(folder / "fs2002.exe", "#!/bin/sh\nread line\n");
    fs::permissions(folder / "fs2002.exe", fs::perms::owner_all);
    const fs::path table = folder / "table";
    fs::create_directories(table);
    int pipe[2];
    ASSERT_EQ(::pipe(pipe), 0);
    const pid_t process = fork();
    ASSERT_GE(process, 0);
    if (process == 0) {
        dup2(pipe[0], STDIN_FILENO);
        close(pipe[0]);
        close(pipe[1]);
        execl((folder / "fs2002.exe").c_str(), "fs2002.exe", nullptr);
        _exit(127);
    }
    fs::create_directory_symlink("/proc/" + std::to_string(process), table / std::to_string(process));
    EXPECT_TRUE(soon([&] { return simulatorRunsIn(table); }));
    EXPECT_TRUE(systemProcesses({})->simulatorRunning()); // it is one of the computer's
    close(pipe[0]);
    close(pipe[1]);
    EXPECT_EQ(waitpid(process, nullptr, 0), process);
    EXPECT_FALSE(simulatorRunsIn(table));
}

TEST_F(Services, TheSimulatorIsKnownByItsProgramAloneOrBehindWhatRunsIt) {
    const auto runs = [&](const std::string& name, std::string arguments) {
        for (char& c : arguments)
            if (c == '|') c = '\0';
        const fs::path table = folder / "table";
        fs::remove_all(table);
        write(table / "1" / "cmdline", std::string("/sbin/init\0", 11));
        write(table / name / "cmdline", arguments);
        return simulatorRunsIn(table);
    };
    EXPECT_TRUE(runs("42", "fs2002.exe|"));
    EXPECT_TRUE(runs("42", "C:\\Games\\FS2002\\FS2002.EXE|/gt|"));
    EXPECT_TRUE(runs("42", "wine|/games/fs2002.exe|"));
    EXPECT_TRUE(runs("42", "/bin/sh|/usr/bin/wine|/games/fs2002.exe"));
    EXPECT_FALSE(runs("42", "nice|-n|5|fs2002.exe|"));
    EXPECT_FALSE(runs("42", "less|fs2002.exe.txt|"));
    EXPECT_FALSE(runs("42", "vi|/fs2002.exe/notes|"));
    EXPECT_FALSE(runs("42", ""));
    EXPECT_FALSE(runs("self", "fs2002.exe|"));
    EXPECT_FALSE(simulatorRunsIn(folder / "none"));
}

TEST_F(Services, TheShortDateIsThatOfTheChosenLocale) {
    const std::pair<const char*, const char*> forms[] = {{"C", "6/5/2002"},
                                                         {"de_DE.UTF-8", "05.06.2002"},
                                                         {"en_US.UTF-8", "06/05/2002"},
                                                         {"fr_FR.UTF-8", "05/06/2002"}};
    const char* before = std::getenv("LC_ALL");
    const std::string kept = before != nullptr ? before : "";
    for (const auto& [name, text] : forms) {
        const locale_t known = newlocale(LC_ALL_MASK, name, locale_t{});
        if (known == locale_t{}) continue; // not installed here
        freelocale(known);
        setenv("LC_ALL", name, 1);
        EXPECT_EQ(userLocale()->shortDate({2002, 6, 5, 0, 0, 0, 0}), text) << name;
    }
    if (before != nullptr)
        setenv("LC_ALL", kept.c_str(), 1);
    else
        unsetenv("LC_ALL");
}

TEST_F(Services, AWritableProgramFolderHoldsTheUsersFilesToo) {
    std::error_code error;
    fs::create_directories(folder / "Images");
    const AppFolders found = chooseFolders(folder, folder / "user", error);
    EXPECT_EQ(found.AppDir, folder.string());
    EXPECT_EQ(found.delivered, folder);
    EXPECT_FALSE(error);
    EXPECT_FALSE(fs::exists(folder / "user"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1);
}

TEST_F(Services, AnInstalledProgramFindsItsPicturesInTheSharedFolder) {
    fs::create_directories(folder / "bin");
    fs::create_directories(folder / "share" / "gatewise" / "Images");
    std::error_code error;
    const AppFolders found = chooseFolders(folder / "bin", folder / "user", error);
    EXPECT_EQ(found.delivered, folder / "share" / "gatewise");
    EXPECT_EQ(found.AppDir, (folder / "user" / "Gatewise Terminal").string());
    EXPECT_FALSE(error);
    EXPECT_TRUE(fs::is_directory(folder / "user" / "Gatewise Terminal" / "Data"));
}

TEST_F(Services, AUsersFolderThatCannotBeMadeIsAnError) {
    write(folder / "user", "a file");
    std::error_code error;
    // A folder that is none cannot be written, not even by an administrator.
    EXPECT_EQ(chooseFolders(folder / "program", folder / "user", error).AppDir,
              (folder / "program").string());
    EXPECT_TRUE(error);
}

/// An installed program and its user's folder, which holds what an older program once copied there.
struct Installed : Services {
    Installed() {
        write(program / "Images" / "icon.png", "new picture");
        write(program / "Data" / "index.gt1", "main index");
        write(program / "Data" / "routes.gt1", "main routes");
        write(program / "Data" / "Europe" / "index.gt1", "delivered set");
        write(program / "Data" / "Europe" / "routes.gt1", "delivered routes");
        write(program / "GT.cfg", "[Main]\r\nIndex=3\r\n");
        write(own / "Images" / "icon.png", "old picture");
        write(own / "Images" / "extra.png", "mine");
        write(own / "Data" / "LogBook.gt1", "flights");
        useFolders({own.string(), program});
    }
    ~Installed() override { useFolders({own.string(), own}); }
    [[nodiscard]] std::string seen(const std::string& tail) const {
        const auto bytes = files::readAll(own.string() + tail);
        return bytes ? std::string(asText(*bytes)) : std::string("(no such file)");
    }

    const fs::path program = folder / "program";
    const fs::path own = folder / "user";
};

TEST_F(Installed, AnUpdatedProgramShowsItsNewPictures) {
    EXPECT_EQ(seen("\\Images\\icon.png"), "new picture");
    EXPECT_EQ(seen("\\images\\EXTRA.png"), "mine");
    EXPECT_EQ(files::list(own.string() + "\\Images").size(), 2U);
}

TEST_F(Installed, WhatTheUserHasWinsWholeSetBySet) {
    EXPECT_EQ(seen("\\Data\\routes.gt1"), "main routes");
    EXPECT_EQ(seen("\\Data\\LogBook.gt1"), "flights");
    EXPECT_EQ(seen("\\Data\\Europe\\routes.gt1"), "delivered routes");
    write(own / "Data" / "Europe" / "index.gt1", "my set");
    EXPECT_EQ(seen("\\Data\\Europe\\index.gt1"), "my set");
    EXPECT_EQ(seen("\\Data\\Europe\\routes.gt1"), "(no such file)");
    EXPECT_EQ(seen("\\Data\\index.gt1"), "main index");
}

TEST_F(Installed, NothingIsWrittenIntoTheProgramsFolder) {
    EXPECT_EQ(seen("\\GT.cfg"), "[Main]\r\nIndex=3\r\n");
    EXPECT_FALSE(WriteValue("Main", "Last", "Hart", own.string() + "\\GT.cfg"));
    EXPECT_EQ(read(program / "GT.cfg"), "[Main]\r\nIndex=3\r\n");
    EXPECT_EQ(read(own / "GT.cfg"), "[Main]\r\nIndex=3\r\nLast=Hart\r\n");
    EXPECT_FALSE(files::remove(own.string() + "\\Data\\index.gt1"));
    EXPECT_TRUE(fs::exists(program / "Data" / "index.gt1"));
}

} // namespace gatewise::native
