#include "window/StageTest.h"

#include <QTest>

#include <algorithm>
#include <filesystem>
#include <fstream>

// An import under way, as a person at the window meets it.

namespace gatewise::test {

namespace {

class ImportWindow : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
        StageTest::SetUp();
        std::filesystem::create_directories(folder() / "Tables");
        std::ofstream(folder() / "Tables" / "airports.dat")
            << "1,\"Alpha Airport\",\"Alphaville\",\"Freedonia\",\"AAA\",\"KAAA\",40,-100,1000,-6,\"A\","
               "\"America/Chicago\",\"airport\",\"OurAirports\"\n";
        then([&] { stage().click(forms().MainForm.main_LABEL); });
        then([&] { stage().click(forms().MainForm.importButton); });
        then([&] {
            stage().click(form().sourceTEXT);
            stage().type(QString::fromStdString((folder() / "Tables").string()));
            stage().key(Qt::Key_Return);
        });
        then([&] { ASSERT_TRUE(form().startButton.enabled) << "the table is not known"; });
    }
    forms::ImportForm& form() { return forms().ImportForm; }
    std::vector<std::string> sets() {
        std::vector<std::string> out;
        for (const auto& entry : std::filesystem::directory_iterator(folder() / "Data"))
            out.push_back(entry.path().filename().string());
        std::sort(out.begin(), out.end());
        return out;
    }
    /// Presses Start while the work behind it is held at its beginning.
    void startHeld() {
        then([&] {
            stage().loop().hold();
            stage().click(form().startButton);
        });
    }
};

} // namespace

TEST_F(ImportWindow, CancelIsPressedWhileTheBoardGoesOn) {
    std::vector<std::string> before;
    std::string minute;
    startHeld();
    then([&] {
        before = sets();
        minute = forms().MainForm.gt_minutesLABEL.text;
        EXPECT_TRUE(form().cancelButton.enabled);
        EXPECT_FALSE(form().startButton.enabled);
        stage().advance(61000);
        EXPECT_NE(forms().MainForm.gt_minutesLABEL.text, minute) << "the clock of the board stands still";
        EXPECT_TRUE(stage().widget(form().cancelButton).isEnabled());
    });
    then([&] {
        stage().click(form().cancelButton);
        EXPECT_TRUE(form().visible);
        stage().loop().letGo();
    });
    then([&] {
        EXPECT_EQ(form().progress_LABEL.text, "Cancelled");
        EXPECT_FALSE(form().cancelButton.enabled);
        EXPECT_TRUE(form().startButton.enabled);
        EXPECT_EQ(sets(), before) << "something was written";
        stage().key(Qt::Key_Escape);
    });
    then([&] { EXPECT_FALSE(form().visible); });
    play();
}

/// Escape stops the work first and closes the screen only then.
TEST_F(ImportWindow, EscapeStopsTheWorkAndKeepsTheScreen) {
    startHeld();
    then([&] { stage().key(Qt::Key_Escape); });
    then([&] {
        EXPECT_TRUE(form().visible);
        stage().loop().letGo();
    });
    then([&] {
        EXPECT_EQ(form().progress_LABEL.text, "Cancelled");
        stage().key(Qt::Key_Escape);
    });
    then([&] { EXPECT_FALSE(form().visible); });
    play();
}

} // namespace gatewise::test
