#include "window/StageTest.h"

#include "window/Note.h"

#include <QApplication>
#include <QDesktopServices>
#include <QPushButton>
#include <QTest>

#include <fstream>

// What was written is named and opened; what could not be written says why; places without a simulator,
// aircraft or flights say what to do.

namespace gatewise::test {

namespace {

/// Stands in for the programs that open folders and files.
class Opener : public QObject {
    Q_OBJECT
public:
    Opener() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler("file"); }
    QStringList opened;

public slots:
    void open(const QUrl& url) { opened << url.toLocalFile(); }
};

class Written : public DeliveredStageTest {
protected:
    [[nodiscard]] std::filesystem::path simulator() const { return folder().parent_path() / "FS2002"; }
    void openFs2000Picker() {
        then([&] { stage().doubleClick(main().city_LABEL(3)); });
        then([&] { stage().click(main().export_LABEL); });
        then([&] { stage().click(forms().ExportForm.exportButton(1)); });
    }
    std::vector<QPushButton*> noteKeys() {
        auto* note = stage().desk().mainWindow().findChild<window::Note*>();
        if (note == nullptr) return {};
        const auto keys = note->findChildren<QPushButton*>();
        return {keys.begin(), keys.end()};
    }
};

} // namespace

TEST_F(Written, AnExportNamesItsFileAndOpensItsFolder) {
    Opener opener;
    openFs2000Picker();
    then([&] { stage().click(forms().DirExportForm.selectButton); });
    then([&] {
        auto& message = forms().MsgForm;
        ASSERT_TRUE(stage().widget(message.file_LABEL).isVisible());
        EXPECT_EQ(message.file_LABEL.text.substr(0, 11), "Written to\n");
        EXPECT_NE(message.file_LABEL.text.find(".pln"), std::string::npos);
        stage().click(message.openButton);
        ASSERT_EQ(opener.opened.size(), 1);
        EXPECT_EQ(std::filesystem::path(opener.opened[0].toStdString()).filename(), "myflts");
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Written, F1OpensTheHelpPageOfTheBoard) {
    Opener opener;
    then([&] {
        stage().key(Qt::Key_F1);
        ASSERT_EQ(opener.opened.size(), 1);
        EXPECT_TRUE(opener.opened[0].endsWith("help/boards.htm")) << opener.opened[0].toStdString();
    });
    play();
}

TEST_F(Written, AMessageWithoutAFileHasNoKeyForOne) {
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().sendlogButton); });
    then([&] {
        EXPECT_FALSE(stage().widget(forms().MsgForm.openButton).isVisible());
        EXPECT_FALSE(stage().widget(forms().MsgForm.file_LABEL).isVisible());
        stage().key(Qt::Key_Return);
    });
    play();
}

