#pragma once

#include "session/Flag.h"
#include "sound/AnnouncementScan.h"

#include <array>
#include <cstdint>
#include <string>

namespace gatewise {

/// What is heard in the hall: the ambience's fade and the flights that were announced.
struct Hall {
    std::int16_t AmbienceLevel = -9000; // where the fade stands
    std::string FadeDirection = "in";   // "in" or "out"
    std::array<Flag, 6> PlayedFlags{};  // kinds 1 to 6
    std::array<AnnouncementRing, 3> AnnouncedDepartures, AnnouncedArrivals;
};

} // namespace gatewise
