#include "plan/Regions.h"

#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace gatewise {

namespace {

constexpr double kSamePoint = 0.001; // degrees, as the navigation files tell records apart

long cellOf(double degrees) {
    return std::isfinite(degrees) ? std::lround(std::floor(std::clamp(degrees, -400.0, 400.0) / kSamePoint))
                                  : 0;
}

std::string cellKey(char kind, std::string_view ident, long up, long aside) {
    return kind + std::string(ident) + "/" + std::to_string(up) + "/" + std::to_string(aside);
}

void appendDegrees(std::string& out, float degrees) {
    std::array<char, 64> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), degrees, std::chars_format::fixed).ptr;
    out.append(digits.data(), end);
}

/// The word that a text begins with, which is taken away with the blank behind it.
std::string_view wordFrom(std::string_view& text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return word;
}

std::optional<float> degreesIn(std::string_view word, float most) {
    float value = 0;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), value);
    const bool good = result.ec == std::errc() && result.ptr == word.data() + word.size();
    return good && std::abs(value) <= most ? std::optional(value) : std::nullopt;
}

std::optional<RegionEntry> entryIn(std::string_view line) {
    constexpr std::size_t longest = 5; // of an ident in the navigation files
    const std::string_view kind = wordFrom(line);
    const std::string ident = textFromUtf8(wordFrom(line));
    const auto latitude = degreesIn(wordFrom(line), 90);
    const auto longitude = degreesIn(wordFrom(line), 180);
    const bool known = kind == "V" || kind == "N" || kind == "I";
    if (!known || ident.empty() || ident.size() > longest || !latitude || !longitude || !isRegion(line))
        return std::nullopt;
    return RegionEntry{kind[0], ident, *latitude, *longitude, std::string(line)};
}

/// The ident of a line, without looking at the rest of it.
std::string_view identOf(std::string_view line) {
    wordFrom(line);
    return wordFrom(line);
}

} // namespace

bool isRegion(std::string_view text) {
    return text.size() == 2 &&
           std::ranges::all_of(text, [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); });
}

void Regions::add(RegionEntry entry) {
    if (!isRegion(entry.region) || entry.ident.empty()) return;
    if (!find(entry.kind, entry.ident, entry.latitude, entry.longitude).empty()) return;
    const std::string place =
        cellKey(entry.kind, entry.ident, cellOf(entry.latitude), cellOf(entry.longitude));
    if (byPlace_.emplace(place, entries_.size()).second) entries_.push_back(std::move(entry));
}

/// Two entries never lie in one cell, and what is near enough lies in the cell or in one beside it.
std::string_view Regions::find(char kind, std::string_view ident, double latitude, double longitude) const {
    std::string_view best;
    double nearest = kSamePoint;
    for (long up = -1; up <= 1; ++up)
        for (long aside = -1; aside <= 1; ++aside) {
            const auto at =
                byPlace_.find(cellKey(kind, ident, cellOf(latitude) + up, cellOf(longitude) + aside));
            if (at == byPlace_.end()) continue;
            const RegionEntry& entry = entries_[at->second];
            const double away = std::max(std::abs(static_cast<double>(entry.latitude) - latitude),
                                         std::abs(static_cast<double>(entry.longitude) - longitude));
            if (away >= nearest) continue;
            nearest = away;
            best = entry.region;
        }
    return best;
}

std::string regionsText(const Regions& regions) {
    std::string out;
    for (const RegionEntry& entry : regions.entries()) {
        out += entry.kind;
        out += " " + utf8FromText(entry.ident) + " ";
        appendDegrees(out, entry.latitude);
        out += ' ';
        appendDegrees(out, entry.longitude);
        out += " " + entry.region + "\n";
    }
    return out;
}

Regions regionsIn(std::string_view text, const std::function<void(int line)>& bad,
                  const std::function<bool(std::string_view ident)>& wanted) {
    Regions out;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.empty() || (wanted && !wanted(identOf(line)))) continue;
        auto entry = entryIn(line);
        if (entry)
            out.add(std::move(*entry));
        else if (bad)
            bad(number);
    }
    return out;
}

std::string regionsPath(std::string_view AppDir) {
    return std::string(AppDir) + "\\Data\\" + kRegionsFile;
}

} // namespace gatewise
