#include "platform/Files.h"

#include "platform/Text.h"
#include "support/TempFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gatewise {
namespace {

using test::TempFolder;

struct Byte {
    std::uint8_t value = 0;
    static constexpr void fields(auto& r, auto&& f) { f("value", r.value); }
};

TEST(Paths, BothSlashesAndAnyCaseFindAFile) {
    const TempFolder folder;
    folder.write("/Data/Index.gt1", "x");
    EXPECT_TRUE(files::fileExists(folder.path("\\data\\INDEX.GT1")));
    EXPECT_TRUE(files::fileExists(folder.path("/DATA\\index.gt1")));
    EXPECT_TRUE(files::folderExists(folder.path("\\dATA\\")));
    EXPECT_FALSE(files::fileExists(folder.path("\\data")));
    EXPECT_FALSE(files::folderExists(folder.path("\\data\\index.gt1")));
    EXPECT_FALSE(files::fileExists(folder.path("\\data\\index.gt")));
}

TEST(Paths, TheExactCaseComesFirst) {
    const TempFolder folder;
    for (const auto* name : {"/a.txt", "/A.TXT", "/A.txt"}) std::ofstream(folder.path(name)) << name;
    for (const auto* name : {"/a.txt", "/A.TXT", "/A.txt"}) EXPECT_EQ(folder.read(name), name);
    EXPECT_NE(folder.read("/a.TXT"), "(no such file)");
}

TEST(Paths, WhatDoesNotExistIsCreatedAsWritten) {
    const TempFolder folder;
    folder.write("/Flights/MyFlts/x", "x");
    ASSERT_FALSE(files::replace(folder.path("\\flights\\MYFLTS\\New Plan.PLN"), std::string_view("plan")));
    EXPECT_TRUE(std::filesystem::exists(folder.path("/Flights/MyFlts/New Plan.PLN")));
    EXPECT_EQ(files::foundName(folder.path("\\flights\\myflts\\new plan.pln")), "New Plan.PLN");
    EXPECT_EQ(files::foundName(folder.path("\\flights\\myflts")), "");
    EXPECT_EQ(files::foundName(folder.path("\\flights\\none")), "");
}

TEST(Paths, DotsAndDoubledSlashes) {
    const TempFolder folder;
    folder.write("/a/b.txt", "x");
    EXPECT_TRUE(files::fileExists(folder.path("\\a\\\\b.txt")));
    EXPECT_TRUE(files::fileExists(folder.path("\\a\\.\\..\\a\\b.txt")));
    EXPECT_EQ(files::resolve("/../..").string(), "/");
}

TEST(Paths, NamesOfThePageAreUtf8OnTheDisk) {
    const TempFolder folder;
    folder.write("/Gen\xE8ve.txt", "x");
    EXPECT_TRUE(std::filesystem::exists(folder.path("/Gen\xC3\xA8ve.txt")));
    EXPECT_TRUE(files::fileExists(folder.path("\\GEN\xC8VE.TXT")));
    EXPECT_EQ(files::list(folder.path()).at(0).name, "Gen\xE8ve.txt");
}

TEST(Paths, NamesOutsideThePageStillWork) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.path("/\xC5\x81\xC3\xB3"
                                                  "d\xC5\xBA"));
    const std::string name = files::list(folder.path()).at(0).name;
    EXPECT_TRUE(files::folderExists(folder.path("/" + name)));
    folder.write("/" + name + "/x.txt", "x");
    EXPECT_EQ(folder.read("/" + name + "/X.TXT"), "x");
}

TEST(ReadAll, TellsWhyItFailed) {
    const TempFolder folder;
    std::error_code error;
    EXPECT_FALSE(files::readAll(folder.path("/none"), &error));
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
    EXPECT_FALSE(files::readAll(folder.path(), &error));
    EXPECT_EQ(error, std::errc::is_a_directory);
    folder.write("/empty", "");
    EXPECT_EQ(files::readAll(folder.path("/empty"))->size(), 0U);
}

