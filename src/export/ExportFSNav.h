#pragma once

#include "export/ExportCommon.h"
#include "platform/Binary.h"

#include <array>

namespace gatewise {

/// The head of a .fsn file of FSNavigator 4; the fixes follow it.
struct FsnHeader {
    std::int32_t fileLength = 0;
    FixedText<2> mark; // "FP"
    std::int16_t version = 105;
    std::array<std::int32_t, 2> reserved1{};
    FixedText<256> name;
    std::array<std::int32_t, 2> reserved2{};
    std::int32_t firstFix = 320;
    std::int32_t fixCount = 0;
    std::array<std::int32_t, 8> reserved3{};

    static constexpr void fields(auto& r, auto&& f) {
        f("fileLength", r.fileLength), f("mark", r.mark), f("version", r.version);
        for (auto& zero : r.reserved1) f("reserved1", zero);
        f("name", r.name);
        for (auto& zero : r.reserved2) f("reserved2", zero);
        f("firstFix", r.firstFix), f("fixCount", r.fixCount);
        for (auto& zero : r.reserved3) f("reserved3", zero);
    }
};
static_assert(recordSize<FsnHeader>() == 320);

struct FsnFix {
    std::int16_t kind = 0;
    float latitude = 0;  // degrees, north positive
    float longitude = 0; // degrees, east positive

    static constexpr void fields(auto& r, auto&& f) {
        f("kind", r.kind), f("latitude", r.latitude), f("longitude", r.longitude);
    }
};
static_assert(recordSize<FsnFix>() == 10);

/// The plan as a .fsn file, written over the start of `oldFile`: a longer one keeps its tail, the length in
/// the header is the new one.
Bytes fsnavPlan(const Plan& plan, const ExportFlight& flight, ByteView oldFile);

} // namespace gatewise
