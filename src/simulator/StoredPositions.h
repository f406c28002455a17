#pragma once

#include "platform/Binary.h"

#include <array>
#include <string_view>

// Positions at an airport that were stored by an add-on: gates, stands, parking. One .pf2 file for each
// airport, read and never written.

namespace gatewise {

struct StoredPosition {
    FixedText<4> identifier; // blank: the slot is empty
    FixedText<36> name;
    float latitude = 0;  // degrees, north positive
    float longitude = 0; // degrees, east positive
    float heading = 0;   // degrees

    static constexpr void fields(auto& r, auto&& f) {
        f("identifier", r.identifier), f("name", r.name);
        f("latitude", r.latitude), f("longitude", r.longitude), f("heading", r.heading);
    }

    [[nodiscard]] bool empty() const { return identifier.trimmed().empty(); }
};
static_assert(recordSize<StoredPosition>() == 52);

inline constexpr std::size_t kStoredPositions = 100;
using StoredPositions = std::array<StoredPosition, kStoredPositions>;

/// The slots of a file's bytes; what the bytes do not hold whole is empty, what goes beyond the last slot is
/// left out.
StoredPositions storedPositionsOf(ByteView bytes);

/// The slots of an airport below the simulator's folder; all empty without a file.
StoredPositions loadStoredPositions(std::string_view FsPath, std::string_view icao);

} // namespace gatewise
