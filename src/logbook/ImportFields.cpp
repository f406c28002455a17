#include "logbook/ImportFields.h"

#include "platform/Machine.h"
#include "platform/ProfileText.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <utility>
#include <vector>

namespace gatewise {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The runs of digits in a text; a run too long for a number is -1.
std::vector<int> numbersOf(std::string_view text) {
    std::vector<int> out;
    for (std::size_t at = 0; at < text.size();) {
        if (!isDigit(text[at])) {
            ++at;
            continue;
        }
        std::size_t end = at;
        while (end < text.size() && isDigit(text[end])) ++end;
        int value = -1;
        if (end - at <= 6) std::from_chars(text.data() + at, text.data() + end, value);
        out.push_back(value);
        at = end;
    }
    return out;
}

std::string_view dateWord(std::string_view text) {
    text = trimmed(text);
    return text.substr(0, text.find_first_of(" T"));
}

/// Whether the text is made of digits and these signs alone.
bool madeOf(std::string_view text, std::string_view signs) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [&](char c) {
        return isDigit(c) || signs.find(c) != std::string_view::npos;
    });
}

/// 20020615 as 2002-06-15; anything else as it is.
std::string withDashes(std::string_view word) {
    if (!madeOf(word, "")) return std::string(word);
    return joined({word.substr(0, 4), "-", word.substr(4, 2), "-", word.substr(6)});
}

/// The day of a date that was taken apart; years of two digits are those from 1970 to 2069.
std::optional<double> serialOf(DateTime day) {
    if (day.year >= 0 && day.year < 100) day.year += day.year < 70 ? 2000 : 1900;
    if (day.year < 1900 || day.year > 9999 || day.month < 1 || day.month > 12 || day.day < 1 || day.day > 31)
        return std::nullopt;
    const auto serial = static_cast<double>(daySerial(day));
    // The 31st of a short month is no day.
    const auto back = calendarDay(serial);
    if (!back || back->day != day.day || back->month != day.month) return std::nullopt;
    return serial;
}

/// 1 to 12 for the English name of a month or its beginning, three letters at least; else 0.
int monthOf(std::string_view word) {
    constexpr std::string_view kMonths[] = {"january",   "february", "march",    "april",
                                            "may",       "june",     "july",     "august",
                                            "september", "october",  "november", "december"};
    const std::string low = lowerCase(word);
    for (std::size_t i = 0; low.size() >= 3 && i < std::size(kMonths); ++i) {
        if (kMonths[i].starts_with(low)) return static_cast<int>(i) + 1;
    }
    return 0;
}

/// A date that has the name of its month, between or before the numbers of day and year.
std::optional<DateTime> namedDate(std::string_view text) {
    const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto begin = std::find_if(text.begin(), text.end(), letter);
    const auto end = std::find_if_not(begin, text.end(), letter);
    const int month = monthOf({begin, end});
    const std::vector<int> n = numbersOf(text);
    if (month == 0 || n.size() < 2) return std::nullopt;
    if (n[0] > 31) return DateTime{n[0], month, n[1]};
    return DateTime{n[1], month, n[0]};
}

} // namespace

std::string importedText(std::string_view bytes) {
    Bytes file(bytes.begin(), bytes.end());
    const ProfileCoding coding = codingOf(file);
    const Bytes lines = unmarked(std::move(file), coding);
    // What is no UTF-8 was written in single bytes.
    const std::string_view text = asText(lines);
    return isUtf8(text) ? textFromUtf8(text) : std::string(text);
}

void blankControls(std::string& cell) {
    std::replace_if(
        cell.begin(), cell.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; },
        ' ');
}

std::string headerName(std::string_view cell) {
    std::string out;
    for (const char c : lowerCase(cell)) {
        if (isDigit(c) || (c >= 'a' && c <= 'z')) out += c;
    }
    return out;
}

std::optional<double> importedDate(std::string_view text, bool dayFirst) {
    if (const auto named = namedDate(text)) return serialOf(*named);
    const std::string_view word = dateWord(text);
    if (word.empty() || !isDigit(word.front()) || !madeOf(word, "-/.")) return std::nullopt;
    const std::vector<int> n = numbersOf(word.size() == 8 ? withDashes(word) : std::string(word));
    if (n.size() != 3) return std::nullopt;
    const bool pointed = word.find('.') != std::string_view::npos;
    if (n[0] > 31) return serialOf({n[0], n[1], n[2]});
    if (dayFirst || pointed) return serialOf({n[2], n[1], n[0]});
    return serialOf({n[2], n[0], n[1]});
}

bool saysDayFirst(std::string_view text) {
    const std::string_view word = dateWord(text);
    if (!madeOf(word, "/-")) return false;
    const std::vector<int> n = numbersOf(word);
    return n.size() == 3 && n[0] > 12 && n[0] <= 31;
}

int importedTime(std::string_view text) {
    text = trimmed(text);
    if (const auto blank = text.find_last_of(" T"); blank != std::string_view::npos)
        text.remove_prefix(blank + 1);
    if (!text.empty() && text.back() == 'Z') text.remove_suffix(1);
    if (!madeOf(text, ":")) return -1;
    const std::vector<int> n = numbersOf(text);
    int hour = -1, minute = -1;
    if (n.size() == 1 && text.size() >= 3 && text.size() <= 4) hour = n[0] / 100, minute = n[0] % 100;
    if (n.size() == 2 || n.size() == 3) hour = n[0], minute = n[1];
    return hour >= 0 && hour < 24 && minute >= 0 && minute < 60 ? hour * 100 + minute : -1;
}

double importedHours(std::string_view text) {
    text = trimmed(text);
    if (!madeOf(text, ":+.,")) return 0;
    double hours = 0;
    if (text.find_first_of(":+") != std::string_view::npos) {
        const std::vector<int> n = numbersOf(text);
        if (n.size() < 2 || n[0] < 0 || n[1] < 0) return 0;
        hours = n[0] + n[1] / 60.0;
    } else {
        const std::string pointed = replaceAll(text, ",", ".");
        if (std::from_chars(pointed.data(), pointed.data() + pointed.size(), hours).ec != std::errc())
            return 0;
    }
    return std::isfinite(hours) ? std::clamp(hours, 0.0, 99.9) : 0;
}

std::int16_t flightNumber(std::string_view text) {
    const std::vector<int> n = numbersOf(text);
    return !n.empty() && n.back() >= 0 && n.back() <= 32767 ? static_cast<std::int16_t>(n.back())
                                                            : std::int16_t{0};
}

std::string flightCarrier(std::string_view text) {
    text = trimmed(text);
    while (!text.empty() && isDigit(text.back())) text.remove_suffix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '-')) text.remove_suffix(1);
    const bool code = text.size() >= 2 && text.size() <= 3 &&
                      headerName(text).size() == text.size(); // letters and digits alone
    return code ? upperCase(text) : std::string();
}

std::pair<std::string, std::string> routeEnds(std::string_view text) {
    constexpr std::string_view kSigns = " -,>/";
    std::vector<std::string> words;
    for (std::size_t at = text.find_first_not_of(kSigns); at != std::string_view::npos;
         at = text.find_first_not_of(kSigns, at)) {
        const std::size_t end = std::min(text.find_first_of(kSigns, at), text.size());
        words.emplace_back(text.substr(at, end - at));
        at = end;
    }
    if (words.size() < 2) return {};
    return {words.front(), words.back()};
}

} // namespace gatewise
