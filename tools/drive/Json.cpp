#include "drive/Json.h"

#include "platform/Numbers.h"
#include "platform/Utf8.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace gatewise::drive {

namespace {

// Characters with a short escape, the sign behind the backslash first.
constexpr std::string_view kLetters = "\"\\bfnrt";
constexpr std::string_view kMeanings = "\"\\\b\f\n\r\t";

std::optional<std::uint32_t> takeHex(std::string_view& rest) {
    std::uint32_t code = 0;
    if (rest.size() < 4) return std::nullopt;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + 4, code, 16);
    if (error != std::errc() || end != rest.data() + 4) return std::nullopt;
    rest.remove_prefix(4);
    return code;
}

/// The four digits of \u, and those of the other half of a pair.
bool takeUnicode(std::string_view& rest, std::string& out) {
    auto code = takeHex(rest);
    if (!code) return false;
    if (*code >= 0xD800 && *code < 0xDC00 && rest.starts_with("\\u")) {
        std::string_view behind = rest.substr(2);
        const auto low = takeHex(behind);
        if (low && *low >= 0xDC00 && *low < 0xE000) {
            rest = behind;
            code = 0x10000 + ((*code - 0xD800) << 10) + (*low - 0xDC00);
        }
    }
    appendUtf8(out, *code);
    return true;
}

bool takeEscape(std::string_view& rest, std::string& out) {
    if (rest.empty()) return false;
    const char letter = rest.front();
    rest.remove_prefix(1);
    if (letter == 'u') return takeUnicode(rest, out);
    if (letter == '/') {
        out += letter;
        return true;
    }
    const auto at = kLetters.find(letter);
    if (at == std::string_view::npos) return false;
    out += kMeanings[at];
    return true;
}

} // namespace

void JsonWriter::separate() {
    if (line_.empty()) return;
    const char last = line_.back();
    if (last != '{' && last != '[' && last != ':') line_ += ',';
}

void JsonWriter::open(char bracket) {
    separate();
    line_ += bracket;
}

void JsonWriter::key(std::string_view name) {
    text(name);
    line_ += ':';
}

void JsonWriter::text(std::string_view windows1252) {
    utf8(utf8FromText(windows1252));
}

void JsonWriter::utf8(std::string_view text) {
    separate();
    line_ += '"';
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (const auto at = kMeanings.find(c); at != std::string_view::npos) {
            line_ += '\\';
            line_ += kLetters[at];
        } else if (code < 0x20 || code == 0x7F) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", code);
            line_ += escape;
        } else {
            line_ += c;
        }
    }
    line_ += '"';
}

void JsonWriter::boolean(bool value) {
    raw(value ? "true" : "false");
}

void JsonWriter::integer(long long value) {
    raw(std::to_string(value));
}

void JsonWriter::null() {
    raw("null");
}

void JsonWriter::single(float value) {
    if (!std::isfinite(value)) {
        null();
    } else if (exactSingles) {
        char digits[32];
        raw({digits, std::to_chars(digits, digits + sizeof digits, value).ptr});
    } else {
        raw(plainSingle(value));
    }
}

void JsonWriter::number(double value) {
    raw(std::isfinite(value) ? plainDouble(value) : "null");
}

void JsonWriter::raw(std::string_view json) {
    separate();
    line_ += json;
}

std::optional<std::string> takeJsonString(std::string_view& input) {
    if (!input.starts_with('"')) return std::nullopt;
    std::string_view rest = input.substr(1);
    std::string out;
    while (!rest.empty()) {
        const char c = rest.front();
        rest.remove_prefix(1);
        if (c == '"') {
            input = rest;
            return out;
        }
        if (c != '\\') {
            out += c;
        } else if (!takeEscape(rest, out)) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace gatewise::drive
