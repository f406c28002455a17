#include "plan/GetFlightPlan.h"

#include "plan/Build.h"
#include "plan/Performance.h"
#include "platform/Files.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace gatewise {

namespace {

constexpr int kMostEntries = kPlanPoints - 2; // the two airports take a point each

void clearTable(Plan& plan) {
    for (PlanPoint& point : plan.points) {
        const auto id = point.pointId;
        point = {};
        point.pointId = id;
        point.pointFrequency = std::string_view("000.00");
    }
}

/// The route of a plan; empty where the file or the number has none. Sets planLast.
std::vector<RouteEntry> readRoute(Plan& plan, std::int32_t planNumber, const std::string& path) {
    plan.planLast = 1;
    const files::RecordFile file(path);
    if (planNumber < 1) return {};
    const auto position = file.number<std::int32_t>((planNumber - 1LL) * 4);
    if (!position) return {};
    const auto count = file.number<std::int16_t>(*position - 1LL);
    if (!count || *count < 0) return {};
    const int entries = std::min<int>(*count, kMostEntries);
    plan.planLast = static_cast<std::int16_t>(entries + 1);

    constexpr auto size = static_cast<long long>(recordSize<RouteEntry>());
    const long long first = *position + 1LL;
    const long long there = std::min<long long>(entries, (file.length() - first) / size);
    return file.records<RouteEntry>(first, there).value_or(std::vector<RouteEntry>());
}

/// The world's navaids, each file opened when the first entry needs it and closed with the retrieval.
class Navaids {
public:
    explicit Navaids(const PlanFiles& paths) : paths_(paths) {}

    template<class Record>
    std::optional<Record> read(std::optional<files::RecordFile>& file, const std::string& path,
                               long long record) {
        if (!file) file.emplace(path);
        return file->record<Record>(record * static_cast<long long>(recordSize<Record>()));
    }
    auto vor(std::int32_t record) { return read<NavaidRecord>(vor_, paths_.VOR, record); }
    auto ndb(std::int32_t record) { return read<NavaidRecord>(ndb_, paths_.NDB, record); }
    auto fix(std::int32_t record) { return read<FixRecord>(isc_, paths_.ISC, record); }
    auto jet(std::int32_t record) { return read<JetRecord>(jrt_, paths_.JRT, record - 1LL); }

private:
    const PlanFiles& paths_;
    std::optional<files::RecordFile> vor_, ndb_, isc_, jrt_;
};

template<class Record> void place(PlanPoint& point, const Record& record, const RouteEntry& entry) {
    point.pointLatitude = record.latitude;
    point.pointLongitude = record.longitude;
    point.pointAirway = entry.entryAirway;
}

void fillNavaid(PlanPoint& point, const NavaidRecord& record, const RouteEntry& entry,
                std::string_view type) {
    point.pointId = record.navaidId.view();
    point.pointName = record.navaidId.view();
    point.pointDescription = record.navaidName.view();
    point.pointType = type;
    point.pointFrequency = record.frequency;
    place(point, record, entry);
}

void fillFix(PlanPoint& point, const FixRecord& record, const RouteEntry& entry) {
    point.pointId = record.fixId;
    point.pointName = record.fixName;
    point.pointDescription = "Intersection - " + record.fixName.str();
    point.pointType = std::string_view("I ");
    point.pointFrequency = std::string_view();
    place(point, record, entry);
}

void fillJet(PlanPoint& point, const JetRecord& record, const RouteEntry& entry) {
    point.pointId = record.jetId;
    point.pointName = record.jetName;
    point.pointDescription = record.jetDescription.view();
    const std::string_view kind = record.jetKind.view();
    if (kind == "V" || kind == "N" || kind == "I") point.pointType = "H" + std::string(kind);
    point.pointFrequency = record.frequency;
    place(point, record, entry);
}

/// A record that its file does not have leaves the point empty, as an unknown kind does.
void fillPoint(PlanPoint& point, const RouteEntry& entry, Navaids& navaids) {
    const std::string_view kind = entry.entryKind.view();
    if (kind == "V") {
        if (const auto record = navaids.vor(entry.entryRecord)) fillNavaid(point, *record, entry, "V ");
    } else if (kind == "N") {
        if (const auto record = navaids.ndb(entry.entryRecord)) fillNavaid(point, *record, entry, "N ");
    } else if (kind == "I") {
        if (const auto record = navaids.fix(entry.entryRecord)) fillFix(point, *record, entry);
    } else if (kind == "H") {
        if (const auto record = navaids.jet(entry.entryRecord)) fillJet(point, *record, entry);
    }
}

void readFacilities(PlanAirport& airport, const files::RecordFile& file) {
    constexpr auto size = static_cast<long long>(recordSize<RunwayRecord>());
    const long long first = airport.RunwayOffset - 1LL;
    if (first < 0 || first > file.length() || airport.RunwayCount < 0) return;
    const long long there = std::min<long long>(airport.RunwayCount, (file.length() - first) / size);
    airport.runways = file.records<RunwayRecord>(first, there).value_or(std::vector<RunwayRecord>());
    airport.radio = file.record<RadioRecord>(first + airport.RunwayCount * size).value_or(RadioRecord());
}

} // namespace

PlanFiles planFiles(std::string_view AppDir, std::string_view DataSetPath) {
    const std::string app(AppDir);
    const std::string set = app + std::string(DataSetPath);
    return {set + "\\Plans.gt1",     set + "\\APT.gt1",       app + "\\Data\\VOR.gt1",
            app + "\\Data\\NDB.gt1", app + "\\Data\\ISC.gt1", app + "\\Data\\JRT.gt1"};
}

void loadFlightPlan(Plan& plan, std::int32_t planNumber, const PlanInput& input) {
    clearTable(plan);
    const std::vector<RouteEntry> route = readRoute(plan, planNumber, input.files.Plans);
    Navaids navaids(input.files);
    for (std::size_t i = 0; i < route.size(); ++i) fillPoint(plan.points[i + 1], route[i], navaids);
    loadAircraftPerformance(plan, input.tables.aircraft, input.CurrentFlight.AircraftCode.view());
    buildPlan(plan, input);
    loadAirportFacilities(plan, input);
}

void loadAirportFacilities(Plan& plan, const PlanInput& input) {
    const files::RecordFile file(input.files.APT);
    for (PlanAirport* airport : {&plan.departureAirport, &plan.destinationAirport, &plan.alternateAirport})
        airport->runways.clear();
    readFacilities(plan.departureAirport, file);
    readFacilities(plan.destinationAirport, file);
    if (input.HaveAlternate) readFacilities(plan.alternateAirport, file);
}

} // namespace gatewise