TEST(Paths, ANulEndsNoPath) {
    const TempFolder folder;
    folder.write("/LogBook.gt1", "flights");
    const std::string cut = folder.path(std::string_view("/LogBook.gt1\0.FLT", 17));
    EXPECT_TRUE(files::resolve(cut).empty());
    EXPECT_EQ(files::replace(cut, std::string_view("x")), std::errc::invalid_argument);
    EXPECT_FALSE(files::fileExists(cut));
    EXPECT_FALSE(files::readAll(cut));
    EXPECT_FALSE(files::remove(cut));
    EXPECT_EQ(folder.read("/LogBook.gt1"), "flights");
    EXPECT_EQ(files::replace("", std::string_view("x")), std::errc::invalid_argument);
}

TEST(Paths, FoldersWhoseNamesAreNoUtf8Work) {
    const TempFolder folder;
    const std::string raw = std::string(folder.path()) + "/caf\xE9";
    ASSERT_EQ(::mkdir(raw.c_str(), 0700), 0);
    const std::string text = files::textOf(std::filesystem::path(raw));
    EXPECT_TRUE(files::folderExists(text));
    EXPECT_FALSE(files::replace(text + "\\GT.cfg", std::string_view("x")));
    EXPECT_TRUE(std::filesystem::exists(raw + "/GT.cfg"));
    EXPECT_TRUE(files::fileExists(text + "\\gt.CFG"));
    EXPECT_TRUE(files::folderExists(folder.path("\\CAF\xC9")));
    EXPECT_EQ(files::list(folder.path()).at(0).name, "caf\xE9");
}

TEST(Rewrite, WhatAnotherProgramReplacedMeanwhileIsReadAgain) {
    const TempFolder folder;
    folder.write("/fs2002.cfg", "old");
    int calls = 0;
    EXPECT_FALSE(files::rewrite(folder.path("/fs2002.cfg"), [&](Bytes old) -> std::optional<Bytes> {
        if (++calls == 1) folder.write("/fs2002.cfg", "of another program");
        old.push_back('!');
        return old;
    }));
    EXPECT_EQ(folder.read("/fs2002.cfg"), "of another program!");
    EXPECT_EQ(calls, 2);
}

TEST(Rewrite, WhatChangesForEverIsLeftToItself) {
    const TempFolder folder;
    int calls = 0;
    const auto error = files::rewrite(folder.path("/a"), [&](const Bytes&) -> std::optional<Bytes> {
        folder.write("/a", std::to_string(++calls));
        return Bytes{'x'};
    });
    EXPECT_EQ(error, std::errc::interrupted);
    EXPECT_EQ(folder.read("/a"), std::to_string(calls));
    EXPECT_FALSE(files::fileExists(folder.path("/a.new~")));
}

TEST(Replace, OnlyPlainFilesAreReplaced) {
    const TempFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("/pipe").c_str(), 0600), 0);
    EXPECT_EQ(files::replace(folder.path("/pipe"), std::string_view("x")), std::errc::not_supported);
    EXPECT_EQ(files::replace(folder.path(), std::string_view("x")), std::errc::is_a_directory);
}

TEST(Remove, ToleratesAMissingFile) {
    const TempFolder folder;
    folder.write("/A.txt", "x");
    EXPECT_FALSE(files::remove(folder.path("\\a.TXT")));
    EXPECT_FALSE(files::fileExists(folder.path("/A.txt")));
    EXPECT_FALSE(files::remove(folder.path("\\a.TXT")));
}

TEST(ReadAll, APipeIsNoFileToWaitFor) {
    const TempFolder folder;
    const std::string pipe = folder.path("/GT.cfg");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::error_code error;
    EXPECT_FALSE(files::readAll(pipe, &error));
    EXPECT_EQ(error, std::errc::not_supported);
}

