#include "import/Facilities.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace gatewise::importer {

namespace {

struct RoleRow {
    std::string_view begin; // of the type's text
    FixedText<6> RadioRecord::*field;
};

constexpr auto kRoles = std::to_array<RoleRow>({
    {"TWR", &RadioRecord::towerFreq},
    {"TOWER", &RadioRecord::towerFreq},
    {"GND", &RadioRecord::groundFreq},
    {"GROUND", &RadioRecord::groundFreq},
    {"APP", &RadioRecord::approachFreq},
    {"A/D", &RadioRecord::approachFreq},
    {"DEP", &RadioRecord::departureFreq},
    {"CLD", &RadioRecord::deliveryFreq},
    {"DEL", &RadioRecord::deliveryFreq},
    {"CLNC", &RadioRecord::deliveryFreq},
});

int kilohertz(double megahertz) {
    return static_cast<int>(std::lround(megahertz * 1000));
}

/// Airliners' radios of the time step by 25 kHz.
bool oldChannel(double megahertz) {
    return kilohertz(megahertz) % 25 == 0;
}

std::string radioText(double megahertz) {
    const int tens = kilohertz(megahertz) / 10; // 118.305 is shown as 118.30, 121.975 as 121.97
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%d.%02d", tens / 100, tens % 100);
    return text.data();
}

} // namespace

void addRadios(Airports& airports, const RawTables& raw, const Job& job) {
    Walk walk(job, 2 * raw.radios.rows.size(), 0.9);
    for (const bool old : {true, false})
        for (const RadioIn& row : raw.radios.rows) {
            if (!walk.goesOn()) return;
            if (row.megahertz < 118 || row.megahertz >= 137 || oldChannel(row.megahertz) != old) continue;
            const int number = airports.find(row.airport);
            const std::string type = upperAscii(row.type);
            const auto* role = std::find_if(kRoles.begin(), kRoles.end(), [&](const RoleRow& r) {
                return std::string_view(type).starts_with(r.begin);
            });
            if (number < 0 || role == kRoles.end()) continue;
            auto& field = airports.all[static_cast<std::size_t>(number)].facilities.radios.*(role->field);
            if (field.trimmed().empty()) field = radioText(row.megahertz);
        }
}

} // namespace gatewise::importer
