#include "pages/OptionsForm.h"

#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "sound/Announcements.h"

namespace gatewise {

namespace {

constexpr std::int16_t kVolumeStep = 90;

void showVolume(Program& p) {
    p.forms.OptionsForm.ambVol.text = formatNumber("000", 100 + p.g.AmbienceVolume / 90.0);
}

} // namespace

void stepAmbience(Program& p, std::string_view type) {
    if (type == "vol_dn" && p.g.AmbienceVolume >= -8910) p.g.AmbienceVolume -= kVolumeStep;
    if (type == "vol_up" && p.g.AmbienceVolume <= -90) p.g.AmbienceVolume += kVolumeStep;
    if (p.SoundEngine) p.SoundEngine->ChangeVolume(kAmbienceChannel, p.g.AmbienceVolume);
    showVolume(p);
}

void bindOptionsForm(Program& p) {
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