TEST(ReadAll, AFileOfAbsurdLengthIsNotTakenIn) {
    const TempFolder folder;
    folder.write("/LogBook.gt1", "x");
    ASSERT_EQ(::truncate(folder.path("/LogBook.gt1").c_str(), files::kLongestFile + 1), 0);
    std::error_code error;
    EXPECT_FALSE(files::readAll(folder.path("/LogBook.gt1"), &error));
    EXPECT_EQ(error, std::errc::file_too_large);
    const files::RecordFile records(folder.path("/LogBook.gt1"));
    EXPECT_FALSE(records.records<Byte>(0, files::kLongestFile + 1));
}

TEST(Replace, DoesNotFollowALinkThatStandsInTheWay) {
    const TempFolder folder;
    folder.write("/GT.cfg", "old");
    folder.write("/victim", "untouched");
    std::filesystem::create_symlink(folder.path("/victim"), folder.path("/GT.cfg.new~"));
    EXPECT_FALSE(files::replace(folder.path("/GT.cfg"), "new"));
    EXPECT_EQ(folder.read("/GT.cfg"), "new");
    EXPECT_EQ(folder.read("/victim"), "untouched");
    EXPECT_FALSE(std::filesystem::is_symlink(folder.path("/GT.cfg")));
}

TEST(List, OfAMissingFolderIsEmpty) {
    EXPECT_TRUE(files::list("/nowhere/at/all").empty());
}

struct Pair {
    FixedText<3> text;
    std::int16_t number = 0;
    static constexpr void fields(auto& r, auto&& f) { f("text", r.text), f("number", r.number); }
};

TEST(RecordFile, ReadsInsideTheFileOnly) {
    const TempFolder folder;
    folder.write("/p", "abc\x01\x02"
                       "def\xFF\xFF");
    const files::RecordFile file(folder.path("/P"));
    ASSERT_TRUE(file.isOpen());
    EXPECT_EQ(file.length(), 10);
    EXPECT_EQ(file.record<Pair>(5)->number, -1);
    EXPECT_EQ(file.record<Pair>(5)->text.view(), "def");
    EXPECT_EQ(file.number<std::int16_t>(3), 0x0201);
    EXPECT_EQ(file.records<Pair>(0, 2)->size(), 2U);
    EXPECT_EQ(file.records<Pair>(10, 0)->size(), 0U);
    for (const long long offset : {-1LL, 6LL, 10LL, 11LL, 1LL << 40U})
        EXPECT_FALSE(file.record<Pair>(offset));
    EXPECT_FALSE(file.records<Pair>(0, 3));
    EXPECT_FALSE(file.records<Pair>(0, -1));
    EXPECT_FALSE(file.records<Pair>(0, 1LL << 62U));
    EXPECT_FALSE(file.records<Pair>(-5, 1));
}

TEST(RecordFile, AMissingFileOrAFolderIsNotOpen) {
    const TempFolder folder;
    EXPECT_FALSE(files::RecordFile(folder.path("/none")).isOpen());
    const files::RecordFile file(folder.path());
    EXPECT_FALSE(file.isOpen());
    EXPECT_FALSE(file.number<std::int32_t>(0));
}

TEST(Binary, RecordsAreLittleEndianAndPacked) {
    Bytes bytes;
    appendRecord(bytes, Pair{"ab", 0x1234});
    EXPECT_EQ(bytes, (Bytes{'a', 'b', ' ', 0x34, 0x12}));
    EXPECT_EQ(recordAt<Pair>(bytes, 0)->number, 0x1234);
    EXPECT_FALSE(recordAt<Pair>(bytes, 1));
    EXPECT_FALSE(recordAt<Pair>(bytes, static_cast<std::size_t>(-1)));
    Bytes number;
    appendField(number, -1.5F);
    EXPECT_EQ(number, (Bytes{0, 0, 0xC0, 0xBF}));
    EXPECT_EQ(numberAt<float>(number, 0), -1.5F);
    EXPECT_FALSE(numberAt<float>(number, 1));
    appendField(number, 0.1);
    EXPECT_EQ(numberAt<double>(number, 4), 0.1);
}

} // namespace
} // namespace gatewise
