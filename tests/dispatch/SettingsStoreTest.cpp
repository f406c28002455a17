#include "dispatch/Terminal.h"
#include "platform/Profile.h"

#include <map>

namespace gatewise::test {

namespace {

/// Every control that holds a key, set to something that is not its default.
void changeAll(Forms& f) {
    auto& s = f.SettingsForm;
    user::type(s.firstTEXT, "Ad\xE9la\xEF"
                            "de");
    user::type(s.lastTEXT, "O'Neil \"x\" = ; [Main]");
    for (Check* box :
         {&s.statusboardCHECK, &s.homeDestCHECK, &s.altCHECK, &s.pf2_FltNumCHECK, &s.pf2_CallsignCHECK,
          &s.anyairlineCHECK, &f.FlyForm.flydefaultCHECK, &f.OptionsForm.d1_CHECK, &f.OptionsForm.d2_CHECK,
          &f.OptionsForm.d3_CHECK, &f.OptionsForm.a1_CHECK, &f.OptionsForm.a2_CHECK, &f.OptionsForm.a3_CHECK,
          &f.ExportForm.kf747CHECK, &f.ExportForm.aetiCHECK, &f.ExportForm.abCHECK}) {
        user::check(*box, box->value == 0 ? 1 : 0);
    }
    user::choose(s.altdistCOMBO, 12);
    user::choose(s.preflightCOMBO, 9);
    user::check(f.OptionsForm.cityOption, 1);
    for (int i = 0; i < 7; ++i) user::click(f.OptionsForm.volDN);
}

/// What all controls of the settings show, by name.
std::map<std::string, std::string> valuesOf(Forms& f) {
    std::map<std::string, std::string> values;
    for (Screen* screen :
         std::initializer_list<Screen*>{&f.SettingsForm, &f.OptionsForm, &f.ExportForm, &f.FlyForm}) {
        for (Control* control : screen->controls) {
            std::string& value = values[control->fullName()];
            if (control->kind == Kind::Check)
                value = std::to_string(static_cast<Check*>(control)->value);
            else if (control->kind == Kind::Option)
                value = static_cast<Option*>(control)->value ? "on" : "off";
            else if (control->kind == Kind::TextBox)
                value = static_cast<TextBox*>(control)->text;
            else if (control->kind == Kind::Combo && screen == &f.SettingsForm)
                value = static_cast<Combo*>(control)->text();
            else
                values.erase(control->fullName());
        }
    }
    return values;
}

} // namespace

TEST(SettingsStore, EveryKeyIsWrittenAndReadAgain) {
    TempFolder folder;
    smallSchedule().write(folder, "/Data");
    writeSettings(folder);
    std::map<std::string, std::string> before;
    {
        Terminal t(folder);
        t.start();
        changeAll(t.p.forms);
        before = valuesOf(t.p.forms);
        user::click(t.p.forms.SettingsForm.continueButton);
        EXPECT_FALSE(t.p.forms.SettingsForm.visible);
        EXPECT_EQ(t.p.session.settings.AmbienceVolume, -630);
    }
    const std::string written = folder.read("/GT.cfg");
    Terminal t(folder);
    t.start();
    EXPECT_EQ(valuesOf(t.p.forms), before);
    EXPECT_EQ(t.p.session.settings.AmbienceVolume, -630);
    EXPECT_EQ(t.p.session.board.FavoriteAirlineName, "- Any Airline -");
    EXPECT_EQ(t.p.forms.SettingsForm.lastTEXT.text, "O'Neil \"x\" = ; [Main]");
    EXPECT_TRUE(t.p.forms.MainForm.status_pic.visible);
    user::click(t.p.forms.MainForm.FlatButton(4));
    EXPECT_TRUE(t.p.ending);
    EXPECT_EQ(folder.read("/GT.cfg"), written);
}

TEST(SettingsStore, ADefaultAirlineAndAHomeAirportAreWrittenWhenTheyArePicked) {
    TempFolder folder;
    Schedule schedule = smallSchedule();
    schedule.airlines.push_back(airline("YY", "Yonder"));
    FlightRecord back = schedule.flights.front();
    back.OriginIndex = 1;
    back.DestIndex = 0;
    schedule.flights.push_back(back);
    schedule.complete();
    schedule.write(folder, "/Data");
    writeSettings(folder);
    Terminal t(folder);
    t.start();
    auto& s = t.p.forms.SettingsForm;
    const auto select = [&] { user::click(t.p.forms.SelectForm.selectButton); };
    user::type(s.airlineSearchTEXT, "yon");
    t.answers = {select};
    user::click(s.airlineSearchButton);
    EXPECT_EQ(s.airlineLABEL.text, "Yonder");
    EXPECT_EQ(ReadText("Main", "FavoriteAirline", folder.path("/GT.cfg")), "Yonder");
    user::type(s.searchText, "bbb");
    t.answers = {select};
    user::enter(s.searchText);
    EXPECT_EQ(s.homeLABEL.text, "KBBB - Birchwood - Bravo Intl (BBB)");
    EXPECT_EQ(ReadText("Main", "Index", folder.path("/GT.cfg")), "1");
    EXPECT_EQ(t.p.session.dispatch.DepartureIndex, 1);
}

TEST(Screens, TextBoxesOfSearchesAndNamesSelectAllWhenTheyGetTheFocus) {
    TempFolder folder;
    smallSchedule().write(folder, "/Data");
    writeSettings(folder);
    Terminal t(folder);
    t.start();
    auto& m = t.p.forms.MainForm;
    auto& s = t.p.forms.SettingsForm;
    for (TextBox* box : {&m.departureText, &m.arrSearch, &m.altSearch, &s.firstTEXT, &s.lastTEXT,
                         &s.searchText, &s.airlineSearchTEXT}) {
        EXPECT_FALSE(box->selectAll) << box->name;
        user::focus(*box);
        EXPECT_TRUE(box->selectAll) << box->name;
    }
}

TEST(Screens, HelpAndMinimiseReachTheDesktop) {
    TempFolder folder;
    smallSchedule().write(folder, "/Data");
    writeSettings(folder);
    Terminal t(folder);
    t.start();
    user::click(t.p.forms.MainForm.FlatButton(2));
    EXPECT_EQ(t.machine.desktop.helpPages, std::vector<std::string>{folder.path("\\GThelp.chm::/gt_gt.htm")});
    user::click(t.p.forms.MainForm.min_button);
    EXPECT_TRUE(t.machine.desktop.minimised);
}

} // namespace gatewise::test
