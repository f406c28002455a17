#pragma once

#include "gt1/DataSet.h"
#include "gt1/Report.h"
#include "platform/Binary.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gatewise::gt1 {

struct PackedFile {
    std::string name;
    Bytes bytes;
};

/// index, airline, routes, arrivals, Plans and APT; errors for a count or a position that its field cannot
/// hold.
std::vector<PackedFile> packDataSet(DataSet set, Report& report);

/// aircraft, VOR, NDB, ISC and JRT, and where regions are known the file of them.
std::vector<PackedFile> packWorld(const World& world);

/// The position, from 1, of what follows `bytesBefore` in a file, as the records hold it; an error in the
/// report when it lies past 2^31 - 1. `what` names what begins there.
std::int32_t filePosition(std::string_view file, std::string_view what, std::uint64_t bytesBefore,
                          Report& report);

/// The number of flights of an airport, as its record holds it; an error when it is above 32767.
std::int16_t flightCount(std::string_view file, std::string_view what, std::size_t count, Report& report);

} // namespace gatewise::gt1
