#include "screens/SkinnedButtons.h"

#include "screens/ButtonPictures.h"
#include "screens/Commands.h"
#include "screens/ExportScreens.h"
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

void clicked(Program& p, SkinnedButton& button) {
    if (p.ending) return;
    if (button.hasState() && button.State != 1) return;
    if (button.kind != Kind::boardButton) playClick(p);
    runCommand(p, button);
}

void bindFormButton(Program& p, SkinnedButton& b) {
    const auto point = [&p, &b](const char* ending) {
        if (const char* stem = formStem(b.button_type)) {
            const bool stepper = std::string_view(stem) == "plus" || std::string_view(stem) == "minus";
            if (stepper) RefreshClockButtons(p, b.button_type);
            b.picture = std::string(stem) + ending;
        }
    };
    b.on(Event::Press, [&b, point] {
        point("_down");
        b.Timer1->setInterval(repeatInterval(b.button_type));
        b.Timer1->enable(true);
    });
    b.on(Event::Move, [&p, &b, point] {
        if (b.screen == &p.forms.SettingsForm) restorePictures(*b.screen);
        point("_mouse");
    });
    b.on(Event::Release, [&b] {
        b.Timer1->enable(false);
        const char* stem = formStem(b.button_type);
        if (stem != nullptr && releasesToMouse(b.button_type)) b.picture = std::string(stem) + "_mouse";
    });
    b.Timer1->on(Event::Tick, [&p, &b] { clicked(p, b); });
}

void bindBoardButton(Program& p, SkinnedButton& b) {
    b.on(Event::Press, [&p, &b] {
        playClick(p);
        b.picture = b.button_type + "_down";
    });
    b.on(Event::Move, [&p, &b] {
        RefreshMainButtons(p, b.button_type);
        RefreshBoardButtons(p, b.button_type);
    });
    b.on(Event::Release, [&p, &b] {
        RefreshMainButtons(p, b.button_type);
        RefreshBoardButtons(p, b.button_type);
        clicked(p, b);
    });
}

void bindSwitchButton(Program& p, SkinnedButton& b) {
    b.on(Event::Move, [&p, &b] {
        RefreshMainButtons(p, b.button_type);
        RefreshBoardButtons(p, b.button_type);
        RefreshLogButtons(p, b.button_type);
        RefreshExportButtons(p, b.button_type);
        if (b.screen == &p.forms.SettingsForm) restorePictures(*b.screen);
        const std::string hover = switchHover(b.button_type, b.State);
        if (!hover.empty()) b.picture = hover;
        if (b.button_type == "export") correctExportName(p);
    });
}

void bindMidButton(Program& p, SkinnedButton& b) {
    b.on(Event::Move, [&p, &b] {
        const std::string hover = midHover(b.button_type);
        if (!hover.empty()) b.picture = hover;
        auto& m = p.forms.MsgForm;
        if (b.button_type == "fly" || b.button_type == "ok") m.cancelButton.picture = "cancel_regular";
        if (b.button_type == "cancel") m.okButton.picture = m.okButton.button_type + "_regular";
    });
}

void bindButton(Program& p, SkinnedButton& b) {
    const auto act = [&p, &b] { clicked(p, b); };
    switch (b.kind) {
    case Kind::FlatButton:
        b.on(Event::Move, [&p, &b] {
            RefreshMainButtons(p, b.button_type);
            RefreshBoardButtons(p, b.button_type);
        });
        b.on(Event::Click, act);
        return;
    case Kind::boardButton:
        bindBoardButton(p, b);
        return;
    case Kind::FormButton:
        bindFormButton(p, b);
        break;
    case Kind::switchButton:
        bindSwitchButton(p, b);
        break;
    case Kind::midButton:
        bindMidButton(p, b);
        break;
    default:
        return;
    }
    b.on(Event::Click, act);
    b.on(Event::Enter, act);
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
    turn.picture = p.g.BoardMode == "departing" ? "switch_arr" : "switch_dept";
    turn.picture += turn.button_type == t ? "_mouse" : "_regular";
}

void RefreshLogButtons(Program& p, std::string_view t) {
    auto& f = p.forms.MainForm;
    refreshTopButtons(f);
    f.logcsvButton.picture = "csv_regular";
    f.logprintButton.picture = "paper_regular";
    for (const auto& b : f.logButton) b->picture = byState(*b, b->button_type, t);
}

void RefreshExportButtons(Program& p, std::string_view t) {
    for (const auto& b : p.forms.ExportForm.exportButton) {
        b->picture = b->button_type + (b->button_type == t ? "_mouse" : "_regular");
    }
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
        if (control->kind != Kind::FormButton && control->kind != Kind::switchButton &&
            control->kind != Kind::midButton) {
            continue;
        }
        auto& button = static_cast<SkinnedButton&>(*control);
        const std::string picture = restingPicture(button);
        if (!picture.empty()) button.picture = picture;
    }
}

void playClick(Program& p) {
    PlaySoundA(p.machine.sound, p.appPath("\\Wavs\\click.wav"));
}

void bindSkinnedButtons(Program& p) {
    for (Screen* screen : p.forms.all()) {
        const auto controls = screen->controls;
        for (Control* control : controls) {
            const Kind kind = control->kind;
            if (kind >= Kind::FlatButton && kind <= Kind::midButton) {
                bindButton(p, static_cast<SkinnedButton&>(*control));
            }
        }
    }
}

} // namespace gatewise
