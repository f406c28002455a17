#include "import/NavigationForm.h"

#include "platform/Utf8.h"

#include <algorithm>
#include <array>

namespace gatewise::importer {

namespace {

struct VersionRow {
    int version;
    Kind kinds[3]; // the same number can stand for several tables
};

constexpr auto kVersions = std::to_array<VersionRow>({
    {600, {Kind::Fixes, Kind::Unknown, Kind::Unknown}},
    {740, {Kind::NavAids, Kind::Unknown, Kind::Unknown}},
    {810, {Kind::NavAids, Kind::Unknown, Kind::Unknown}},
    {640, {Kind::Airways, Kind::Unknown, Kind::Unknown}},
    {1100, {Kind::Fixes, Kind::NavAids, Kind::Airways}},
    {1101, {Kind::Fixes, Kind::Airways, Kind::Unknown}},
    {1140, {Kind::NavAids, Kind::Unknown, Kind::Unknown}},
    {1150, {Kind::NavAids, Kind::Unknown, Kind::Unknown}},
    {1200, {Kind::Fixes, Kind::NavAids, Kind::Airways}},
});

bool isRegion(std::string_view text) {
    return isCode(text, 2, 2);
}

bool looksLikeNavAid(const Cells& c, bool regions) {
    const auto row = wholeIn(c[0]);
    if (!row || *row < 2 || *row > 16 || !latitudeIn(c[1]) || !longitudeIn(c[2])) return false;
    return regions ? c.size() >= 11 && isCode(c[8], 1, 4) && isRegion(c[9]) : c.size() >= 8;
}

/// What a data line looks like, whatever its file says it is.
Kind shapeOf(const Cells& c, bool regions) {
    if (regions) {
        if (c.size() >= 11 && isRegion(c[1]) && wholeIn(c[2]) && isRegion(c[4]) && wholeIn(c[5]))
            return Kind::Airways;
        if (looksLikeNavAid(c, true)) return Kind::NavAids;
        if (c.size() >= 5 && latitudeIn(c[0]) && longitudeIn(c[1]) && isRegion(c[4])) return Kind::Fixes;
        return Kind::Unknown;
    }
    if (c.size() == 10 && latitudeIn(c[1]) && longitudeIn(c[2]) && latitudeIn(c[4])) return Kind::Airways;
    if (c.size() == 3 && latitudeIn(c[0]) && longitudeIn(c[1])) return Kind::Fixes;
    return looksLikeNavAid(c, false) ? Kind::NavAids : Kind::Unknown;
}

/// The first line behind the head that holds something; empty when there is none or it is the end mark.
std::string_view firstData(std::span<const std::string> lines) {
    Cells cells;
    for (std::size_t i = 2; i < lines.size(); ++i) {
        cells.blanks(lines[i]);
        if (cells.size() > 0) return cells[0] == "99" && cells.size() == 1 ? std::string_view() : lines[i];
    }
    return {};
}

std::string utf8From(std::string_view bytes) {
    std::string out;
    for (std::size_t at = 0; at < bytes.size();) {
        char32_t point = 0;
        const std::size_t length = decodeUtf8(bytes, at, point);
        appendUtf8(out, length > 0 ? point : static_cast<unsigned char>(bytes[at]));
        at += std::max<std::size_t>(length, 1);
    }
    return out;
}

/// The word behind `before`, up to a blank or a comma.
std::string wordBehind(std::string_view line, std::string_view before) {
    const std::size_t at = line.find(before);
    if (at == std::string_view::npos) return {};
    const std::string_view rest = line.substr(at + before.size());
    return std::string(rest.substr(0, rest.find_first_of(" ,")));
}

} // namespace

bool isNavigationForm(std::span<const std::string> lines) {
    if (lines.size() < 2) return false;
    Cells cells;
    cells.blanks(lines[0]);
    if (cells.size() != 1 || (cells[0] != "I" && cells[0] != "A")) return false;
    cells.blanks(lines[1]);
    return wholeIn(cells[0]).has_value();
}

Recognised recogniseNavigation(std::span<const std::string> lines) {
    Recognised out;
    out.version = navigationHead(lines[1]).version;
    const std::string number = std::to_string(out.version);
    const auto* row = std::find_if(kVersions.begin(), kVersions.end(),
                                   [&](const VersionRow& r) { return r.version == out.version; });
    if (row == kVersions.end()) {
        out.fault = "a navigation form of the unknown version " + number;
        return out;
    }
    Cells cells;
    cells.blanks(firstData(lines));
    const Kind shape = shapeOf(cells, out.version >= kFirstRegionVersion);
    if (std::find(std::begin(row->kinds), std::end(row->kinds), shape) != std::end(row->kinds) &&
        shape != Kind::Unknown)
        out.kind = shape;
    else
        out.fault = "line 2 says version " + number + ", but the lines below do not look like it";
    return out;
}

NavigationHead navigationHead(std::string_view line) {
    NavigationHead out;
    Cells cells;
    cells.blanks(line);
    const auto version = wholeIn(cells[0]);
    out.version = version && *version > 0 && *version < 10000 ? static_cast<int>(*version) : 0;
    out.cycle = wordBehind(line, "data cycle ");
    out.build = wordBehind(line, "build ");
    const std::size_t rights = line.find("Copyright");
    if (rights != std::string_view::npos) out.copyright = utf8From(line.substr(rights));
    return out;
}

CycleMonth cycleMonth(const NavigationHead& head) {
    const std::string& cycle = head.cycle;
    const auto number = [&](std::size_t from, std::size_t count) {
        const auto value = wholeIn(std::string_view(cycle).substr(from, count));
        return value && *value >= 0 ? static_cast<int>(*value) : 0;
    };
    CycleMonth out;
    if (cycle.size() == 7 && cycle[4] == '.') {
        out = {number(0, 4), number(5, 2)};
    } else if (cycle.size() == 4) {
        const int years = number(0, 2);
        out = {(years < 80 ? 2000 : 1900) + years, (number(2, 2) * 12 + 12) / 13};
    }
    if (out.month < 1 || out.month > 12 || out.year < 1980) return {};
    return out;
}

long long cycleOrder(const NavigationHead& head) {
    const CycleMonth month = cycleMonth(head);
    const bool fourWeeks = head.cycle.size() == 4;
    const auto within = fourWeeks ? wholeIn(std::string_view(head.cycle).substr(2)).value_or(0) : month.month;
    return month.year == 0 ? 0 : (month.year * 12LL + month.month) * 100 + within;
}

} // namespace gatewise::importer
