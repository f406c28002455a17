#pragma once

#include "schedule/Records.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace gatewise::importer {

/// An aircraft type of our own table.
struct AircraftType {
    AircraftRecord record;
    std::string code; // as in the record, trimmed
    std::string icao;
    int cruise = 0;    // knots true at the usual level
    char engine = 'J'; // J jet, T turboprop, P piston
    int seats = 0;
};

/// The table of aircraft types, and what stands for a type that it does not have.
class AircraftTypes {
public:
    /// The tables that travel with the program.
    AircraftTypes();

    /// By the code of timetables or the ICAO code; nullptr when it is not in the table.
    [[nodiscard]] const AircraftType* find(std::string_view code) const;
    /// The type itself or its nearest relative.
    [[nodiscard]] const AircraftType& nearest(std::string_view code) const;
    /// The type that a maker's and a model's text name, nullptr for one that flies no timetable.
    [[nodiscard]] const AircraftType* ofModel(std::string_view maker, std::string_view model) const;
    /// What flies a distance, in nautical miles, where nothing at all is known.
    [[nodiscard]] const AircraftType& usual(int miles) const;

    [[nodiscard]] const std::vector<AircraftType>& all() const { return types_; }

private:
    struct Model {
        std::string maker; // stands anywhere in the maker's text
        std::string begin; // of the model's text; "." stands for any character
        std::string code;
    };

    std::vector<AircraftType> types_;
    std::unordered_map<std::string, std::size_t> byCode_;
    std::unordered_map<std::string, std::size_t> byIcao_; // the first of a code counts
    std::unordered_map<std::string, std::string> relatives_;
    std::vector<Model> models_;
};

} // namespace gatewise::importer
