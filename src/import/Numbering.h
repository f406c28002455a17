#pragma once

#include "import/Flight.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace gatewise::importer {

/// The flight numbers that an airline still has.
class Numbering {
public:
    /// The numbers of these flights are taken.
    explicit Numbering(const std::vector<Flight>& taken) {
        for (const Flight& flight : taken) used_[flight.airline].insert(flight.number);
    }

    /// The lowest free number from 1 to 9999; 0 when the airline has none left.
    int next(const std::string& airline) {
        constexpr int last = 9999;
        int& number = next_.try_emplace(airline, 1).first->second;
        const std::set<int>& used = used_[airline];
        while (number <= last && used.contains(number)) ++number;
        return number <= last ? number++ : 0;
    }

private:
    std::map<std::string, std::set<int>> used_;
    std::map<std::string, int> next_;
};

} // namespace gatewise::importer
