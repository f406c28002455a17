#include "window/StageTest.h"

#include <QAbstractEventDispatcher>
#include <QAbstractSlider>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>

// What is held: a key does its work once, an arrow of the mouse repeats until it is let go.

namespace gatewise::test {

namespace {

constexpr int kPatience = 30000; // milliseconds for what a timer does; a busy machine needs less

class Held : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
    }
    forms::MainForm& main() { return forms().MainForm; }

    /// Presses the key in what has the focus, then repeats it as a keyboard does, then lets it go.
    static void hold(Qt::Key key, int repeats) {
        QWindow* at = QGuiApplication::focusWindow();
        ASSERT_NE(at, nullptr);
        const QString text = key == Qt::Key_Space ? " " : key == Qt::Key_Return ? "\r" : "";
        const auto send = [&](QEvent::Type type, bool again) {
            QKeyEvent event(type, key, Qt::NoModifier, text, again);
            if (QWindow* now = QGuiApplication::focusWindow()) QApplication::sendEvent(now, &event);
        };
        send(QEvent::KeyPress, false);
        for (int i = 0; i < repeats; ++i) send(QEvent::KeyPress, true);
        send(QEvent::KeyRelease, false);
    }
};

} // namespace

TEST_F(Held, SpaceOnSendToLogBookFilesOneEntry) {
    makeStage(GATEWISE_PROGRAM_DIR);
    const auto entries = [&] {
        std::error_code error;
        const auto size = std::filesystem::file_size(folder() / "Data" / "log.gt1", error);
        return error ? 0 : size;
    };
    std::uintmax_t one = 0;
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] {
        ASSERT_TRUE(stage().tabTo(main().sendlogButton));
        hold(Qt::Key_Space, 10);
    });
    then([&] {
        one = entries();
        ASSERT_TRUE(forms().MsgForm.visible);
        stage().key(Qt::Key_Return);
    });
    then([&] {
        EXPECT_FALSE(forms().MsgForm.visible) << "a repeat has filed another entry";
        ASSERT_TRUE(stage().tabTo(main().sendlogButton));
        hold(Qt::Key_Return, 10);
    });
    then([&] {
        EXPECT_TRUE(forms().MsgForm.visible) << "a repeat of Enter has answered the message";
        stage().key(Qt::Key_Return);
    });
    then([&] { EXPECT_FALSE(forms().MsgForm.visible); });
    play();
}

TEST_F(Held, EscapeClosesOneScreen) {
    makeStage(GATEWISE_PROGRAM_DIR);
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().viewButton); });
    then([&] { stage().click(forms().ViewPlan.chartsButton); });
    then([&] { hold(Qt::Key_Escape, 10); });
    then([&] {
        EXPECT_FALSE(forms().PlanCharts.visible);
        EXPECT_TRUE(forms().ViewPlan.visible);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Held, ArrowsAndBlanksRepeat) {
    makeStage(GATEWISE_PROGRAM_DIR);
    then([&] {
        ASSERT_TRUE(stage().tabTo(main().fltnum_LABEL(0)));
        hold(Qt::Key_Down, 3);
        EXPECT_EQ(stage().focused(), &main().fltnum_LABEL(4));
        stage().click(main().departureText);
        hold(Qt::Key_Space, 3);
        EXPECT_EQ(main().departureText.text, "    ");
    });
    play();
}

TEST_F(Held, AnArrowOfTheAltitudeRepeatsWhileItIsHeldAndLeavesNoTimer) {
    makeStage(GATEWISE_PROGRAM_DIR, stage::Time::Real);
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().viewButton); });
    then([&] {
        auto& range = forms().ViewPlan.AltUpDown;
        stage().desk().act([&] { range.value = 10000; });
        QWidget& arrows = stage().widget(range);
        const QPoint up = arrows.mapTo(arrows.window(), QPoint(arrows.width() / 2, 3));
        QWindow* at = arrows.window()->windowHandle();
        // What goes on by itself does so by a timer of the arrows.
        const auto timers = [&] {
            return QAbstractEventDispatcher::instance()->registeredTimers(&arrows).size();
        };
        const auto before = timers();
        for (int i = 0; i < 5; ++i) QTest::mouseClick(at, Qt::LeftButton, {}, up);
        EXPECT_EQ(range.value, 10000 + 5 * range.step);
        EXPECT_EQ(timers(), before) << "an arrow goes on that nobody holds";
        QTest::mousePress(at, Qt::LeftButton, {}, up);
        EXPECT_EQ(timers(), before + 1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return range.value >= 10000 + 9 * range.step; }, kPatience));
        QTest::mouseRelease(at, Qt::LeftButton, {}, up);
        EXPECT_EQ(timers(), before) << "an arrow goes on that was let go";
        QTest::mousePress(at, Qt::LeftButton, {}, up);
        EXPECT_EQ(timers(), before + 1);
        stage().key(Qt::Key_Escape); // the screen goes while the arrow is held
        EXPECT_FALSE(forms().ViewPlan.visible);
        EXPECT_EQ(timers(), before) << "an arrow goes on in a window that is gone";
    });
    play();
}

} // namespace gatewise::test
