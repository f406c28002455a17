#include "Desk.h"

#include "pages/ExportForm.h"

namespace gatewise::test {

namespace {

const std::string kPlans = "EGLL*LFPG\t 0 \t***\t***\t***\t***\r\n";
const std::string kFmcDone = "Information: Gatewise Terminal has Exported your flight plan to the Flight "
                             "Management Computer(s) that were selected.";

class Hub : public Desk {};

TEST_F(Hub, WithoutAnFmcAllBoxesStayDisabledAndFmcStillAnswers) {
    auto& f = p.forms.ExportForm;
    f.kf747CHECK.value = f.aetiCHECK.value = f.abCHECK.value = 1;
    showScreen(p, f);
    for (const Check* box : {&f.kf747CHECK, &f.aetiCHECK, &f.abCHECK}) {
        EXPECT_FALSE(box->enabled);
        EXPECT_EQ(box->value, 0);
    }
    choose("fmc");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(lastMessage().starts_with(kFmcDone));
    EXPECT_TRUE(namesIn(fs.path()).empty());
}

TEST_F(Hub, EachFmcBoxHasItsOwnFile) {
    auto& f = p.forms.ExportForm;
    const std::pair<const char*, Check*> rows[] = {{"/Kestrelfold Software/Fmc/FMSplans.fmc", &f.kf747CHECK},
                                                   {"/FMSplans.fmc", &f.aetiCHECK},
                                                   {"/Corporate Pilot/Fmc/fmsplans.FMC", &f.abCHECK}};
    for (const auto& [file, box] : rows) {
        fs.write(file, kPlans);
        showScreen(p, f);
        EXPECT_TRUE(box->enabled) << file;
        EXPECT_EQ(box->value, 0) << file;
    }
}

TEST_F(Hub, FmcWritesTheTickedPlansThatStillExist) {
    fs.write("/Kestrelfold Software/Fmc/FMSplans.fmc", kPlans);
    fs.write("/FMSplans.fmc", kPlans);
    fs.write("/Corporate Pilot/Fmc/FMSplans.fmc", kPlans);
    auto& f = p.forms.ExportForm;
    showScreen(p, f);
    user::click(f.kf747CHECK);
    user::click(f.abCHECK);
    ASSERT_FALSE(files::remove(fs.path("/Corporate Pilot/Fmc/FMSplans.fmc")));
    choose("fmc");
    EXPECT_TRUE(fs.read("/Kestrelfold Software/Fmc/FMSplans.fmc").starts_with("KSEA*KLAX\t 12 \t"));
    EXPECT_TRUE(fs.read("/Kestrelfold Software/Fmc/FMSplans.fmc").ends_with(kPlans));
    EXPECT_EQ(fs.read("/FMSplans.fmc"), kPlans);
    EXPECT_TRUE(namesIn(fs.path("/Corporate Pilot/Fmc")).empty());
    EXPECT_TRUE(lastMessage().starts_with(kFmcDone));
}

TEST_F(Hub, AnFmcFileOfTooManyLinesStaysAndNothingIsSaid) {
    std::string lines;
    for (int i = 0; i < 2002; ++i) lines += "x\r\n";
    fs.write("/FMSplans.fmc", lines);
    showScreen(p, p.forms.ExportForm);
    user::click(p.forms.ExportForm.aetiCHECK);
    choose("fmc");
    EXPECT_EQ(fs.read("/FMSplans.fmc"), lines);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(lastMessage().starts_with(kFmcDone));
}

TEST_F(Hub, WithoutFsNavigatorThereIsAMessageAndNoPicker) {
    choose("fsnav");
    EXPECT_EQ(shown, (std::vector<std::string>{"MsgForm"}));
    EXPECT_EQ(
        lastMessage(),
        "Warning!: Gatewise Terminal has been unable to find FSNavigator 4 installed on your computer.");
}

TEST_F(Hub, TheOtherTargetsNeedNoFolder) {
    for (const char* kind : {"fs2k", "rc2", "sb", "acs"}) {
        shown.clear();
        choose(kind);
        EXPECT_EQ(shown, (std::vector<std::string>{"DirExportForm"})) << kind;
        EXPECT_EQ(p.session.desk.ExportKind, kind);
    }
    EXPECT_TRUE(messages.empty());
}

struct PickerRow {
    const char* kind;
    const char* folder; // below FsPath, or the remembered one
    const char* pattern;
    const char* typeText;
    const char* extension;
    const char* title;
};

constexpr PickerRow kRows[] = {
    {"acs", "/acs", "*.prg", "ACS-GPS Files (*.prg)", ".prg", "Export ACS-GPS Flight Plan"},
    {"sb", "/sb", "*.sbp", "SquawkBox Files (*.sbp)", ".sbp", "Export SquawkBox Flight Plan"},
    {"rc2", "/rc", "*.apl", "Radar Contact (*.apl)", ".apl", "Export Radar Contact Flight Plan"},
    {"fsnav", "\\Modules\\FSNavigator\\Plan", "*.fsn", "FSNavigator 4 Plans (*.fsn)", ".fsn",
     "Export FSNavigator 4 Flight Plan"},
    {"fs2k", "\\flights\\myflts", "*.pln", "FS2000 Plan (*.pln)", ".pln", "Export FS2000 Flight Plan"}};

TEST_F(Hub, ThePickerOpensAsItsTargetWants) {
    fs.write("/Modules/FSNavigator/Plan/other.fsn", "x");
    p.session.settings.exportFolders["ACS"].path = fs.path("/acs");
    p.session.settings.exportFolders["SB"].path = fs.path("/sb");
    p.session.settings.exportFolders["RadarContact"].path = fs.path("/rc");
    auto& f = p.forms.DirExportForm;
    for (const auto& row : kRows) {
        choose(row.kind, [&] {
            EXPECT_EQ(f.Dir1.path, fs.path(row.folder)) << row.kind;
            EXPECT_EQ(f.File1.path, fs.path(row.folder)) << row.kind;
            EXPECT_EQ(f.File1.pattern, row.pattern);
            EXPECT_EQ(f.fileTypeCOMBO.items, (std::vector<std::string>{row.typeText}));
            EXPECT_EQ(f.fileTypeCOMBO.picked, 0);
            EXPECT_EQ(f.filenameTEXT.text, std::string(kStem) + row.extension);
            EXPECT_EQ(f.Label1.text, row.title);
            EXPECT_EQ(f.selectButton.State, 1);
        });
    }
    EXPECT_EQ(shown.size(), 5U);
}

TEST_F(Hub, ThePickerListsTheFilesOfItsTarget) {
    fs.write("/flights/myflts/one.PLN", "x");
    fs.write("/flights/myflts/two.txt", "x");
    choose("fs2k",
           [&] { EXPECT_EQ(p.forms.DirExportForm.File1.items, (std::vector<std::string>{"one.PLN"})); });
}

TEST_F(Hub, APickedFileGivesItsNameAndItsFolderIsRemembered) {
    fs.write("/plans/old.prg", "x");
    choose("acs", [&] {
        auto& f = p.forms.DirExportForm;
        user::path(f.Dir1, fs.path("/plans"));
        ASSERT_TRUE(user::choose(f.File1, 0));
        EXPECT_EQ(f.filenameTEXT.text, "old.prg");
    });
    EXPECT_EQ(p.session.settings.exportFolders["ACS"].path, fs.path("/plans"));
    EXPECT_EQ(p.session.settings.exportFolders["ACS"].drive, "/t"); // there are no drives here
    EXPECT_EQ(p.session.settings.exportFolders["SB"].path, app.path());
    EXPECT_EQ(fs.read("/plans/old.prg"), "x");
}

TEST_F(Hub, ADriveWithALetterIsRemembered) {
    choose("sb", [&] {
        p.forms.DirExportForm.Drive1.path = "D:\\";
        user::click(p.forms.DirExportForm.selectButton);
    });
    EXPECT_EQ(p.session.settings.exportFolders["SB"].drive, "D:");
}

TEST_F(Hub, TheDriveListShowsTheDriveOfItsTarget) {
    auto& f = p.forms.DirExportForm;
    loadScreen(f);
    f.Drive1.clear();
    f.Drive1.add("C:");
    f.Drive1.add("D:");
    f.Drive1.select(0);
    p.session.settings.exportFolders["SB"].drive = "d:";
    p.session.settings.exportFolders["ACS"].drive = "C:";
    choose("sb", [&] {
        EXPECT_EQ(f.Drive1.path, "d:");
        EXPECT_EQ(f.Drive1.picked, 1);
    });
    choose("acs", [&] {
        EXPECT_EQ(f.Drive1.path, "C:");
        EXPECT_EQ(f.Drive1.picked, 0);
    });
    for (const char* missing : {"/t", "E:"}) {
        p.session.settings.exportFolders["SB"].drive = missing;
        choose("sb", [&] {
            EXPECT_EQ(f.Drive1.path, "C:");
            EXPECT_EQ(f.Drive1.picked, 0);
        });
    }
}

TEST_F(Hub, WithoutARememberedFolderThePickerStartsBesideTheProgram) {
    p.session.settings.exportFolders["RadarContact"].path.clear();
    choose("rc2", [&] { EXPECT_EQ(p.forms.DirExportForm.Dir1.path, p.session.AppDir); });
    EXPECT_EQ(p.session.settings.exportFolders["RadarContact"].path, "");
}

TEST_F(Hub, FixedFoldersRememberNothing) {
    fs.write("/flights/myflts/one.pln", "x");
    choose("fs2k", [&] { ASSERT_TRUE(user::choose(p.forms.DirExportForm.File1, 0)); });
    EXPECT_EQ(p.session.settings.exportFolders["ACS"].path, app.path());
    EXPECT_EQ(p.session.settings.exportFolders["SB"].path, app.path());
    EXPECT_EQ(p.session.settings.exportFolders["RadarContact"].path, app.path());
}

TEST_F(Hub, MovingOverExportCorrectsTheExtension) {
    auto& f = p.forms.DirExportForm;
    const auto corrected = [&](const char* kind, const char* typed) {
        p.session.desk.ExportKind = kind;
        f.filenameTEXT.text = typed;
        user::move(f.selectButton);
        return f.filenameTEXT.text;
    };
    EXPECT_EQ(corrected("fs2k", "plan.txt"), "plan.pln");
    EXPECT_EQ(corrected("fs2k", "a.b.c"), "a.pln");
    EXPECT_EQ(corrected("acs", "plan"), "plan.prg");
    EXPECT_EQ(corrected("sb", "plan.prg"), "plan.sbp");
    EXPECT_EQ(corrected("rc2", ""), ".apl");
    EXPECT_EQ(corrected("fsnav", "plan.txt"), "plan.txt");
}

TEST_F(Hub, ContAndCloseHideTheHub) {
    auto& f = p.forms.ExportForm;
    showScreen(p, f);
    choose("cont");
    EXPECT_FALSE(f.visible);
    showScreen(p, f);
    user::click(f.closeButton);
    EXPECT_FALSE(f.visible);
}

} // namespace

} // namespace gatewise::test
