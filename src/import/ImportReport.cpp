#include "import/ImportReport.h"

#include "import/Kinds.h"
#include "platform/Machine.h"

#include <array>
#include <cmath>
#include <set>

namespace gatewise::importer {

namespace {

std::string count(std::size_t number, std::string_view what) {
    return "  " + std::to_string(number) + " " + std::string(what) + "\n";
}

/// The copyright lines of the navigation tables, each once.
std::set<std::string> rights(const RawTables& raw) {
    std::set<std::string> out;
    for (const NavigationHead* head :
         {&raw.fixes.edition.head, &raw.navAids.edition.head, &raw.airways.edition.head})
        if (!head->copyright.empty()) out.insert(head->copyright);
    return out;
}

std::string made(const ImportCounts& c) {
    const std::size_t real = c.own + c.flown;
    const std::size_t all = real + c.made;
    const double share = all > 0 ? 100.0 * static_cast<double>(real) / static_cast<double>(all) : 0;
    const long tenths = std::lround(share * 10);
    std::string out =
        count(c.airports, "airports") + count(c.airlines, "airlines") +
        count(all, "flights: " + std::to_string(real) + " real (" + std::to_string(tenths / 10) + "." +
                       std::to_string(tenths % 10) + " %), " + std::to_string(c.made) + " made from routes");
    if (c.own > 0) out += count(c.own, "of the real ones are own flights");
    out += count(c.pairs, "airport pairs with plans in both directions") +
           count(c.byNavaids, "pairs without a way along airways, flown over navaids") +
           count(c.direct, "pairs without a way along airways or over navaids, flown direct");
    constexpr std::array<std::string_view, 5> tables{"aircraft types", "VOR", "NDB", "fixes",
                                                     "fixes on high airways"};
    for (std::size_t i = 0; i < c.grown.size(); ++i)
        out += count(c.grown[i], std::string(tables[i]) + " added to the tables that all sets share");
    if (c.regions > 0) out += count(c.regions, "regions of them added to the list that all sets share");
    return out;
}

std::string found(const Findings& findings) {
    std::string out;
    for (const auto& [name, kind] : findings.kinds()) {
        out += "\n" + std::to_string(kind.count) + " " + name + "\n";
        for (const std::string& line : kind.first) out += "  " + line + "\n";
        const auto shown = static_cast<long long>(kind.first.size());
        if (kind.count > shown) out += "  and " + std::to_string(kind.count - shown) + " more\n";
    }
    return out;
}

} // namespace

std::string dayText(int serial) {
    const DateTime date = fromDaySerial(serial);
    const auto two = [](int value) { return (value < 10 ? "0" : "") + std::to_string(value); };
    return std::to_string(date.year) + "-" + two(date.month) + "-" + two(date.day);
}

std::string describe(const SourceInfo& info) {
    std::string out(nameOf(info.kind));
    if (!info.fault.empty()) return out + ": " + info.fault;
    if (info.kind == Kind::Unknown) return "of no known form";
    if (info.rows > 0) out += ", " + std::to_string(info.rows) + " rows";
    if (info.firstDay > 0) out += ", " + dayText(info.firstDay) + " to " + dayText(info.lastDay);
    if (!info.cycle.empty()) out += ", cycle " + info.cycle;
    if (!info.used) out += ", not used: another one is newer";
    return out;
}

std::string reportText(const Imported& imported, const RawTables& raw, const Findings& findings) {
    std::string out = "Import of \"" + imported.name + "\"\n\nSources\n";
    for (const SourceInfo& info : imported.files) out += "  " + info.file + ": " + describe(info) + "\n";
    for (const std::string& line : rights(raw)) out += "  " + line + "\n";
    if (imported.cancelled) out += "\nCancelled: nothing was written\n";
    for (const std::string& fault : imported.faults) out += "\nerror: " + fault;
    if (!imported.faults.empty()) out += "\nNothing was written\n";
    if (!imported.tables.empty()) out += "\nMade\n" + made(imported.counts);
    return out + found(findings);
}

std::string sourcesText(const RawTables& raw) {
    std::string out = "This data set was made from these tables. It is not fit for navigation.\n\n";
    for (const SourceInfo& info : raw.files)
        if (info.used && info.kind != Kind::Unknown) out += info.file + ": " + describe(info) + "\n";
    for (const std::string& line : rights(raw)) out += "\n" + line + "\n";
    return out;
}

} // namespace gatewise::importer
