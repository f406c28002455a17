#include "OutsideFile.h"
#include "export/ExportFSNav.h"

// Any bytes as the old plan: the new one stands in front, and the tail of a longer old file behind it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gatewise;
    static const Plan plan;
    static const ExportFlight flight{"Air One Flight 1 AAA to BBB", false};
    static const Bytes fresh = fsnavPlan(plan, flight, {});
    const Bytes out = fsnavPlan(plan, flight, {data, size});
    fuzz::expect(out.size() == std::max(fresh.size(), size));
    fuzz::expect(std::equal(fresh.begin(), fresh.end(), out.begin()));
    if (size > fresh.size())
        fuzz::expect(std::equal(out.begin() + static_cast<std::ptrdiff_t>(fresh.size()), out.end(),
                                data + fresh.size()));
    return 0;
}
