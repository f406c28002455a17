#include "gt1/Cells.h"

#include "gt1/Transliterate.h"
#include "plan/Regions.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace gatewise::gt1 {

namespace {

std::string lengths(std::size_t least, std::size_t most) {
    if (least == most) return std::to_string(most);
    return std::to_string(least) + " to " + std::to_string(most);
}

std::string foundCell(std::string_view utf8) {
    return utf8.empty() ? "nothing" : inQuotes(utf8);
}

/// A bound of a number as messages show it.
std::string bound(double value) {
    return plainDouble(value);
}

} // namespace

CellReader::Cell CellReader::next(const char* name) {
    const std::size_t at = order_[column_++];
    const std::string_view text = at < cells_.size() ? trimmed(cells_[at]) : std::string_view();
    return {{std::string(file_), line_, static_cast<int>(at) + 1, name}, text};
}

std::string CellReader::ownText(const Cell& cell) {
    Converted text = converted(cell.utf8);
    if (text.broken) report_.error(cell.place, "text in UTF-8", "other bytes");
    const bool control = std::any_of(text.text.begin(), text.text.end(),
                                     [](char c) { return static_cast<unsigned char>(c) < ' '; });
    if (control) report_.error(cell.place, "a text without control characters", inQuotes(cell.utf8));
    if (text.changed && !text.broken)
        report_.warning(cell.place, inQuotes(cell.utf8) + " became " + inQuotes(utf8FromText(text.text)));
    return std::move(text.text);
}

std::string CellReader::fittingText(const Cell& cell, std::size_t width) {
    std::string text = ownText(cell);
    if (text.size() > width)
        report_.error(cell.place, "at most " + std::to_string(width) + " characters",
                      std::to_string(text.size()) + ": " + inQuotes(cell.utf8));
    return text;
}

std::string CellReader::codeText(const Cell& cell, std::size_t width, std::size_t least) {
    std::string text = ownText(cell);
    const bool blank = text.find(' ') != std::string::npos;
    if (text.size() < least || text.size() > width || blank)
        report_.error(cell.place, "a code of " + lengths(least, width) + " characters without blanks",
                      foundCell(cell.utf8));
    return text;
}

long long CellReader::wholeNumber(const Cell& cell, long long low, long long high) {
    long long value = 0;
    const char* end = cell.utf8.data() + cell.utf8.size();
    const auto result = std::from_chars(cell.utf8.data(), end, value);
    const bool good = !cell.utf8.empty() && result.ec == std::errc() && result.ptr == end;
    if (good && value >= low && value <= high) return value;
    report_.error(cell.place, "a whole number from " + std::to_string(low) + " to " + std::to_string(high),
                  foundCell(cell.utf8));
    return 0;
}

void CellReader::real(const char* name, float& field, double low, double high) {
    const Cell cell = next(name);
    const char* end = cell.utf8.data() + cell.utf8.size();
    const auto result = std::from_chars(cell.utf8.data(), end, field);
    const bool number = !cell.utf8.empty() && result.ec == std::errc() && result.ptr == end;
    const auto value = static_cast<double>(field);
    if (number && std::isfinite(field) && value >= low && value <= high) return;
    report_.error(cell.place, "a number from " + bound(low) + " to " + bound(high), foundCell(cell.utf8));
}

void CellReader::time(const char* name, std::int16_t& field) {
    const Cell cell = next(name);
    const bool digits = cell.utf8.size() == 4 && std::all_of(cell.utf8.begin(), cell.utf8.end(),
                                                             [](char c) { return c >= '0' && c <= '9'; });
    const int value = digits ? parseInteger(cell.utf8).value_or(0) : 0;
    if (!digits || value / 100 > 23 || value % 100 > 59) {
        report_.error(cell.place, "a time of day as four digits HHMM", foundCell(cell.utf8));
        return;
    }
    field = static_cast<std::int16_t>(value);
}

void CellReader::bits(const char* name, std::uint8_t& field, const BitNames& names) {
    const Cell cell = next(name);
    std::string_view rest = cell.utf8;
    field = 0;
    if (rest.empty() && names.needed) report_.error(cell.place, names.expected, foundCell(rest));
    while (!rest.empty()) {
        const std::size_t length = names.between.empty() ? 1 : std::min(rest.find(' '), rest.size());
        const auto* bit = std::find_if(names.bits.begin(), names.bits.end(), [&](const Bit& b) {
            return b.name == rest.substr(0, length) && (b.value & names.known) != 0;
        });
        if (bit == names.bits.end() || (field & bit->value) != 0) {
            report_.error(cell.place, names.expected, inQuotes(cell.utf8));
            return;
        }
        field = static_cast<std::uint8_t>(field | bit->value);
        rest = trimmed(rest.substr(length));
    }
}

void CellReader::letter(const char* name, FixedText<1>& field, std::string_view allowed) {
    const Cell cell = next(name);
    if (cell.utf8.size() != 1 || allowed.find(cell.utf8) == std::string_view::npos) {
        std::string expected = "one of the letters";
        for (const char c : allowed) expected += std::string(" ") + c;
        report_.error(cell.place, expected, foundCell(cell.utf8));
        return;
    }
    field = cell.utf8;
}

void CellReader::word(const char* name, std::string& field) {
    field = ownText(next(name));
}

void CellReader::region(const char* name, FixedText<2>& field) {
    const Cell cell = next(name);
    if (cell.utf8.empty()) return;
    if (isRegion(cell.utf8))
        field = cell.utf8;
    else
        report_.error(cell.place, "a region of two capital letters or digits, or nothing",
                      foundCell(cell.utf8));
}

void CellWriter::real(const char*, float field, double, double) {
    std::array<char, 64> digits{};
    const auto result =
        std::to_chars(digits.data(), digits.data() + digits.size(), field, std::chars_format::fixed);
    cells.emplace_back(digits.data(), result.ptr);
}

void CellWriter::time(const char*, std::int16_t field) {
    cells.push_back(formatInteger("0000", field));
}

void CellWriter::bits(const char*, std::uint8_t field, const BitNames& names) {
    std::string out;
    for (const Bit& bit : names.bits) {
        if ((field & bit.value) == 0) continue;
        if (!out.empty()) out += names.between;
        out += bit.name;
    }
    cells.push_back(out);
}

} // namespace gatewise::gt1
