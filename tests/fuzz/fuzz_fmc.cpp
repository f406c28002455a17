#include "export/ExportFMC.h"

#include <cstdlib>

using namespace gatewise;

namespace {

Plan smallPlan() {
    Plan plan;
    plan.planLast = 2;
    plan.at(0).pointName = "KSEA";
    plan.at(1).pointName = "OLM";
    plan.at(2).pointName = "KLAX";
    return plan;
}

/// Lines that the writer must end with CR LF itself.
std::size_t linesOf(std::string_view text) {
    std::size_t lines = 0;
    for (const char c : text) lines += c == '\n' ? 1U : 0U;
    return lines;
}

void expect(bool holds) {
    if (!holds) std::abort();
}

} // namespace

/// A company route file of any bytes: it is refused, or the plan stands in it, first or last and whole, and a
/// second export of the same flight finds it.
void fuzzFmc(const std::uint8_t* data, std::size_t size) {
    static const Plan plan = smallPlan();
    const std::string_view old(reinterpret_cast<const char*>(data), size);
    const auto once = fmcPlans(plan, old, {});
    if (!once) return;
    const std::string alone = fmcPlans(plan, "", {}).value();
    expect(once->starts_with(alone) || once->ends_with(alone));
    expect(once->ends_with("\r\n"));
    if (linesOf(*once) > kFmcLines) return;
    const auto twice = fmcPlans(plan, *once, {});
    expect(!twice || twice->ends_with(alone));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzzFmc(data, size);
    return 0;
}
