#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace gatewise {

/// Some log books name the aircraft of a flight by its registration alone and tell its type in a table of
/// their own before that of the flights.
class AircraftTable {
public:
    /// The next row before the header of the flights.
    void take(const std::vector<std::string>& row);

    /// The type of a registration, letters compared without case: its code, else make and model. What the
    /// table does not have is what it was.
    [[nodiscard]] std::string typeOf(std::string_view registration) const;

private:
    bool takeHeader(const std::vector<std::string>& row);

    int id_ = -1, code_ = -1, make_ = -1, model_ = -1; // columns; -1: none
    std::map<std::string, std::string> types_;
};

} // namespace gatewise
