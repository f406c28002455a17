#include "export/ExportFSNav.h"

namespace gatewise {

namespace {

constexpr std::int16_t kAirport = 64;

FsnFix fixAt(const PlanAirport& airport) {
    return {kAirport, airport.Latitude, airport.Longitude};
}

/// A point of no known type keeps the kind of the record before.
std::int16_t kindOf(const PlanPoint& point, std::int16_t before) {
    switch (point.kind()) {
    case PointKind::Intersection:
        return 4;
    case PointKind::Ndb:
        return 8;
    case PointKind::Vor:
        return 16;
    default:
        return before;
    }
}

} // namespace

Bytes fsnavPlan(const Plan& plan, const ExportFlight& flight, ByteView oldFile) {
    Bytes fixes;
    FsnHeader header;
    std::int16_t kind = kAirport;
    const auto add = [&](const FsnFix& fix) {
        appendRecord(fixes, fix);
        ++header.fixCount;
    };
    add(fixAt(plan.departureAirport));
    forEnRoute(plan, [&](int, const PlanPoint& point) {
        if (point.computed()) return;
        kind = kindOf(point, kind);
        add({kind, point.pointLatitude, point.pointLongitude});
    });
    add(fixAt(plan.destinationAirport));

    header.fileLength = static_cast<std::int32_t>(recordSize<FsnHeader>() + fixes.size());
    header.mark = "FP";
    header.name = flight.stem;
    Bytes out;
    appendRecord(out, header);
    out.insert(out.end(), fixes.begin(), fixes.end());
    if (oldFile.size() > out.size())
        out.insert(out.end(), oldFile.begin() + static_cast<std::ptrdiff_t>(out.size()), oldFile.end());
    return out;
}

} // namespace gatewise
