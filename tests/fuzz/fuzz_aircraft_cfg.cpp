#include "platform/Profile.h"
#include "platform/Text.h"
#include "simulator/AircraftScan.h"

#include <algorithm>
#include <cstdlib>

using namespace gatewise;

// Any bytes as an aircraft.cfg: the single pass finds what profile reads of each key would find.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    const auto variations = variationsOf(content);
    if (variations.size() > 100) std::abort();
    const Profile profile(content);
    for (std::size_t j = 0; j <= variations.size() && j < 100; ++j) {
        const std::string section = "fltsim." + std::to_string(j);
        std::string title = profile.find(section, "title").value_or("title");
        std::string sim = profile.find(section, "sim").value_or("sim");
        title.resize(std::min<std::size_t>(title.size(), 254));
        sim.resize(std::min<std::size_t>(sim.size(), 254));
        const bool ends = title.empty() || title[0] == '\0' || lowerCase(title.substr(0, 5)) == "title";
        if (ends != (j == variations.size())) std::abort();
        if (!ends && (variations[j].title != title || variations[j].sim != sim)) std::abort();
    }
    return 0;
}
