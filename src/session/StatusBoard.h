#pragma once

#include "board/BoardTypes.h"
#include "platform/Text.h"

#include <cstdint>
#include <string>

namespace gatewise {

/// The status board: whose it is, which airline it shows, its rows.
struct StatusBoard {
    std::int32_t BoardAirportIndex = 0;
    std::string BoardMode = "departing"; // or "arriving"
    std::string FavoriteAirlineName;     // the airline that the board is filtered by
    FixedText<3> BoardAirlineCode;       // its code, "- A" for any
    BoardLists board;
    std::int16_t BoardPage = 0;
};

} // namespace gatewise
