#include "platform/Numbers.h"

#include "platform/Text.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace gatewise {

namespace {

/// The decimal text of a value: digits d1 d2 d3 ... with the point behind the first `point` digits (may be
/// negative).
struct Decimal {
    bool negative = false;
    std::string digits; // no leading zero unless the value is 0, then empty
    int point = 0;
};

Decimal decimalOf(double value, int significant) {
    Decimal out;
    out.negative = value < 0;
    if (value == 0) return out;
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.*e", significant - 1, std::fabs(value));
    const std::string text(buffer);
    const auto e = text.find('e');
    for (std::size_t i = 0; i < e; ++i) {
        if (text[i] >= '0' && text[i] <= '9') out.digits += text[i];
    }
    out.point = std::atoi(text.c_str() + e + 1) + 1;
    while (!out.digits.empty() && out.digits.back() == '0') out.digits.pop_back();
    return out;
}

/// Keeps `places` digits behind the point, half away from zero.
void roundTo(Decimal& d, int places) {
    const int keep = d.point + places;
    if (keep < 0) {
        d.digits.clear();
        return;
    }
    if (keep >= static_cast<int>(d.digits.size())) return;
    const bool up = d.digits[static_cast<std::size_t>(keep)] >= '5';
    d.digits.resize(static_cast<std::size_t>(keep));
    if (!up) return;
    int i = keep - 1;
    while (i >= 0 && d.digits[static_cast<std::size_t>(i)] == '9')
        d.digits[static_cast<std::size_t>(i--)] = '0';
    if (i >= 0) {
        ++d.digits[static_cast<std::size_t>(i)];
    } else {
        d.digits.insert(d.digits.begin(), '1');
        ++d.point;
    }
}

char digitAt(const Decimal& d, int index) {
    return index >= 0 && index < static_cast<int>(d.digits.size()) ? d.digits[static_cast<std::size_t>(index)]
                                                                   : '0';
}

std::string layOut(std::string_view format, Decimal d, std::string_view decimalSign) {
    const auto dot = format.find('.');
    const std::string_view whole = format.substr(0, dot);
    const std::string_view fraction =
        dot == std::string_view::npos ? std::string_view() : format.substr(dot + 1);
    roundTo(d, static_cast<int>(fraction.size()));

    const auto firstZero = whole.find('0');
    const int needed = firstZero == std::string_view::npos ? 0 : static_cast<int>(whole.size() - firstZero);
    const int wholeDigits = d.digits.empty() ? 0 : std::max(d.point, 0);
    std::string out = d.negative ? "-" : "";
    for (int i = std::max(needed, wholeDigits); i > 0; --i) out += digitAt(d, d.point - i);
    if (dot == std::string_view::npos) return out;

    std::string behind;
    for (int i = 0; i < static_cast<int>(fraction.size()); ++i) behind += digitAt(d, d.point + i);
    while (!behind.empty() && behind.back() == '0' && fraction[behind.size() - 1] == '#') behind.pop_back();
    out += decimalSign;
    return out + behind;
}

std::string plain(double value, int significant, int largest, std::string_view decimalSign) {
    if (!std::isfinite(value)) return {};
    const Decimal d = decimalOf(value, significant);
    if (d.digits.empty()) return "0";
    std::string out = d.negative ? "-" : "";
    const int count = static_cast<int>(d.digits.size());
    if (d.point > largest || d.point < -4) {
        out += d.digits[0];
        if (count > 1) out.append(decimalSign).append(d.digits.substr(1));
        char exponent[16];
        std::snprintf(exponent, sizeof exponent, "E%+03d", d.point - 1);
        return out + exponent;
    }
    if (d.point <= 0) out += '0';
    for (int i = 0; i < d.point; ++i) out += digitAt(d, i);
    if (count <= d.point) return out;
    out += decimalSign;
    for (int i = std::min(d.point, 0); i < 0; ++i) out += '0';
    return out + d.digits.substr(static_cast<std::size_t>(std::max(d.point, 0)));
}

} // namespace

std::string formatNumber(std::string_view format, double value, std::string_view decimalSign) {
    return std::isfinite(value) ? layOut(format, decimalOf(value, 15), decimalSign) : std::string();
}

std::string formatSingle(std::string_view format, float value, std::string_view decimalSign) {
    return std::isfinite(value) ? layOut(format, decimalOf(static_cast<double>(value), 7), decimalSign)
                                : std::string();
}

std::string formatInteger(std::string_view format, long long value) {
    Decimal d;
    d.negative = value < 0;
    d.digits = value == 0 ? "" : std::to_string(value).substr(d.negative ? 1 : 0);
    d.point = static_cast<int>(d.digits.size());
    return layOut(format, d, ".");
}

std::string plainDouble(double value, std::string_view decimalSign) {
    return plain(value, 15, 15, decimalSign);
}

std::string plainSingle(float value, std::string_view decimalSign) {
    return plain(static_cast<double>(value), 7, 7, decimalSign);
}

std::string NumberLocale::filed(std::string_view text) const {
    return DecimalSign == "." ? std::string(text) : replaceAll(text, DecimalSign, ".");
}

double roundToEven(double value) {
    const double floor = std::floor(value);
    const double rest = value - floor;
    if (rest < 0.5) return floor;
    if (rest > 0.5) return floor + 1;
    return std::fmod(floor, 2.0) == 0 ? floor : floor + 1;
}

} // namespace gatewise
