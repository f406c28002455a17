#include "import/Sources.h"

#include "import/Kinds.h"
#include "import/Navigation.h"
#include "import/OpenFlights.h"
#include "import/OurAirports.h"
#include "import/Registries.h"

#include <algorithm>
#include <array>

namespace gatewise::importer {

namespace {

/// Keeps the newer of two tables of a kind.
template<class Row> SourceInfo keepNewer(Table<Row>& kept, Table<Row> read, std::vector<SourceInfo>& files) {
    SourceInfo info;
    info.fault = read.error;
    info.rows = read.edition.rows;
    info.cycle = read.edition.head.cycle;
    const bool first = kept.edition.file.empty();
    if (!first && !read.edition.newerThan(kept.edition)) {
        info.used = false;
        return info;
    }
    for (SourceInfo& older : files)
        if (!first && older.file == kept.edition.file) older.used = false;
    kept = std::move(read);
    return info;
}

using ReadKind = SourceInfo (*)(const Reading&, RawTables&);

/// A row of the table below: reads with `Read` and keeps the newest in `Member`.
template<auto Read, auto Member> SourceInfo newest(const Reading& reading, RawTables& all) {
    return keepNewer(all.*Member, Read(reading), all.files);
}

SourceInfo joinOnTime(const Reading& reading, RawTables& all) {
    const OnTimeFile file = readOnTime(reading, all.onTime);
    SourceInfo info;
    info.fault = file.error;
    info.rows = file.edition.rows;
    info.firstDay = file.firstDay;
    info.lastDay = file.lastDay;
    return info;
}

SourceInfo joinOwn(const Reading& reading, RawTables& all) {
    Table<OwnFlightIn> read = readOwnFlights(reading);
    SourceInfo info;
    info.fault = read.error;
    info.rows = read.edition.rows;
    for (auto& row : read.rows) all.ownFlights.rows.push_back(std::move(row));
    return info;
}

struct ReaderRow {
    Kind kind;
    ReadKind read;
};

constexpr auto kReaders = std::to_array<ReaderRow>({
    {Kind::WorldAirports, newest<readWorldAirports, &RawTables::worldAirports>},
    {Kind::WorldAirlines, newest<readWorldAirlines, &RawTables::airlines>},
    {Kind::WorldPlanes, newest<readWorldPlanes, &RawTables::planes>},
    {Kind::WorldRoutes, newest<readWorldRoutes, &RawTables::routes>},
    {Kind::Airports, newest<readAirports, &RawTables::airports>},
    {Kind::Runways, newest<readRunways, &RawTables::runways>},
    {Kind::Radios, newest<readRadios, &RawTables::radios>},
    {Kind::RadioAids, newest<readRadioAids, &RawTables::radioAids>},
    {Kind::Fixes, newest<readFixes, &RawTables::fixes>},
    {Kind::NavAids, newest<readNavAids, &RawTables::navAids>},
    {Kind::Airways, newest<readAirways, &RawTables::airways>},
    {Kind::OnTime, joinOnTime},
    {Kind::Tails, newest<readTails, &RawTables::tails>},
    {Kind::Registry, newest<readRegistry, &RawTables::registry>},
    {Kind::RegistryModels, newest<readRegistryModels, &RawTables::registryModels>},
    {Kind::Carriers, newest<readCarriers, &RawTables::carriers>},
    {Kind::OwnFlights, joinOwn},
});

void addFault(const SourceInfo& info, bool skipUnknown, Findings& findings,
              std::vector<std::string>& faults) {
    if (!info.fault.empty())
        faults.push_back(info.file + ": " + info.fault);
    else if (info.kind == Kind::Unknown && skipUnknown)
        findings.other("files of no known form, left out", info.file);
    else if (info.kind == Kind::Unknown)
        faults.push_back(info.file + ": a table of no known form");
}

} // namespace

SourceInfo lookAt(const Source& source) {
    const auto bytes = source.open();
    Lines lines(*bytes);
    std::vector<std::string> first;
    while (first.size() < kLinesToRecognise && lines.next()) first.emplace_back(lines.text());
    const Recognised found = recognise(first);
    SourceInfo out;
    out.file = source.name;
    out.kind = found.kind;
    const bool unpacks = bytes->error().empty();
    out.fault = found.kind == Kind::Unknown && unpacks ? found.fault : bytes->error();
    if (first.size() > 1 && isNavigationForm(first)) out.cycle = navigationHead(first[1]).cycle;
    return out;
}

void sortSources(std::vector<Source>& sources) {
    std::stable_sort(sources.begin(), sources.end(),
                     [](const Source& a, const Source& b) { return a.name < b.name; });
}

RawTables readSources(std::vector<Source> sources, bool skipUnknown, Findings& findings,
                      std::vector<std::string>& faults, const Job& job) {
    sortSources(sources);
    RawTables all;
    for (std::size_t i = 0; i < sources.size() && !job.cancelled(); ++i) {
        job.step("Reading " + sources[i].name);
        job.progress(static_cast<double>(i) / static_cast<double>(sources.size()));
        SourceInfo info = lookAt(sources[i]);
        const auto* row = std::find_if(kReaders.begin(), kReaders.end(),
                                       [&](const ReaderRow& r) { return r.kind == info.kind; });
        if (row != kReaders.end() && info.fault.empty()) {
            SourceInfo read = row->read({sources[i], findings, job}, all);
            read.file = info.file;
            read.kind = info.kind;
            info = std::move(read);
        }
        addFault(info, skipUnknown, findings, faults);
        all.files.push_back(std::move(info));
    }
    return all;
}

} // namespace gatewise::importer
