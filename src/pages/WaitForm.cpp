#include "pages/WaitForm.h"

#include "pages/Placement.h"
#include "pages/Screens.h"

namespace gatewise {

void SetWaitDots(Program& p, int n) {
    p.forms.WaitForm.Dots.picture = "\\Images\\Dot" + std::to_string(n) + ".bmp";
    p.machine.desktop.paint();
}

void showWait(Program& p, std::string text, int dots) {
    p.forms.WaitForm.infoLABEL.text = std::move(text);
    showWait(p, dots);
}

void showWait(Program& p, int dots) {
    showScreen(p, p.forms.WaitForm);
    if (dots >= 0)
        SetWaitDots(p, dots);
    else
        p.machine.desktop.paint();
}

void hideWait(Program& p) {
    hideScreen(p, p.forms.WaitForm);
}

void bindWaitForm(Program& p) {
    auto& f = p.forms.WaitForm;
    f.load = [&p] { placeScreen(p, p.forms.WaitForm); };
    f.activate = [&p] { CenterOnMain(p, p.forms.WaitForm); };
}

} // namespace gatewise
