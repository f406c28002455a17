#include "window/StageTest.h"

#include "pages/Screens.h"
#include "tour/Structure.h"

#include <QScreen>

// What the tour complains of at its pictures is seen at all.

namespace gatewise::test {

namespace {

using Rounds = StageTest;

std::string all(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines) text += line + "\n";
    return text;
}

} // namespace

TEST_F(Rounds, EveryScreenStandsInsideItsWindowAndOnItsDeskAtAnySize) {
    then([&] {
        for (const int percent : window::kZoomPercent) {
            stage().window.display.choosePercent(percent);
            for (Screen* screen : forms().all()) {
                if (screen == &forms().MainForm) continue;
                stage().desk().act([&] { showScreen(stage().window.program, *screen); });
                EXPECT_EQ(all(stage::misplaced(forms(), stage().desk())), "") << screen->name << percent;
                stage().desk().act([&] { hideScreen(stage().window.program, *screen); });
            }
        }
    });
    play();
}

TEST_F(Rounds, AWindowOverTheEdgeOfTheDeskIsSeen) {
    then([&] {
        auto& window = stage().desk().mainWindow();
        window.move(window.QWidget::screen()->availableGeometry().bottomRight() - QPoint(100, 100));
        const std::string found = all(stage::misplaced(forms(), stage().desk()));
        EXPECT_NE(found.find("MainForm: 800x600 at "), std::string::npos) << found;
        EXPECT_NE(found.find("reaches over the screen of 1920x1200 at 0,0"), std::string::npos) << found;
    });
    play();
}

TEST_F(Rounds, AControlOverTheEdgeOfItsWindowIsSeen) {
    then([&] {
        QWidget& key = stage().widget(forms().MainForm.FlatButton(1));
        key.setGeometry(key.geometry().translated(0, 2000));
        const std::string found = all(stage::misplaced(forms(), stage().desk()));
        EXPECT_NE(found.find("MainForm.FlatButton"), std::string::npos) << found;
    });
    play();
}

} // namespace gatewise::test
