#include "import/Cells.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace gatewise::importer {

namespace {

std::string_view withoutBlanks(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    return text;
}

std::string_view value(std::string_view cell) {
    return cell == "\\N" || cell == "NA" ? std::string_view() : cell;
}

} // namespace

/// The cell behind an opening quote; `rest` then begins behind the closing one.
bool Cells::quoted(std::string_view& rest, Quotes quotes) {
    std::string* text = nullptr;
    for (std::size_t i = 1; i < rest.size(); ++i) {
        const bool escape = quotes == Quotes::Backslash && rest[i] == '\\' && i + 1 < rest.size();
        const bool doubled = rest[i] == '"' && i + 1 < rest.size() && rest[i + 1] == '"';
        if (escape || doubled) {
            if (text == nullptr) text = &unescaped_.emplace_back(rest.substr(1, i - 1));
            text->push_back(rest[++i]);
            continue;
        }
        if (rest[i] == '"') {
            const std::string_view cell = text != nullptr ? std::string_view(*text) : rest.substr(1, i - 1);
            cells_.push_back(withoutBlanks(cell));
            rest = withoutBlanks(rest.substr(i + 1));
            return rest.empty() || rest.front() == ',';
        }
        if (text != nullptr) text->push_back(rest[i]);
    }
    return false;
}

bool Cells::commas(std::string_view line, Quotes quotes) {
    cells_.clear();
    unescaped_.clear();
    std::string_view rest = line;
    for (;;) {
        const std::size_t first = rest.find_first_not_of(" \t");
        if (first != std::string_view::npos && rest[first] == '"') {
            rest.remove_prefix(first);
            if (!quoted(rest, quotes)) return false;
        } else {
            const std::size_t comma = std::min(rest.find(','), rest.size());
            cells_.push_back(value(withoutBlanks(rest.substr(0, comma))));
            rest.remove_prefix(comma);
        }
        if (rest.empty()) return true;
        rest.remove_prefix(1);
    }
}

void Cells::blanks(std::string_view line) {
    cells_.clear();
    unescaped_.clear();
    for (;;) {
        const std::size_t first = line.find_first_not_of(" \t");
        if (first == std::string_view::npos) return;
        line.remove_prefix(first);
        const std::size_t end = std::min(line.find_first_of(" \t"), line.size());
        cells_.push_back(line.substr(0, end));
        line.remove_prefix(end);
    }
}

std::string Cells::from(std::size_t index) const {
    std::string out;
    for (std::size_t i = index; i < cells_.size(); ++i) {
        if (!out.empty()) out += ' ';
        out += cells_[i];
    }
    return out;
}

std::optional<double> realIn(std::string_view cell) {
    if (cell.starts_with('+')) cell.remove_prefix(1);
    double value = 0;
    const char* end = cell.data() + cell.size();
    const auto result = std::from_chars(cell.data(), end, value);
    if (cell.empty() || result.ec != std::errc() || result.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<long long> wholeIn(std::string_view cell) {
    const std::size_t point = cell.find('.');
    if (point != std::string_view::npos) {
        if (cell.find_first_not_of('0', point + 1) != std::string_view::npos) return std::nullopt;
        cell = cell.substr(0, point);
    }
    if (cell.starts_with('+')) cell.remove_prefix(1);
    long long value = 0;
    const char* end = cell.data() + cell.size();
    const auto result = std::from_chars(cell.data(), end, value);
    if (cell.empty() || result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return value;
}

namespace {

std::optional<double> degreesIn(std::string_view cell, double most) {
    const auto value = realIn(cell);
    return value && *value >= -most && *value <= most ? value : std::nullopt;
}

} // namespace

std::optional<double> latitudeIn(std::string_view cell) {
    return degreesIn(cell, 90);
}
std::optional<double> longitudeIn(std::string_view cell) {
    return degreesIn(cell, 180);
}

std::string upperAscii(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return out;
}

bool isCode(std::string_view text, std::size_t least, std::size_t most) {
    return text.size() >= least && text.size() <= most && std::all_of(text.begin(), text.end(), [](char c) {
               return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
           });
}

} // namespace gatewise::importer
