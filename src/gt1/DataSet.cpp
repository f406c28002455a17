#include "gt1/DataSet.h"

#include "gt1/Rows.h"

namespace gatewise::gt1 {

void FixNames::add(std::string_view key) {
    std::string name(key);
    if (records_.contains(name)) {
        int& last = again_.try_emplace(name, 1).first->second;
        do {
            name = std::string(key) + "." + std::to_string(++last);
        } while (records_.contains(name));
    }
    records_.emplace(name, static_cast<int>(names_.size()));
    names_.push_back(std::move(name));
}

int FixNames::find(const std::string& name) const {
    const auto found = records_.find(name);
    return found == records_.end() ? -1 : found->second;
}

const std::string* FixNames::name(long long record) const {
    if (record < 0 || record >= static_cast<long long>(names_.size())) return nullptr;
    return &names_[static_cast<std::size_t>(record)];
}

WorldNames::WorldNames(const World& world) {
    for (const auto& record : world.vor) vor.add(record.navaidId.trimmed());
    for (const auto& record : world.ndb) ndb.add(record.navaidId.trimmed());
    for (const auto& record : world.fixes) fixes.add(record.fixId.trimmed());
    for (const auto& record : world.jets) jets.add(record.jetId.trimmed());
}

const FixNames* WorldNames::ofKind(char kind) const {
    switch (kind) {
    case 'V':
        return &vor;
    case 'N':
        return &ndb;
    case 'I':
        return &fixes;
    case 'H':
        return &jets;
    default:
        return nullptr;
    }
}

std::string_view WorldNames::fileOf(char kind) {
    switch (kind) {
    case 'V':
        return VorRow::file;
    case 'N':
        return NdbRow::file;
    case 'I':
        return FixRow::file;
    default:
        return JetRow::file;
    }
}

} // namespace gatewise::gt1
