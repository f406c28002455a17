#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace gatewise::importer {

/// What an import left out or changed: for each kind of finding the number of cases, and the first of them in
/// full.
class Findings {
public:
    static constexpr std::size_t kShown = 20;

    struct Kind {
        long long count = 0;
        std::vector<std::string> first; // at most kShown
    };

    /// A row of a file: "runways.csv:17: DETAIL".
    void row(std::string_view kind, std::string_view file, int line, std::string_view detail);
    void other(std::string_view kind, std::string_view detail);
    /// Adds the findings of another, in its order.
    void add(const Findings& more);

    [[nodiscard]] const std::map<std::string, Kind, std::less<>>& kinds() const { return kinds_; }
    [[nodiscard]] long long count(std::string_view kind) const;

private:
    std::map<std::string, Kind, std::less<>> kinds_;
};

} // namespace gatewise::importer
