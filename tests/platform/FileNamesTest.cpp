#include "platform/FileNames.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;

namespace gatewise {
namespace {

TEST(FileNames, OrdinaryStemsAreNames) {
    for (const auto name : {"Air One Flight 123 LAX to JFK.pln"sv, " Flight 1 AB  to CD.FLT"sv, ".pln"sv,
                            "console.pln"sv, "COM10.pln"sv, "a..b"sv, "Gen\xE8ve.fsn"sv, "LPT"sv})
        EXPECT_TRUE(files::isFileName(name)) << name;
}

TEST(FileNames, NothingThatLeadsOutOfItsFolderIsAName) {
    for (const auto name :
         {"../esc.pln"sv, "..\\..\\esc.pln"sv, "/etc/x"sv, "a/b"sv, "a\\b"sv, "."sv, ".."sv, ""sv})
        EXPECT_FALSE(files::isFileName(name)) << name;
}

TEST(FileNames, NothingThatASystemCutsOrReadsOtherwiseIsAName) {
    for (const auto name : {"GT.cfg\0.pln"sv, "a\r\nb"sv, "a\x1F"sv, "a\x7F.pln"sv, "x.pln:stream"sv, "C:x"sv,
                            "a*.pln"sv, "a?.pln"sv, "\"a\".pln"sv, "<a>"sv, "a|b"sv, "a.pln "sv, "a.pln."sv})
        EXPECT_FALSE(files::isFileName(name)) << name;
}

TEST(FileNames, DevicesAreNoFilesWhateverTheirExtension) {
    for (const auto name : {"CON"sv, "nul.pln"sv, "Aux .FLT"sv, "COM1"sv, "lpt9.fsn"sv, "com\xB9.pln"sv,
                            "PRN.a.b"sv, "CONIN$"sv})
        EXPECT_FALSE(files::isFileName(name)) << name;
}

TEST(FileNames, ANameIsPutBehindItsFolderOrRefused) {
    std::error_code error = std::make_error_code(std::errc::io_error);
    EXPECT_EQ(files::namedIn("C:\\FS\\flights", "a.pln", error), "C:\\FS\\flights\\a.pln");
    EXPECT_FALSE(error);
    EXPECT_FALSE(files::namedIn("C:\\FS", "..\\a.pln", error));
    EXPECT_EQ(error, std::errc::invalid_argument);
}

} // namespace
} // namespace gatewise
