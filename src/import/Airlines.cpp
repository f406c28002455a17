#include "import/Airlines.h"

#include "import/Fitting.h"

#include <algorithm>
#include <array>
#include <map>

namespace gatewise::importer {

namespace {

std::string firstWord(const std::string& name) {
    const std::string upper = upperAscii(name);
    return upper.substr(0, upper.find_first_of(" ,."));
}

/// A carrier's name without what follows in brackets and the words of its company's form.
std::string carrierName(std::string name) {
    constexpr std::array<std::string_view, 8> forms{", Inc.", " Inc.", " Co.",   " Corporation",
                                                    " Corp.", ", LLC", ", Ltd.", " Incorporated"};
    name = name.substr(0, name.find(" ("));
    for (const std::string_view form : forms)
        if (name.ends_with(form)) name.resize(name.size() - form.size());
    return name;
}

class AirlineFinder {
public:
    explicit AirlineFinder(const RawTables& raw) {
        for (const AirlineIn& row : raw.airlines.rows) {
            if (!row.iata.empty()) byCode_[row.iata].push_back(&row);
            if (!row.icao.empty()) byCode_[row.icao].push_back(&row);
        }
        for (const CarrierIn& row : raw.carriers.rows) carriers_.try_emplace(row.code, carrierName(row.name));
        for (const RouteIn& row : raw.routes.rows) ++meant_[row.airline][row.airlineId];
        for (const OnTimeRow& row : raw.onTime.rows) flown_.insert(row.carrier);
        for (const std::uint32_t carrier : flown_) flownCodes_.insert(raw.onTime.carriers[carrier]);
    }

    AirlineRecord record(const std::string& code, Findings& findings) const {
        const AirlineIn* airline = bestOf(code);
        const auto carrier = carriers_.find(code);
        const bool known = carrier != carriers_.end();
        const bool other = known && flownCodes_.contains(code) &&
                           (airline == nullptr || firstWord(airline->name) != firstWord(carrier->second));
        AirlineRecord out;
        out.Code = code;
        const std::string name = other || (airline == nullptr && known) ? carrier->second
                                 : airline != nullptr                   ? airline->name
                                                                        : code;
        if (airline == nullptr && !known) findings.other("airlines without a name", code);
        const bool hasSign = airline != nullptr && !other && !airline->callsign.empty();
        out.Name = fitted(ownText(name), 39);
        out.Callsign = fitted(ownText(hasSign ? upperAscii(airline->callsign) : firstWord(name)), 24);
        return out;
    }

private:
    const AirlineIn* bestOf(const std::string& code) const {
        const auto found = byCode_.find(code);
        if (found == byCode_.end()) return nullptr;
        const auto order = [&](const AirlineIn* a) {
            return std::tuple(-score(*a, code), a->id, std::string_view(a->name));
        };
        return *std::min_element(found->second.begin(), found->second.end(),
                                 [&](const AirlineIn* a, const AirlineIn* b) { return order(a) < order(b); });
    }

    long long score(const AirlineIn& airline, const std::string& code) const {
        long long out = airline.active ? 2 : 0;
        if (const auto carrier = carriers_.find(code);
            carrier != carriers_.end() && flownCodes_.contains(code))
            out += firstWord(airline.name) == firstWord(carrier->second) ? 1000000 : 0;
        if (const auto ids = meant_.find(code); ids != meant_.end())
            if (const auto count = ids->second.find(airline.id); count != ids->second.end())
                out += 10 * count->second;
        return out;
    }

    std::map<std::string, std::vector<const AirlineIn*>> byCode_;
    std::map<std::string, std::string> carriers_;
    std::map<std::string, std::map<long long, long long>>
        meant_; // by the airline's number in the route table
    std::set<std::uint32_t> flown_;
    std::set<std::string> flownCodes_;
};

} // namespace

std::vector<AirlineRecord> makeAirlines(const RawTables& raw, const std::set<std::string>& codes,
                                        Findings& findings) {
    const AirlineFinder finder(raw);
    std::vector<AirlineRecord> out;
    out.reserve(codes.size());
    for (const std::string& code : codes) out.push_back(finder.record(code, findings));
    return out;
}

} // namespace gatewise::importer
