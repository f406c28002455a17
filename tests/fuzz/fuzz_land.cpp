#include "map/LandData.h"

#include <cstdlib>

// Any bytes as the land's file: each outline that comes of it can be drawn.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto land = gatewise::map::Land(gatewise::Bytes(data, data + size));
    for (std::size_t i = 0; i < land.levels(); ++i) {
        for (const auto& ring : land.at(i).land) {
            std::size_t points = 0;
            for (const auto& piece : ring.pieces) points += piece.count;
            if (ring.points.size() < 3 || points != ring.points.size() || ring.turn == 0) std::abort();
        }
    }
    return 0;
}
