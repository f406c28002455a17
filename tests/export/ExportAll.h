#pragma once

#include "ExportFlights.h"

#include <string>
#include <vector>

namespace gatewise::test {

/// What one writer makes of a flight.
struct ExportedFile {
    std::string name; // of its golden file
    std::string bytes;
};

/// Every file that leaves for this flight, each written for the first time on 15 June 2002, 08:30; the
/// Radar Contact plan is missing where the flight has too many checkpoints.
std::vector<ExportedFile> exportAll(const ExportCase& flight, const NumberLocale& numbers);

/// Bytes as lines of sixteen, each with its offset.
std::string hexText(ByteView bytes);

} // namespace gatewise::test
