#pragma once

#include "platform/Numbers.h"

#include <cstdint>
#include <string>

namespace gatewise {

/// The signs of the locale and the size of the desktop's fonts, as they were found.
struct LocaleSigns {
    NumberLocale numbers; // LocaleDecimal and DecimalSign
    std::string MoneyThousand, LocaleThousand, LocaleTimeSign, LocaleListSign;
    std::int32_t ScreenDpi = 96;
    float SmallFontFactor = 1;
};

} // namespace gatewise