TEST_F(Written, AFailedExportSaysWhyAndKeepsTheTypedName) {
    auto& picker = forms().DirExportForm;
    openFs2000Picker();
    then([&] {
        // Where the file should go stands a folder of its name.
        std::filesystem::create_directories(simulator() / "flights" / "myflts" / "My Plan.pln");
        stage().click(picker.filenameTEXT);
        stage().key(Qt::Key_A, Qt::ControlModifier);
        stage().type("My Plan.pln");
        ASSERT_TRUE(stage().tabTo(picker.selectButton));
        stage().key(Qt::Key_Return);
    });
    then([&] {
        auto& message = forms().MsgForm;
        ASSERT_TRUE(message.visible);
        EXPECT_NE(message.Msg_LABEL.text.find("has exported"), std::string::npos); // as it always says
        EXPECT_EQ(message.file_LABEL.text.substr(0, 13), "Not written: ");
        EXPECT_FALSE(stage().widget(message.openButton).isVisible());
        stage().key(Qt::Key_Return);
    });
    then([&] { stage().click(forms().ExportForm.exportButton(1)); });
    then([&] {
        EXPECT_EQ(picker.filenameTEXT.text, "My Plan.pln");
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Written, ThePagesInAFileOpenFromTheNote) {
    Opener opener;
    then([&] {
        const std::string file = files::textOf(folder()) + "/Printouts/Printout 1.pdf";
        stage().window.desktop.notifyFile("The pages lie in " + file, file);
        const auto keys = noteKeys();
        ASSERT_EQ(keys.size(), 2U);
        EXPECT_EQ(keys[0]->text(), "Open");
        EXPECT_EQ(keys[1]->text(), "Open Folder");
        QTest::mouseClick(keys[0], Qt::LeftButton);
        QTest::mouseClick(keys[1], Qt::LeftButton);
        ASSERT_EQ(opener.opened.size(), 2);
        EXPECT_TRUE(opener.opened[0].endsWith("Printouts/Printout 1.pdf"));
        EXPECT_TRUE(opener.opened[1].endsWith("Printouts"));
    });
    play();
}

TEST_F(Written, OtherFilesOpenTheirFolderAlone) {
    then([&] {
        stage().window.desktop.notifyFile("Written.", files::textOf(folder()) + "/LogBook.csv");
        EXPECT_EQ(noteKeys().size(), 1U);
        stage().window.desktop.notify("Nothing was written.");
        EXPECT_TRUE(noteKeys().empty());
    });
    play();
}

TEST_F(Written, TheFlyScreenLeadsToTheFolderAndScansAgainWhenItChanges) {
    auto& fly = forms().FlyForm;
    Settings& settings = stage().window.program.session.settings;
    const std::string simulatorPath = files::textOf(simulator());
    then([&] {
        settings.FsPath.clear();
        stage().doubleClick(main().city_LABEL(3));
    });
    then([&] { stage().click(main().FlatButton(3)); });
    then([&] {
        ASSERT_TRUE(fly.visible);
        EXPECT_EQ(fly.acftCOMBO.count(), 0);
        EXPECT_EQ(fly.acftEmpty_LABEL.text, "No simulator folder yet");
        ASSERT_TRUE(stage().widget(fly.acftEmpty_LABEL).isVisible());
        stage().click(fly.folderButton);
    });
    then([&] {
        ASSERT_TRUE(forms().DirForm.visible);
        settings.FsPath = simulatorPath;
        stage().key(Qt::Key_Escape);
    });
    then([&] {
        EXPECT_EQ(fly.acftCOMBO.text(), "Boeing 737-800 Quillmark");
        EXPECT_FALSE(stage().widget(fly.acftEmpty_LABEL).isVisible());
        EXPECT_FALSE(stage().widget(fly.folderButton).isVisible());
        EXPECT_EQ(fly.continueButton.State, 1);
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Written, TheFolderScreenBeginsWhereTheSimulatorLiesAndSaysWhatItLooksFor) {
    const QByteArray home = qgetenv("HOME");
    const std::filesystem::path wine =
        folder().parent_path() / ".wine" / "drive_c" / "Program Files" / "Microsoft Games" / "FS2002";
    std::filesystem::create_directories(wine);
    std::ofstream(wine / "FS2002.exe") << "";
    qputenv("HOME", QByteArray::fromStdString(folder().parent_path().string()));
    auto& screen = forms().DirForm;
    then([&] {
        stage().window.program.session.settings.FsPath.clear();
        stage().click(main().FlatButton(1));
    });
    then([&] { stage().click(forms().SettingsForm.pathButton); });
    then([&] {
        ASSERT_TRUE(screen.visible);
        EXPECT_NE(screen.seek_LABEL.text.find("FS2002.exe"), std::string::npos);
        ASSERT_GE(screen.placesCOMBO.count(), 1);
        EXPECT_EQ(files::target(screen.Dir1.path), wine);
        EXPECT_EQ(screen.File1.items, std::vector<std::string>{"FS2002.exe"});
        stage().key(Qt::Key_Escape);
    });
    play();
    qputenv("HOME", home);
}

TEST_F(Written, TheFolderScreenBeginsAtTheLastFolderWhereThatIsThere) {
    const std::string last = files::textOf(simulator());
    then([&] {
        stage().window.program.session.settings.FsPath = last;
        stage().click(main().FlatButton(1));
    });
    then([&] { stage().click(forms().SettingsForm.pathButton); });
    then([&] {
        EXPECT_EQ(forms().DirForm.Dir1.path, last);
        EXPECT_EQ(forms().DirForm.File1.items, std::vector<std::string>{"FS2002.exe"});
        stage().key(Qt::Key_Escape);
    });
    play();
}

TEST_F(Written, AFolderWithoutAircraftSaysSo) {
    auto& fly = forms().FlyForm;
    std::filesystem::remove_all(simulator() / "Aircraft");
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().FlatButton(3)); });
    then([&] { EXPECT_EQ(fly.acftEmpty_LABEL.text, "No aircraft in the folder"); });
    play();
}

TEST_F(Written, AFlightThatCannotBeSentSaysWhichFileAndWhy) {
    std::filesystem::remove_all(simulator() / "flights");
    then([&] { stage().doubleClick(main().city_LABEL(3)); });
    then([&] { stage().click(main().FlatButton(3)); });
    then([&] { stage().click(forms().FlyForm.continueButton); });
    then([&] {
        const auto& message = forms().MsgForm;
        ASSERT_TRUE(message.visible);
        EXPECT_NE(message.Msg_LABEL.text.find("Error Number"), std::string::npos); // as it always says
        EXPECT_EQ(message.file_LABEL.text.substr(0, 37), "Not written: its folder is not there\n");
        EXPECT_NE(message.file_LABEL.text.find(".FLT"), std::string::npos);
        stage().key(Qt::Key_Return);
    });
    play();
}

TEST_F(Written, ABoardWithoutFlightsTellsOfTheNextAndOffersAnyDay) {
    auto& flights = stage().window.program.session.schedule.BoardFlights;
    then([&] {
        EXPECT_FALSE(stage().widget(main().boardEmpty_LABEL).isVisible());
        for (auto& flight : flights) {
            flight.DaysMask = 2; // Tuesday alone
            flight.DepartureTime = 540;
        }
        flights.front().DepartureTime = 1840;
        stage().desk().act([&] { main().dayCombo.select(1); });
        EXPECT_TRUE(trimmed(main().fltnum_LABEL(0).text).empty());
        ASSERT_TRUE(stage().widget(main().boardEmpty_LABEL).isVisible());
        EXPECT_EQ(main().boardEmpty_LABEL.text, "No departure at this hour.  Next departure 18:40.");
        ASSERT_TRUE(stage().widget(main().anyDayButton).isVisible());
        stage().click(main().anyDayButton);
    });
    then([&] {
        EXPECT_EQ(main().dayCombo.picked, 0);
        EXPECT_EQ(trimmed(main().time_LABEL(0).text), "1840");
        EXPECT_FALSE(stage().widget(main().boardEmpty_LABEL).isVisible());
        EXPECT_FALSE(stage().widget(main().anyDayButton).isVisible());
    });
    play();
}

} // namespace gatewise::test

#include "WrittenTest.moc"
