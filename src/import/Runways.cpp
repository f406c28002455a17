#include "import/Facilities.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace gatewise::importer {

namespace {

constexpr double kFeetOfMile = 6076.115;
constexpr double kMoved = 3; // nm between a runway and the airport that changed its ident

/// A place where the variation is known.
struct Variation {
    Vector at;
    double east = 0;
};

std::vector<Variation> variations(const RawTables& raw) {
    std::vector<Variation> out;
    for (const auto* table : {&raw.navAids, &raw.radioAids})
        for (const NavAidIn& aid : table->rows)
            if (aid.row != 4 && aid.bearingKnown)
                out.push_back({vectorOf({aid.latitude, aid.longitude}), aid.bearing});
    return out;
}

double variationAt(const std::vector<Variation>& all, const Place& place) {
    const Vector here = vectorOf(place);
    double best = -2;
    double east = 0;
    for (const Variation& v : all) {
        const double near = dot(here, v.at);
        if (near <= best) continue;
        best = near;
        east = v.east;
    }
    return east;
}

/// "9" is "09", "09L" stays; blank for what is no runway of an airliner (helipads) or does not fit.
std::string runwayName(std::string_view ident) {
    std::string out = upperAscii(ident);
    if (out.starts_with('H') || !isCode(out, 1, 5)) return {};
    const bool digit = out[0] >= '0' && out[0] <= '9';
    if (digit && (out.size() == 1 || out[1] < '0' || out[1] > '9')) out.insert(out.begin(), '0');
    return out;
}

/// The magnetic heading that a runway's name stands for; -1 for a name without a number.
double headingOfName(const std::string& name) {
    constexpr std::array<std::string_view, 8> winds{"N", "NE", "E", "SE", "S", "SW", "W", "NW"};
    const auto number = wholeIn(std::string_view(name).substr(0, 2));
    if (number && *number >= 1 && *number <= 36) return static_cast<double>(*number * 10);
    const auto* wind = std::find(winds.begin(), winds.end(), name);
    return wind == winds.end() ? -1 : 45.0 * static_cast<double>(wind - winds.begin());
}

float rounded(double degrees) {
    const double whole = std::round(wrapped(degrees) * 100) / 100;
    return static_cast<float>(whole >= 360 ? 0 : whole);
}

/// Where the runway's low end lies and which true heading it has, by what the source knows.
struct Line {
    Place low, high;
    double heading = -1;
};

Line lineOf(const RunwayIn& in, const Airport& airport, double east) {
    Line out{{in.low.latitude, in.low.longitude}, {in.high.latitude, in.high.longitude}, -1};
    const double length = in.length / kFeetOfMile;
    if (in.low.placed && in.high.placed && distance(out.low, out.high) > 0.05) {
        out.heading = course(out.low, out.high);
        return out;
    }
    const double byName = headingOfName(runwayName(in.low.ident));
    out.heading = in.low.heading >= 0 ? in.low.heading : byName < 0 ? -1 : wrapped(byName + east);
    if (out.heading < 0) return out;
    if (in.low.placed) {
        out.high = travel(out.low, out.heading, length);
    } else if (in.high.placed) {
        out.low = travel(out.high, out.heading + 180, length);
    } else {
        out.low = travel(airport.place, out.heading + 180, length / 2);
        out.high = travel(airport.place, out.heading, length / 2);
    }
    return out;
}

class RunwayMaker {
public:
    RunwayMaker(Airports& airports, const RawTables& raw, Findings& findings)
        : airports_(airports), raw_(raw), findings_(findings), variations_(variations(raw)) {}

