#include "window/StageTest.h"

#include "pages/Screens.h"

#include <QPointer>
#include <QTest>

// Windows that their manager closes: what the key of the screen does, asked of the platform's own window.

namespace gatewise::test {

namespace {

class Closed : public DeliveredStageTest {
protected:
    /// The manager's word reaches the program through the window system, as that of a frame's sign does.
    bool close(Screen& screen) {
        const QPointer<QWindow> window = stage().desk().window(screen).windowHandle();
        return window != nullptr && window->close();
    }
    [[nodiscard]] bool up(const Screen& screen) { return stage().desk().window(screen).isVisible(); }
};

} // namespace

TEST_F(Closed, AScreenGoesByItsOwnKey) {
    then([&] { stage().click(main().FlatButton(1)); });
    then([&] {
        ASSERT_TRUE(up(forms().SettingsForm));
        EXPECT_FALSE(close(forms().SettingsForm)) << "the window went before the program let it";
        EXPECT_FALSE(forms().SettingsForm.visible);
        EXPECT_FALSE(up(forms().SettingsForm));
        EXPECT_TRUE(up(main()));
        EXPECT_FALSE(stage().window.program.ending);
    });
    play();
}

TEST_F(Closed, EveryScreenWithAKeyThatClosesItGoes) {
    auto& program = stage().window.program;
    int closed = 0;
    for (Screen* screen : forms().all()) {
        if (screen == &main() || screen->closingControl() == nullptr) continue;
        then([&, screen] { stage().desk().act([&] { showScreen(program, *screen); }); });
        then([&, screen] {
            ASSERT_TRUE(up(*screen)) << screen->name;
            close(*screen);
        });
        then([&, screen] {
            EXPECT_FALSE(screen->visible) << screen->name;
            EXPECT_FALSE(up(*screen)) << screen->name;
            ++closed;
        });
    }
    play();
    EXPECT_GT(closed, 12);
}

TEST_F(Closed, WhatAModalScreenBlocksStays) {
    then([&] { stage().click(main().FlatButton(1)); });
    then([&] { stage().click(forms().SettingsForm.pathButton); });
    then([&] {
        ASSERT_TRUE(up(forms().DirForm));
        close(forms().SettingsForm);
        close(main());
        EXPECT_TRUE(up(forms().SettingsForm));
        EXPECT_TRUE(up(forms().DirForm));
        EXPECT_FALSE(stage().window.program.ending);
        close(forms().DirForm);
    });
    then([&] {
        EXPECT_FALSE(up(forms().DirForm));
        EXPECT_TRUE(up(forms().SettingsForm));
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Closed, TheMainWindowEndsTheProgram) {
    bool after = false;
    then([&] { close(main()); });
    then([&] { after = true; });
    play();
    EXPECT_TRUE(stage().window.program.ending);
    EXPECT_FALSE(after) << "the program went on";
}

TEST_F(Closed, AMainWindowThatTakesNoInputStays) {
    then([&] {
        stage().desk().act([&] { main().enabled = false; });
        close(main());
        EXPECT_FALSE(stage().window.program.ending);
        stage().desk().act([&] { main().enabled = true; });
    });
    play();
}

} // namespace gatewise::test
