#include "pages/FlyForm.h"

#include "../FlightWorld.h"
#include "input/Bind.h"
#include "input/UserEvents.h"
#include "pages/Screens.h"
#include "platform/simulated/SimulatedMachine.h"
#include "sound/SilentDevice.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

using namespace test;

/// The program with a simulator beside it and the flight of the small world on the pass.
class FlyScreen : public testing::Test {
protected:
    FlyScreen() {
        machine.loop.modal = [this](std::string_view screen, const std::function<bool()>&) {
            messages.push_back(p.forms.MsgForm.Msg_LABEL.text);
            headings.push_back(p.forms.MsgForm.type_LABEL.text);
            atMessage.push_back(p.forms.FlyForm.visible);
            hideScreen(p, *p.forms.find(screen));
        };
        for (const char* name : {"/sim/flights/fs2kflts", "/sim/flights/myflts", "/program/Data"}) {
            std::filesystem::create_directories(folder.path(name));
        }
        folder.write("/program/Data/default.FLT", "[Main]\r\nTitle=old\r\n[Other]\r\nKept=1\r\n");
        folder.write("/sim/fs2002.cfg", "[USERINTERFACE]\r\nSITUATION=mine\r\n");
        p.session.settings.FsPath = folder.path("/sim");
        p.session.plan.plan = world.plan;
        p.session.dispatch.CurrentFlight = world.flight;
        p.session.schedule.tables.airlines = {airline("V0", "Vantis Air")};
        bindScreens(p);
    }

    void open() { showScreen(p, p.forms.FlyForm); }
    void send() { user::click(p.forms.FlyForm.continueButton); }
    void choose(const std::string& position) {
        auto& list = p.forms.FlyForm.posCOMBO;
        ASSERT_TRUE(user::choose(list, list.find(position))) << position;
    }
    void installAircraft(const std::string& name, std::string_view title) {
        folder.write("/sim/Aircraft/" + name + "/aircraft.cfg", "[fltsim.0]\r\ntitle=" + std::string(title));
        std::filesystem::create_directories(folder.path("/sim/Aircraft/" + name + "/panel"));
    }
    [[nodiscard]] std::string situation(std::string_view section, std::string_view key) const {
        return ReadText(section, key, folder.path("\\sim\\flights\\fs2kflts\\" + stem + ".FLT"));
    }
    [[nodiscard]] bool planWritten() const {
        return files::fileExists(folder.path("/sim/flights/myflts/" + stem + ".pln"));
    }
    [[nodiscard]] bool situationWritten() const {
        return files::fileExists(folder.path("/sim/flights/fs2kflts/" + stem + ".FLT"));
    }

    const std::string stem = "Vantis Air Flight 123 ATL to JFK";
    const FlightWorld world;
    TempFolder folder;
    SilentDevice device;
    simulated::SimulatedMachine machine{device};
    Program p{machine.machine, folder.path("/program")};
    std::vector<std::string> messages, headings;
    std::vector<bool> atMessage; // whether the options were open when a message came
};

TEST_F(FlyScreen, ActivationListsPositionsAndPoints) {
    folder.write("/sim/SnapIt/Positions/KATL.pf2", [&] {
        Bytes bytes;
        for (int i = 0; i < 3; ++i) appendRecord(bytes, world.positions[static_cast<std::size_t>(i)]);
        return bytes;
    }());
    open();
    auto& f = p.forms.FlyForm;
    EXPECT_EQ(f.posCOMBO.items, (std::vector<std::string>{"- Do NOT Position Aircraft -", "- KATL Default -",
                                                          "- Start Inflight -", "Rwy - 08L", "Rwy - 26R",
                                                          "Gate B12", "Parking 7"}));
    EXPECT_EQ(f.posCOMBO.picked, 0);
    EXPECT_EQ(p.session.simulator.StartChoice, "- Do NOT Position Aircraft -");
    EXPECT_FALSE(f.PlanList.enabled);
    ASSERT_EQ(f.PlanList.rows.size(), 8U); // the destination has none
    EXPECT_EQ(f.PlanList.rows[0].cells, (std::vector<std::string>{"KATL ", "Hartsfield Intl", "", "01026"}));
    EXPECT_EQ(f.PlanList.rows[7].cells[0], "*TOD* ");
    EXPECT_EQ(f.PlanList.rows[7].cells[3], "29000");
}

