#include "PlanWorld.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return gatewise::fuzz::runPlan(gatewise::fuzz::NavFile::ISC, data, size);
}
