#include "gt1/Plans.h"

#include <map>

namespace gatewise::gt1 {

namespace {

using Lines = std::vector<const Table<PlanRow>::Line*>;

/// One plan: its lines in the order of the table.
class PlanLinker {
public:
    PlanLinker(const Table<PlanRow>& table, const WorldNames& names, Report& report)
        : table_(table), names_(names), report_(report) {}

    std::vector<RouteEntry> entries(const Lines& lines) {
        std::vector<RouteEntry> out;
        if (lines.size() == 1 && lines[0]->row.sequence == 0) {
            emptyPlan(*lines[0]);
            return out;
        }
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (lines[i]->row.sequence != static_cast<int>(i) + 1)
                error(*lines[i], "sequence",
                      std::to_string(i + 1) + ", the next point of plan " +
                          std::to_string(lines[i]->row.plan),
                      std::to_string(lines[i]->row.sequence));
            out.push_back(entry(*lines[i]));
        }
        if (lines.size() > static_cast<std::size_t>(mostPlanPoints))
            error(*lines[static_cast<std::size_t>(mostPlanPoints)], "sequence",
                  "at most " + std::to_string(mostPlanPoints) + " points in a plan",
                  std::to_string(lines.size()) + " in plan " + std::to_string(lines[0]->row.plan));
        return out;
    }

    void ends(const Lines& lines, const PlanEnds& wanted) {
        for (const auto* line : lines) {
            end(*line, "origin", line->row.origin, wanted.origin);
            end(*line, "destination", line->row.destination, wanted.destination);
        }
    }

private:
    void error(const Table<PlanRow>::Line& line, std::string_view column, std::string_view expected,
               std::string_view found) {
        report_.error(table_.place(line.line, column), expected, found);
    }

    void end(const Table<PlanRow>::Line& line, std::string_view column, const FixedText<3>& text,
             const FixedText<3>& wanted) {
        if (text == wanted) return;
        const std::string expected =
            wanted.trimmed().empty()
                ? "nothing, since no flights between one pair of airports have this plan"
                : std::string(wanted.trimmed()) + ", as the flights with this plan have it";
        error(line, column, expected, inQuotes(text.trimmed()));
    }

    void emptyPlan(const Table<PlanRow>::Line& line) {
        const PlanRow& row = line.row;
        if (row.kind.trimmed().empty() && row.fix.empty() && row.airway.trimmed().empty()) return;
        error(line, "sequence", "1 for the first point; 0 stands for a plan without points", "0");
    }

    RouteEntry entry(const Table<PlanRow>::Line& line) {
        const PlanRow& row = line.row;
        RouteEntry out;
        out.entryKind = row.kind;
        out.entryAirway = row.airway;
        const char kind = row.kind.view()[0];
        const FixNames* names = names_.ofKind(kind);
        if (names == nullptr) {
            error(line, "kind", "one of the letters V N I H",
                  row.kind.trimmed().empty() ? "nothing" : inQuotes(utf8FromText(row.kind.trimmed())));
            return out;
        }
        const int record = names->find(row.fix);
        if (record < 0)
            error(line, "fix", "a record of " + std::string(WorldNames::fileOf(kind)),
                  inQuotes(utf8FromText(row.fix)));
        out.entryRecord = record + WorldNames::firstRecord(kind);
        return out;
    }

    const Table<PlanRow>& table_;
    const WorldNames& names_;
    Report& report_;
};

std::map<int, PlanEnds> endsOf(const Table<FlightRow>& flights) {
    std::map<int, PlanEnds> out;
    for (const auto& line : flights.lines) out[line.row.record.PlanNumber].add(line.row.record);
    return out;
}

void checkFlightPlans(const Table<FlightRow>& flights, const std::map<int, Lines>& byNumber, Report& report) {
    for (const auto& [line, row] : flights.lines) {
        if (!report.goesOn()) break;
        const int number = row.record.PlanNumber;
        if (number > 0 && !byNumber.contains(number))
            report.error(flights.place(line, "plan"), "the number of a plan in plans.csv",
                         std::to_string(number));
    }
}

} // namespace

void PlanEnds::add(const FlightRecord& flight) {
    mixed = mixed || (used && (origin != flight.OriginIata || destination != flight.DestinationIata));
    used = true;
    origin = mixed ? FixedText<3>() : flight.OriginIata;
    destination = mixed ? FixedText<3>() : flight.DestinationIata;
}

std::vector<std::vector<RouteEntry>> linkPlans(const Table<PlanRow>& plans, const Table<FlightRow>& flights,
                                               const World& world, Report& report) {
    const WorldNames names(world);
    std::map<int, Lines> byNumber;
    for (const auto& line : plans.lines)
        if (report.goesOn() && line.row.plan > 0) byNumber[line.row.plan].push_back(&line);

    checkFlightPlans(flights, byNumber, report);
    auto ends = endsOf(flights);
    PlanLinker linker(plans, names, report);
    std::vector<std::vector<RouteEntry>> out;
    int next = 1;
    for (const auto& [number, lines] : byNumber) {
        if (!report.goesOn()) break;
        if (number != next)
            report.error(plans.place(lines[0]->line, "plan"),
                         "plan " + std::to_string(next) + ": the numbers run from 1 without gaps",
                         std::to_string(number));
        next = number + 1;
        linker.ends(lines, ends[number]);
        out.push_back(linker.entries(lines));
    }
    return out;
}

std::vector<PlanRow> planRows(const DataSet& set, const World& world, Report& report) {
    const WorldNames names(world);
    std::map<int, PlanEnds> ends;
    for (const auto& flight : set.flights) ends[flight.PlanNumber].add(flight);
    std::vector<PlanRow> out;
    for (std::size_t i = 0; i < set.plans.size(); ++i) {
        PlanRow row;
        row.plan = static_cast<int>(i) + 1;
        row.origin = ends[row.plan].origin;
        row.destination = ends[row.plan].destination;
        if (set.plans[i].empty()) out.push_back(row);
        for (const RouteEntry& entry : set.plans[i]) {
            const char kind = entry.entryKind.view()[0];
            const FixNames* table = names.ofKind(kind);
            const auto record = static_cast<long long>(entry.entryRecord) - WorldNames::firstRecord(kind);
            const std::string* name = table != nullptr ? table->name(record) : nullptr;
            if (name == nullptr)
                report.error({"Plans.gt1", 0, 0, ""},
                             "plan " + std::to_string(row.plan) +
                                 " to point at records of the navigation files",
                             "kind " + inQuotes(entry.entryKind.trimmed()) + ", record " +
                                 std::to_string(entry.entryRecord));
            row.sequence += 1;
            row.kind = entry.entryKind;
            row.fix = name != nullptr ? *name : std::string();
            row.airway = entry.entryAirway;
            out.push_back(row);
        }
    }
    return out;
}

} // namespace gatewise::gt1