TEST_F(FlyScreen, ColumnsHaveTheirSharesAndGoBackToThem) {
    open();
    auto& list = p.forms.FlyForm.PlanList;
    ASSERT_EQ(list.columns.size(), 4U);
    EXPECT_EQ(list.columns[1].text, "Name");
    EXPECT_DOUBLE_EQ(list.columns[1].width, list.width * 34 / 67);
    choose("- Start Inflight -"); // a list that is not enabled takes nothing
    list.columns[3].width = 5;
    user::column(list, 3);
    EXPECT_DOUBLE_EQ(list.columns[3].width, list.width * 10 / 67);
}

TEST_F(FlyScreen, AircraftAreReadOnceAndTheFirstIsPicked) {
    installAircraft("b737", "Boeing 737-400");
    open();
    auto& list = p.forms.FlyForm.acftCOMBO;
    EXPECT_EQ(list.items, (std::vector<std::string>{"Boeing 737-400"}));
    EXPECT_EQ(list.picked, 0);
    ASSERT_EQ(p.session.simulator.AircraftTable.size(), 1U);
    EXPECT_FALSE(machine.desktop.busy);
    hideScreen(p, p.forms.FlyForm);
    installAircraft("b747", "Boeing 747");
    list.select(-1);
    open();
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.picked, 0);
}

TEST_F(FlyScreen, NoAircraftLeavesTheListEmpty) {
    open();
    EXPECT_EQ(p.forms.FlyForm.acftCOMBO.count(), 0);
    send();
    EXPECT_EQ(situation("Plane", "Aircraft"), "");
}

TEST_F(FlyScreen, OnlyAnInflightStartEnablesThePoints) {
    open();
    auto& list = p.forms.FlyForm.PlanList;
    choose("- Start Inflight -");
    EXPECT_TRUE(list.enabled);
    user::choose(list, 3);
    EXPECT_EQ(p.session.simulator.SelectedPoint, 3);
    choose("Rwy - 08L");
    EXPECT_FALSE(list.enabled);
    EXPECT_EQ(p.session.simulator.StartChoice, "Rwy - 08L");
    user::choose(list, 5);
    EXPECT_EQ(p.session.simulator.SelectedPoint, 3);
}

TEST_F(FlyScreen, NoEarlierChoiceIsRestored) {
    open();
    choose("- Start Inflight -");
    user::choose(p.forms.FlyForm.PlanList, 3);
    hideScreen(p, p.forms.FlyForm);
    open();
    EXPECT_EQ(p.session.simulator.StartChoice, "- Do NOT Position Aircraft -");
    EXPECT_FALSE(p.forms.FlyForm.PlanList.enabled);
    EXPECT_EQ(p.forms.FlyForm.PlanList.picked, -1);
    EXPECT_EQ(p.session.simulator.SelectedPoint, 3); // keeps its last value until another row is picked
}

TEST_F(FlyScreen, StoredPositionsAreReadAtEachActivation) {
    open();
    EXPECT_EQ(p.forms.FlyForm.posCOMBO.count(), 5);
    Bytes bytes;
    appendRecord(bytes, world.positions[0]);
    folder.write("/sim/SnapIT/Positions/KATL.pf2", bytes);
    open();
    EXPECT_EQ(p.forms.FlyForm.posCOMBO.items.back(), "Gate B12");
    p.session.plan.plan.departureAirport.Icao = "KJFK";
    open();
    EXPECT_EQ(p.forms.FlyForm.posCOMBO.count(), 5);
}