    void run(const Job& job) {
        std::vector<const RunwayIn*> strange;
        Walk walk(job, raw_.runways.rows.size(), 0.3, 0.8);
        for (const RunwayIn& row : raw_.runways.rows) {
            if (!walk.goesOn()) return;
            const int number = airports_.find(row.airport);
            if (number >= 0)
                add(airports_.all[static_cast<std::size_t>(number)], row);
            else if (row.low.placed)
                strange.push_back(&row);
        }
        std::vector<Airport*> bare;
        for (Airport& airport : airports_.all)
            if (airport.facilities.runways.empty()) bare.push_back(&airport);
        Walk second(job, strange.size() + airports_.all.size(), 0.8, 0.9);
        for (const RunwayIn* row : strange)
            if (second.goesOn()) addMoved(bare, *row);
        for (Airport& airport : airports_.all)
            if (second.goesOn()) finish(airport);
    }

private:
    void add(Airport& airport, const RunwayIn& row) {
        const std::string low = runwayName(row.low.ident);
        const std::string high = runwayName(row.high.ident);
        if (low.empty() || high.empty()) return;
        const double east = variationAt(variations_, airport.place);
        const Line line = lineOf(row, airport, east);
        if (line.heading < 0) return findings_.other("runways without a heading", airport.iata + " " + low);
        const double back = course(line.high, line.low);
        addEnd(airport, low, line.low, line.heading, east);
        addEnd(airport, high, line.high, distance(line.low, line.high) > 0.05 ? back : line.heading + 180,
               east);
    }

    static void addEnd(Airport& airport, const std::string& name, const Place& place, double heading,
                       double east) {
        auto& all = airport.facilities.runways;
        const auto same = [&](const RunwayRecord& r) { return r.runwayId.trimmed() == name; };
        if (std::any_of(all.begin(), all.end(), same)) return;
        RunwayRecord out;
        out.runwayId = name;
        out.runwayLatitude = static_cast<float>(place.latitude);
        out.runwayLongitude = static_cast<float>(place.longitude);
        out.runwayHeading = rounded(heading);
        out.runwayCourse = rounded(heading - east);
        out.ilsId = "NO ILS";
        all.push_back(out);
    }

    void addMoved(const std::vector<Airport*>& bare, const RunwayIn& row) {
        const Place there{row.low.latitude, row.low.longitude};
        for (Airport* airport : bare) {
            if (std::abs(airport->place.latitude - there.latitude) > 0.1) continue;
            if (distance(airport->place, there) > kMoved) continue;
            findings_.other("runways found by their place, the airport's ident having changed",
                            airport->iata + " " + row.airport + " " + row.low.ident);
            return add(*airport, row);
        }
    }

    void finish(Airport& airport) {
        auto& all = airport.facilities.runways;
        std::sort(all.begin(), all.end(),
                  [](const RunwayRecord& a, const RunwayRecord& b) { return a.runwayId < b.runwayId; });
        for (const NavAidIn* aid : ilsOf(airport)) giveIls(airport, *aid);
    }

    std::vector<const NavAidIn*> ilsOf(const Airport& airport) {
        if (ils_.empty())
            for (const NavAidIn& aid : raw_.navAids.rows)
                if (aid.row == 4) ils_[aid.airport].push_back(&aid);
        const auto found = ils_.find(airport.icao);
        return found == ils_.end() ? std::vector<const NavAidIn*>() : found->second;
    }

    static void giveIls(Airport& airport, const NavAidIn& aid) {
        RunwayRecord* best = nullptr;
        const Place localizer{aid.latitude, aid.longitude};
        for (RunwayRecord& runway : airport.facilities.runways) {
            const Place end{runway.runwayLatitude, runway.runwayLongitude};
            const auto off = [&](double a) {
                const double turn =
                    std::abs(wrapped(a - static_cast<double>(runway.runwayHeading) + 180) - 180);
                return turn < 5;
            };
            const bool behind =
                off(aid.bearing) && distance(end, localizer) < 5 && off(course(end, localizer));
            if (behind && best == nullptr) best = &runway;
            if (runway.runwayId.trimmed() != runwayName(aid.runway) || !off(aid.bearing)) continue;
            best = &runway;
            break;
        }
        if (best == nullptr || best->ilsId.trimmed() != "NO ILS" || aid.ident.size() > 7) return;
        std::array<char, 24> text{};
        std::snprintf(text.data(), text.size(), "%03d.%02d", aid.frequency / 100, aid.frequency % 100);
        best->ilsId = aid.ident;
        best->ilsFrequency = text.data();
    }

    Airports& airports_;
    const RawTables& raw_;
    Findings& findings_;
    std::vector<Variation> variations_;
    std::unordered_map<std::string, std::vector<const NavAidIn*>> ils_;
};

} // namespace

void addRunways(Airports& airports, const RawTables& raw, Findings& findings, const Job& job) {
    RunwayMaker(airports, raw, findings).run(job);
}

} // namespace gatewise::importer
