#include "input/SkinnedButtons.h"

#include "input/Commands.h"
#include "pages/ButtonPictures.h"
#include "pages/DirExportForm.h"
#include "pages/Pictures.h"

namespace gatewise {

namespace {

Waited clicked(Program& p, SkinnedButton& button) {
    if (p.ending) return Waited::Ended;
    if (button.hasState() && button.State != 1) return Waited::Answered;
    if (button.kind != Kind::boardButton) playClick(p);
    return runCommand(p, button);
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
    b.Timer1->on(Event::Tick, [&p, &b] { return clicked(p, b); });
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
        return clicked(p, b);
    });
}

void bindSwitchButton(Program& p, SkinnedButton& b) {
    b.on(Event::Move, [&p, &b] {
        RefreshMainButtons(p, b.button_type);
        RefreshBoardButtons(p, b.button_type);
        RefreshLogButtons(p, b.button_type);
        RefreshExportButtons(p, b.button_type);
        if (b.screen == &p.forms.SettingsForm || b.screen == &p.forms.ProgramsForm)
            restorePictures(*b.screen);
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
    const auto act = [&p, &b] { return clicked(p, b); };
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

void bindSkinnedButtons(Program& p) {
    for (Screen* screen : p.forms.all()) {
        const auto controls = screen->controls;
        for (Control* control : controls) {
            if (SkinnedButton* button = skinnedButton(control)) bindButton(p, *button);
        }
    }
}

} // namespace gatewise
