#include "window/StageTest.h"

#include "input/UserEvents.h"
#include "pages/Screens.h"
#include "window/Note.h"

#include <QApplication>
#include <QTest>

// Which window is in front, where its notes lie, how it is moved.

namespace gatewise::test {

namespace {

class Front : public DeliveredStageTest {
protected:
    void openPlanAndCharts() {
        then([&] { stage().doubleClick(main().city_LABEL(3)); });
        then([&] { stage().click(main().viewButton); });
        then([&] { stage().click(forms().ViewPlan.chartsButton); });
    }
    window::Note* note() {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (auto* found = top->findChild<window::Note*>()) return found;
        }
        return nullptr;
    }
    void drag(window::ScreenWindow& window, QPoint grip, QPoint by) {
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, grip);
        QTest::mouseMove(window.windowHandle(), grip + by);
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, grip);
    }
};

} // namespace

/// The sound asks for it at the start, and is heard while that window is in front.
TEST_F(Front, TheMainWindowHasOneHandleFromTheStartOn) {
    window::ScreenWindow& window = stage().desk().mainWindow();
    const WId before = window.winId();
    const QPoint place = window.pos();
    then([&] {
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(window.winId(), before);
        EXPECT_EQ(window.pos(), place) << "in the middle of the desk, as it was made";
    });
    play();
}

TEST_F(Front, AClickBringsItsScreenToTheFront) {
    openPlanAndCharts();
    then([&] {
        ASSERT_EQ(forms().front.front(), &forms().PlanCharts);
        stage().click(forms().ViewPlan.PlanList);
        EXPECT_EQ(forms().front.front(), &forms().ViewPlan);
        stage().window.desktop.notify("The pages are printed.");
        ASSERT_NE(note(), nullptr);
        EXPECT_EQ(note()->window(), &stage().desk().window(forms().ViewPlan));
        stage().click(forms().PlanCharts.BG);
        EXPECT_EQ(forms().front.front(), &forms().PlanCharts);
    });
    play();
}

TEST_F(Front, TheEndOfAMessageGivesTheKeyboardBackToTheScreenThatWasUsed) {
    openPlanAndCharts();
    then([&] {
        stage().click(forms().ViewPlan.PlanList);
        stage().key(Qt::Key_Home); // the departure, which cannot be removed
        stage().click(forms().ViewPlan.removeButton);
    });
    then([&] {
        ASSERT_TRUE(forms().MsgBox.visible);
        stage().key(Qt::Key_Return);
    });
    then([&] {
        EXPECT_EQ(forms().front.front(), &forms().ViewPlan);
        EXPECT_EQ(QApplication::activeWindow(), &stage().desk().window(forms().ViewPlan));
    });
    play();
}

TEST_F(Front, TheMainScreenStaysBelowItsDialogs) {
    openPlanAndCharts();
    then([&] {
        QTest::mouseClick(stage().desk().mainWindow().windowHandle(), Qt::LeftButton, {}, QPoint(80, 330));
        EXPECT_EQ(forms().front.back(), &main());
    });
    play();
}

TEST_F(Front, ADialogIsMovedByItsTitleStripAlone) {
    then([&] { stage().click(main().FlatButton(1)); });
    then([&] {
        auto& window = stage().desk().window(forms().SettingsForm);
        const QPoint from = window.pos();
        drag(window, QPoint(120, 12), QPoint(-40, 25));
        EXPECT_EQ(window.pos(), from + QPoint(-40, 25));
        EXPECT_EQ(forms().SettingsForm.left, from.x() - 40);
        drag(window, QPoint(6, 200), QPoint(30, 30));
        EXPECT_EQ(window.pos(), from + QPoint(-40, 25));
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Front, ANoteCoversNoKeyAndTakesNoClickBesideIt) {
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().viewButton); });
    then([&] {
        stage().window.desktop.notify("There is no printer. The pages lie in Printouts/Printout 1.pdf");
        ASSERT_NE(note(), nullptr);
        auto& plan = forms().ViewPlan;
        for (const Control* key :
             std::initializer_list<Control*>{&plan.removeButton, &plan.recalcButton, &plan.printButton,
                                             &plan.continueButton, &plan.closeButton, &plan.AltUpDown}) {
            const QWidget& widget = stage().widget(*key);
            const QRect box(widget.mapTo(widget.window(), QPoint()), widget.size());
            EXPECT_FALSE(box.intersects(note()->geometry())) << key->name;
        }
        stage().click(plan.continueButton);
    });
    then([&] {
        EXPECT_FALSE(forms().ViewPlan.visible);
        EXPECT_EQ(stage().desk().note(), "") << "a note went on in a window that is gone";
    });
    play();
}

TEST_F(Front, HandlersMayShowAndHideScreensWhileTheDeskBringsThemUp) {
    auto& program = stage().window.program;
    int runs = 0;
    bool walking = false;
    // A control that goes leaves the focus to another one, in the middle of the desk's walk.
    const auto handler = [&] {
        if (!walking || ++runs > 1) return;
        hideScreen(program, forms().OptionsForm);
        showScreen(program, forms().SettingsForm);
        hideScreen(program, forms().ClockForm);
        showScreen(program, forms().FlyForm);
    };
    for (Control* control : forms().OptionsForm.controls) control->on(Event::Focus, handler);
    then([&] { stage().desk().act([&] { showScreen(program, forms().OptionsForm); }); });
    then([&] {
        ASSERT_TRUE(stage().tabTo(forms().OptionsForm.d1_CHECK));
        stage().desk().act([&] {
            walking = true;
            forms().OptionsForm.d1_CHECK.visible = false;
            showScreen(program, forms().ClockForm);
        });
        EXPECT_GE(runs, 1);
        EXPECT_FALSE(stage().desk().window(forms().OptionsForm).isVisible());
        EXPECT_FALSE(stage().desk().window(forms().ClockForm).isVisible());
        EXPECT_TRUE(stage().desk().window(forms().SettingsForm).isVisible());
        EXPECT_TRUE(stage().desk().window(forms().FlyForm).isVisible());
    });
    play();
}

TEST_F(Front, AKeyThatWasLitWhenItsScreenWentIsPutOutByTheNextMouse) {
    auto& f = forms().OptionsForm;
    then([&] { stage().click(main().switchButton(2)); });
    then([&] { stage().click(f.closeButton); });
    then([&] {
        EXPECT_FALSE(f.visible);
        stage().click(main().switchButton(2));
    });
    then([&] {
        ASSERT_TRUE(f.visible);
        stage().hover(f.volUP); // in one leap from the other window
        EXPECT_EQ(f.volUP.picture, "plus_mouse");
        EXPECT_EQ(f.closeButton.picture, "close_regular");
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Front, AMoveOffAKeyPutsItOut) {
    then([&] { stage().click(main().log_LABEL); });
    then([&] {
        stage().desk().act([&] { main().logButton(0).State = 1; });
        stage().hover(main().logButton(0));
        EXPECT_EQ(main().logButton(0).picture, "edit_mouse");
        stage().hover(main().FlatButton(2)); // in one leap, with no ground in between
        EXPECT_EQ(main().logButton(0).picture, "edit_regular");
        EXPECT_EQ(main().FlatButton(2).picture, "help_mouse");
        stage().hover(main().close_button);
        EXPECT_EQ(main().FlatButton(2).picture, "help_reg");
        EXPECT_EQ(main().close_button.picture, "close_mouse");
    });
    play();
}

} // namespace gatewise::test
