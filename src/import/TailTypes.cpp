#include "import/TailTypes.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace gatewise::importer {

namespace {

/// Statute miles behind which another band of distance begins.
constexpr std::array<int, 6> kBands{250, 500, 800, 1200, 1800, 2600};

int bandOf(int miles) {
    return static_cast<int>(std::upper_bound(kBands.begin(), kBands.end(), miles) - kBands.begin());
}

struct MakerModel {
    std::string maker, model;
};

using Models = std::unordered_map<std::string, MakerModel>;

/// Both registries; what the plane data says comes before the other.
Models modelsOf(const RawTables& raw, Walk walk) {
    Models out;
    for (const TailIn& row : raw.tails.rows)
        if (walk.goesOn()) out.try_emplace(row.tail, MakerModel{row.maker, row.model});
    std::unordered_map<std::string, const RegistryModelIn*> byCode;
    for (const RegistryModelIn& row : raw.registryModels.rows)
        if (walk.goesOn()) byCode.try_emplace(row.code, &row);
    for (const RegistryIn& row : raw.registry.rows) {
        if (!walk.goesOn()) return out;
        const auto model = byCode.find(row.modelCode);
        if (model != byCode.end())
            out.try_emplace(row.tail, MakerModel{model->second->maker, model->second->model});
    }
    return out;
}

} // namespace

TailTypes::TailTypes(const RawTables& raw, const AircraftTypes& types, const Job& job) : types_(types) {
    const Models models = modelsOf(raw, Walk(job, 0));
    Walk walk(job, 0);
    for (std::uint32_t i = 0; i < raw.onTime.tails.size(); ++i) {
        std::string tail = upperAscii(raw.onTime.tails[i]);
        if (!tail.empty() && tail[0] >= '0' && tail[0] <= '9') tail.insert(tail.begin(), 'N');
        const auto model = models.find(tail);
        ofTail_.push_back(model == models.end() ? nullptr
                                                : types.ofModel(model->second.maker, model->second.model));
    }
    if (job.cancelled()) return; // half of the tails
    for (const OnTimeRow& row : raw.onTime.rows) {
        if (!walk.goesOn()) return;
        const AircraftType* type = ofTail_[row.tail];
        if (type == nullptr) continue;
        ++usual_[{row.carrier, bandOf(row.miles)}][type->code];
        ++ofCarrier_[row.carrier][type->code];
    }
}

const AircraftType* TailTypes::most(const Counts& counts) const {
    const auto less = [](const auto& a, const auto& b) { return a.second < b.second; };
    const auto best = std::max_element(counts.begin(), counts.end(), less);
    return best == counts.end() ? nullptr : types_.find(best->first);
}

const AircraftType& TailTypes::typeOf(const std::vector<OnTimeRow>& rows) const {
    Counts counts;
    for (const OnTimeRow& row : rows)
        if (ofTail_[row.tail] != nullptr) ++counts[ofTail_[row.tail]->code];
    const std::uint32_t carrier = rows[0].carrier;
    const int miles = rows[0].miles;
    if (const AircraftType* type = most(counts)) return *type;
    const auto band = usual_.find({carrier, bandOf(miles)});
    if (band != usual_.end()) return *most(band->second);
    const auto any = ofCarrier_.find(carrier);
    return any != ofCarrier_.end() ? *most(any->second) : types_.usual(miles * 100 / 115);
}

} // namespace gatewise::importer
