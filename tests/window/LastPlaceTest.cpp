#include "window/StageTest.h"

#include "input/UserEvents.h"
#include "work/ConfigFile.h"

// Where the program begins: where it was left, if the pilot wants that.

namespace gatewise::test {

namespace {

class LastPlace : public DeliveredStageTest {};

} // namespace

TEST_F(LastPlace, NothingOfTheLastPlaceIsKeptUnlessThePilotWantsIt) {
    then([&] { stage().click(main().log_LABEL); });
    then([&] { stage().click(main().FlatButton(4)); });
    play();
    std::error_code error;
    const auto bytes = files::readAll(files::textOf(folder() / "GT.cfg"), &error).value_or(Bytes());
    EXPECT_EQ(std::string(asText(bytes)).find("LastPage"), std::string::npos);
    EXPECT_EQ(std::string(asText(bytes)).find("[Gatewise]"), std::string::npos);
}

TEST(ComeBack, APilotWhoWantsItFindsPageAndAirportAgain) {
    if (!std::filesystem::exists(GATEWISE_PROGRAM_DIR "/Data/index.gt1"))
        GTEST_SKIP() << "built without data sets";
    const QTemporaryDir scratch;
    const std::string appDir = stage::makeProgramFolder(GATEWISE_PROGRAM_DIR, scratch.path().toStdString());
    const auto simulator = files::textOf(std::filesystem::path(scratch.path().toStdString()) / "FS2002");
    {
        stage::Stage first(appDir);
        auto& main = first.forms().MainForm;
        first.machine.registry.folder = simulator;
        first.then([&] { first.click(main.FlatButton(1)); });
        first.then([&] {
            first.click(first.forms().SettingsForm.returnCHECK);
            first.key(Qt::Key_Escape);
        });
        first.then([&] { first.click(main.log_LABEL); });
        first.then([&] { first.click(main.FlatButton(4)); });
        first.play();
        EXPECT_TRUE(first.misses.empty());
    }
    Settings read;
    ReadConfig(appDir, read);
    EXPECT_EQ(read.ComeBack, 1);
    EXPECT_EQ(read.LastPage, 2);
    EXPECT_EQ(read.LastAirport, "KATL");
    stage::Stage again(appDir);
    again.machine.registry.folder = simulator;
    again.then([&] {
        EXPECT_TRUE(again.forms().MainForm.log_pic.visible);
        EXPECT_EQ(trimmed(again.forms().MainForm.departureText.text), "KATL");
    });
    again.play();
}

TEST_F(LastPlace, TheWindowStandsWhereItWasLeftIfThePilotWantsIt) {
    QPoint wanted;
    then([&] { stage().click(main().FlatButton(1)); });
    then([&] {
        stage().click(forms().SettingsForm.returnCHECK);
        stage().key(Qt::Key_Escape);
    });
    then([&] {
        stage().desk().act([&] { user::moveTo(main(), 333, 77); });
        wanted = stage().desk().mainWindow().pos();
        EXPECT_EQ(wanted, QPoint(333, 77));
        stage().click(main().FlatButton(4));
    });
    play();
    restart();
    then([&] { EXPECT_EQ(stage().desk().mainWindow().pos(), wanted); });
    play();
}

} // namespace gatewise::test