TEST_F(FlyScreen, TheSliderShowsItsNumber) {
    auto& f = p.forms.FlyForm;
    open();
    EXPECT_EQ(f.fuelPCT.text, "85");
    user::slide(f.fuelSLIDER, 0);
    EXPECT_EQ(f.fuelPCT.text, "0");
    send();
    EXPECT_EQ(situation("Fuel", "RightTip"), "0.00");
}

TEST_F(FlyScreen, TheMouseRestoresThePictures) {
    open();
    auto& f = p.forms.FlyForm;
    f.continueButton.picture = "hover";
    user::move(f.BG);
    EXPECT_EQ(f.continueButton.picture, "cont_regular");
    f.closeButton.picture = "hover";
    user::move(f.PlanList);
    EXPECT_EQ(f.closeButton.picture, "close_regular");
}

TEST_F(FlyScreen, ASendWritesItsFilesAndSaysSo) {
    installAircraft("b737", "Boeing 737-400");
    open();
    choose("Rwy - 26R");
    send();
    EXPECT_TRUE(files::fileExists(folder.path("/program/GT.cfg")));
    EXPECT_TRUE(planWritten());
    EXPECT_EQ(situation("Main", "Title"), stem);
    EXPECT_EQ(situation("Other", "Kept"), "1");
    EXPECT_EQ(situation("Plane", "Aircraft"), "Boeing 737-400");
    EXPECT_EQ(situation("Plane", "Heading"), "270.250000");
    EXPECT_EQ(folder.read("/sim/fs2002.cfg"), "[USERINTERFACE]\r\nSITUATION=mine\r\n");
    EXPECT_FALSE(p.forms.FlyForm.visible);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages[0].find("select the FS2000 flight - " + stem + ".") != std::string::npos);
    EXPECT_EQ(headings[0], "Information");
    EXPECT_EQ(p.session.desk.MessageMode, "fly_now");
    EXPECT_FALSE(atMessage[0]);
}

TEST_F(FlyScreen, TheStartPositionStaysForTheNextSend) {
    open();
    choose("Rwy - 26R");
    send();
    EXPECT_EQ(p.session.simulator.StartLat, 33.65625F);
    EXPECT_EQ(p.session.simulator.StartHdg, 270.25F);
    open();
    send();
    EXPECT_EQ(situation("Plane", "Latitude"), "");
    EXPECT_EQ(situation("GPS_Engine", "Position"), "N033* 39' 22.5000\", W084* 24' 22.5000\", +001026.00");
}

TEST_F(FlyScreen, PreFlightComesFromTheSettings) {
    auto& minutes = p.forms.SettingsForm.preflightCOMBO;
    minutes.select(minutes.find("15"));
    p.session.dispatch.CurrentFlight.DepartureTime = 5;
    open();
    send();
    EXPECT_EQ(situation("DateTimeSeason", "Hours"), "23");
    EXPECT_EQ(situation("DateTimeSeason", "Minutes"), "50");
}

TEST_F(FlyScreen, ADefaultFlightIsNamedInTheSimulatorsSettings) {
    open();
    user::check(p.forms.FlyForm.flydefaultCHECK, 1);
    send();
    EXPECT_EQ(folder.read("/sim/fs2002.cfg"),
              "[USERINTERFACE]\r\nSITUATION=flights\\fs2kflts\\" + stem + "\r\n");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages[0].find("is set as your Default FS2002 Flight") != std::string::npos);
    EXPECT_EQ(headings[0], "Information");
}

