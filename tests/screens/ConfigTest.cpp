#include "dispatch/Terminal.h"
#include "input/Shutdown.h"
#include "pages/LoadSettings.h"
#include "pages/SaveSettings.h"
#include "platform/Profile.h"
#include "work/ConfigFile.h"

#include <filesystem>

namespace gatewise::test {

namespace {

struct KeyOfFile {
    const char* section;
    const char* key;
    const char* value; // none of them the default
};

// In the order of the writer.
constexpr KeyOfFile kKeys[] = {
    {"Main", "FSPath", "/sim"},
    {"Main", "Index", "1"},
    {"Main", "FavoriteAirline", "Example Air"},
    {"Main", "DataSet", "\\Data\\Summer"},
    {"Main", "Last", "O'Hara = x;y"},
    {"Main", "First", "J\xF6rg"},
    {"Main", "StatusBoard", "2"},
    {"Announcements", "ambVolume", "-1170"},
    {"Announcements", "Dept1", "1"},
    {"Announcements", "Dept2", "2"},
    {"Announcements", "Dept3", "1"},
    {"Announcements", "Arr1", "2"},
    {"Announcements", "Arr2", "1"},
    {"Announcements", "Arr3", "1"},
    {"Announcements", "TimeSort", "False"},
    {"Announcements", "CitySort", "False"},
    {"Announcements", "FltNumSort", "True"},
    {"ProFlight", "FltNumber", "1"},
    {"ProFlight", "Callsign", "2"},
    {"FlightOptions", "PreFlight", "45"},
    {"FlightOptions", "FindAlternate", "1"},
    {"FlightOptions", "SetDept", "0"},
    {"FlightOptions", "SetDest", "1"},
    {"FlightOptions", "SetDefault", "1"},
    {"FlightOptions", "AnyAirline", "1"},
    {"FlightOptions", "MinDist", "150"},
    {"Export", "747fmc", "1"},
    {"Export", "PF2Kfmc", "1"},
    {"Export", "CPfmc", "2"},
    {"Export", "RadarContactPath", "/rc"},
    {"Export", "RadarContactDrive", "r:"},
    {"Export", "SBPath", "/sb"},
    {"Export", "SBDrive", "s:"},
    {"Export", "ACSPath", "/acs"},
    {"Export", "ACSDrive", "a:"},
};

std::string fileOf(const std::vector<KeyOfFile>& keys) {
    std::string text;
    std::string_view section;
    for (const auto& key : keys) {
        if (section != key.section) text += std::string("[") + key.section + "]\r\n";
        section = key.section;
        text += std::string(key.key) + "=" + key.value + "\r\n";
    }
    return text;
}

/// All keys, one of them with another value; nullptr leaves its line out.
std::string fileWith(std::string_view changed, const char* value) {
    std::vector<KeyOfFile> keys;
    for (auto key : kKeys) {
        if (key.key == changed) {
            if (value == nullptr) continue;
            key.value = value;
        }
        keys.push_back(key);
    }
    return fileOf(keys);
}

class Config : public testing::Test {
protected:
    Config() {
        smallSchedule().write(folder, "/Data");
        smallSchedule().write(folder, "/Data/Summer");
    }
    /// Only the read, without the start-up around it.
    void read(const std::string& file) {
        folder.write("/GT.cfg", file);
        loadSettings(p);
    }
    [[nodiscard]] std::string written(const char* section, const char* key) const {
        return ReadText(section, key, folder.path("/GT.cfg"));
    }

