#include "pages/Pictures.h"

#include "pages/ButtonPictures.h"
#include "sound/Device.h"

namespace gatewise {

namespace {

/// Buttons of the boarding pass by their picture stems, which differ from their types.
struct PassButton {
    SkinnedButton forms::MainForm::*button;
    const char* stem;
};

constexpr PassButton kPassButtons[] = {
    {&forms::MainForm::arrivalButton, "arr"},  {&forms::MainForm::alternateButton, "alternate"},
    {&forms::MainForm::viewButton, "viewpln"}, {&forms::MainForm::newButton, "newpln"},
    {&forms::MainForm::sendlogButton, "send"},
};

void refreshTopButtons(forms::MainForm& f) {
    f.close_button.picture = "close_regular";
    f.min_button.picture = "min_regular";
    f.enterButton.picture = "enter_regular";
}

std::string byState(const SkinnedButton& button, std::string_view stem, std::string_view t) {
    const char* ending = button.State <= 0 ? "_disabled" : button.button_type == t ? "_mouse" : "_regular";
    return std::string(stem) + ending;
}

} // namespace

void RefreshMainButtons(Program& p, std::string_view t) {
    auto& f = p.forms.MainForm;
    refreshTopButtons(f);
    f.timeSwitch.picture = "switch_regular";
    f.gt_hrupButton.picture = f.gt_minupButton.picture = "plus_regular";
    f.gt_hrdnButton.picture = f.gt_mindnButton.picture = "minus_regular";
    for (const auto& b : f.FlatButton) {
        const char* ending = b->State <= 0 ? "_dis" : b->button_type == t ? "_mouse" : "_reg";
        b->picture = b->button_type + ending;
    }
    for (const auto& row : kPassButtons) {
        SkinnedButton& b = f.*row.button;
        b.picture = byState(b, row.stem, t);
    }
}

void RefreshBoardButtons(Program& p, std::string_view t) {
    auto& f = p.forms.MainForm;
    refreshTopButtons(f);
    const auto plain = [&](SkinnedButton& b) {
        b.picture = b.button_type + (b.button_type == t ? "_mouse" : "_regular");
    };
    for (const auto& b : f.boardButton) plain(*b);
    plain(f.switchButton(0));
    plain(f.switchButton(2));
    SkinnedButton& turn = f.switchButton(1);
    turn.picture = p.session.board.BoardMode == "departing" ? "switch_arr" : "switch_dept";
    turn.picture += turn.button_type == t ? "_mouse" : "_regular";
}

void RefreshLogButtons(Program& p, std::string_view t) {
    auto& f = p.forms.MainForm;
    refreshTopButtons(f);
    f.logcsvButton.picture = "csv_regular";
    f.logprintButton.picture = "paper_regular";
    f.careerButton.picture = "career_regular";
    for (const auto& b : f.logButton) b->picture = byState(*b, b->button_type, t);
}

void RefreshExportButtons(Program& p, std::string_view t) {
    for (const auto& b : p.forms.ExportForm.exportButton) {
        b->picture = b->button_type + (b->button_type == t ? "_mouse" : "_regular");
    }
    p.forms.ExportForm.programsButton.picture = "programs_regular";
}

void RefreshClockButtons(Program& p, std::string_view t) {
    auto& f = p.forms.ClockForm;
    for (SkinnedButton* b :
         {&f.time_mindnButton, &f.time_hrdnButton, &f.time_minupButton, &f.time_hrupButton}) {
        if (b->button_type != t) b->picture = std::string(formStem(b->button_type)) + "_regular";
    }
}

void restorePictures(Screen& screen) {
    for (Control* control : screen.controls) {
        SkinnedButton* button = skinnedButton(control);
        if (button == nullptr) continue;
        const std::string picture = restingPicture(*button);
        if (!picture.empty()) button->picture = picture;
    }
}

void playClick(Program& p) {
    if (p.session.settings.Muted == 1) return;
    PlaySoundA(p.machine.sound, p.session.appPath("\\Wavs\\click.wav"));
}

} // namespace gatewise
