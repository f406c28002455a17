#include "support/TempFolder.h"
#include "work/ExportKinds.h"
#include "work/SendFlight.h"

#include <gtest/gtest.h>

// Airlines and airports out of a data set whose names are made to leave their folders.

namespace gatewise {
namespace {

using namespace std::string_literals;

class HostileNames : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"flights/fs2kflts", "flights/myflts", "Modules/FSNavigator/Plan"})
            std::filesystem::create_directories(folder / "FS" / name);
        folder.write("/App/Data/default.FLT", "[Main]\r\nTitle=\r\n");
        folder.write("/App/Data/LogBook.gt1", "flights");
        settings.FsPath = fsPath;
    }
    [[nodiscard]] ExportJob job(const std::string& stem) const {
        return {plan, stem, false, "Saturday, June 15, 2002", {}, numbers, fsPath};
    }
    /// Every file below the folder, the two that were there before left out.
    [[nodiscard]] std::vector<std::string> written() const {
        std::vector<std::string> out;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.native())) {
            const std::string name = entry.path().filename().string();
            if (entry.is_regular_file() && name != "default.FLT" && name != "LogBook.gt1")
                out.push_back(name);
        }
        return out;
    }

    const test::TempFolder folder;
    const std::string fsPath = folder.path("/FS");
    Plan plan;
    NumberLocale numbers;
    Settings settings;
    SimulatorHandOff simulator;
    const std::vector<std::string> kStems = {"../../../esc Flight 1 AAA to BBB",
                                             "..\\..\\esc Flight 1 AAA to BBB",
                                             "../../App/Data/LogBook.gt1\0 Flight 1 AAA to BBB"s,
                                             "Air Flight 1 \0\0\0 to BBB"s,
                                             "Air:stream Flight 1 AAA to BBB",
                                             "NUL.x Flight 1 AAA to BBB",
                                             "Air\r\n[Main] Flight 1 AAA to BBB"};
};

TEST_F(HostileNames, NoFlightLeavesItsFolder) {
    for (const std::string& stem : kStems) {
        EXPECT_EQ(WriteFlightToSimulator(folder.path("/App"), job(stem), {}, settings, {}, simulator),
                  std::errc::invalid_argument)
            << stem;
        EXPECT_EQ(written(), std::vector<std::string>()) << stem;
    }
    EXPECT_EQ(folder.read("/App/Data/LogBook.gt1"), "flights");
}

TEST_F(HostileNames, AnOrdinaryFlightArrives) {
    EXPECT_FALSE(WriteFlightToSimulator(folder.path("/App"), job("Air One Flight 1 AAA to BBB"), {}, settings,
                                        {}, simulator));
    EXPECT_EQ(written().size(), 2U);
}

TEST_F(HostileNames, NoFsNavigatorPlanLeavesItsFolder) {
    const ExportKind* kind = exportKindOf("fsnav");
    ASSERT_NE(kind, nullptr);
    for (const std::string& stem : kStems) {
        const Notice notice = kind->write(job(stem), "");
        EXPECT_EQ(notice.message, Message::Failure);
        EXPECT_EQ(notice.errorNumber, static_cast<int>(std::errc::invalid_argument));
        EXPECT_EQ(written(), std::vector<std::string>()) << stem;
    }
}

} // namespace
} // namespace gatewise
