#include "Desk.h"

#include "pages/ExportForm.h"
#include "platform/Profile.h"

namespace gatewise::test {

namespace {

void send(Program& program) {
    const Waited answer = SendToProFlight(program);
    EXPECT_EQ(answer, waited(program));
}

class ProFlight : public Desk {
protected:
    ProFlight() {
        auto& f = p.forms.SettingsForm;
        loadScreen(f);
        user::type(f.firstTEXT, " Ada");
        user::type(f.lastTEXT, "Lovell ");
        user::check(f.pf2_CallsignCHECK, 1);
        user::check(f.pf2_FltNumCHECK, 1);
    }
    [[nodiscard]] std::string key(const char* name) const {
        return ReadText("FlightInfo", name, fs.path("/PF2000/PF2000.cfg"));
    }
};

TEST_F(ProFlight, TheFlightGoesAsPlanKeysAndStart) {
    fs.write("/flights/myflts/keep.txt", "x");
    fs.write("/PF2000/PF2000.cfg", "[Other]\r\nKeep=1\r\n[FlightInfo]\r\nTime=00:00\r\n");
    send(p);
    EXPECT_TRUE(messages.empty());
    EXPECT_TRUE(fs.read(std::string("/flights/myflts/") + kStem + ".pln").starts_with("[flightplan]\r\n"));
    EXPECT_TRUE(
        fs.read("/PF2000/PF2000.cfg")
            .starts_with("[Other]\r\nKeep=1\r\n[FlightInfo]\r\nTime=14:35\r\nPilotName=Ada Lovell\r\n"));
    EXPECT_EQ(key("Callsign"), "123");
    EXPECT_EQ(key("GTFlight"), std::string(kStem) + ".pln");
    ASSERT_EQ(machine.processes.launches.size(), 1U);
    EXPECT_EQ(machine.processes.launches[0].file, fs.path("\\PF2000\\PF2000.exe"));
    EXPECT_EQ(machine.processes.launches[0].parameters, "/gt");
    EXPECT_EQ(machine.processes.launches[0].folder, fs.path("\\PF2000"));
    EXPECT_TRUE(p.forms.MainForm.enabled);
}

TEST_F(ProFlight, WithoutItsConfigurationOneWarningAndTheStepsGoOn) {
    fs.write("/PF2000/keep.txt", "x");
    send(p);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(lastMessage().starts_with("Warning!: Gatewise Terminal is unable to find the installation of "
                                          "AETI's ProFlight 2000 on your computer."));
    EXPECT_EQ(key("PilotName"), "Ada Lovell");
    EXPECT_EQ(machine.processes.launches.size(), 1U);
}

TEST_F(ProFlight, WithoutItsFolderNothingMoreIsSaid) {
    send(p);
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_TRUE(namesIn(fs.path()).empty());
    EXPECT_EQ(machine.processes.launches.size(), 1U);
}

TEST_F(ProFlight, TheDescentRateStaysPositive) {
    ASSERT_EQ(p.session.plan.plan.descentRate, -1800.5F);
    send(p);
    EXPECT_EQ(p.session.plan.plan.descentRate, 1800.5F);
    send(p);
    EXPECT_EQ(p.session.plan.plan.descentRate, 1800.5F);
}

TEST_F(ProFlight, MinutesBeforeDepartureComeFromTheSettings) {
    fs.write("/PF2000/PF2000.cfg", "");
    auto& combo = p.forms.SettingsForm.preflightCOMBO;
    combo.clear();
    combo.add("0", 0);
    combo.add("15", 15);
    combo.select(1);
    p.session.dispatch.CurrentFlight.DepartureTime = 5;
    send(p);
    EXPECT_EQ(key("Time"), "23:50");
}

/// A program that runs for a while, or cannot be started.
class SlowProcesses : public Processes {
public:
    bool simulatorRunning() override { return false; }
    void bringSimulatorToFront() override {}
    std::optional<int> start(const std::string&, const std::string&, const std::string&) override {
        return process;
    }
    bool ended(int asked) override {
        EXPECT_EQ(asked, process);
        whileRunning();
        return --polls == 0;
    }
    std::optional<int> process = 7;
    int polls = 5;
    std::function<void()> whileRunning;
};

class ProFlightWait : public ProFlight {
protected:
    ProFlightWait() {
        slow.whileRunning = [this] { takesInput = takesInput || other.forms.MainForm.enabled; };
        other.session.settings.FsPath = fs.path();
        other.session.schedule.tables = exportTables();
        other.session.plan.plan = p.session.plan.plan;
        other.session.dispatch.CurrentFlight = p.session.dispatch.CurrentFlight;
    }
    SlowProcesses slow;
    Machine waiting{machine.clock,    machine.locale, machine.desktop,
                    machine.registry, slow,           machine.printer,
                    machine.random,   machine.loop,   sound};
    Program other{waiting, app.path()};
    bool takesInput = false;
};

TEST_F(ProFlightWait, TheMainScreenTakesNoInputUntilTheOtherProgramEnds) {
    const auto before = machine.clock.ticks();
    send(other);
    EXPECT_EQ(slow.polls, 0);
    EXPECT_FALSE(takesInput);
    EXPECT_TRUE(other.forms.MainForm.enabled);
    EXPECT_GT(machine.clock.ticks(), before); // timers had their time
}

TEST_F(ProFlightWait, AFailedStartIsNotReported) {
    fs.write("/PF2000/PF2000.cfg", "");
    slow.process.reset();
    send(other);
    EXPECT_EQ(slow.polls, 5);
    EXPECT_TRUE(messages.empty());
    EXPECT_TRUE(other.forms.MainForm.enabled);
}

TEST_F(ProFlightWait, TheWaitEndsWithTheProgram) {
    slow.polls = 1000;
    slow.whileRunning = [this] { other.ending = slow.polls < 990; };
    send(other);
    EXPECT_GT(slow.polls, 900);
}

} // namespace

} // namespace gatewise::test
