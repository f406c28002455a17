#include "plan/Regions.h"

#include <cstdint>
#include <cstdlib>

using namespace gatewise;

namespace {

void expect(bool holds) {
    if (!holds) std::abort();
}

} // namespace

/// Any bytes as a file of regions: what is read is written and read the same again, each entry is found.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Regions regions = regionsIn({reinterpret_cast<const char*>(data), size});
    for (const RegionEntry& entry : regions.entries())
        expect(regions.find(entry.kind, entry.ident, entry.latitude, entry.longitude) == entry.region);
    const std::string text = regionsText(regions);
    expect(regionsText(regionsIn(text, [](int) { std::abort(); })) == text);
    return 0;
}
