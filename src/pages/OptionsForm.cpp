#include "pages/OptionsForm.h"

#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/SettingControls.h"
#include "platform/Numbers.h"
#include "sound/Announcements.h"
#include "work/HallWork.h"

namespace gatewise {

namespace {

using forms::OptionsForm;

constexpr SettingBox<OptionsForm> kOptionBoxes[] = {
    {&OptionsForm::d1_CHECK, &Settings::Dept1}, {&OptionsForm::d2_CHECK, &Settings::Dept2},
    {&OptionsForm::d3_CHECK, &Settings::Dept3}, {&OptionsForm::a1_CHECK, &Settings::Arr1},
    {&OptionsForm::a2_CHECK, &Settings::Arr2},  {&OptionsForm::a3_CHECK, &Settings::Arr3},
};

struct SortOption {
    Option OptionsForm::*option;
    BoardSort sort;
};

constexpr SortOption kSorts[] = {
    {&OptionsForm::timeOption, BoardSort::Time},
    {&OptionsForm::cityOption, BoardSort::City},
    {&OptionsForm::fltnumOption, BoardSort::FlightNumber},
};

void showVolume(Program& p) {
    p.forms.OptionsForm.ambVol.text = formatNumber("000", 100 + p.session.settings.AmbienceVolume / 90.0);
}

} // namespace

void changeVolume(Program& p, std::string_view type) {
    Settings& settings = p.session.settings;
    stepAmbience(settings, type);
    if (p.SoundEngine)
        p.SoundEngine->ChangeVolume(kAmbienceChannel, static_cast<std::int16_t>(settings.AmbienceVolume));
    showVolume(p);
}

void chooseSort(Program& p, BoardSort sort) {
    for (const auto& row : kSorts) {
        if (row.sort == sort) (p.forms.OptionsForm.*row.option).set(true);
    }
}

void showOptions(Program& p) {
    const Settings settings = p.session.settings; // the controls store back while they are filled
    chooseSort(p, settings.sort);
    showBoxes<OptionsForm>(p.forms.OptionsForm, settings, kOptionBoxes);
}

void bindOptionsForm(Program& p) {
    auto& f = p.forms.OptionsForm;
    Settings& settings = p.session.settings;
    f.load = [&p] {
        placeScreen(p, p.forms.OptionsForm);
        restorePictures(p.forms.OptionsForm);
    };
    f.activate = [&p] {
        CenterOnMain(p, p.forms.OptionsForm);
        showVolume(p);
    };
    tieBoxes<OptionsForm>(f, settings, kOptionBoxes);
    for (const auto& row : kSorts) {
        Option& option = f.*row.option;
        option.on(Event::Click, [&settings, sort = row.sort] { settings.sort = sort; });
        option.on(Event::Change, [&settings, sort = row.sort] { // turned off
            if (settings.sort == sort) settings.sort = BoardSort::None;
        });
    }
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
}

} // namespace gatewise
