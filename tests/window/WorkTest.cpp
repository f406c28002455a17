#include "window/StageTest.h"

#include <QTimer>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

// Long work on another thread, while the window goes on.

namespace gatewise::test {

namespace {

using Work = StageTest;

} // namespace

TEST_F(Work, EventsRunMeanwhileAndItsEndIsWaitedFor) {
    std::atomic<bool> alive{false};
    bool seen = false;
    QTimer::singleShot(0, &stage().desk(), [&] { alive = true; });
    stage().window.program.machine.loop.work([&] {
        for (int i = 0; i < 5000 && !alive; ++i) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        seen = alive;
    });
    EXPECT_TRUE(seen);
}

TEST_F(Work, WhatItThrowsArrivesWhereItWasAskedFor) {
    EXPECT_THROW(stage().window.program.machine.loop.work([] { throw std::runtime_error("full"); }),
                 std::runtime_error);
}

} // namespace gatewise::test
