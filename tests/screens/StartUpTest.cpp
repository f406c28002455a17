#include "dispatch/Terminal.h"

#include "input/Bind.h"
#include "input/Shutdown.h"

#include <algorithm>
#include <filesystem>

namespace gatewise::test {

namespace {

/// A desktop that writes down what stands on the splash screen whenever it is painted.
class PaintedSplash : public simulated::SimulatedDesktop {
public:
    void paint() override {
        if (program == nullptr || !program->forms.SplashForm.visible) return;
        const std::string& text = program->forms.SplashForm.Label1.text;
        if (texts.empty() || texts.back() != text) texts.push_back(text);
    }
    const Program* program = nullptr;
    std::vector<std::string> texts;
};

/// A device that looks at GT.cfg at the moment in which it is closed.
class ClosingDevice : public SilentDevice {
public:
    explicit ClosingDevice(const TempFolder& folder) : folder_(folder) {}
    void close() override {
        configAtClose = folder_.read("/GT.cfg");
        SilentDevice::close();
    }
    std::string configAtClose;

private:
    const TempFolder& folder_;
};

class StartUp : public testing::Test {
protected:
    void begin() {
        schedule.write(folder, "/Data");
        writeSettings(folder, more);
        t.start();
    }
    TempFolder folder;
    Schedule schedule = smallSchedule();
    std::string more;
    Terminal t{folder};
    Program& p = t.p;
    forms::MainForm& main = p.forms.MainForm;
};

} // namespace

TEST_F(StartUp, TheSplashScreenTellsTheStepsInTheirOrder) {
    schedule.write(folder, "/Data");
    writeSettings(folder);
    SilentDevice sound;
    simulated::SimulatedMachine machine(sound);
    PaintedSplash desktop;
    const Machine painted{machine.clock,    machine.locale,    desktop,
                          machine.registry, machine.processes, machine.printer,
                          machine.random,   machine.loop,      sound};
    Machine seen = painted;
    Program program(seen, folder.path());
    desktop.program = &program;
    bindScreens(program);
    startUp(program);
    const std::vector<std::string> told = {"Loading Airports, Standby...", "Loading Airlines, Standby...",
                                           "Loading Aircraft, Standby...", "Loading Graphics, Standby...",
                                           "Finding Flights, Standby..."};
    ASSERT_GE(desktop.texts.size(), told.size());
    EXPECT_TRUE(std::equal(told.rbegin(), told.rend(), desktop.texts.rbegin()));
    EXPECT_TRUE(program.forms.SplashForm.Label2.text.starts_with("version "));
    EXPECT_EQ(std::ranges::count(program.forms.SplashForm.Label2.text, '.'), 2);
    EXPECT_FALSE(program.forms.SplashForm.visible);
}

TEST_F(StartUp, WithoutTheBoardNothingOfItRuns) {
    begin();
    EXPECT_TRUE(main.main_pic.visible);
    EXPECT_FALSE(main.status_pic.visible);
    for (const Timer* timer : {&main.update_TIMER, &main.FlashTimer, &main.fade_timer, &main.play1Timer})
        EXPECT_FALSE(timer->enabled);
    EXPECT_EQ(p.session.hall.AmbienceLevel, -9000);
    EXPECT_EQ(p.session.desk.StartupDone, kTrue);
}

TEST_F(StartUp, TheMinuteTickIsAWholeMinuteAwayAtSecondZero) {
    for (const auto& [second, interval] : {std::pair{0, 60000}, std::pair{1, 59000}, std::pair{59, 1000}}) {
        TempFolder own;
        Terminal terminal(own);
        schedule.write(own, "/Data");
        writeSettings(own);
        terminal.machine.clock.set({2002, 6, 15, 8, 30, second, 0});
        terminal.start();
        user::click(terminal.p.forms.OptionsForm.continueButton);
        EXPECT_EQ(terminal.p.forms.MainForm.update_TIMER.interval(), interval);
        EXPECT_TRUE(terminal.p.forms.MainForm.update_TIMER.enabled);
    }
}

TEST_F(StartUp, AFolderWithoutSubFoldersLeavesTheListOfSetsWithItsOneItemLocked) {
    begin();
    EXPECT_EQ(main.routeCombo.items, std::vector<std::string>{"All Real World Airline Schedules"});
    EXPECT_EQ(main.routeCombo.picked, 0);
    EXPECT_TRUE(main.routeCombo.locked);
}

TEST_F(StartUp, ADataSetIsPickedByItsExactName) {
    for (const auto& [key, picked] : {std::pair{"\\Data\\Summer", "Summer"},
                                      std::pair{"\\Data\\SUMMER", "All Real World Airline Schedules"},
                                      std::pair{"\\Data\\", "All Real World Airline Schedules"}}) {
        TempFolder own;
        schedule.write(own, "/Data");
        schedule.write(own, "/Data/Summer");
        own.write("/GT.cfg", std::string("[Main]\r\nIndex=0\r\nDataSet=") + key +
                                 "\r\n[Announcements]\r\nTimeSort=1\r\nCitySort=0\r\nFltNumSort=0\r\n");
        Terminal terminal(own);
        terminal.start();
        EXPECT_EQ(terminal.p.forms.MainForm.routeCombo.text(), picked) << key;
        EXPECT_FALSE(terminal.p.forms.MainForm.routeCombo.locked);
        EXPECT_EQ(terminal.p.session.settings.DataSetPath, key);
    }
}

TEST_F(StartUp, ASetWithoutItsAirlinesChangesNothingAndSaysSo) {
    schedule.write(folder, "/Data/Summer");
    std::filesystem::remove(folder.path("/Data/Summer/airline.gt1"));
    std::filesystem::remove(folder.path("/Data/Summer/routes.gt1"));
    begin();
    user::choose(main.routeCombo, 1);
    EXPECT_EQ(p.session.settings.DataSetPath, "\\Data");
    EXPECT_EQ(main.routeCombo.text(), "All Real World Airline Schedules");
    EXPECT_EQ(t.shown, std::vector<std::string>{"MsgForm"});
}

TEST_F(StartUp, ShutdownClosesTheSoundThenWritesTheSettingsThenTheScreens) {
    schedule.write(folder, "/Data");
    writeSettings(folder);
    ClosingDevice sound(folder);
    simulated::SimulatedMachine machine(sound);
    Program program(machine.machine, folder.path());
    bindScreens(program);
    startUp(program);
    user::click(program.forms.MainForm.statusboard_LABEL);
    program.session.settings.HomeIndex = 2;
    Shutdown(program);
    EXPECT_NE(sound.configAtClose.find("Index=0\r\n"), std::string::npos);
    EXPECT_NE(folder.read("/GT.cfg").find("Index=2\r\n"), std::string::npos);
    EXPECT_TRUE(program.session.board.board.BoardList.empty());
    EXPECT_TRUE(program.session.board.board.BoardRows.empty());
    EXPECT_TRUE(program.session.schedule.DepartureFlights.empty());
    EXPECT_TRUE(program.session.schedule.BoardFlights.empty());
    for (const Screen* screen : program.forms.all()) EXPECT_FALSE(screen->visible) << screen->name;
    EXPECT_TRUE(program.ending);
    // Once is enough.
    program.session.settings.HomeIndex = 1;
    Shutdown(program);
    EXPECT_NE(folder.read("/GT.cfg").find("Index=2\r\n"), std::string::npos);
}

} // namespace gatewise::test
