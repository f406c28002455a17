#include "pages/OptionsForm.h"

#include "pages/MainBoard.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/SettingControls.h"
#include "platform/Numbers.h"
#include "sound/Announcements.h"
#include "work/HallWork.h"

namespace gatewise {

namespace {

using forms::MainForm;
using forms::OptionsForm;

constexpr SettingBox<OptionsForm> kOptionBoxes[] = {
    {&OptionsForm::d1_CHECK, &Settings::Dept1},  {&OptionsForm::d2_CHECK, &Settings::Dept2},
    {&OptionsForm::d3_CHECK, &Settings::Dept3},  {&OptionsForm::a1_CHECK, &Settings::Arr1},
    {&OptionsForm::a2_CHECK, &Settings::Arr2},   {&OptionsForm::a3_CHECK, &Settings::Arr3},
    {&OptionsForm::muteCHECK, &Settings::Muted},
};

struct SortOption {
    Option OptionsForm::*option;
    BoardSort sort;
    ControlArray<Label> MainForm::*column; // of the board
};

constexpr SortOption kSorts[] = {
    {&OptionsForm::timeOption, BoardSort::Time, &MainForm::time_LABEL},
    {&OptionsForm::cityOption, BoardSort::City, &MainForm::city_LABEL},
    {&OptionsForm::fltnumOption, BoardSort::FlightNumber, &MainForm::fltnum_LABEL},
};

/// The head of the column that the board is sorted by carries a mark.
void takeSort(Program& p, BoardSort sort) {
    p.session.settings.sort = sort;
    for (const auto& row : kSorts)
        (p.forms.MainForm.*row.column)(kHeadingRow).mark = row.sort == sort ? Mark::Sorted : Mark::None;
}

std::string volumeText(int volume) {
    return formatNumber("000", 100 + volume / 90.0);
}

void showVolume(Program& p) {
    p.forms.OptionsForm.ambVol.text = volumeText(p.session.settings.AmbienceVolume);
}

void showAnnouncementVolume(Program& p) {
    p.forms.OptionsForm.annVol.text = volumeText(p.session.settings.AnnouncementVolume);
}

} // namespace

void changeVolume(Program& p, std::string_view type) {
    Settings& settings = p.session.settings;
    stepAmbience(settings, type);
    if (p.SoundEngine)
        p.SoundEngine->ChangeVolume(kAmbienceChannel, static_cast<std::int16_t>(settings.AmbienceVolume));
    showVolume(p);
}

void changeAnnouncementVolume(Program& p, std::string_view type) {
    stepAnnouncements(p.session.settings, type);
    showAnnouncementVolume(p);
}

void muteSounds(Program& p) {
    if (p.SoundEngine) p.SoundEngine->setMuted(p.session.settings.Muted == 1);
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
    showAnnouncementVolume(p);
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
    tieBoxes<OptionsForm>(f, settings, kOptionBoxes, [&p](const Check&) { muteSounds(p); });
    for (const auto& row : kSorts) {
        Option& option = f.*row.option;
        option.on(Event::Click, [&p, sort = row.sort] { takeSort(p, sort); });
        option.on(Event::Change, [&p, sort = row.sort] { // turned off
            if (p.session.settings.sort == sort) takeSort(p, BoardSort::None);
        });
    }
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
}

} // namespace gatewise
