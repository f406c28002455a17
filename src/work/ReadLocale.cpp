#include "work/ReadLocale.h"

#include "platform/Text.h"

#include <algorithm>

namespace gatewise {

void ReadLocale(const Locale& locale, LocaleSigns& signs) {
    std::string sign = locale.text(LocaleKey::MoneyDecimal);
    signs.MoneyThousand = locale.text(LocaleKey::MoneyThousand);
    signs.numbers.LocaleDecimal = locale.text(LocaleKey::Decimal);
    signs.LocaleThousand = locale.text(LocaleKey::Thousand);
    signs.LocaleTimeSign = locale.text(LocaleKey::Time);
    signs.LocaleListSign = locale.text(LocaleKey::List);
    std::replace(sign.begin(), sign.end(), '\0', ' ');
    if (trimmed(sign).empty()) sign = signs.numbers.LocaleDecimal;
    signs.numbers.DecimalSign = sign;
}

} // namespace gatewise
