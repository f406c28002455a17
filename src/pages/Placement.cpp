#include "pages/Placement.h"

#include "platform/Text.h"

#include <algorithm>

namespace gatewise {

void ReadLocale(Program& p) {
    const Locale& locale = p.machine.locale;
    std::string sign = locale.text(LocaleKey::MoneyDecimal);
    p.g.MoneyThousand = locale.text(LocaleKey::MoneyThousand);
    p.g.numbers.LocaleDecimal = locale.text(LocaleKey::Decimal);
    p.g.LocaleThousand = locale.text(LocaleKey::Thousand);
    p.g.LocaleTimeSign = locale.text(LocaleKey::Time);
    p.g.LocaleListSign = locale.text(LocaleKey::List);
    std::replace(sign.begin(), sign.end(), '\0', ' ');
    if (trimmed(sign).empty()) sign = p.g.numbers.LocaleDecimal;
    p.g.numbers.DecimalSign = sign;
}

bool IsNormalFontSize(Program& p) {
    p.g.ScreenDpi = p.machine.desktop.dpi();
    return p.g.ScreenDpi == 96;
}

void ApplySmallFontFix(Program& p, Screen& screen) {
    p.g.SmallFontFactor = 96.0F / static_cast<float>(IsNormalFontSize(p) ? 96 : std::max(p.g.ScreenDpi, 1));
    const double factor = static_cast<double>(p.g.SmallFontFactor);
    if (p.g.SmallFontFactor == 1.0F) return;
    // Sizes keep the precision of the factor; the digits that a wider product adds mean nothing.
    screen.width = static_cast<double>(static_cast<float>(screen.width * factor));
    screen.height = static_cast<double>(static_cast<float>(screen.height * factor));
    for (Control* control : screen.controls) {
        if (control->kind == Kind::ListView) static_cast<ListView*>(control)->width *= factor;
    }
}

void CenterOnMain(Program& p, Screen& screen) {
    const double factor = static_cast<double>(p.g.SmallFontFactor);
    screen.left = p.forms.MainForm.left + factor * 157 + 320 - screen.width / 2;
    screen.top = p.forms.MainForm.top + factor * 117 + 240 - screen.height / 2;
}

void placeScreen(Program& p, Screen& screen) {
    ApplySmallFontFix(p, screen);
    CenterOnMain(p, screen);
}

} // namespace gatewise
