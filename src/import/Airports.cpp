#include "import/Airports.h"

#include "import/Facilities.h"
#include "import/Fitting.h"

#include <algorithm>

namespace gatewise::importer {

namespace {

class AirportMaker {
public:
    explicit AirportMaker(Findings& findings) : findings_(findings) {}

    void add(const std::vector<AirportIn>& rows, bool zonesOnly, Walk walk) {
        for (const AirportIn& row : rows) {
            if (!walk.goesOn()) return;
            if (row.closed || !row.land || row.iata.empty()) continue;
            if (const int known = out_.find(row.iata); known >= 0) {
                merge(out_.all[static_cast<std::size_t>(known)], row, zonesOnly);
                continue;
            }
            const std::string icao = row.icao.empty() ? row.iata : row.icao;
            if (out_.find(icao) >= 0)
                findings_.other("airports whose ICAO code another one has", row.iata + " " + icao);
            else
                append(row, icao);
        }
    }

    Airports finish() {
        std::sort(out_.all.begin(), out_.all.end(),
                  [](const Airport& a, const Airport& b) { return a.iata < b.iata; });
        out_.index();
        return std::move(out_);
    }

private:
    void merge(Airport& airport, const AirportIn& row, bool zonesOnly) {
        if (airport.zone.empty()) airport.zone = row.zone;
        if (airport.record.City.trimmed().empty()) airport.record.City = fitted(ownText(row.city), 33);
        if (!zonesOnly)
            findings_.other("airports whose IATA code another one has", row.iata + " " + row.icao);
    }

    void append(const AirportIn& row, const std::string& icao) {
        Airport airport;
        airport.iata = row.iata;
        airport.icao = icao;
        airport.zone = row.zone;
        airport.place = {row.latitude, row.longitude};
        AirportRecord& record = airport.record;
        record.Iata = airport.iata;
        record.Icao = airport.icao;
        record.Name = airportName(row.name);
        record.City = fitted(ownText(row.city), 33);
        record.Elevation = std::clamp(row.elevation, -2000, 30000);
        record.Latitude = static_cast<float>(row.latitude);
        record.Longitude = static_cast<float>(row.longitude);
        out_.byCode.emplace(airport.iata, out_.all.size());
        out_.byCode.emplace(airport.icao, out_.all.size());
        out_.all.push_back(std::move(airport));
    }

    Findings& findings_;
    Airports out_;
};

/// An airport without a zone keeps the clock of the nearest one that has one.
void lendZones(Airports& airports, Walk walk) {
    for (Airport& airport : airports.all) {
        if (!walk.goesOn()) return;
        if (!airport.zone.empty()) continue;
        double best = 1e9;
        for (const Airport& other : airports.all) {
            const double away = other.zone.empty() ? best : distance(airport.place, other.place);
            if (away >= best) continue;
            best = away;
            airport.zone = other.zone;
        }
    }
}

} // namespace

void Airports::index() {
    byCode.clear();
    for (std::size_t i = 0; i < all.size(); ++i) {
        byCode.emplace(all[i].iata, i);
        byCode.emplace(all[i].icao, i);
    }
}

Airports makeAirports(const RawTables& raw, Findings& findings, const Job& job) {
    AirportMaker maker(findings);
    maker.add(raw.airports.rows, false, Walk(job, raw.airports.rows.size(), 0, 0.1));
    maker.add(raw.worldAirports.rows, !raw.airports.rows.empty(),
              Walk(job, raw.worldAirports.rows.size(), 0.1, 0.2));
    Airports out = maker.finish();
    lendZones(out, Walk(job, out.all.size(), 0.2, 0.3));
    addRunways(out, raw, findings, job);
    if (!job.cancelled()) addRadios(out, raw, job);
    return out;
}

void keepUsed(Airports& airports, const std::set<std::string>& usedIata, Findings& findings) {
    const auto unused = [&](const Airport& airport) {
        return airport.facilities.runways.empty() && !usedIata.contains(airport.iata);
    };
    for (const Airport& airport : airports.all) {
        if (unused(airport))
            findings.other("airports without a runway and without a flight, left out",
                           airport.iata + " " + airport.icao);
        else if (airport.facilities.runways.empty())
            findings.other("airports with flights, but without a known runway",
                           airport.iata + " " + airport.icao);
    }
    std::erase_if(airports.all, unused);
    airports.index();
}

} // namespace gatewise::importer
