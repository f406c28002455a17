#include "screens/SettingsScreens.h"

#include "screens/LocaleFix.h"
#include "screens/Picker.h"
#include "screens/Screens.h"
#include "screens/SkinnedButtons.h"
#include "sound/Announcements.h"

namespace gatewise {

namespace {

constexpr std::int16_t kVolumeStep = 90;

void showVolume(Program& p) {
    p.forms.OptionsForm.ambVol.text = formatNumber("000", 100 + p.g.AmbienceVolume / 90.0);
}

void allowDistance(forms::SettingsForm& f) {
    f.altdistCOMBO.enabled = f.altCHECK.value == 1;
}

void followAnyAirline(forms::SettingsForm& f) {
    const bool any = f.anyairlineCHECK.value == 1;
    f.airlineSearchButton.State = any ? 0 : 1;
    f.airlineSearchTEXT.enabled = !any;
    f.airlineLABEL.visible = !any;
    restorePictures(f);
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
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
    f.altCHECK.on(Event::Click, [&f] { allowDistance(f); });
    f.anyairlineCHECK.on(Event::Click, [&f] { followAnyAirline(f); });
    f.homeDeptCHECK.on(Event::Click, [&f] {
        if (f.homeDeptCHECK.value == 1) f.homeDestCHECK.set(0);
    });
    f.homeDestCHECK.on(Event::Click, [&f] {
        if (f.homeDestCHECK.value == 1) f.homeDeptCHECK.set(0);
    });
    f.searchText.on(Event::Enter, [&p] { searchHome(p); });
    f.airlineSearchTEXT.on(Event::Enter, [&p] {
        p.g.SelectMode = "home_airline";
        showScreen(p, p.forms.SelectForm);
    });
    for (TextBox* box : {&f.firstTEXT, &f.lastTEXT, &f.searchText, &f.airlineSearchTEXT}) {
        box->on(Event::Focus, [box] { box->selectAll = true; });
    }
}

} // namespace

void stepAmbience(Program& p, std::string_view type) {
    if (type == "vol_dn" && p.g.AmbienceVolume >= -8910) p.g.AmbienceVolume -= kVolumeStep;
    if (type == "vol_up" && p.g.AmbienceVolume <= -90) p.g.AmbienceVolume += kVolumeStep;
    if (p.SoundEngine) p.SoundEngine->ChangeVolume(kAmbienceChannel, p.g.AmbienceVolume);
    showVolume(p);
}

void bindSettingsScreens(Program& p) {
    bindSettingsForm(p);
    auto& f = p.forms.OptionsForm;
    f.load = [&p] {
        placeScreen(p, p.forms.OptionsForm);
        restorePictures(p.forms.OptionsForm);
    };
    f.activate = [&p] {
        CenterOnMain(p, p.forms.OptionsForm);
        showVolume(p);
    };
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
}

} // namespace gatewise
