#include "import/Network.h"

#include "import/Fitting.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <tuple>
#include <unordered_map>

namespace gatewise::importer {

namespace {

constexpr double kSamePlace = 0.6; // nm between an airway's end and the record that it means
constexpr double kSameAid = 10;    // nm between two sources' places of one navaid

std::string frequencyText(bool ndb, int value) {
    std::array<char, 24> text{};
    if (ndb)
        std::snprintf(text.data(), text.size(), "%d.0", value);
    else
        std::snprintf(text.data(), text.size(), "%03d.%02d", value / 100, value % 100);
    return text.data();
}

/// A navaid's name without the words that say what it is.
std::string aidName(const std::string& name) {
    constexpr std::array<std::string_view, 9> words{" NDB-DME", " NDB",   " VORTAC", " VOR/DME", " VOR-DME",
                                                    " VOR",     " TACAN", " LOM",    " DME"};
    std::string out = ownText(name);
    for (const std::string_view word : words)
        if (out.ends_with(word)) {
            out.resize(out.size() - word.size());
            break;
        }
    return fitted(std::move(out), 29);
}

using ByIdent = std::unordered_map<std::string, std::vector<std::uint32_t>>;

class NetworkMaker {
public:
    NetworkMaker(const RawTables& raw, Findings& findings) : raw_(raw), findings_(findings) {}

    Network run(const Job& job) {
        addAids();
        Walk aids(job, raw_.radioAids.rows.size(), 0, 0.1);
        addRadioAids(aids);
        addFixes();
        if (job.cancelled()) return {};
        job.progress(0.2);
        sortPoints();
        Walk legs(job, raw_.airways.rows.size(), 0.4, 1);
        for (const AirwayIn& row : raw_.airways.rows)
            if (legs.goesOn()) addLeg(row);
        return std::move(out_);
    }

private:
    bool usable(const std::string& ident, std::size_t longest, std::string_view what) {
        if (isCode(ident, 1, longest)) return true;
        findings_.other("navaids and fixes whose ident does not fit", std::string(what) + " " + ident);
        return false;
    }

    void addAid(const NavAidIn& aid) {
        const bool ndb = aid.row == 2;
        if ((!ndb && aid.row != 3) || !usable(aid.ident, 3, ndb ? "NDB" : "VOR")) return;
        out_.points.push_back({ndb ? 'N' : 'V',
                               aid.ident,
                               aidName(aid.name),
                               frequencyText(ndb, aid.frequency),
                               aid.region,
                               {aid.latitude, aid.longitude},
                               false});
    }

    void addAids() {
        for (const NavAidIn& aid : raw_.navAids.rows) addAid(aid);
        index();
    }

    void addRadioAids(Walk& walk) {
        for (const NavAidIn& aid : raw_.radioAids.rows) {
            if (!walk.goesOn()) return;
            const Place place{aid.latitude, aid.longitude};
            if (nearest(aid.ident, aid.row == 2 ? "N" : "V", place, kSameAid) < 0) addAid(aid);
        }
    }

    void addFixes() {
        for (const FixIn& fix : raw_.fixes.rows)
            if (fix.enroute && usable(fix.ident, 5, "fix"))
                out_.points.push_back(
                    {'I', fix.ident, "", "", fix.region, {fix.latitude, fix.longitude}, false});
    }

    void sortPoints() {
        const auto order = [](const Point& p) {
            return std::tuple(p.kind == 'V'   ? 0
                              : p.kind == 'N' ? 1
                                              : 2,
                              std::string_view(p.ident), p.place.latitude, p.place.longitude,
                              std::string_view(p.region), std::string_view(p.frequency),
                              std::string_view(p.name));
        };
        std::sort(out_.points.begin(), out_.points.end(),
                  [&](const Point& a, const Point& b) { return order(a) < order(b); });
        const auto same = [&](const Point& a, const Point& b) { return order(a) == order(b); };
        out_.points.erase(std::unique(out_.points.begin(), out_.points.end(), same), out_.points.end());
        index();
    }

    void index() {
        byIdent_.clear();
        for (std::uint32_t i = 0; i < out_.points.size(); ++i) byIdent_[out_.points[i].ident].push_back(i);
    }

    /// The nearest point of an ident and one of these kinds within some miles; the kinds named first win
    /// where two stand at the same place. -1 when there is none.
    int nearest(const std::string& ident, std::string_view kinds, const Place& place, double within) {
        const auto found = byIdent_.find(ident);
        int best = -1;
        if (found == byIdent_.end()) return best;
        for (const char kind : kinds)
            for (const std::uint32_t i : found->second) {
                const double away = distance(out_.points[i].place, place);
                if (out_.points[i].kind != kind || away > within) continue;
                within = away - 1e-6;
                best = static_cast<int>(i);
            }
        return best;
    }

    int endOf(const AirwayEndIn& end) {
        if (end.type == 0) {
            const int found = nearest(end.ident, "VNI", {end.latitude, end.longitude}, kSamePlace);
            return found >= 0 ? found : newFix(end);
        }
        const char kind = end.type == 11 ? 'I' : end.type == 2 ? 'N' : 'V';
        const auto found = byIdent_.find(end.ident);
        if (found == byIdent_.end()) return -1;
        for (const std::uint32_t i : found->second)
            if (out_.points[i].kind == kind && out_.points[i].region == end.region)
                return static_cast<int>(i);
        return -1;
    }

    /// An airway of the form without regions tells where its ends are, so that they need no record elsewhere.
    int newFix(const AirwayEndIn& end) {
        if (!isCode(end.ident, 1, 5)) return -1;
        byIdent_[end.ident].push_back(static_cast<std::uint32_t>(out_.points.size()));
        out_.points.push_back({'I', end.ident, "", "", "", {end.latitude, end.longitude}, false});
        findings_.other("airway points without a record of their own, added as fixes", end.ident);
        return static_cast<int>(out_.points.size()) - 1;
    }

    void addLeg(const AirwayIn& row) {
        const int from = endOf(row.from);
        const int to = endOf(row.to);
        if (from < 0 || to < 0)
            return findings_.other("airway segments whose ends are not found",
                                   row.names + ": " + row.from.ident + " - " + row.to.ident);
        if (from == to) return;
        Leg leg{static_cast<std::uint32_t>(from),
                static_cast<std::uint32_t>(to),
                row.high,
                row.direction != 'B',
                row.direction != 'F',
                {}};
        std::string_view names = row.names;
        while (!names.empty()) {
            const std::size_t end = std::min(names.find('-'), names.size());
            if (isCode(names.substr(0, end), 1, 5)) leg.airways.emplace_back(names.substr(0, end));
            names.remove_prefix(std::min(end + 1, names.size()));
        }
        if (leg.airways.empty())
            findings_.other("airway segments flown without a name, theirs being too long", row.names);
        for (const int end : {from, to})
            if (leg.high) out_.points[static_cast<std::size_t>(end)].high = true;
        out_.legs.push_back(std::move(leg));
    }

    const RawTables& raw_;
    Findings& findings_;
    Network out_;
    ByIdent byIdent_;
};

} // namespace

Network makeNetwork(const RawTables& raw, Findings& findings, const Job& job) {
    return NetworkMaker(raw, findings).run(job);
}

} // namespace gatewise::importer
