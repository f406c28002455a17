#include "import/AircraftTypes.h"

#include "import/Cells.h"
#include "import/Embedded.h"

#include <algorithm>

namespace gatewise::importer {

namespace {

/// Calls `each` for every row of a table of ours but its header.
template<class Each> void eachRow(std::string_view table, Each each) {
    Cells cells;
    for (bool header = true; !table.empty(); header = false) {
        const std::size_t end = std::min(table.find('\n'), table.size());
        if (!header && cells.commas(table.substr(0, end))) each(cells);
        table.remove_prefix(std::min(end + 1, table.size()));
    }
}

template<class T> T number(std::string_view cell) {
    return static_cast<T>(wholeIn(cell).value_or(0));
}

// Columns: code, icao, name, maker, climb, descent, level, schedule speed, true speed, engine, seats,
// ProFlight.
AircraftType typeIn(const Cells& c) {
    AircraftType out;
    out.code = std::string(c[0]);
    out.icao = std::string(c[1]);
    out.record.Code = c[0];
    out.record.Name = c[2];
    out.record.ClimbRate = number<std::int16_t>(c[4]);
    out.record.DescentRate = number<std::int16_t>(c[5]);
    out.record.CruiseAltitude = number<std::int32_t>(c[6]);
    out.record.CruiseSpeedTAS = number<std::int16_t>(c[7]);
    out.cruise = number<int>(c[8]);
    out.engine = c[9].empty() ? 'J' : c[9][0];
    out.seats = number<int>(c[10]);
    out.record.PfCompany = c[11];
    out.record.PfAircraft = c[12];
    return out;
}

bool beginsLike(std::string_view text, std::string_view pattern) {
    if (text.size() < pattern.size()) return false;
    for (std::size_t i = 0; i < pattern.size(); ++i)
        if (pattern[i] != '.' && pattern[i] != text[i]) return false;
    return true;
}

} // namespace

AircraftTypes::AircraftTypes() {
    eachRow(kTypesTable, [&](const Cells& c) {
        byCode_.try_emplace(std::string(c[0]), types_.size());
        byIcao_.try_emplace(std::string(c[1]), types_.size());
        types_.push_back(typeIn(c));
    });
    eachRow(kRelativesTable,
            [&](const Cells& c) { relatives_.try_emplace(std::string(c[0]), std::string(c[1])); });
    eachRow(kModelsTable, [&](const Cells& c) {
        models_.push_back({std::string(c[0]), std::string(c[1]), std::string(c[2])});
    });
}

const AircraftType* AircraftTypes::find(std::string_view code) const {
    const std::string key(code);
    if (const auto found = byCode_.find(key); found != byCode_.end()) return &types_[found->second];
    if (const auto found = byIcao_.find(key); found != byIcao_.end()) return &types_[found->second];
    return nullptr;
}

const AircraftType& AircraftTypes::nearest(std::string_view code) const {
    if (const AircraftType* type = find(code)) return *type;
    if (const auto found = relatives_.find(std::string(code)); found != relatives_.end())
        if (const AircraftType* type = find(found->second)) return *type;
    for (const std::size_t same : {std::size_t{2}, std::size_t{1}}) {
        const auto like = std::find_if(types_.begin(), types_.end(), [&](const AircraftType& type) {
            return code.size() >= same && type.code.substr(0, same) == code.substr(0, same);
        });
        if (like != types_.end()) return *like;
    }
    return usual(600);
}

const AircraftType* AircraftTypes::ofModel(std::string_view maker, std::string_view model) const {
    for (const Model& row : models_)
        if (maker.find(row.maker) != std::string_view::npos && beginsLike(model, row.begin))
            return find(row.code);
    return nullptr;
}

const AircraftType& AircraftTypes::usual(int miles) const {
    const AircraftType* type = find(miles < 250 ? "DH4" : miles < 400 ? "CR7" : miles < 2500 ? "738" : "763");
    return type != nullptr ? *type : types_.front();
}

} // namespace gatewise::importer
