#include "window/StageTest.h"

#include <QApplication>

#include <fstream>

// Looking through the simulator's aircraft while the fly options stand: how far it is, and leaving it.

namespace gatewise::test {

namespace {

class Scan : public StageTest {
protected:
    void SetUp() override {
        if (!dataIsThere()) GTEST_SKIP() << "built without data sets";
        StageTest::SetUp();
        for (const char* name : {"a320", "b757"}) {
            const auto aircraft = folder().parent_path() / "FS2002" / "Aircraft" / name;
            std::filesystem::create_directories(aircraft / "panel");
            std::ofstream(aircraft / "aircraft.cfg") << "[fltsim.0]\ntitle=Plane " << name << "\nsim=model\n";
        }
        then([this] { stage().doubleClick(forms().MainForm.city_LABEL(3)); });
    }
    forms::FlyForm& fly() { return forms().FlyForm; }
    SimulatorHandOff& found() { return stage().window.program.session.simulator; }

    /// Opens the fly options with a scan that waits to begin.
    void openHeld() {
        then([this] {
            stage().loop().hold();
            stage().click(forms().MainForm.FlatButton(3));
        });
    }
    /// A quarter of a second goes by: the screen looks after its scan.
    void lookAfter() { stage().advance(250); }

    void expectNothingLeft() {
        EXPECT_TRUE(found().AircraftTable.empty());
        EXPECT_EQ(found().scannedFolder, std::nullopt);
        EXPECT_EQ(found().scan, nullptr);
        EXPECT_FALSE(fly().scan_TIMER.enabled);
        EXPECT_FALSE(fly().acftEmpty_LABEL.visible);
        EXPECT_EQ(fly().acftCOMBO.count(), 0);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }
    void expectWhole() {
        EXPECT_TRUE(fly().visible);
        EXPECT_EQ(found().AircraftTable.size(), 3U);
        EXPECT_EQ(fly().acftCOMBO.count(), 3);
        EXPECT_EQ(fly().posCOMBO.picked, 0);
        EXPECT_FALSE(stage().widget(fly().acftEmpty_LABEL).isVisible());
        EXPECT_EQ(fly().continueButton.State, 1);
        EXPECT_EQ(found().scan, nullptr);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }
};

} // namespace

TEST_F(Scan, TheScreenStandsAndSaysHowFarItIs) {
    openHeld();
    then([&] {
        ASSERT_TRUE(stage().widget(fly().acftEmpty_LABEL).isVisible());
        EXPECT_EQ(fly().acftEmpty_LABEL.text, "Looking for aircraft: 0");
        EXPECT_EQ(fly().continueButton.State, 0) << "no flight is sent without an aircraft";
        EXPECT_FALSE(stage().widget(fly().folderButton).isVisible());
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        ASSERT_NE(found().scan, nullptr);
        found().scan->folders = 12; // as the other thread counts them
        lookAfter();
        EXPECT_EQ(fly().acftEmpty_LABEL.text, "Looking for aircraft: 12");
        EXPECT_FALSE(found().scan->stop);
        stage().loop().letGo();
    });
    then([&] { expectWhole(); });
    play();
}

TEST_F(Scan, ClosingTheScreenEndsItAndLeavesNothingBehind) {
    openHeld();
    then([&] {
        const auto scan = found().scan;
        ASSERT_NE(scan, nullptr);
        stage().key(Qt::Key_Escape);
        EXPECT_FALSE(stage().desk().window(fly()).isVisible());
        lookAfter();
        EXPECT_TRUE(scan->stop);
        stage().loop().letGo();
    });
    then([&] {
        EXPECT_FALSE(fly().visible);
        expectNothingLeft();
        stage().click(forms().MainForm.FlatButton(3)); // another time it is looked through whole
    });
    then([&] { expectWhole(); });
    play();
}

TEST_F(Scan, ClosedAndOpenedAgainBeforeItHasHeardOfItItBeginsAnew) {
    openHeld();
    then([&] {
        stage().key(Qt::Key_Escape);
        lookAfter();
        ASSERT_TRUE(found().scan->stop);
        stage().click(forms().MainForm.FlatButton(3));
        ASSERT_TRUE(fly().visible);
        stage().loop().letGo();
    });
    then([&] { expectWhole(); });
    play();
}

TEST_F(Scan, TheEndOfTheProgramDoesNotWaitForIt) {
    std::shared_ptr<ScanProgress> scan;
    openHeld();
    then([&] {
        scan = found().scan;
        ASSERT_NE(scan, nullptr);
        stage().click(forms().MainForm.close_button);
        EXPECT_TRUE(stage().window.program.ending);
        EXPECT_TRUE(scan->stop);
        stage().loop().letGo();
    });
    play();
    EXPECT_EQ(scan->folders, 0);
    expectNothingLeft();
}

} // namespace gatewise::test
