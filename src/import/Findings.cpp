#include "import/Findings.h"

namespace gatewise::importer {

void Findings::row(std::string_view kind, std::string_view file, int line, std::string_view detail) {
    other(kind, std::string(file) + ":" + std::to_string(line) + ": " + std::string(detail));
}

void Findings::other(std::string_view kind, std::string_view detail) {
    auto found = kinds_.find(kind);
    if (found == kinds_.end()) found = kinds_.try_emplace(std::string(kind)).first;
    ++found->second.count;
    if (found->second.first.size() < kShown) found->second.first.emplace_back(detail);
}

void Findings::add(const Findings& more) {
    for (const auto& [name, kind] : more.kinds_) {
        Kind& mine = kinds_[name];
        mine.count += kind.count;
        for (const auto& line : kind.first)
            if (mine.first.size() < kShown) mine.first.push_back(line);
    }
}

long long Findings::count(std::string_view kind) const {
    const auto found = kinds_.find(kind);
    return found == kinds_.end() ? 0 : found->second.count;
}

} // namespace gatewise::importer
