#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace gatewise::importer {

/// The clocks of the world from 1987 to 2037, summer time included, from a table of our own: the same on
/// every machine.
class Zones {
public:
    Zones();

    [[nodiscard]] bool known(std::string_view zone) const;
    /// Minutes ahead of UTC at noon UTC on the 15th of a month; 0 for a zone that is not known. Before 1987
    /// and after 2037 the first and the last clock of the table go on.
    [[nodiscard]] int minutesAhead(std::string_view zone, int year, int month) const;

private:
    struct Change {
        long long minute = 0; // since the beginning of 1987, UTC
        int ahead = 0;
    };
    std::unordered_map<std::string, std::size_t> clockOf_;
    std::vector<std::vector<Change>> clocks_; // the first change is the state at the beginning
};

} // namespace gatewise::importer
