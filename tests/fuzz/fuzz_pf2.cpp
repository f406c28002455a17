#include "simulator/FlightFile.h"
#include "simulator/SituationTexts.h"

#include <algorithm>
#include <cstdlib>

using namespace gatewise;

// Any bytes as a file of stored positions, each slot chosen and written as text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const StoredPositions slots = storedPositionsOf({data, size});
    const std::size_t whole = std::min(size / 52, slots.size());
    for (std::size_t i = whole; i < slots.size(); ++i) {
        if (!slots[i].empty() || slots[i].latitude != 0) std::abort();
    }
    static const Plan plan;
    const NumberLocale comma{",", ","};
    for (const std::string& choice : startChoices(plan.departureAirport, slots)) {
        const StartPosition start = resolveStart(choice, plan, slots, 0, {});
        for (const NumberLocale& numbers : {NumberLocale(), comma}) {
            const std::string text = FormatLatitude(start.StartLat, numbers) +
                                     FormatLongitude(start.StartLon, numbers) +
                                     FormatHeading(start.StartHdg, numbers);
            if (text.find_first_of("\r\n,") != std::string::npos) std::abort();
        }
    }
    return 0;
}
