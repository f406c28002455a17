#include "pages/Placement.h"

#include <algorithm>

namespace gatewise {

namespace {

void resetColumns(ListView& list) {
    for (int i = 0; i < static_cast<int>(list.columns.size()); ++i) list.resetColumn(i);
}

} // namespace

bool IsNormalFontSize(const Desktop& desktop, LocaleSigns& signs) {
    signs.ScreenDpi = desktop.dpi();
    return signs.ScreenDpi == 96;
}

void ApplySmallFontFix(Program& p, Screen& screen) {
    LocaleSigns& signs = p.session.locale;
    const bool normal = IsNormalFontSize(p.machine.desktop, signs);
    signs.SmallFontFactor = 96.0F / static_cast<float>(normal ? 96 : std::max(signs.ScreenDpi, 1));
    const double factor = static_cast<double>(signs.SmallFontFactor);
    if (signs.SmallFontFactor == 1.0F) return;
    // Sizes keep the precision of the factor; the digits that a wider product adds mean nothing.
    screen.width = static_cast<double>(static_cast<float>(screen.width * factor));
    screen.height = static_cast<double>(static_cast<float>(screen.height * factor));
    for (Control* control : screen.controls) {
        if (control->kind == Kind::ListView) static_cast<ListView*>(control)->width *= factor;
    }
}

void CenterOnMain(Program& p, Screen& screen) {
    const double factor = static_cast<double>(p.session.locale.SmallFontFactor);
    screen.left = p.forms.MainForm.left + factor * 157 + 320 - screen.width / 2;
    screen.top = p.forms.MainForm.top + factor * 117 + 240 - screen.height / 2;
}

void placeScreen(Program& p, Screen& screen) {
    ApplySmallFontFix(p, screen);
    CenterOnMain(p, screen);
    for (Control* control : screen.controls) {
        if (control->kind == Kind::ListView) resetColumns(static_cast<ListView&>(*control));
    }
}

} // namespace gatewise
