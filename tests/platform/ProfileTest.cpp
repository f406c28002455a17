#include "platform/Profile.h"

#include "support/TempFolder.h"

#include <csignal>
#include <ctime>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gatewise {
namespace {

using test::TempFolder;

std::string read(std::string_view content, std::string_view section, std::string_view key) {
    return textIn(Profile(content), section, key);
}

TEST(ProfileRead, SectionsAndKeysAreFoundWithoutRegardToCase) {
    const std::string content = "[Main]\r\nFSPath=C:\\Sim\r\nIndex=12\r\n";
    EXPECT_EQ(read(content, "MAIN", "fspath"), "C:\\Sim");
    EXPECT_EQ(read(content, "main", "INDEX"), "12");
    EXPECT_EQ(read(content, "Export", "Index"), "");
}

TEST(ProfileRead, TheFirstMatchWins) {
    const std::string content = "[A]\r\nx=1\r\nX=2\r\n[a]\r\nx=3\r\ny=4\r\n";
    EXPECT_EQ(read(content, "A", "x"), "1");
    EXPECT_EQ(read(content, "A", "y"), "");
}

TEST(ProfileRead, FilesOfAnyLineEndAreRead) {
    for (const auto* end : {"\r\n", "\n", "\r"}) {
        const std::string e = end;
        EXPECT_EQ(read("[A]" + e + "x=1" + e + "y=2", "A", "x"), "1");
        EXPECT_EQ(read("[A]" + e + "x=1" + e + "y=2", "A", "y"), "2");
    }
}

TEST(ProfileRead, BlanksAroundNamesAndValuesGo) {
    EXPECT_EQ(read("  [ A ]  \r\n  x  =  1 2  \r\n", "A", "x"), "1 2");
    EXPECT_EQ(read("\t[A]\r\n\tx\t=\t1\t\r\n", "A", "x"), "1");
    EXPECT_EQ(read("[A] trailing\r\nx=1\r\n", "A", "x"), "1");
    EXPECT_EQ(read("[A\r\nx=1\r\n", "A", "x"), "1");
}

TEST(ProfileRead, OnePairOfQuotesGoes) {
    const auto raw = [](std::string_view line) {
        const Profile profile("[A]\r\n" + std::string(line) + "\r\n");
        return profile.find("A", "x").value_or("(none)");
    };
    EXPECT_EQ(raw("x=\" a \""), " a ");
    EXPECT_EQ(raw("x=' a '"), " a ");
    EXPECT_EQ(raw("x=\"\"a\"\""), "\"a\"");
    EXPECT_EQ(raw("x=\"a'"), "\"a'");
    EXPECT_EQ(raw("x=\""), "\"");
    EXPECT_EQ(raw("x=\"\""), "");
    EXPECT_EQ(raw("x"), "(none)");
}

TEST(ProfileRead, CommentsAndOtherLinesAreNoKeys) {
    EXPECT_EQ(read("[A]\r\n;x=1\r\nx=2\r\n", "A", "x"), "2");
    EXPECT_EQ(read("[A]\r\nnonsense\r\n\r\nx=2\r\n", "A", "x"), "2");
    EXPECT_EQ(read("x=1\r\n[A]\r\n", "A", "x"), "");
    EXPECT_EQ(read("", "A", "x"), "");
}

TEST(ProfileRead, ValuesKeepTheirEqualsSigns) {
    EXPECT_EQ(read("[A]\r\nx=a=b\r\n", "A", "x"), "a=b");
}

TEST(ReadText, ABufferOf255CharactersHolds254) {
    const std::string longValue(400, 'v');
    EXPECT_EQ(read("[A]\r\nx=" + longValue + "\r\n", "A", "x"), std::string(254, 'v'));
}

TEST(ReadText, NulCharactersBecomeBlanksAndBlanksGo) {
    const std::string content("[A]\r\nx=\0 a\0b \0\r\n", 16);
    EXPECT_EQ(read(content, "A", "x"), "a b");
    EXPECT_EQ(read("[A]\r\nx=\"  a  \"\r\n", "A", "x"), "a");
}

TEST(ReadText, AMissingFileOrKeyIsEmpty) {
    const TempFolder folder;
    EXPECT_EQ(ReadText("A", "x", folder.path("/none.cfg")), "");
    folder.write("/a.cfg", "[A]\r\nx=\r\n");
    EXPECT_EQ(ReadText("A", "x", folder.path("/A.CFG")), "");
    EXPECT_EQ(ReadText("A", "y", folder.path("/a.cfg")), "");
}

TEST(ReadNumber, TakesTheNumberThatAValueBeginsWith) {
    const Profile profile("[A]\r\na=12\r\nb=-3\r\nc=7 miles\r\nd=x\r\ne=\r\nf= 5\r\ng=+4\r\nh=\"9\"\r\n");
    EXPECT_EQ(numberIn(profile, "A", "a"), 12);
    EXPECT_EQ(numberIn(profile, "A", "b"), -3);
    EXPECT_EQ(numberIn(profile, "A", "c"), 7);
    EXPECT_EQ(numberIn(profile, "A", "d"), 0);
    EXPECT_EQ(numberIn(profile, "A", "e"), 0);
    EXPECT_EQ(numberIn(profile, "A", "f"), 5);
    EXPECT_EQ(numberIn(profile, "A", "g"), 4);
    EXPECT_EQ(numberIn(profile, "A", "h"), 9);
    EXPECT_EQ(numberIn(profile, "A", "missing"), 0);
    EXPECT_EQ(ReadNumber("A", "x", "/nowhere/at/all.cfg"), 0);
}

TEST(ReadNumber, TakesTheSystemsOtherDigits) {
    const Profile profile("[A]\r\na=0x1F\r\nb=-0x10\r\nc=0b101\r\nd=0o17\r\ne=0xg\r\nf=017\r\ng=0x1fFz\r\n"
                          "h=0X1F\r\ni=4294967297\r\n");
    EXPECT_EQ(numberIn(profile, "A", "a"), 31);
    EXPECT_EQ(numberIn(profile, "A", "b"), -16);
    EXPECT_EQ(numberIn(profile, "A", "c"), 5);
    EXPECT_EQ(numberIn(profile, "A", "d"), 15);
    EXPECT_EQ(numberIn(profile, "A", "e"), 0);
    EXPECT_EQ(numberIn(profile, "A", "f"), 17);
    EXPECT_EQ(numberIn(profile, "A", "g"), 511);
    EXPECT_EQ(numberIn(profile, "A", "h"), 0);
    EXPECT_EQ(numberIn(profile, "A", "i"), 1);
}

std::string written(std::string_view content, std::string_view section, std::string_view key,
                    std::string_view value) {
    Profile profile(content);
    profile.set(section, key, value);
    return profile.content();
}

TEST(ProfileWrite, AValueIsReplacedWhereItStands) {
    EXPECT_EQ(written("[A]\r\nx=1\r\ny=2\r\n[B]\r\nx=3\r\n", "a", "X", "9"),
              "[A]\r\nx=9\r\ny=2\r\n[B]\r\nx=3\r\n");
    EXPECT_EQ(written("[A]\r\nx=1\r\nx=2\r\n", "A", "x", "9"), "[A]\r\nx=9\r\nx=2\r\n");
    EXPECT_EQ(written("[A]\r\nx=\"old value\"\r\n", "A", "x", "9"), "[A]\r\nx=9\r\n");
    EXPECT_EQ(written("[A]\r\nx=1\r\n", "A", "x", ""), "[A]\r\nx=\r\n");
    EXPECT_EQ(written("[A]\r\nx=1", "A", "x", "9"), "[A]\r\nx=9");
}

TEST(ProfileWrite, BlanksAroundTheOldValueStayButDoNotGrow) {
    EXPECT_EQ(written("[A]\r\nx =  1 \r\n", "A", "x", "9"), "[A]\r\nx =  9 \r\n");
    std::string content = "[A]\r\nx=1\r\n";
    for (int i = 0; i < 3; ++i) content = written(content, "A", "x", " Ann ");
    EXPECT_EQ(content, "[A]\r\nx= Ann \r\n");
    content = written(content, "A", "x", " ");
    EXPECT_EQ(written(content, "A", "x", "9"), "[A]\r\nx= 9\r\n");
}

TEST(ProfileWrite, ANewKeyGoesToTheEndOfItsSection) {
    EXPECT_EQ(written("[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n", "A", "z", "9"),
              "[A]\r\nx=1\r\nz=9\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(written("[A]", "A", "z", "9"), "[A]\r\nz=9\r\n");
    EXPECT_EQ(written("[A]\r\nx=1", "A", "z", "9"), "[A]\r\nx=1\r\nz=9\r\n");
}

TEST(ProfileWrite, ANewSectionGoesToTheEndOfTheFile) {
    EXPECT_EQ(written("", "Main", "Index", "3"), "[Main]\r\nIndex=3\r\n");
    EXPECT_EQ(written("[A]\r\nx=1", "B", "y", "2"), "[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
}

TEST(ProfileWrite, AnEndOfTextMarkDoesNotEndItsLine) {
    EXPECT_EQ(written("[A]\r\nx=1\x1A", "B", "y", "2"), "[A]\r\nx=1\x1A\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(written("[A]\r\nx=1\x1A", "A", "z", "9"), "[A]\r\nx=1\x1A\r\nz=9\r\n");
    EXPECT_EQ(written("[A]\nx=1\n\x1A", "A", "z", "9"), "[A]\nx=1\nz=9\r\n\x1A");
    EXPECT_EQ(read("[A]\r\nx=1\x1A", "A", "x"), "1");
}

TEST(ProfileWrite, WhatIsNotNamedStaysByteForByte) {
    const std::string before = ";comment \n  [ Odd ]  \n key  =  \"v\" \t\nnonsense\n\n";
    const std::string after = "[A]\nx=1\n\n\r\n; end";
    const std::string content = written(before + after, "A", "x", "2");
    EXPECT_EQ(content.substr(0, before.size()), before);
    EXPECT_EQ(content.substr(content.size() - 9), "\n\n\r\n; end");
    EXPECT_EQ(read(content, "Odd", "key"), "v");
    EXPECT_EQ(read(content, "A", "x"), "2");
}

TEST(ProfileWrite, WhatIsWrittenIsReadBack) {
    std::string content = "[Main]\nIndex=1\n";
    for (const auto* value : {"abc", "a b", "C:\\Program Files\\X", "a=b", "\"quoted\"", "", "\xE9\x80"}) {
        content = written(content, "MAIN", "FSPath", value);
        const bool quoted = value[0] == '"';
        EXPECT_EQ(read(content, "Main", "FSPath"), quoted ? "quoted" : value);
        EXPECT_EQ(read(content, "Main", "Index"), "1");
    }
}

TEST(ProfileWrite, AValueNeverBecomesALineOfItsOwn) {
    const std::string content = written("[A]\r\nx=1\r\n", "A", "x", "a\r\n[B]\ny=2\rz");
    EXPECT_EQ(content, "[A]\r\nx=a  [B] y=2 z\r\n");
    EXPECT_EQ(read(content, "A", "x"), "a  [B] y=2 z");
    EXPECT_EQ(written("", "A", "x", std::string_view("a\0b\x1A", 4)), "[A]\r\nx=a b \r\n");
    EXPECT_EQ(written("", "A\r\nB", "x\ny", "1"), "[A  B]\r\nx y=1\r\n");
}

TEST(ProfileWrite, NewSectionsStandInTheOrderOfTheirKeys) {
    Profile profile("[A]\r\nx=1\r\n");
    EXPECT_FALSE(profile.find("D", "k"));
    for (const auto* section : {"C", "A", "D", "C"}) profile.set(section, "k", "1");
    profile.set("D", "K", "2");
    profile.set("C", "l", "3");
    EXPECT_EQ(profile.content(), "[A]\r\nx=1\r\nk=1\r\n[C]\r\nk=1\r\nl=3\r\n[D]\r\nk=2\r\n");
    EXPECT_EQ(profile.find("d", "k"), "2");
}

TEST(ProfileWrite, OneBatchIsWhatTheSameWritesOneByOneAre) {
    const std::string start = "[A]\r\nx=1\r\n\r\n[B]\ny = 2 \n; c\n\n[A]\nx=9\n[C]\nz";
    const std::vector<ProfileValue> values = {{"C", "z", "1"},   {"A", "w", ""},   {"B", "Y", "long value"},
                                              {"E", "n", "1"},   {"C", "q", "2"},  {"A", "W", "v"},
                                              {"B", "y", " b "}, {"E", "m", "\""}, {"A", "x", "12345678"}};
    std::string single = start;
    for (const auto& v : values) single = written(single, v.section, v.key, v.value);
    EXPECT_EQ(contentWith(Bytes(start.begin(), start.end()), values), single);
}

TEST(ProfileCodings, AMarkOfUtf8IsReadAndKept) {
    const std::string file = "\xEF\xBB\xBF[Main]\r\nFSPath=C:\\Gen\xC3\xA8ve\r\nLast=\xC5\x81\r\n";
    EXPECT_EQ(read(file, "Main", "FSPath"), "C:\\Gen\xE8ve");
    EXPECT_EQ(read(file, "Main", "Last"), "\xC5\x81");
    EXPECT_EQ(written(file, "Main", "FSPath", "C:\\Z\xFCrich"),
              "\xEF\xBB\xBF[Main]\r\nFSPath=C:\\Z\xC3\xBCrich\r\nLast=\xC5\x81\r\n");
}

std::string utf16(std::string_view text, bool big) {
    std::string out = big ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : text) {
        if (big) out += '\0';
        out += c;
        if (!big) out += '\0';
    }
    return out;
}

TEST(ProfileCodings, Utf16IsReadAndKept) {
    for (const bool big : {false, true}) {
        const std::string file = utf16("[Main]\r\nIndex=12\r\n", big);
        EXPECT_EQ(read(file, "Main", "Index"), "12");
        EXPECT_EQ(written(file, "main", "Index", "13"), utf16("[Main]\r\nIndex=13\r\n", big));
        EXPECT_EQ(written(file, "main", "Last", "Z\xFC"), utf16("[Main]\r\nIndex=12\r\nLast=Z\xFC\r\n", big));
    }
    using namespace std::string_literals;
    const std::string pair = "\xFF\xFE[\0A\0]\0\n\0x\0=\0\x3D\xD8\x00\xDE\n\0"s;
    EXPECT_EQ(read(pair, "A", "x"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(Profile(pair).content(), pair);
    EXPECT_EQ(read("\xFF\xFE[", "A", "x"), "");
}

TEST(ProfileSize, FiftyMegabytesAreReadAndWrittenInOnePass) {
    std::string content = "[Main]\r\nIndex=12\r\n";
    for (int i = 0; content.size() < 50'000'000; ++i)
        content += "Key number " + std::to_string(i) + " of many=its value\r\n";
    content += "[Other]\r\nLast=1\r\n";
    const std::clock_t start = std::clock(); // of this process: what else the machine does is not its time
    Profile profile(content);
    for (int i = 0; i < 200; ++i) profile.set("Main", "WpInfo" + std::to_string(i), "0, 0, 0");
    EXPECT_EQ(numberIn(profile, "Main", "Index"), 12);
    EXPECT_EQ(numberIn(profile, "Other", "Last"), 1);
    profile.set("main", "key number 5 OF many", "changed");
    const std::string out = profile.content();
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    EXPECT_GT(out.size(), content.size());
    // The work of one pass; a pass for each key took half a minute without any checks.
    EXPECT_LT(seconds, 20.0); // checked builds among them
    RecordProperty("seconds", std::to_string(seconds));
}

TEST(WriteValue, AFileThatCannotBeReadIsNotWrittenOver) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.path("/GT.cfg"));
    EXPECT_EQ(WriteValue("Main", "Index", "2", folder.path("/GT.cfg")), std::errc::is_a_directory);
    folder.write("/fs2002.cfg", "[A]\r\n");
    ASSERT_EQ(::truncate(folder.path("/fs2002.cfg").c_str(), files::kLongestFile + 1), 0);
    EXPECT_EQ(WriteValue("A", "x", "2", folder.path("/fs2002.cfg")), std::errc::file_too_large);
}

TEST(WriteValue, CreatesTheFileAndKeepsTheOtherKeys) {
    const TempFolder folder;
    EXPECT_FALSE(WriteValue("Main", "Index", "3", folder.path("\\GT.cfg")));
    EXPECT_FALSE(WriteValue("main", "Last", "Smith", folder.path("\\gt.CFG")));
    EXPECT_EQ(folder.read("/GT.cfg"), "[Main]\r\nIndex=3\r\nLast=Smith\r\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(WriteValues, AreThoseOfOneWriteAfterTheOther) {
    const TempFolder folder;
    const std::vector<ProfileValue> values = {
        {"B", "x", "1"}, {"A", "y", "2"}, {"b", "z", "3"}, {"B", "X", "4"}, {"A", "y", ""}};
    for (const auto& v : values) EXPECT_FALSE(WriteValue(v.section, v.key, v.value, folder.path("/one.cfg")));
    EXPECT_FALSE(WriteValues(values, folder.path("/all.cfg")));
    EXPECT_EQ(folder.read("/all.cfg"), folder.read("/one.cfg"));
    EXPECT_EQ(folder.read("/all.cfg"), "[B]\r\nx=4\r\nz=3\r\n[A]\r\ny=\r\n");
}

TEST(WriteValue, ThroughASymbolicLinkItsTargetIsReplaced) {
    const TempFolder folder;
    folder.write("/real/GT.cfg", "[Main]\r\nIndex=1\r\n");
    std::filesystem::create_symlink("real/GT.cfg", folder.path("/GT.cfg"));
    EXPECT_FALSE(WriteValue("Main", "Index", "2", folder.path("/GT.cfg")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("/GT.cfg")));
    EXPECT_EQ(folder.read("/real/GT.cfg"), "[Main]\r\nIndex=2\r\n");
    std::filesystem::create_symlink(folder.path("/real/new.cfg"), folder.path("/dangling.cfg"));
    EXPECT_FALSE(WriteValue("Main", "Index", "2", folder.path("/dangling.cfg")));
    EXPECT_EQ(folder.read("/real/new.cfg"), "[Main]\r\nIndex=2\r\n");
}

TEST(WriteValue, AReadOnlyFileStaysWhole) {
    const TempFolder folder;
    folder.write("/GT.cfg", "[Main]\r\nIndex=1\r\n");
    std::filesystem::permissions(folder.path("/GT.cfg"), std::filesystem::perms::owner_read);
    EXPECT_EQ(WriteValue("Main", "Index", "2", folder.path("/GT.cfg")), std::errc::permission_denied);
    EXPECT_EQ(folder.read("/GT.cfg"), "[Main]\r\nIndex=1\r\n");
}

TEST(WriteValue, TheFilesPermissionsStay) {
    const TempFolder folder;
    folder.write("/GT.cfg", "[Main]\r\nIndex=1\r\n");
    ASSERT_EQ(::chmod(folder.path("/GT.cfg").c_str(), 0640), 0);
    EXPECT_FALSE(WriteValue("Main", "Index", "2", folder.path("/GT.cfg")));
    struct stat now {};
    ASSERT_EQ(::stat(folder.path("/GT.cfg").c_str(), &now), 0);
    EXPECT_EQ(now.st_mode & 07777U, 0640U);
}

TEST(WriteValue, WhereNoMoreCanBeWrittenTheOldFileStaysWhole) {
    const TempFolder folder;
    const std::string old = "[Main]\r\nIndex=1\r\n" + std::string(5000, ';');
    folder.write("/GT.cfg", old);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{1000, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto error = WriteValue("Main", "Index", "2", folder.path("/GT.cfg"));
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(error, std::errc::file_too_large);
    EXPECT_EQ(folder.read("/GT.cfg"), old);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(WriteValue, AFolderInTheFilesPlaceIsAnError) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.path("/GT.cfg"));
    EXPECT_TRUE(WriteValue("Main", "Index", "2", folder.path("/GT.cfg")));
    EXPECT_TRUE(WriteValue("Main", "Index", "2", folder.path("/none/GT.cfg")));
}

} // namespace
} // namespace gatewise