    TempFolder folder;
    Terminal terminal{folder};
    Program& p = terminal.p;
    forms::SettingsForm& settings = p.forms.SettingsForm;
    forms::OptionsForm& options = p.forms.OptionsForm;
};

} // namespace

TEST_F(Config, TheWriterWritesEveryKeyInItsOrderAndNothingElse) {
    folder.write("/GT.cfg", fileOf({std::begin(kKeys), std::end(kKeys)}));
    loadSettings(p);
    ASSERT_FALSE(files::remove(folder.path("/GT.cfg")));
    ASSERT_FALSE(WriteConfig(p.session.AppDir, p.session.settings));
    EXPECT_EQ(folder.read("/GT.cfg"), fileOf({std::begin(kKeys), std::end(kKeys)}));
}

TEST_F(Config, ASecondRunLeavesTheFileOfTheFirstByteForByte) {
    folder.write("/GT.cfg", fileOf({std::begin(kKeys), std::end(kKeys)}));
    terminal.start();
    Shutdown(p);
    EXPECT_EQ(folder.read("/GT.cfg"), fileOf({std::begin(kKeys), std::end(kKeys)}));

    Terminal again(folder);
    again.start();
    EXPECT_EQ(again.p.session.settings.HomeIndex, 1);
    EXPECT_EQ(again.p.session.settings.AmbienceVolume, -1170);
    EXPECT_EQ(again.p.forms.SettingsForm.firstTEXT.text, "J\xF6rg");
    EXPECT_TRUE(again.p.forms.OptionsForm.fltnumOption.value);
    EXPECT_EQ(again.p.forms.FlyForm.flydefaultCHECK.value, 1);
    EXPECT_EQ(again.p.forms.SettingsForm.preflightCOMBO.data(), 45);
    Shutdown(again.p);
    EXPECT_EQ(folder.read("/GT.cfg"), fileOf({std::begin(kKeys), std::end(kKeys)}));
}

TEST_F(Config, ATemporaryAirlineFilterIsNotSaved) {
    read(fileOf({std::begin(kKeys), std::end(kKeys)}));
    EXPECT_EQ(p.session.board.FavoriteAirlineName, "- Any Airline -");
    EXPECT_EQ(settings.airlineLABEL.text, "Example Air");
    ASSERT_FALSE(WriteConfig(p.session.AppDir, p.session.settings));
    EXPECT_EQ(written("Main", "FavoriteAirline"), "Example Air");
}

TEST_F(Config, AMissingIndexOfTheDataSetReturnsToTheMainOneAndTheNextWriteSavesThat) {
    read(fileWith("DataSet", "\\Data\\Winter"));
    EXPECT_EQ(p.session.settings.DataSetPath, "\\Data");
    EXPECT_EQ(written("Main", "DataSet"), "\\Data\\Winter");
    ASSERT_FALSE(WriteConfig(p.session.AppDir, p.session.settings));
    EXPECT_EQ(written("Main", "DataSet"), "\\Data");
}

TEST_F(Config, MissingKeysReadAsEmptyOrZero) {
    read("[Main]\r\nIndex=2\r\n[Announcements]\r\nTimeSort=0\r\nCitySort=1\r\nFltNumSort=false\r\n");
    EXPECT_EQ(p.session.settings.HomeIndex, 2);
    EXPECT_EQ(p.session.settings.FsPath, "");
    EXPECT_EQ(p.session.board.FavoriteAirlineName, "");
    EXPECT_EQ(p.session.settings.DataSetPath, "\\Data");
    EXPECT_EQ(settings.lastTEXT.text, "");
    EXPECT_EQ(p.session.settings.AmbienceVolume, 0);
    EXPECT_TRUE(options.cityOption.value);
    EXPECT_EQ(options.d1_CHECK.value, 0);
    EXPECT_EQ(settings.preflightCOMBO.text(), "0");
    EXPECT_EQ(settings.altdistCOMBO.text(), "5");
    EXPECT_EQ(p.session.settings.exportFolders["SB"].path, p.session.AppDir);
    EXPECT_EQ(p.session.settings.exportFolders["SB"].drive, p.session.AppDir.substr(0, 2));
    EXPECT_EQ(p.session.settings.exportFolders["ACS"].path, p.session.AppDir);
    EXPECT_EQ(p.session.settings.exportFolders["RadarContact"].drive, p.session.AppDir.substr(0, 2));
}

TEST_F(Config, AMinDistOfSevenIsNoItemAndSelectsFive) {
    read(fileWith("MinDist", "7"));
    EXPECT_EQ(settings.altdistCOMBO.text(), "5");
    ASSERT_FALSE(WriteConfig(p.session.AppDir, p.session.settings));
    EXPECT_EQ(written("FlightOptions", "MinDist"), "5");
}

TEST_F(Config, AnIndexThatIsNoNumberEndsTheRead) {
    for (const char* index : {static_cast<const char*>(nullptr), "", "three", "3 airports", "2147483648",
                              "-2147483649", "1-2", "1.2.3", "."}) {
        Terminal fresh(folder);
        folder.write("/GT.cfg", fileWith("Index", index));
        loadSettings(fresh.p);
        auto& s = fresh.p.session;
        const char* shown = index != nullptr ? index : "(no key)";
        EXPECT_EQ(s.settings.FsPath, "/sim") << shown;
        EXPECT_EQ(s.settings.HomeIndex, 0) << shown;
        EXPECT_EQ(s.board.FavoriteAirlineName, "") << shown;
        EXPECT_EQ(s.settings.DataSetPath, "\\Data") << shown;
        EXPECT_EQ(s.settings.AmbienceVolume, 0) << shown;
        EXPECT_FALSE(fresh.p.forms.OptionsForm.fltnumOption.value) << shown;
        EXPECT_EQ(s.settings.exportFolders["SB"].path, "") << shown;
    }
}

TEST_F(Config, NumbersOfAnIndexReachOverAllOfItsRange) {
    for (const auto& [text, value] : {std::pair{"-2147483648", std::numeric_limits<std::int32_t>::min()},
                                      std::pair{"2147483647", std::numeric_limits<std::int32_t>::max()},
                                      std::pair{"+3", 3}, std::pair{" 4 ", 4}, std::pair{"\"5\"", 5}}) {
        read(fileWith("Index", text));
        EXPECT_EQ(p.session.settings.HomeIndex, value) << text;
        EXPECT_EQ(p.session.board.FavoriteAirlineName, "- Any Airline -") << text;
    }
}

TEST_F(Config, AnEmptySortKeyEndsTheReadAndWhatCameBeforeStays) {
    for (const char* key : {"TimeSort", "CitySort", "FltNumSort"}) {
        for (const char* value : {static_cast<const char*>(nullptr), "", "yes"}) {
            Terminal fresh(folder);
            folder.write("/GT.cfg", fileWith(key, value));
            loadSettings(fresh.p);
            EXPECT_EQ(fresh.p.session.settings.AmbienceVolume, -1170) << key;
            EXPECT_EQ(fresh.p.forms.SettingsForm.statusboardCHECK.value, 2) << key;
            EXPECT_EQ(fresh.p.forms.OptionsForm.fltnumOption.value, false) << key;
            EXPECT_EQ(fresh.p.forms.OptionsForm.d1_CHECK.value, 0) << key;
            EXPECT_EQ(fresh.p.forms.SettingsForm.altCHECK.value, 0) << key;
            EXPECT_EQ(fresh.p.session.settings.exportFolders["RadarContact"].path, "") << key;
        }
    }
}

TEST_F(Config, WhatAControlCannotHoldEndsTheRead) {
    read(fileWith("FindAlternate", "3"));
    EXPECT_EQ(settings.preflightCOMBO.text(), "45");
    EXPECT_EQ(settings.altCHECK.value, 0);
    EXPECT_EQ(p.forms.FlyForm.flydefaultCHECK.value, 0);
    EXPECT_EQ(p.session.settings.exportFolders["SB"].path, "");
}

TEST_F(Config, TheVolumeHoldsSixteenBitsAndWhatIsBeyondEndsTheRead) {
    for (const auto& [text, value] : {std::pair{"-32768", -32768}, std::pair{"32767", 32767}}) {
        read(fileWith("ambVolume", text));
        EXPECT_EQ(p.session.settings.AmbienceVolume, value);
        EXPECT_TRUE(options.fltnumOption.value) << text;
        ASSERT_FALSE(WriteConfig(p.session.AppDir, p.session.settings));
        EXPECT_EQ(written("Announcements", "ambVolume"), text);
    }
    for (const char* text : {"-32769", "32768"}) {
        Terminal fresh(folder);
        folder.write("/GT.cfg", fileWith("ambVolume", text));
        loadSettings(fresh.p);
        EXPECT_EQ(fresh.p.session.settings.AmbienceVolume, 0) << text;
        EXPECT_EQ(fresh.p.forms.SettingsForm.statusboardCHECK.value, 2) << text;
        EXPECT_FALSE(fresh.p.forms.OptionsForm.fltnumOption.value) << text;
    }
}

TEST_F(Config, ABoxStoresItsValueAtOnceAndAnOptionThatIsTurnedOffNoLongerSorts) {
    read(fileOf({std::begin(kKeys), std::end(kKeys)}));
    user::check(settings.altCHECK, 2);
    EXPECT_EQ(p.session.settings.FindAlternate, 2);
    user::type(settings.lastTEXT, "Novak");
    EXPECT_EQ(p.session.settings.Last, "Novak");
    settings.altdistCOMBO.select(settings.altdistCOMBO.find("30"));
    EXPECT_EQ(p.session.settings.MinDist, 30);
    user::check(options.cityOption, 1);
    EXPECT_EQ(p.session.settings.sort, BoardSort::City);
    user::check(options.cityOption, 0);
    EXPECT_EQ(p.session.settings.sort, BoardSort::None);
}

TEST_F(Config, OfTheTwoBoxesOfTheHomeAirportTheLaterReadWins) {
    read(fileWith("SetDept", "1"));
    EXPECT_EQ(settings.homeDeptCHECK.value, 0);
    EXPECT_EQ(settings.homeDestCHECK.value, 1);
}

TEST_F(Config, AReadOnlyFileStaysWholeAndTheProgramGoesOn) {
    const std::string before = fileOf({std::begin(kKeys), std::end(kKeys)});
    folder.write("/GT.cfg", before);
    std::filesystem::permissions(folder.path("/GT.cfg"), std::filesystem::perms::owner_read);
    terminal.start();
    terminal.shown.clear();
    user::check(settings.altCHECK, 0);
    user::click(settings.continueButton);
    EXPECT_TRUE(terminal.shown.empty());
    EXPECT_EQ(settings.altCHECK.value, 0);
    EXPECT_EQ(folder.read("/GT.cfg"), before);
    Shutdown(p);
    EXPECT_TRUE(p.ending);
    EXPECT_EQ(folder.read("/GT.cfg"), before);
    std::filesystem::permissions(folder.path("/GT.cfg"), std::filesystem::perms::owner_all);
}

TEST_F(Config, WithoutAFileTheProgramStartsAndLeavesOne) {
    terminal.start();
    EXPECT_TRUE(p.forms.MainForm.visible);
    EXPECT_EQ(p.session.settings.HomeIndex, 0);
    Shutdown(p);
    EXPECT_EQ(written("Main", "Index"), "0");
    EXPECT_EQ(written("Announcements", "TimeSort"), "False");
    const std::string once = folder.read("/GT.cfg");
    Terminal again(folder);
    again.start();
    EXPECT_EQ(again.p.forms.SettingsForm.altdistCOMBO.text(), "5");
    EXPECT_EQ(again.p.session.settings.exportFolders["SB"].path, again.p.session.AppDir);
}

TEST_F(Config, AFolderInThePlaceOfTheFileIsNoFile) {
    std::filesystem::create_directories(folder.path("/GT.cfg/inside"));
    terminal.start();
    EXPECT_TRUE(p.forms.MainForm.visible);
    Shutdown(p);
    EXPECT_TRUE(p.ending);
    EXPECT_TRUE(std::filesystem::is_directory(folder.path("/GT.cfg/inside")));
}

} // namespace gatewise::test
