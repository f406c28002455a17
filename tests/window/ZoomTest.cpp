#include "StageTest.h"

#include "platform/Files.h"
#include "platform/Profile.h"
#include "window/Buttons.h"
#include "window/PaintedViews.h"
#include "window/Tone.h"
#include "work/ConfigFile.h"

#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScreen>
#include <QTreeView>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

namespace gatewise::test {

namespace {

using window::Display;
using window::SkinChoice;
using window::View;

class Zooms : public StageTest {
protected:
    Display& display() { return stage().window.display; }
    forms::MainForm& main() { return forms().MainForm; }
    window::ScreenWindow& mainWindow() { return stage().desk().mainWindow(); }
    double factor() { return stage().desk().skin().zoom().factor; }

    void turnWheel(int notches, Qt::KeyboardModifiers modifiers) {
        QWidget& on = stage().widget(main().BG);
        QWheelEvent event({5, 5}, on.mapToGlobal(QPointF(5, 5)), {}, {0, 120 * notches}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&on, &event);
    }
};

QRect inWindow(View& view) {
    return {view.widget()->mapTo(view.widget()->window(), QPoint(0, 0)), view.widget()->size()};
}

} // namespace

TEST_F(Zooms, TheProposalTakesSeventyPercentOfTheHeight) {
    EXPECT_EQ(window::proposedPercent(1080, 1.8, 1), 125);
    EXPECT_EQ(window::proposedPercent(1440, 2.4, 1), 175);
    EXPECT_EQ(window::proposedPercent(2160, 3, 1), 250);
    EXPECT_EQ(window::proposedPercent(768, 1.28, 1), 100);
    EXPECT_EQ(window::proposedPercent(512, 0.85, 1), 75);    // 1024 x 768 with a factor of 1.5
    EXPECT_EQ(window::proposedPercent(768, 1.28, 1.5), 125); // larger texts, as far as there is room
    EXPECT_EQ(window::proposedPercent(4320, 3, 1), 300);
}

TEST_F(Zooms, NobodyChoseAndTheWindowHasTheLayoutsSize) {
    then([&] {
        EXPECT_EQ(factor(), 1);
        EXPECT_EQ(mainWindow().size(), QSize(800, 600));
    });
    play();
}

TEST_F(Zooms, TheWindowBeginsInTheMiddleOfTheScreen) {
    then([&] {
        display().choosePercent(75);
        main().left = main().top = 0;
        stage().desk().centreMain();
        const QPoint off = mainWindow().geometry().center() -
                           mainWindow().windowHandle()->screen()->availableGeometry().center();
        EXPECT_LE(off.manhattanLength(), 2);
    });
    play();
}

TEST_F(Zooms, AllWindowsAndTheirControlsScaleTogether) {
    then([&] {
        display().choosePercent(150);
        for (Screen* screen : forms().all()) {
            window::ScreenWindow& window = stage().desk().window(*screen);
            EXPECT_EQ(window.size(), QSize(screen->designWidth * 3 / 2, screen->designHeight * 3 / 2))
                << screen->name;
            for (View* view : window.views()) {
                const QRectF wanted(QPointF(view->boxInWindow().marginsAdded(view->beyond()).topLeft()) * 1.5,
                                    QSizeF(view->boxInWindow().marginsAdded(view->beyond()).size()) * 1.5);
                const QRect is = inWindow(*view);
                EXPECT_LE(std::abs(is.left() - wanted.left()), 0.5) << view->place.name;
                EXPECT_LE(std::abs(is.top() - wanted.top()), 0.5) << view->place.name;
                EXPECT_LE(std::abs(is.x() + is.width() - wanted.right()), 0.5) << view->place.name;
                EXPECT_LE(std::abs(is.y() + is.height() - wanted.bottom()), 0.5) << view->place.name;
            }
        }
        EXPECT_EQ(main().width, 800) << "what the program sees is the layout";
    });
    play();
}

TEST_F(Zooms, PicturesHaveTheSizeOfTheirKeysToThePixel) {
    then([&] {
        for (const int percent : {75, 125, 150, 200, 275}) {
            display().choosePercent(percent);
            for (View* view : mainWindow().views()) {
                if (view->control == nullptr || skinnedButton(view->control) == nullptr) continue;
                const auto tail = static_cast<window::ButtonView*>(view)->paintedTail();
                const QPixmap picture = stage().desk().skin().picture(tail, *view->widget());
                EXPECT_EQ(picture.deviceIndependentSize().toSize(), view->widget()->size())
                    << tail << percent;
            }
        }
    });
    play();
}

/// The highest step between neighbours in a line: what is stretched has none that is as high.
int sharpestEdge(const QImage& picture) {
    int sharpest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 1; x < picture.width(); ++x)
            sharpest =
                std::max(sharpest, std::abs(qGray(picture.pixel(x, y)) - qGray(picture.pixel(x - 1, y))));
    }
    return sharpest;
}

