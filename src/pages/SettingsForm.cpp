#include "pages/SettingsForm.h"

#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "pages/SelectForm.h"
#include "pages/SettingControls.h"
#include "schedule/FlightTexts.h"

namespace gatewise {

namespace {

using forms::SettingsForm;

constexpr SettingBox<SettingsForm> kBoxes[] = {
    {&SettingsForm::statusboardCHECK, &Settings::StatusBoard},
    {&SettingsForm::pf2_FltNumCHECK, &Settings::FltNumber},
    {&SettingsForm::pf2_CallsignCHECK, &Settings::Callsign},
    {&SettingsForm::altCHECK, &Settings::FindAlternate},
    {&SettingsForm::homeDeptCHECK, &Settings::SetDept},
    {&SettingsForm::homeDestCHECK, &Settings::SetDest},
    {&SettingsForm::anyairlineCHECK, &Settings::AnyAirline},
    {&SettingsForm::returnCHECK, &Settings::ComeBack},
};

void allowDistance(SettingsForm& f) {
    f.altdistCOMBO.enabled = f.altCHECK.value == 1;
}

void followAnyAirline(SettingsForm& f) {
    const bool any = f.anyairlineCHECK.value == 1;
    f.airlineSearchButton.State = any ? 0 : 1;
    f.airlineSearchTEXT.enabled = !any;
    f.airlineLABEL.visible = !any;
    restorePictures(f);
}

/// What a click changes besides its own setting.
void followBox(SettingsForm& f, const Check& box) {
    if (&box == &f.altCHECK) allowDistance(f);
    if (&box == &f.anyairlineCHECK) followAnyAirline(f);
    if (&box == &f.homeDeptCHECK && box.value == 1) f.homeDestCHECK.set(0);
    if (&box == &f.homeDestCHECK && box.value == 1) f.homeDeptCHECK.set(0);
}

template<class Choices> void fillChoices(Combo& combo, const Choices& choices) {
    for (const int value : choices) combo.add(std::to_string(value), value);
}

void showChoice(Combo& combo, std::optional<int> value) {
    if (value) combo.select(combo.find(std::to_string(*value)));
}

void tieSettings(SettingsForm& f, Settings& s) {
    tieBoxes<SettingsForm>(f, s, kBoxes, [&f](const Check& box) { followBox(f, box); });
    tieText(f.firstTEXT, s.First);
    tieText(f.lastTEXT, s.Last);
    fillChoices(f.altdistCOMBO, kAlternateMiles);
    f.altdistCOMBO.on(Event::Click, [&f, &s] { s.MinDist = f.altdistCOMBO.data(); });
    fillChoices(f.preflightCOMBO, kPreFlightMinutes);
    f.preflightCOMBO.on(Event::Click, [&f, &s] { s.PreFlight = f.preflightCOMBO.data(); });
}

} // namespace

void showSettings(Program& p) {
    auto& f = p.forms.SettingsForm;
    const Settings settings = p.session.settings; // the controls store back while they are filled
    f.fspathLABEL.text = settings.FsPath;
    f.airlineLABEL.text = settings.FavoriteAirline;
    f.lastTEXT.text = settings.Last;
    f.firstTEXT.text = settings.First;
    showChoice(f.preflightCOMBO, settings.PreFlight);
    showChoice(f.altdistCOMBO, settings.MinDist);
    showBoxes<SettingsForm>(f, settings, kBoxes);
}

void showHome(Program& p) {
    p.forms.SettingsForm.homeLABEL.text =
        homeText(p.session.schedule.tables.airport(p.session.settings.HomeIndex));
}

void bindSettingsForm(Program& p) {
    auto& f = p.forms.SettingsForm;
    f.load = [&p] {
        placeScreen(p, p.forms.SettingsForm);
        restorePictures(p.forms.SettingsForm);
    };
    f.activate = [&p] {
        CenterOnMain(p, p.forms.SettingsForm);
        allowDistance(p.forms.SettingsForm);
    };
    tieSettings(f, p.session.settings);
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
    f.searchText.on(Event::Enter, [&p] { return searchHome(p); });
    f.airlineSearchTEXT.on(Event::Enter, [&p] {
        p.session.dispatch.SelectMode = "home_airline";
        showScreen(p, p.forms.SelectForm);
    });
    for (TextBox* box : {&f.firstTEXT, &f.lastTEXT, &f.searchText, &f.airlineSearchTEXT}) {
        box->on(Event::Focus, [box] { box->selectAll = true; });
    }
}

} // namespace gatewise
