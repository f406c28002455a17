#include "drive/SimulatedTimers.h"
#include "forms/Control.h"
#include "input/UserEvents.h"
#include "platform/simulated/SimulatedMachine.h"

#include <gtest/gtest.h>

namespace gatewise::drive {

namespace {

/// A screen with three timers that write down when they tick.
struct Bench : ::testing::Test {
    Bench() {
        loop.tick = [](void* timer) { user::tick(*static_cast<Timer*>(timer)); };
        for (Timer* timer : {&a, &b, &c}) {
            timer->attach(&host);
            timer->on(Event::Tick, [this, timer] { note(*timer); });
        }
    }

    void note(const Timer& timer) { ticks.push_back(timer.name + std::to_string(clock.ticks())); }

    simulated::SimulatedClock clock;
    simulated::SimulatedLoop loop{clock};
    SimulatedTimers host{loop};
    Screen screen{"Bench", "", 1, 1, ""};
    Timer a{screen, "a", 100};
    Timer b{screen, "b", 250};
    Timer c{screen, "c", 100};
    std::vector<std::string> ticks;
};

using Ticks = std::vector<std::string>;

} // namespace

TEST_F(Bench, RunsTimersInOrderOfTheirDueTime) {
    a.enable(true);
    b.enable(true);
    loop.advance(300);
    EXPECT_EQ(ticks, (Ticks{"a100", "a200", "b250", "a300"}));
    EXPECT_EQ(clock.ticks(), 300);
}

TEST_F(Bench, TiesGoByTheOrderOfEnabling) {
    c.enable(true);
    a.enable(true);
    loop.advance(100);
    EXPECT_EQ(ticks, (Ticks{"c100", "a100"}));
    ticks.clear();
    c.enable(false);
    c.enable(true);
    loop.advance(100);
    EXPECT_EQ(ticks, (Ticks{"a200", "c200"}));
}

TEST_F(Bench, NothingFallsDueBeforeItsTime) {
    b.enable(true);
    loop.advance(249);
    EXPECT_TRUE(ticks.empty());
    loop.advance(0);
    EXPECT_TRUE(ticks.empty());
    loop.advance(1);
    EXPECT_EQ(ticks, Ticks{"b250"});
}

TEST_F(Bench, AnotherIntervalStartsAnewAndKeepsThePlace) {
    a.enable(true);
    c.enable(true);
    loop.advance(60);
    a.setInterval(40);
    loop.advance(40);
    EXPECT_EQ(ticks, (Ticks{"a100", "c100"}));
}

TEST_F(Bench, SwitchingOnWhatIsOnChangesNothing) {
    a.enable(true);
    loop.advance(60);
    a.enable(true);
    loop.advance(40);
    EXPECT_EQ(ticks, Ticks{"a100"});
}

TEST_F(Bench, ATickCanStopItselfAndOthers) {
    a.on(Event::Tick, [this] {
        note(a);
        a.enable(false);
        c.enable(false);
    });
    a.enable(true);
    c.enable(true);
    b.enable(true);
    loop.advance(250);
    EXPECT_EQ(ticks, (Ticks{"a100", "b250"}));
}

TEST_F(Bench, AnIntervalOfNothingNeverFallsDue) {
    a.setInterval(0);
    a.enable(true);
    loop.advance(1000);
    EXPECT_TRUE(ticks.empty());
}

TEST_F(Bench, AWaitInsideATickRunsTheOthersAndNeverItself) {
    a.on(Event::Tick, [this] {
        note(a);
        loop.wait(250);
        ticks.emplace_back("done" + std::to_string(clock.ticks()));
        a.enable(false);
    });
    a.enable(true);
    c.enable(true);
    loop.advance(400);
    EXPECT_EQ(ticks, (Ticks{"a100", "c100", "c200", "c300", "done350", "c400"}));
    EXPECT_EQ(clock.ticks(), 400);
}

TEST_F(Bench, AWaitCanReachBeyondTheAdvance) {
    a.on(Event::Tick, [this] {
        note(a);
        a.enable(false);
        loop.wait(1000);
    });
    a.enable(true);
    b.enable(true);
    loop.advance(100);
    EXPECT_EQ(ticks, (Ticks{"a100", "b250", "b500", "b750", "b1000"}));
    EXPECT_EQ(clock.ticks(), 1100);
}

TEST_F(Bench, NothingFallsDueOnceTheProgramEnds) {
    bool ending = false;
    loop.stopped = [&] { return ending; };
    a.on(Event::Tick, [&] {
        note(a);
        ending = true;
    });
    a.enable(true);
    c.enable(true);
    loop.advance(1000);
    EXPECT_EQ(ticks, Ticks{"a100"});
}

TEST(SimulatedClock, MovesLocalTimeOverMidnightAndLeapDays) {
    simulated::SimulatedClock clock;
    clock.set({2004, 2, 28, 23, 59, 59, 999});
    clock.moveTo(1);
    DateTime now = clock.now();
    EXPECT_EQ(now.day, 29);
    EXPECT_EQ(now.hour, 0);
    EXPECT_EQ(now.millisecond, 0);
    clock.moveTo(1 + 24LL * 3600 * 1000);
    now = clock.now();
    EXPECT_EQ(now.month, 3);
    EXPECT_EQ(now.day, 1);
    clock.moveTo(5); // past already
    EXPECT_EQ(clock.ticks(), 1 + 24LL * 3600 * 1000);
}

TEST(SimulatedClock, SettingTheTimeLeavesTheTicks) {
    simulated::SimulatedClock clock;
    clock.moveTo(500);
    clock.set({2002, 1, 2, 3, 4, 5, 6});
    EXPECT_EQ(clock.ticks(), 500);
    EXPECT_EQ(clock.now().second, 5);
}

TEST(SimulatedRandom, GivenDrawsComeFirstThenTheSeed) {
    simulated::SimulatedRandom random;
    simulated::SimulatedRandom same;
    random.setDraws({0.25, 0.5});
    EXPECT_EQ(random.draw(), 0.25);
    random.reseed();
    EXPECT_EQ(random.draw(), 0.5);
    const double first = random.draw();
    EXPECT_EQ(first, same.draw());
    same.reseed();
    EXPECT_EQ(random.draw(), same.draw());
    random.seed(7);
    EXPECT_NE(random.draw(), first);
}

} // namespace gatewise::drive