TEST_F(Zooms, TextsAndPicturesAreDrawnAnewAndNotStretched) {
    then([&] {
        for (Control* control : std::initializer_list<Control*>{
                 &main().statusboard_LABEL, &main().time_LABEL(20), &main().FlatButton(0)}) {
            display().choosePercent(100);
            const QImage usual = stage().widget(*control).grab().toImage();
            display().choosePercent(200);
            const QImage large = stage().widget(*control).grab().toImage();
            const QImage stretched =
                usual.scaled(large.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            EXPECT_GT(sharpestEdge(large), sharpestEdge(stretched) * 5 / 4) << control->fullName();
        }
    });
    play();
}

TEST_F(Zooms, HandsReachWhatTheySee) {
    for (const int percent : {75, 150, 200}) {
        then([&, percent] {
            display().choosePercent(percent);
            stage().click(main().statusboard_LABEL);
            stage().click(main().switchButton(2));
        });
        then([&] {
            EXPECT_TRUE(forms().OptionsForm.visible);
            const int before = forms().OptionsForm.d1_CHECK.value;
            stage().click(forms().OptionsForm.d1_CHECK);
            EXPECT_NE(forms().OptionsForm.d1_CHECK.value, before);
            stage().key(Qt::Key_Escape);
        });
    }
    play();
}

TEST_F(Zooms, DialogsStandInTheMiddleOfTheMainWindow) {
    then([&] {
        display().choosePercent(150);
        stage().click(main().FlatButton(1));
        const QRect dialog = stage().desk().window(forms().SettingsForm).geometry();
        const QRect content(mainWindow().pos() + QPoint(157, 117) * 1.5, QSize(640, 480) * 1.5);
        EXPECT_LE((dialog.center() - content.center()).manhattanLength(), 3);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Zooms, NoWindowIsLargerThanItsScreen) {
    then([&] {
        const QRect room = mainWindow().QWidget::screen()->availableGeometry();
        display().choosePercent(300);
        EXPECT_TRUE(room.contains(mainWindow().geometry()));
        display().choosePercent(0);
        EXPECT_TRUE(room.contains(mainWindow().geometry()));
        EXPECT_TRUE(mainWindow().height() > room.height() - 8 || mainWindow().width() > room.width() - 8);
    });
    play();
}

TEST_F(Zooms, TheWheelAndTheKeysWithControl) {
    then([&] {
        display().choosePercent(100);
        turnWheel(1, Qt::ControlModifier);
        EXPECT_EQ(factor(), 1.25);
        turnWheel(-1, Qt::ControlModifier);
        EXPECT_EQ(factor(), 1);
        turnWheel(1, Qt::NoModifier);
        EXPECT_EQ(factor(), 1) << "without Ctrl the wheel is another's";
        stage().key(Qt::Key_Plus, Qt::ControlModifier);
        stage().key(Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_EQ(factor(), 1.5);
        stage().key(Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_EQ(factor(), 1.25);
        stage().key(Qt::Key_0, Qt::ControlModifier);
        EXPECT_EQ(factor(), 1);
        for (int i = 0; i < 20; ++i) stage().key(Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_EQ(factor(), 0.75);
    });
    play();
}

TEST_F(Zooms, TheMenuOfTheSettingsChooses) {
    then([&] {
        QWidget owner;
        QMenu* menu = display().makeMenu(&owner);
        const auto pick = [&](const QString& text) {
            const auto all = menu->actions();
            const auto at =
                std::find_if(all.begin(), all.end(), [&](QAction* a) { return a->text() == text; });
            ASSERT_NE(at, all.end()) << text.toStdString();
            (*at)->trigger();
        };
        pick("125 %");
        EXPECT_EQ(factor(), 1.25);
        pick("High contrast");
        EXPECT_TRUE(window::highContrast());
        pick("Colours of the terminal at night");
        EXPECT_FALSE(window::highContrast());
        const auto all = menu->actions();
        const auto large =
            std::find_if(all.begin(), all.end(), [](QAction* a) { return a->text() == "300 %"; });
        EXPECT_FALSE((*large)->isEnabled()) << "there is no room for it";
    });
    play();
}

TEST_F(Zooms, TheKeyOfTheSettingsIsReachedByTab) {
    then([&] { stage().click(main().FlatButton(1)); });
    then([&] {
        const auto stops = stage().desk().window(forms().SettingsForm).stops();
        EXPECT_TRUE(std::any_of(stops.begin(), stops.end(), [](View* v) { return v->control == nullptr; }));
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Zooms, WhatWasChosenIsRememberedForTheSizeOfTheScreen) {
    then([&] {
        const std::string appDir = stage().window.program.session.AppDir;
        display().remember(appDir);
        EXPECT_EQ(factor(), 1.5) << "70 % of 1200 lines";
        Profile profile = loadProfile(configPath(appDir));
        EXPECT_EQ(textIn(profile, "Window", "Zoom1920x1200"), "") << "a proposal is not written";
        display().choosePercent(175);
        display().chooseSteady(true);
        profile = loadProfile(configPath(appDir));
        EXPECT_EQ(textIn(profile, "Window", "Zoom1920x1200"), "175");
        EXPECT_EQ(textIn(profile, "Window", "Steady"), "1");
        display().choosePercent(0);
        profile = loadProfile(configPath(appDir));
        EXPECT_EQ(textIn(profile, "Window", "Zoom1920x1200"), "fit");
        display().remember(appDir);
        EXPECT_EQ(factor(), 2);
    });
    play();
}

TEST_F(Zooms, ColumnsThatAreDraggedKeepTheLayoutsPixels) {
    then([&] {
        display().choosePercent(200);
        auto& list = forms().ViewPlan.PlanList;
        auto* table = stage().widget(list).findChild<QTreeView*>();
        ASSERT_NE(table, nullptr);
        stage().desk().window(forms().ViewPlan).sync();
        const double before = list.columns[1].width;
        table->header()->resizeSection(1, static_cast<int>(before) * 2 + 40);
        EXPECT_EQ(list.columns[1].width, static_cast<int>(before) + 20);
    });
    play();
}

// ------------------------------------------------------------------------------------------------ contrast

TEST_F(Zooms, HighContrastIsBlackAndWhereItIsWrittenOnStandsOut) {
    then([&] {
        display().chooseSkin(SkinChoice::HighContrast);
        const QImage ground = stage()
                                  .desk()
                                  .skin()
                                  .picture("\\Images\\Board_BG.bmp", stage().widget(main().status_pic))
                                  .toImage();
        EXPECT_EQ(ground.pixelColor(300, 90), QColor(Qt::black)) << "a flap of the board";
        for (const QColor& ink :
             {QColor(0xA6, 0xB6, 0xC4), QColor(0, 111, 0), QColor(0, 128, 128), QColor(255, 0, 0)}) {
            const QColor shown = window::inkOf(ink);
            EXPECT_GE(shown.lightnessF(), ink.lightnessF()) << ink.name().toStdString();
            EXPECT_GT(qGray(shown.rgb()), 105) << ink.name().toStdString();
        }
        EXPECT_EQ(window::inkOf(QColor(0x1B, 0x2A, 0x33)), QColor(Qt::black)) << "ink on paper";
        display().chooseSkin(SkinChoice::Night);
        EXPECT_EQ(window::inkOf(QColor(0, 111, 0)), QColor(0, 111, 0));
    });
    play();
}

TEST_F(Zooms, TheComputersWishesAreHeeded) {
    then([&] {
        display().remember(stage().window.program.session.AppDir);
        window::Wishes wishes;
        wishes.highContrast = true;
        wishes.stillSigns = true;
        wishes.textScale = 2;
        display().heed(wishes);
        EXPECT_TRUE(window::highContrast());
        EXPECT_TRUE(stage().desk().skin().steady);
        EXPECT_EQ(factor(), 2) << "larger texts mean larger windows";
        display().chooseSkin(SkinChoice::Night);
        EXPECT_FALSE(window::highContrast()) << "a choice goes before a wish";
    });
    play();
}

TEST_F(Zooms, SteadySignsStayLit) {
    then([&] {
        display().chooseSteady(true);
        for (int half = 0; half < 4; ++half) {
            stage().advance(500);
            EXPECT_TRUE(stage().widget(main().gt_sepLABEL).isVisible());
        }
        display().chooseSteady(false);
        bool dark = false;
        for (int half = 0; half < 4; ++half) {
            stage().advance(500);
            dark = dark || !stage().widget(main().gt_sepLABEL).isVisible();
        }
        EXPECT_TRUE(dark) << "else it blinks";
    });
    play();
}

} // namespace gatewise::test