TEST_F(FlyScreen, AMissingTemplateEndsTheSendBehindThePlan) {
    ASSERT_FALSE(files::remove(folder.path("/program/Data/default.FLT")));
    open();
    user::check(p.forms.FlyForm.flydefaultCHECK, 1);
    send();
    EXPECT_TRUE(files::fileExists(folder.path("/program/GT.cfg")));
    EXPECT_TRUE(planWritten());
    EXPECT_FALSE(situationWritten());
    EXPECT_EQ(folder.read("/sim/fs2002.cfg"), "[USERINTERFACE]\r\nSITUATION=mine\r\n");
    EXPECT_TRUE(p.forms.FlyForm.visible);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages[0].find("Error Number 2\nNo such file or directory") != std::string::npos)
        << messages[0];
    EXPECT_TRUE(messages[0].find("In Function WriteSituationFile ") != std::string::npos);
    EXPECT_EQ(headings[0], "Warning!");
}

TEST_F(FlyScreen, MissingFlightFoldersAreNotMade) {
    std::filesystem::remove_all(folder.path("/sim/flights"));
    open();
    send();
    ASSERT_EQ(messages.size(), 1U); // nothing is said of the plan
    EXPECT_TRUE(messages[0].find("Error Number 2\n") != std::string::npos);
    EXPECT_FALSE(files::folderExists(folder.path("/sim/flights")));
    EXPECT_TRUE(p.forms.FlyForm.visible);
}

TEST_F(FlyScreen, AFolderThatTakesNoFileLeavesTheOldSituationWhole) {
    folder.write("/sim/flights/fs2kflts/" + stem + ".FLT", "old");
    const std::string beside = folder.path("/sim/flights/fs2kflts/" + stem + ".FLT.new~");
    std::filesystem::create_directories(beside); // where the new file would grow
    open();
    send();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages[0].find("In Function WriteSituationFile ") != std::string::npos);
    EXPECT_EQ(folder.read("/sim/flights/fs2kflts/" + stem + ".FLT"), "old");
}

TEST_F(FlyScreen, AnotherTryAfterAFailure) {
    std::filesystem::remove_all(folder.path("/sim/flights/fs2kflts"));
    open();
    choose("Rwy - 08L");
    send();
    std::filesystem::create_directories(folder.path("/sim/flights/fs2kflts"));
    send();
    EXPECT_EQ(messages.size(), 2U);
    EXPECT_EQ(situation("Plane", "Heading"), "090.250000");
    EXPECT_FALSE(p.forms.FlyForm.visible);
}

TEST_F(FlyScreen, SettingsOfTheSimulatorThatCannotBeWritten) {
    ASSERT_FALSE(files::remove(folder.path("/sim/fs2002.cfg")));
    std::filesystem::create_directories(folder.path("/sim/fs2002.cfg"));
    open();
    user::check(p.forms.FlyForm.flydefaultCHECK, 1);
    send();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_TRUE(messages[0].find("In Function SetDefaultFlight ") != std::string::npos);
    EXPECT_TRUE(messages[1].find("Please use the Select Flight Menu") != std::string::npos);
    EXPECT_TRUE(situationWritten());
}

TEST_F(FlyScreen, ANameThatIsNoFileNameFails) {
    p.session.schedule.tables.airlines = {airline("V0", "Vantis/Air")};
    open();
    send();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages[0].find("In Function WriteSituationFile ") != std::string::npos);
}

TEST_F(FlyScreen, TheSimulatorStartsInItsFolder) {
    FSRunning(p);
    ASSERT_EQ(machine.processes.launches.size(), 1U);
    EXPECT_EQ(machine.processes.launches[0].file, "fs2002.exe");
    EXPECT_EQ(machine.processes.launches[0].parameters, "");
    EXPECT_EQ(machine.processes.launches[0].folder, folder.path("/sim"));
    EXPECT_TRUE(messages.empty());
}

TEST_F(FlyScreen, ARunningSimulatorComesToTheFront) {
    machine.processes.running = true;
    FSRunning(p);
    ASSERT_EQ(machine.processes.launches.size(), 1U);
    EXPECT_TRUE(machine.processes.launches[0].foreground);
}

} // namespace
} // namespace gatewise
