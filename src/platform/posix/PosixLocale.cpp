#include "platform/Native.h"
#include "platform/Text.h"

#include <array>
#include <cctype>
#include <clocale>
#include <ctime>
#include <langinfo.h>
#include <locale.h>

namespace gatewise::native {

namespace {

/// The first sign between two parts of a time of day, such as ":" of "%H:%M:%S".
std::string timeSign(std::string_view format) {
    bool conversion = false;
    for (const char c : format) {
        if (conversion) {
            // "%T" and "%r" stand for a whole time with colons.
            if (c == 'T' || c == 'r' || c == 'R') return ":";
            conversion = c == 'O' || c == 'E' || c == '-';
        } else if (c == '%') {
            conversion = true;
        } else if (std::ispunct(static_cast<unsigned char>(c)) != 0) {
            return std::string(1, c);
        }
    }
    return ":";
}

/// The settings of the environment, taken without a change to those of the process, whose numbers stay as the
/// C locale writes them.
class PosixLocale : public Locale {
public:
    PosixLocale() {
        const locale_t user = newlocale(LC_ALL_MASK, "", locale_t{});
        if (user == locale_t{}) return;
        const locale_t before = uselocale(user);
        const bool utf8 = std::string_view(nl_langinfo(CODESET)) == "UTF-8";
        const auto put = [&](LocaleKey key, const char* text) {
            texts_[static_cast<std::size_t>(key)] = utf8 ? textFromUtf8(text) : std::string(text);
        };
        const std::lconv* signs = localeconv();
        put(LocaleKey::MoneyDecimal, signs->mon_decimal_point);
        put(LocaleKey::MoneyThousand, signs->mon_thousands_sep);
        put(LocaleKey::Decimal, signs->decimal_point);
        put(LocaleKey::Thousand, signs->thousands_sep);
        put(LocaleKey::Time, timeSign(nl_langinfo(T_FMT)).c_str());
        dateForm_ = nl_langinfo(D_FMT);
        // Lists have no setting of their own; where "," is the decimal sign, items are parted by ";".
        put(LocaleKey::List, std::string_view(signs->decimal_point) == "," ? ";" : ",");
        uselocale(before);
        user_ = user;
    }
    ~PosixLocale() override {
        if (user_ != locale_t{}) freelocale(user_);
    }
    PosixLocale(const PosixLocale&) = delete;
    PosixLocale& operator=(const PosixLocale&) = delete;

    [[nodiscard]] std::string text(LocaleKey key) const override {
        return texts_[static_cast<std::size_t>(key)];
    }

    /// A person who has chosen no locale has the plain form.
    [[nodiscard]] std::string shortDate(const DateTime& moment) const override {
        if (user_ == locale_t{} || dateForm_ == kNobodysForm) return Locale::shortDate(moment);
        std::tm day{};
        day.tm_year = moment.year - 1900;
        day.tm_mon = moment.month - 1;
        day.tm_mday = moment.day;
        day.tm_wday = weekday(moment);
        std::array<char, 128> text{};
        const std::size_t length = strftime_l(text.data(), text.size(), dateForm_.c_str(), &day, user_);
        return length > 0 ? textFromUtf8(std::string_view(text.data(), length)) : Locale::shortDate(moment);
    }

private:
    static constexpr std::string_view kNobodysForm = "%m/%d/%y"; // of the C locale

    locale_t user_{};
    std::string dateForm_;
    std::array<std::string, 6> texts_ = {".", ",", ".", ",", ":", ","};
};

} // namespace

std::unique_ptr<Locale> userLocale() {
    return std::make_unique<PosixLocale>();
}

} // namespace gatewise::native
