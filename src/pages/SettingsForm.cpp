#include "pages/SettingsForm.h"

#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "pages/SelectForm.h"

namespace gatewise {

namespace {

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

} // namespace

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

} // namespace gatewise
